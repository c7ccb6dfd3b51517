#include "wqspcfg/diagnosis/ClassSettings.h"

#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

namespace wqspcfg::diagnosis {

namespace {

std::wstring TextOf(const Setting& row)
{
    return std::to_wstring(static_cast<int>(row.key.root)) + row.key.subkey + L'|' + std::wstring(row.name);
}

} // namespace

ClassSettings::ClassSettings(const ClassEntry& entry) : m_entry(entry)
{
    auto tables = Lineage(entry.table());
    // A class that leaves its bases out when it saves does so for all above it.
    std::vector<bool> isSaved(tables.size(), true);
    for (std::size_t i = 1; i < tables.size(); ++i) {
        isSaved[i] = isSaved[i - 1] && tables[i - 1]->savesBase;
    }
    const auto append = [this](const Table& table, bool isMixin, bool saves) {
        for (auto& setting : Describe(table)) {
            const bool saved = setting.saved && saves;
            Append(std::move(setting), table, isMixin, saved);
        }
        for (auto& setting : DescribeOperations(table)) {
            const bool saved = !setting.writtenBy.empty();
            Append(std::move(setting), table, isMixin, saved);
        }
    };
    for (std::size_t i = tables.size(); i-- > 0;) {
        append(*tables[i], false, isSaved[i]);
        if (tables[i]->mixin != nullptr) {
            append(tables[i]->mixin(), true, tables[i]->savesBase && isSaved[i]);
        }
    }
    m_places.clear();
}

void ClassSettings::Append(DescribedSetting setting, const Table& table, bool isMixin, bool isSaved)
{
    m_byRow.try_emplace({setting.row, setting.iteration}, m_settings.size());
    m_byText.try_emplace(TextOf(*setting.row), m_settings.size());
    ClassSetting added{std::move(setting), &table, isSaved, isMixin};
    const auto& described = added.setting;
    added.isPattern = !described.wholeKey && (described.key.find(L'%') != std::wstring::npos ||
                                              described.name.find(L'%') != std::wstring::npos);
    const auto key = UpCase(std::to_wstring(static_cast<int>(described.root)) + described.key);
    added.isRepeated =
        !m_places.insert(key + L'|' + UpCase(described.readAs.empty() ? described.name : described.readAs)).second;
    const auto known = std::find_if(m_keys.begin(), m_keys.end(), [&](const ClassKey& each) {
        return each.root == described.root && each.subkey == described.key;
    });
    added.key = static_cast<std::size_t>(known - m_keys.begin());
    if (known == m_keys.end()) {
        m_keys.push_back({described.root, described.key});
    }
    if (added.isPattern) {
        m_patterns.push_back(m_settings.size());
    } else {
        auto& names = NamesOf(described.root, described.key);
        names.isWhole = names.isWhole || described.wholeKey;
        if (!described.wholeKey && !described.computed) {
            names.names.insert(described.readAs.empty() ? described.name : described.readAs);
            if (!described.savedName.empty()) {
                names.names.insert(described.savedName);
            }
        }
        if (described.fallback) {
            NamesOf(described.fallback->root, described.fallback->key).names.insert(described.fallback->name);
        }
    }
    m_settings.push_back(std::move(added));
}

ClassSettings::KeyNames& ClassSettings::NamesOf(Root root, const std::wstring& subkey)
{
    auto& above = m_above[static_cast<std::size_t>(root)];
    for (auto end = subkey.size();
         end != std::wstring::npos && above.insert(subkey.substr(0, end)).second && end > 0;) {
        end = subkey.rfind(L'\\', end - 1);
    }
    return m_names[static_cast<std::size_t>(root)][subkey];
}

bool ClassSettings::ReadsValue(Root root, std::wstring_view subkey, std::wstring_view name) const
{
    const auto& keys = m_names[static_cast<std::size_t>(root)];
    const auto key = keys.find(subkey);
    return key != keys.end() && key->second.names.find(name) != key->second.names.end();
}

bool ClassSettings::MayRead(Root root, std::wstring_view subkey, std::wstring_view name) const
{
    const auto& keys = m_names[static_cast<std::size_t>(root)];
    const auto key = keys.find(subkey);
    if (key != keys.end() && (key->second.isWhole || key->second.names.find(name) != key->second.names.end())) {
        return true;
    }
    return std::any_of(m_patterns.begin(), m_patterns.end(), [&](std::size_t index) {
        const auto& setting = m_settings[index].setting;
        return setting.root == root && MatchesPattern(setting.name, name) && MatchesPattern(setting.key, subkey);
    });
}

bool ClassSettings::MayReadKey(Root root, std::wstring_view subkey) const
{
    const auto& above = m_above[static_cast<std::size_t>(root)];
    return above.find(subkey) != above.end() ||
           std::any_of(m_patterns.begin(), m_patterns.end(), [&](std::size_t index) {
               const auto& setting = m_settings[index].setting;
               return setting.root == root && MatchesPattern(setting.key, subkey);
           });
}

bool MatchesPattern(std::wstring_view pattern, std::wstring_view text)
{
    const auto at = pattern.find(L'%');
    if (at == std::wstring_view::npos) {
        return EqualNoCase(pattern, text);
    }
    const auto head = pattern.substr(0, at);
    const auto tail = pattern.substr(at + 2);
    return text.size() > head.size() + tail.size() && EqualNoCase(text.substr(0, head.size()), head) &&
           EqualNoCase(text.substr(text.size() - tail.size()), tail);
}

std::size_t ClassSettings::IndexOf(const Setting& row, unsigned iteration) const
{
    if (const auto found = m_byRow.find({&row, iteration}); found != m_byRow.end()) {
        return found->second;
    }
    const auto found = m_byText.find(TextOf(row));
    return found != m_byText.end() ? found->second : npos;
}

const ClassSettings& SettingsOf(const ClassEntry& entry)
{
    static std::mutex mutex;
    static auto& known = *new std::map<const ClassEntry*, const ClassSettings*>; // lives as long as the process
    const std::lock_guard lock(mutex);
    auto& settings = known[&entry];
    if (settings == nullptr) {
        settings = new ClassSettings(entry);
    }
    return *settings;
}

} // namespace wqspcfg::diagnosis
