// Narrow text, as XFS structures carry it: the calling thread's ANSI code page on Windows, UTF-8 elsewhere.
//
// UTF-8: a byte that is no part of well-formed UTF-8 becomes the lone surrogate U+DC00 + byte and turns into the same
// byte again, so that narrow text survives the way to wide text and back whatever its encoding. Wide text that is
// otherwise ill-formed becomes U+FFFD. Windows: characters without a counterpart become the code page's default
// character.
#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <string>
#include <string_view>

namespace wqspcfg {

WQSPCFG_API std::string WideToNarrow(std::wstring_view text);
WQSPCFG_API std::wstring NarrowToWide(std::string_view text);

} // namespace wqspcfg
