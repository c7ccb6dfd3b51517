// What a Load of a service makes of each of its settings, and why: the base of explain, check, diff and the report.
#pragma once

#include "wqspcfg/catalogue/ModelSelection.h"
#include "wqspcfg/diagnosis/ClassSettings.h"
#include "wqspcfg/platform/store/Store.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg::diagnosis {

// Where a value in effect comes from.
enum class Source : std::uint8_t
{
    Key,       // its own key
    Fallback,  // its fallback key
    Missing,   // the default, as no key holds the value
    WrongType, // the default, as what the key holds is of another type
    Kept,      // what the constructor set, as no key holds the value
    Code,      // made by code of the class
    NotRead,   // what the constructor set, as this Load did not come to the setting
};

// A key that was asked for a setting, and what stood there.
struct AskedKey
{
    std::wstring path; // relative to the hive that its first component names
    std::wstring name;
    bool found = false;
    ValueType type = ValueType::None; // these two where it was found
    std::vector<std::byte> data;
};

struct ExaminedSetting
{
    const ClassSetting* declared; // valid as long as the process, or as the examination where only a Load knew of it
    std::wstring path;            // of its own key, as in AskedKey
    std::wstring name;            // under which its own key is asked
    Source source = Source::NotRead;
    std::vector<AskedKey> asked; // in order; of a setting that is not read, the keys that it would be read from
    DescribedValue read;         // as a key holds it, or the default
    DescribedValue value;        // in effect
    bool isCorrected = false;    // the class made `value` of `read`, which is another one
    Reference refersTo = Reference::None; // what the value in effect refers to
    // Of a whole key: its entries with their texts, numbers in decimal; those by default where it has none.
    std::vector<std::pair<std::wstring, std::wstring>> entries;

    const DescribedSetting& Setting() const noexcept { return declared->setting; }
    // The value in effect is the setting's default. Never so for one whose default the class makes.
    bool IsDefault() const;
    // The key that the value in effect comes from; null where none has it.
    const AskedKey* KeyInEffect() const noexcept;
    // Whether this one of `asked` is in effect; of a key that is read whole, several may be.
    bool IsInEffect(const AskedKey& key) const noexcept;
};

struct Examination
{
    ServiceIdentity service;
    const ClassEntry* entry = nullptr;
    bool isLoaded = false;                 // Load returned true
    std::vector<ExaminedSetting> settings; // in the order of loading
    std::vector<AskedKey> asked;           // by code, for no setting
    std::vector<std::wstring> listed;      // keys all of whose values code asked for
    Error failure;                         // of the store; what was read is then not to be trusted

    // Settings that only a Load knows: those of a card unit or a note type.
    std::vector<std::unique_ptr<ClassSetting>> found;
};

// Loads an object of the class for the service from the current store, and tells what was made of each setting. What
// the class writes while it loads goes to the current store: give it one that forgets. For one thread at a time, as
// objects of the classes are.
Examination Examine(const ServiceIdentity& service, const ClassEntry& entry);

// The path of a key of this service, relative to its hive, without a backslash at its end.
std::wstring PathOf(const ServiceIdentity& service, Root root, std::wstring_view key);

} // namespace wqspcfg::diagnosis
