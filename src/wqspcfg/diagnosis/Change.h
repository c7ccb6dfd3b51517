// Changes of a service's settings by their names, judged by what its class reads.
#pragma once

#include "wqspcfg/diagnosis/Difference.h"
#include "wqspcfg/diagnosis/Examination.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg::diagnosis {

struct WantedChange
{
    std::wstring name;                 // of a setting or an entry of a whole key: "Port", "Comm\Port"
    std::optional<std::wstring> value; // as a person writes it: "4", "0x1F", "leave", "yes"; none: it is deleted
};

struct PlannedChange
{
    const DescribedSetting* setting = nullptr; // valid as long as the examination and the plan
    std::wstring path;                         // of its own key, relative to the hive that its first component names
    std::wstring name;
    std::optional<StoredValue> before; // what stood there when it was applied
    std::optional<StoredValue> after;  // none: it is deleted
    DescribedValue value;              // of `after`
    std::vector<std::string> notes;    // UTF-8: what a person should know of it

    // The same stands there already.
    bool IsNone() const;
};

struct Refusal
{
    bool isUnknown = false; // there is no such setting, or no such value; else it cannot be set like this
    std::string message;    // UTF-8 that holds what was given as it is
};

struct ChangePlan
{
    std::vector<PlannedChange> changes; // in the order in which they were wanted
    std::vector<Refusal> refusals;      // where there are any, nothing is to be written

    // Settings of keys that are not there yet, such as a card unit's.
    std::vector<std::unique_ptr<DescribedSetting>> made;
};

// What the changes come to for the service that was examined.
ChangePlan PlanChanges(const Examination& examination, const std::vector<WantedChange>& wanted);

// Reads what stands at each place, and writes the plan, if `write`, in a write transaction, which it leaves to the
// caller. A value to be deleted that is not there becomes a refusal; nothing is written then. False when the store
// fails.
bool Apply(ChangePlan& plan, Transaction& transaction, bool write, Error& error);

// Notes at the changes what the class makes of them, from an examination of a store to which they were applied.
void NoteEffects(ChangePlan& plan, const Examination& after, bool showSecrets);

// "2 leave", "REG_SZ \"4\"", "missing (default 2 leave)".
std::string TextOf(const PlannedChange& change, const std::optional<StoredValue>& value, bool showSecrets);

// What the services of the current store make of a value of any key, before it is set.
struct Reading
{
    std::optional<ValueType> type;             // that is read, where a service reads it
    const DescribedSetting* setting = nullptr; // likewise; null where code reads it, or nothing does
    std::string warning; // that nothing reads it; empty where something does, or it is nobody's key
};
Reading ReadingOf(std::wstring_view path, std::wstring_view name);

} // namespace wqspcfg::diagnosis
