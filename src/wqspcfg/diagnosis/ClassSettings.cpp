#include "wqspcfg/diagnosis/ClassSettings.h"

#include <algorithm>
#include <map>
#include <memory>
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
}

void ClassSettings::Append(DescribedSetting setting, const Table& table, bool isMixin, bool isSaved)
{
    m_byRow.try_emplace({setting.row, setting.iteration}, m_settings.size());
    m_byText.try_emplace(TextOf(*setting.row), m_settings.size());
    m_settings.push_back({std::move(setting), &table, isSaved, isMixin});
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
    static std::map<const ClassEntry*, std::unique_ptr<const ClassSettings>> known;
    const std::lock_guard lock(mutex);
    auto& settings = known[&entry];
    if (settings == nullptr) {
        settings = std::make_unique<const ClassSettings>(entry);
    }
    return *settings;
}

} // namespace wqspcfg::diagnosis
