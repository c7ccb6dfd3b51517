#include "platform/store/FlatKey.h"

#include "platform/text/CaseFold.h"
#include "platform/text/Utf.h"

#include <array>
#include <cstddef>

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
    std::size_t pos = 0;
    for (; pos < name.size() && static_cast<char32_t>(name[pos]) < 0x80; ++pos) {
        if (name[pos] == L'\0') {
            return false;
        }
        out.push_back(static_cast<char>(UpCase(name[pos])));
    }
    if (pos == name.size()) {
        return true;
    }
    const auto rest = UpCase(name.substr(pos));
    return rest.find(L'\0') == std::wstring::npos && AppendCesu8(rest, out);
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
