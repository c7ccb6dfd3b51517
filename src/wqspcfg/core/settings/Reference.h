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

struct DescribedSetting
{
    Root root = Root::Device;
    std::wstring key;  // below the root, without a backslash at its end
    std::wstring name; // the value name
    Type type = Type::Dword;
    DescribedValue fallback;                   // what Load applies to a missing value
    std::optional<DescribedValue> constructed; // where it differs from the fallback
    std::wstring label;                        // where it differs from the value name
    std::span<const DWORD> allowed;
    std::optional<DescribedRange> range;
    std::wstring_view meaning;
    bool saved = false;
    std::wstring savedName; // where it differs from the value name
    bool secret = false;

    const Setting* row = nullptr;
    std::wstring_view readBy;    // the operation that reads it in place of Load
    std::wstring_view writtenBy; // the operation that writes it in place of Save
    unsigned turn = 0;           // the index to give to the row's member or accessor
    bool conditional = false;    // stands in a group that a Load may skip
};

// The table's own settings in the order of loading.
WQSPCFG_API std::vector<DescribedSetting> Describe(const Table& table);
// Those that operations of the class read or write in their own right.
WQSPCFG_API std::vector<DescribedSetting> DescribeOnRequest(const Table& table);

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
