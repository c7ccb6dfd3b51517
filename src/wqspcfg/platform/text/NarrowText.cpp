#include "wqspcfg/platform/text/NarrowText.h"

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <climits>
#include <cstddef>

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

constexpr wchar_t kEscape = 0xDC00; // plus a byte from 0x80 on

bool IsEscape(wchar_t ch) noexcept
{
    return ch >= kEscape + 0x80 && ch <= kEscape + 0xFF;
}

// How long the character is that begins with this byte; 1 where none does.
std::size_t CharacterSize(char byte) noexcept
{
    const auto lead = static_cast<unsigned char>(byte);
    return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

} // namespace

std::string WideToNarrow(std::wstring_view text)
{
    std::string out;
    for (;;) {
        const auto escape = std::find_if(text.begin(), text.end(), IsEscape);
        const auto plain = static_cast<std::size_t>(escape - text.begin());
        out += Utf8ForMessage(text.substr(0, plain));
        if (escape == text.end()) {
            return out;
        }
        out += static_cast<char>(*escape - kEscape);
        text.remove_prefix(plain + 1);
    }
}

std::wstring NarrowToWide(std::string_view text)
{
    std::wstring out;
    if (AppendWideFromUtf8(text, out)) {
        return out;
    }
    while (!text.empty()) {
        const std::string_view character = text.substr(0, CharacterSize(text.front()));
        if (AppendWideFromUtf8(character, out)) {
            text.remove_prefix(character.size());
        } else {
            out += static_cast<wchar_t>(kEscape + static_cast<unsigned char>(text.front()));
            text.remove_prefix(1);
        }
    }
    return out;
}

#endif

} // namespace wqspcfg
