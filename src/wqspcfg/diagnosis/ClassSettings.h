// Every setting of a class with those it inherits, described once and kept for the life of the process.
#pragma once

#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/core/settings/Reference.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wqspcfg::diagnosis {

struct ClassSetting
{
    DescribedSetting setting;
    const Table* table; // of the class that declares it
    // Load or an operation of the class writes it back, on the way that the class saves.
    bool isSaved = false;
    bool isMixin = false; // of a second base, whose members an object of the class does not reach by itself
};

class ClassSettings
{
  public:
    explicit ClassSettings(const ClassEntry& entry);

    const ClassEntry& Entry() const noexcept { return m_entry; }
    // In the order of loading, the root class's first; those of operations behind those of their class.
    const std::vector<ClassSetting>& All() const noexcept { return m_settings; }
    // The place in All() of a row and its iteration, or of a row for the same place in the registry; npos when there is
    // none.
    std::size_t IndexOf(const Setting& row, unsigned iteration) const;
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

  private:
    struct HashRow
    {
        std::size_t operator()(const std::pair<const Setting*, unsigned>& row) const noexcept
        {
            return std::hash<const void*>()(row.first) * 31 + row.second;
        }
    };
    void Append(DescribedSetting setting, const Table& table, bool isMixin, bool isSaved);

    const ClassEntry& m_entry;
    std::vector<ClassSetting> m_settings;
    std::unordered_map<std::pair<const Setting*, unsigned>, std::size_t, HashRow> m_byRow;
    std::unordered_map<std::wstring, std::size_t> m_byText; // root, subkey and name as the row has them
};

// Any thread may call this.
const ClassSettings& SettingsOf(const ClassEntry& entry);

} // namespace wqspcfg::diagnosis
