#include "platform/text/NarrowText.h"

#include "platform/base/WinTypes.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>

namespace wqspcfg {

#if defined(_WIN32)

namespace {

// One character of any code page has at most this many bytes.
constexpr std::size_t kMaxBytes = 8;
// Longer text is converted in pieces, as the system counts in int.
constexpr std::size_t kPiece = std::size_t{INT_MAX} / kMaxBytes;

} // namespace

std::string WideToNarrow(std::wstring_view text)
{
    std::string out;
    while (!text.empty()) {
        std::size_t piece = std::min(text.size(), kPiece);
        if (piece < text.size() && piece > 1 && IS_HIGH_SURROGATE(text[piece - 1])) {
            --piece;
        }
        const int length = static_cast<int>(piece);
        const int size = WideCharToMultiByte(CP_THREAD_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
        const std::size_t old = out.size();
        out.resize(old + static_cast<std::size_t>(size));
        WideCharToMultiByte(CP_THREAD_ACP, 0, text.data(), length, out.data() + old, size, nullptr, nullptr);
        text.remove_prefix(piece);
    }
    return out;
}

std::wstring NarrowToWide(std::string_view text)
{
    std::wstring out;
    while (!text.empty()) {
        const int length = static_cast<int>(std::min(text.size(), kPiece));
        const int size = MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), length, nullptr, 0);
        const std::size_t old = out.size();
        out.resize(old + static_cast<std::size_t>(size));
        MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), length, out.data() + old, size);
        text.remove_prefix(static_cast<std::size_t>(length));
    }
    return out;
}

#else

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kEscape = 0xDC00; // plus a byte from 0x80 on

bool IsContinuation(char byte) noexcept
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

void AppendUtf8(std::string& out, char32_t code)
{
    const auto tail = [&](unsigned shift) { out += static_cast<char>(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | code >> 6);
        tail(0);
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0 | code >> 12);
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xF0 | code >> 18);
        tail(12);
        tail(6);
        tail(0);
    }
}

// The length of the well-formed character at the beginning of `text`, 0 where there is none.
std::size_t DecodeUtf8(std::string_view text, char32_t& code) noexcept
{
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || length > text.size()) {
        return 0;
    }
    code = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(text[i])) {
            return 0;
        }
        code = code << 6 | (static_cast<unsigned char>(text[i]) & 0x3F);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return overlong || surrogate || code > 0x10FFFF ? 0 : length;
}

} // namespace

std::string WideToNarrow(std::wstring_view text)
{
    std::string out;
    out.reserve(text.size());
    for (const wchar_t ch : text) {
        const auto code = static_cast<char32_t>(ch);
        if (code >= kEscape + 0x80 && code <= kEscape + 0xFF) {
            out += static_cast<char>(code - kEscape);
        } else {
            AppendUtf8(out, code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF) ? kReplacement : code);
        }
    }
    return out;
}

std::wstring NarrowToWide(std::string_view text)
{
    std::wstring out;
    out.reserve(text.size());
    while (!text.empty()) {
        char32_t code = 0;
        std::size_t length = DecodeUtf8(text, code);
        if (length == 0) {
            code = kEscape + static_cast<unsigned char>(text[0]);
            length = 1;
        }
        out += static_cast<wchar_t>(code);
        text.remove_prefix(length);
    }
    return out;
}

#endif

} // namespace wqspcfg
