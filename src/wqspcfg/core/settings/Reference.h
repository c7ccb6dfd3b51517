// What tables of settings say about themselves, loops expanded: the reference and the checks are made from this.
#pragma once

#include "wqspcfg/core/settings/Settings.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace wqspcfg {

struct DescribedValue
{
    DWORD number = 0;
    std::wstring text; // of strings and characters

    friend bool operator==(const DescribedValue&, const DescribedValue&) = default;
};

struct DescribedRange
{
    DWORD low;
    DWORD high;
};

struct DescribedChoice
{
    DWORD value;
    std::wstring_view word; // empty where the meaning has none
};

struct DescribedPlace
{
    Root root = Root::Device;
    std::wstring key; // below the root, without a backslash at its end
    std::wstring name;
};

struct DescribedSetting
{
    Root root = Root::Device;
    std::wstring key;  // below the root, without a backslash at its end
    std::wstring name; // the value name; "%s" where a whole key is read and any name counts
    Type type = Type::Dword;
    DescribedValue defaultValue;               // what Load applies to a missing value
    std::optional<DescribedValue> constructed; // where it differs from the default
    std::wstring label;                        // where it differs from the value name
    std::vector<DescribedChoice> allowed;
    std::optional<DescribedRange> range;
    std::wstring_view meaning;
    bool saved = false;
    CRegKeyEx& (*part)(CRegKeyEx& object) = nullptr; // the record that has the member, where it is one's
    std::wstring readAs;                    // the name that its own key is asked for, where that is not the setting's
    std::wstring savedName;                 // where it differs from the value name
    std::wstring_view emptySavedAs;         // what Save writes in place of an empty text
    std::optional<DescribedPlace> fallback; // asked when the setting's own key does not hold the value
    bool secret = false;
    bool keptWhenMissing = false; // a missing value leaves the member as it was
    bool required = false;        // a missing value is reported with an error line
    bool corrected = false;       // the class may replace what is stored
    bool computed = false;        // made by the class, and never in the registry
    bool computedDefault = false; // the class makes the default of a missing value
    bool wholeKey = false;        // every value of the key is read
    bool conditional = false;     // stands in a group that a Load may skip
    Reference refersTo = Reference::None;
    std::wstring_view readBy;    // the operation that reads it in place of Load
    std::wstring_view writtenBy; // the operation that writes it in place of Save

    DWORD (*heldAs)(CRegKeyEx& owner, const NumberRead& read) = nullptr; // what is in effect, where code reads it

    const Setting* row = nullptr;
    unsigned iteration = 0; // the index to give to the row's member or accessor
};

// The table's own settings in the order of loading.
WQSPCFG_API std::vector<DescribedSetting> Describe(const Table& table);
// One row that is no block; `iteration` is null outside Repeat.
WQSPCFG_API DescribedSetting Describe(const Setting& row, const Iteration* iteration);
// Those that one operation of the class reads or writes.
WQSPCFG_API std::vector<DescribedSetting> DescribeOperations(const Table& table);

// What the setting's member holds in an object of the class, or in the record that a part is. The setting is one value
// with a member.
WQSPCFG_API DescribedValue Held(const DescribedSetting& setting, CRegKeyEx& owner);

// "dword", "flag", "string" or "char".
WQSPCFG_API const char* NameOf(Type type) noexcept;
// "device", "service", "logical", "common" or "absolute".
WQSPCFG_API const char* NameOf(Root root) noexcept;

// The settings' key as a path with its hive, the names of the service's own keys in angle brackets:
// "HKLM\SOFTWARE\XFS\PHYSICAL_SERVICES\<device>\Comm".
WQSPCFG_API std::wstring PathOf(const DescribedSetting& setting);

// The class's own device class or the nearest base's; null where there is none.
WQSPCFG_API const wchar_t* DeviceClassOf(const Table& table) noexcept;

// The tables from the class up to its root, the class first.
WQSPCFG_API std::vector<const Table*> Lineage(const Table& table);

} // namespace wqspcfg
