#include "wqspcfg/platform/store/FlatKey.h"

#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

namespace wqspcfg {

namespace {

struct HiveEntry
{
    char letter;
    std::wstring_view name;
};

constexpr std::array<HiveEntry, 5> kHives = {{
    {'M', L"HKEY_LOCAL_MACHINE"},
    {'U', L"HKEY_USERS"},
    {'C', L"HKEY_CURRENT_USER"},
    {'R', L"HKEY_CLASSES_ROOT"},
    {'F', L"HKEY_CURRENT_CONFIG"},
}};

// Writes the text in upper case, as many characters as it has. False when it is not all ASCII, or holds a NUL; what was
// written means nothing then. (No branches in the loops, so that the compiler takes many characters at once.)
bool FoldAscii(std::wstring_view text, char* to)
{
    const auto* const from = text.data();
    const auto size = text.size();
    std::uint32_t all = 0;
    std::uint32_t less = 0; // its sign tells of a NUL
    for (std::size_t i = 0; i < size; ++i) {
        const auto code = static_cast<std::uint32_t>(from[i]); // NOLINT(bugprone-signed-char-misuse)
        all |= code;
        less |= code - 1;
        to[i] = static_cast<char>(code);
    }
    if (all > 0x7F || less > 0x7F) {
        return false;
    }
    for (std::size_t i = 0; i < size; ++i) {
        const auto letter = static_cast<unsigned char>(to[i] - 'a');
        to[i] = static_cast<char>(to[i] - (letter < 26 ? 'a' - 'A' : 0));
    }
    return true;
}

// Whether a component of the path is empty.
bool HasEmptyComponent(std::string_view path)
{
    unsigned empty = path.starts_with('\\') || path.ends_with('\\') ? 1 : 0;
    for (std::size_t pos = 1; pos < path.size(); ++pos) {
        empty |= static_cast<unsigned>(path[pos - 1] == '\\') & static_cast<unsigned>(path[pos] == '\\');
    }
    return empty != 0;
}

const HiveEntry& EntryOf(Hive hive)
{
    return kHives[static_cast<std::size_t>(hive)];
}

std::string ForMessage(const std::wstring& text)
{
    constexpr std::size_t kShown = 600; // more than any path of the embedded store
    return text.size() <= kShown ? Utf8ForMessage(text) : Utf8ForMessage(text.substr(0, kShown)) + "...";
}

} // namespace

bool HasControlCharacter(std::wstring_view name) noexcept
{
    return std::any_of(name.begin(), name.end(), [](wchar_t unit) {
        const auto code = static_cast<std::uint32_t>(unit); // NOLINT(bugprone-signed-char-misuse)
        return code < 0x20 || (code >= 0x7F && code < 0xA0);
    });
}

bool CanExist(std::wstring_view path) noexcept
{
    std::size_t levels = 0;
    for (std::size_t pos = 0; pos < path.size();) {
        const auto end = std::min(path.find(L'\\', pos), path.size());
        if (end > pos && (++levels > kMaxKeyDepth || Utf16Length(path.substr(pos, end - pos)) > kMaxKeyName)) {
            return false;
        }
        pos = end + 1;
    }
    return true;
}

char HiveLetter(Hive hive) noexcept
{
    return EntryOf(hive).letter;
}

std::wstring_view HiveName(Hive hive) noexcept
{
    return EntryOf(hive).name;
}

bool AppendFolded(std::wstring_view name, std::string& out)
{
    const auto start = out.size();
    out.resize(start + name.size());
    if (FoldAscii(name, out.data() + start)) {
        return true;
    }
    out.resize(start);
    const auto upper = UpCase(name);
    return upper.find(L'\0') == std::wstring::npos && AppendCesu8(upper, out);
}

bool AppendFoldedPath(Hive hive, std::wstring_view path, std::string& out)
{
    const auto start = out.size();
    out.resize(start + 1 + path.size());
    out[start] = HiveLetter(hive);
    if (FoldAscii(path, out.data() + start + 1) && !HasEmptyComponent(std::string_view(out).substr(start + 1))) {
        return true;
    }
    out.resize(start);
    FlatPath slow;
    return slow.Assign(hive, path) && (out.append(slow.Whole()), true);
}

bool FlatPath::Assign(Hive hive, std::wstring_view path)
{
    m_flat.assign(1, HiveLetter(hive));
    m_ends.assign(1, 1);
    m_components.clear();
    for (std::size_t pos = 0; pos < path.size();) {
        const auto end = std::min(path.find(L'\\', pos), path.size());
        if (end > pos) {
            const auto component = path.substr(pos, end - pos);
            if (!m_components.empty()) {
                m_flat.push_back('\\');
            }
            if (!AppendFolded(component, m_flat)) {
                return false;
            }
            m_components.push_back(component);
            m_ends.push_back(m_flat.size());
        }
        pos = end + 1;
    }
    return true;
}

void FlatPath::SubkeyName(std::size_t depth, std::string& key) const
{
    key.assign(Prefix(depth - 1));
    key.append(kSubkeyMark);
    const auto start = m_ends[depth - 1] + (depth > 1 ? 1 : 0);
    key.append(m_flat, start, m_ends[depth] - start);
}

std::string DescribeFlatPath(std::string_view flat)
{
    for (const auto& hive : kHives) {
        if (!flat.empty() && hive.letter == flat.front()) {
            std::wstring text(hive.name);
            if (flat.size() > 1) {
                text.push_back(L'\\');
                if (!AppendWideFromCesu8(flat.substr(1), text)) {
                    text.push_back(L'?');
                }
            }
            return ForMessage(text);
        }
    }
    return "an unknown key";
}

std::string DescribeKey(Hive hive, std::wstring_view path)
{
    std::wstring text(HiveName(hive));
    if (!path.empty()) {
        text.push_back(L'\\');
        text.append(path);
    }
    return ForMessage(text);
}

} // namespace wqspcfg
