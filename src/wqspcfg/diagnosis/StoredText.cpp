#include "wqspcfg/diagnosis/StoredText.h"

#include "wqspcfg/platform/text/Utf.h"
#include "wqspcfg/platform/utility/StringUtility.h"

#include <algorithm>

namespace wqspcfg::diagnosis {

namespace {

std::wstring HexBytes(std::span<const std::byte> data)
{
    static constexpr wchar_t kDigits[] = L"0123456789abcdef";
    std::wstring text;
    for (const auto byte : data) {
        const auto number = std::to_integer<unsigned>(byte);
        if (!text.empty()) {
            text += L' ';
        }
        text += kDigits[number >> 4];
        text += kDigits[number & 15];
    }
    return text;
}

std::uint64_t LittleEndian(std::span<const std::byte> data)
{
    std::uint64_t number = 0;
    for (std::size_t i = data.size(); i-- > 0;) {
        number = (number << 8) | std::to_integer<std::uint64_t>(data[i]);
    }
    return number;
}

} // namespace

std::string TypeName(ValueType type)
{
    switch (type) {
    case ValueType::None:
        return "REG_NONE";
    case ValueType::Sz:
        return "REG_SZ";
    case ValueType::ExpandSz:
        return "REG_EXPAND_SZ";
    case ValueType::Binary:
        return "REG_BINARY";
    case ValueType::Dword:
        return "REG_DWORD";
    case ValueType::DwordBigEndian:
        return "REG_DWORD_BIG_ENDIAN";
    case ValueType::Link:
        return "REG_LINK";
    case ValueType::MultiSz:
        return "REG_MULTI_SZ";
    case ValueType::Qword:
        return "REG_QWORD";
    }
    return "type " + std::to_string(static_cast<std::uint32_t>(type));
}

std::wstring DataText(const ValueView& value, std::wstring_view separator)
{
    if ((value.type == ValueType::Dword && value.data.size() == 4) ||
        (value.type == ValueType::Qword && value.data.size() == 8)) {
        return std::to_wstring(LittleEndian(value.data));
    }
    const bool isText =
        value.type == ValueType::Sz || value.type == ValueType::ExpandSz || value.type == ValueType::MultiSz;
    std::wstring text;
    if (!isText || !AppendWideFromUtf16Le(value.data.first(value.data.size() & ~std::size_t{1}), text)) {
        return HexBytes(value.data);
    }
    if (value.type != ValueType::MultiSz) {
        return text.substr(0, text.find(L'\0'));
    }
    std::wstring all;
    for (std::size_t start = 0; start < text.size() && text[start] != 0;) {
        const auto end = std::min(text.find(L'\0', start), text.size());
        if (start != 0) {
            all += separator;
        }
        all.append(text, start, end - start);
        start = end + 1;
    }
    return all;
}

std::optional<DWORD> ParseNumber(std::wstring_view text)
{
    if (text.starts_with(L"0x") || text.starts_with(L"0X")) {
        return ParseDword(text.substr(2), 16);
    }
    return ParseDword(text);
}

} // namespace wqspcfg::diagnosis
