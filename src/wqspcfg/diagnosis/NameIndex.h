// The keys and names that classes read, to tell what was probably meant by another one.
#pragma once

#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/core/settings/Reference.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wqspcfg::diagnosis {

// What the XFS manager reads of a service key.
inline constexpr const wchar_t* kManagerNames[] = {L"vendor_name", L"version", L"dllname"};

// Whether a name may be a slip for one of these.
bool MayMeanOneOf(std::wstring_view name, const std::set<std::wstring>& others);

class NameIndex
{
  public:
    // Of one class with all that it inherits, and of all classes; kept for the life of the process. Any thread may call
    // these.
    static const NameIndex& Of(const ClassEntry& entry);
    static const NameIndex& All();

    struct Model
    {
        std::string text; // "CSpCRDWQTYM3800RegInfo", "CIDCRegInfo and 3 more"; empty: there is none
        bool isSameDevice = false;
    };

    // Whether the value is read from this key, given by its root and the subkey below it.
    bool Has(Root root, std::wstring_view subkey, std::wstring_view name) const;
    // The same by a row for it, not with the whole key.
    bool HasFixed(Root root, std::wstring_view subkey, std::wstring_view name) const;
    // A key of the root, below it, that the value is read from by a row for it; null where there is none.
    const std::wstring* SubkeyOf(Root root, std::wstring_view name) const;
    // The keys that the value is read from, as a person calls them: "Comm". Empty where there is none.
    std::string KeysOf(std::wstring_view name) const;
    // What was probably meant by a name: "BaudRate", or "Comm\BaudRate" where it is read from another key. Empty where
    // no name is near. One that is stored too is less likely ("BaudRate, which is there too"), and does not count
    // without `elsewhere`, as other keys do not.
    std::string NearestName(Root root, std::wstring_view subkey, std::wstring_view name,
                            const std::function<bool(const std::wstring& name)>& isStored, bool elsewhere) const;
    // The same for a key.
    std::string NearestKey(Root root, std::wstring_view subkey,
                           const std::function<bool(const std::wstring& subkey)>& isStored, bool elsewhere) const;
    // The classes that read the value or something of the key, but for `entry` and its bases; of the same device class
    // first.
    Model ModelOf(Root root, std::wstring_view subkey, std::wstring_view name, const ClassEntry& entry) const;
    Model ModelOfKey(Root root, std::wstring_view subkey, const ClassEntry& entry) const;

  private:
    struct Entry
    {
        Root root;
        std::wstring key;
        std::wstring name;
        const Table* table;
        bool isFixed; // by a row for it, not with the whole key
    };
    using Entries = std::vector<std::size_t>;

    const Entries& In(Root root, std::wstring_view subkey) const;
    void Add(const DescribedSetting& setting, const Table& table);
    Model Describe(std::set<const Table*> tables, const ClassEntry& entry) const;

    std::vector<Entry> m_entries;
    std::unordered_map<std::wstring, Entries> m_byName; // in capitals
    std::unordered_map<std::wstring, Entries> m_byKey;  // root and subkey in capitals
};

} // namespace wqspcfg::diagnosis
