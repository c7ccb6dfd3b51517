// Stored values as text.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/store/Store.h"

#include <optional>
#include <string>
#include <string_view>

namespace wqspcfg::diagnosis {

// "REG_DWORD".
std::string TypeName(ValueType type);

// A number in decimal, text as it stands (each string of a REG_MULTI_SZ after the other, `separator` between them),
// everything else as hexadecimal bytes.
std::wstring DataText(const ValueView& value, std::wstring_view separator);

// In decimal, or in hexadecimal after "0x".
std::optional<DWORD> ParseNumber(std::wstring_view text);

} // namespace wqspcfg::diagnosis
