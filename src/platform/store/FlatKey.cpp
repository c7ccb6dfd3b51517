#include "platform/store/FlatKey.h"

#include "platform/text/CaseFold.h"
#include "platform/text/Utf.h"

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

// The upper case of an ASCII character, 0 for NUL and any other character.
struct AsciiUpper
{
    std::array<char, 128> table{};

    constexpr AsciiUpper()
    {
        for (std::size_t ch = 1; ch < table.size(); ++ch) {
            table[ch] = static_cast<char>(ch >= 'a' && ch <= 'z' ? ch - ('a' - 'A') : ch);
        }
    }
    char operator[](wchar_t ch) const
    {
        const auto code = static_cast<std::make_unsigned_t<wchar_t>>(ch); // NOLINT(bugprone-signed-char-misuse)
        return code < table.size() ? table[code] : '\0';
    }
};

constexpr AsciiUpper kAsciiUpper;

const HiveEntry& EntryOf(Hive hive)
{
    return kHives[static_cast<std::size_t>(hive)];
}

} // namespace

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
    auto* to = out.data() + start;
    std::size_t pos = 0;
    for (; pos < name.size() && kAsciiUpper[name[pos]] != 0; ++pos) {
        to[pos] = kAsciiUpper[name[pos]];
    }
    if (pos == name.size()) {
        return true;
    }
    out.resize(start + pos);
    const auto rest = UpCase(name.substr(pos));
    return rest.find(L'\0') == std::wstring::npos && AppendCesu8(rest, out);
}

bool AppendFoldedPath(Hive hive, std::wstring_view path, std::string& out)
{
    out.push_back(HiveLetter(hive));
    const auto start = out.size();
    out.resize(start + path.size());
    auto* to = out.data() + start;
    std::size_t length = 0;
    for (std::size_t pos = 0; pos < path.size(); ++pos) {
        const auto ch = kAsciiUpper[path[pos]];
        if (ch == 0) {
            FlatPath slow;
            out.resize(start - 1);
            return slow.Assign(hive, path) && (out.append(slow.Whole()), true);
        }
        // Empty components do not count.
        if (ch == '\\' && (length == 0 || to[length - 1] == '\\')) {
            continue;
        }
        to[length++] = ch;
    }
    if (length > 0 && to[length - 1] == '\\') {
        --length;
    }
    out.resize(start + length);
    return true;
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
            return Utf8ForMessage(text);
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
    return Utf8ForMessage(text);
}

} // namespace wqspcfg
