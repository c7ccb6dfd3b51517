// Text of strangers, as a terminal or a log may show it.
//
// A character that would break the line, move the cursor, speak to the terminal or turn the direction of the text is
// written as its code point, "<U+001B>": control characters with tab and line ends, line and paragraph separators,
// bidirectional marks, and lone surrogates.
#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <string>
#include <string_view>

namespace wqspcfg {

WQSPCFG_API std::string DisplayText(std::wstring_view text);
// Of UTF-8; a byte that is no part of it is written as "<0xE9>".
WQSPCFG_API std::string DisplayText(std::string_view utf8);

// A word of a command line (UTF-8), as the shell of the platform takes it.
WQSPCFG_API std::string ShellWord(std::string_view word);

} // namespace wqspcfg
