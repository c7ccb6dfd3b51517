#include "wqspcfg/platform/text/DisplayText.h"

#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <cstdint>

namespace wqspcfg {

namespace {

bool IsHarmful(char32_t ch)
{
    return ch < 0x20 || (ch >= 0x7F && ch <= 0x9F) || ch == 0x061C || ch == 0x200E || ch == 0x200F ||
           (ch >= 0x2028 && ch <= 0x202E) || (ch >= 0x2066 && ch <= 0x2069) || (ch >= 0xD800 && ch <= 0xDFFF);
}

void AppendHex(std::uint32_t number, int digits, std::string& out)
{
    for (auto shift = (digits - 1) * 4; shift >= 0; shift -= 4) {
        out += "0123456789ABCDEF"[(number >> shift) & 0xF];
    }
}

} // namespace

std::string DisplayText(std::wstring_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        // A pair of surrogates, where wchar_t is a UTF-16 unit, is one character.
        const bool isPair = sizeof(wchar_t) == 2 && at + 1 < text.size() && (text[at] & 0xFC00) == 0xD800 &&
                            (text[at + 1] & 0xFC00) == 0xDC00;
        const auto character = text.substr(at, isPair ? 2 : 1);
        const auto ch = static_cast<char32_t>(character.front());
        at += character.size();
        if (!isPair && ch < 0x7F && ch >= 0x20) {
            out += static_cast<char>(ch);
        } else if ((!isPair && IsHarmful(ch)) || !AppendUtf8(character, out)) {
            out += "<U+";
            AppendHex(ch, 4, out);
            out += '>';
        }
    }
    return out;
}

std::string DisplayText(std::string_view utf8)
{
    constexpr std::size_t kLongest = 4;
    std::string out;
    std::wstring wide;
    for (std::size_t at = 0; at < utf8.size();) {
        std::size_t length = 1;
        while (length <= std::min(kLongest, utf8.size() - at) && !AppendWideFromUtf8(utf8.substr(at, length), wide)) {
            ++length;
        }
        if (wide.empty()) {
            out += "<0x";
            AppendHex(static_cast<unsigned char>(utf8[at]), 2, out);
            out += '>';
            length = 1;
        }
        out += DisplayText(wide);
        wide.clear();
        at += length;
    }
    return out;
}

std::string ShellWord(std::string_view word)
{
    const auto isPlain = [](char ch) {
        return (ch >= '0' && ch <= '9') || (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') || ch == '_' ||
               ch == '-' || ch == '.';
    };
    if (!word.empty() && std::all_of(word.begin(), word.end(), isPlain)) {
        return std::string(word);
    }
#if defined(_WIN32)
    return '"' + std::string(word) + '"';
#else
    std::string quoted = "'";
    for (const char ch : word) {
        quoted += ch == '\'' ? std::string("'\\''") : std::string(1, ch);
    }
    return quoted + '\'';
#endif
}

} // namespace wqspcfg
