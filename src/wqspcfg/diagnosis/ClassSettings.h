// Every setting of a class with those it inherits, described once and kept for the life of the process.
#pragma once

#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace wqspcfg::diagnosis {

struct ClassSetting
{
    DescribedSetting setting;
    const Table* table; // of the class that declares it
    // Load or an operation of the class writes it back, on the way that the class saves.
    bool isSaved = false;
    bool isMixin = false;    // of a second base, whose members an object of the class does not reach by itself
    bool isRepeated = false; // one before it stands for the same place
    bool isPattern = false;  // its key or name holds a conversion: only a Load can name the settings that it stands for
    std::size_t key = 0;     // in ClassSettings::Keys()
};

// A key that settings of a class stand in.
struct ClassKey
{
    Root root;
    std::wstring subkey; // below the root
};

// Names without regard to case.
using NameSet = std::unordered_set<std::wstring, HasherNoCase, EqualToNoCase>;

class ClassSettings
{
  public:
    explicit ClassSettings(const ClassEntry& entry);

    const ClassEntry& Entry() const noexcept { return m_entry; }
    // In the order of loading, the root class's first; those of operations behind those of their class.
    const std::vector<ClassSetting>& All() const noexcept { return m_settings; }
    const std::vector<ClassKey>& Keys() const noexcept { return m_keys; }
    // The place in All() of a row and its iteration, or of a row for the same place in the registry; npos when there is
    // none.
    std::size_t IndexOf(const Setting& row, unsigned iteration) const;
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

    // Whether the class reads this value of a key, given by its root and the subkey below it, by a row for it.
    bool ReadsValue(Root root, std::wstring_view subkey, std::wstring_view name) const;
    // Whether it may read the value: by a row for it, with the whole key, or in a place that only a Load can name.
    bool MayRead(Root root, std::wstring_view subkey, std::wstring_view name) const;
    // Whether it may read something of the key or of one below it.
    bool MayReadKey(Root root, std::wstring_view subkey) const;

  private:
    struct KeyNames
    {
        NameSet names;
        bool isWhole = false;
    };
    static constexpr std::size_t kRoots = static_cast<std::size_t>(Root::Absolute) + 1;

    struct HashRow
    {
        std::size_t operator()(const std::pair<const Setting*, unsigned>& row) const noexcept
        {
            return std::hash<const void*>()(row.first) * 31 + row.second;
        }
    };
    KeyNames& NamesOf(Root root, const std::wstring& subkey);
    void Append(DescribedSetting setting, const Table& table, bool isMixin, bool isSaved);

    const ClassEntry& m_entry;
    std::vector<ClassSetting> m_settings;
    std::vector<ClassKey> m_keys;
    std::unordered_set<std::wstring> m_places; // of all settings, while they are added
    std::array<std::unordered_map<std::wstring, KeyNames, HasherNoCase, EqualToNoCase>, kRoots> m_names;
    std::array<NameSet, kRoots> m_above; // keys, and those that they stand below
    std::vector<std::size_t> m_patterns; // in All()
    std::unordered_map<std::pair<const Setting*, unsigned>, std::size_t, HashRow> m_byRow;
    std::unordered_map<std::wstring, std::size_t> m_byText; // root, subkey and name as the row has them
};

// Whether the text is the pattern with some text in place of its one conversion, "%d" or "%s". Case does not count.
bool MatchesPattern(std::wstring_view pattern, std::wstring_view text);

// Any thread may call this.
const ClassSettings& SettingsOf(const ClassEntry& entry);

} // namespace wqspcfg::diagnosis
