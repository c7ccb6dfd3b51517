// In what two terminals differ: in what their services run with, or in the values that they store.
#pragma once

#include "wqspcfg/diagnosis/Terminal.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace wqspcfg::diagnosis {

enum class DifferenceKind : std::uint8_t
{
    Service,    // one of the two terminals lacks it
    Class,      // the service is configured by another class
    ClassValue, // it has another class value
    Provider,   // it has another service provider
    DeviceKey,  // it has another device key
    Setting,    // another value is in effect, or one of two stored values is ignored
};

// One of the two terminals. The texts are UTF-8 that holds stored text as it is.
struct DifferingSide
{
    bool isThere = false; // it has the service, the setting or the entry of a whole key
    // These two are valid as long as the examinations; null where there is none.
    const ExaminedSetting* setting = nullptr;
    const AskedKey* key = nullptr; // the stored value that decides
    std::string value;             // in effect: "2 leave"; a name for what is no setting
    std::string stored;            // what stands in the store: "REG_DWORD 4", "missing"
    std::string note;              // "the default is in effect"
    // Where that stands, for Places::Of: a value, or a key where it has no name. An empty path is no place.
    std::wstring path;
    std::optional<std::wstring> name;
};

struct Difference
{
    DifferenceKind kind = DifferenceKind::Setting;
    std::wstring service;
    // Of a setting: its key as DescribedSetting has it, and its name or that of an entry of a whole key.
    Root root = Root::Device;
    std::wstring key;
    std::wstring name;
    DifferingSide left;
    DifferingSide right;
};

// In the order of the services of `left`, each in its order of loading; then the services that only `right` has. A
// service is the same by its name and kind, a setting by its key and name below the service's own keys. What a class
// makes itself, such as a time or a number drawn by chance, is no difference. Of a service with another class, only the
// settings that both classes have are compared.
std::vector<Difference> Compare(const std::vector<Examination>& left, const std::vector<Examination>& right,
                                bool showSecrets);

// "service", "class", "classValue", "provider", "deviceKey" or "setting": the stable name for other programs.
const char* NameOf(DifferenceKind kind) noexcept;

// ---- stored values ----

struct StoredValue
{
    std::wstring name;
    ValueType type = ValueType::None;
    std::vector<std::byte> data;
};

struct StoredKey
{
    std::wstring path;                          // relative to the hive that its first component names
    std::map<std::wstring, StoredValue> values; // by name in capitals
};

// By path in capitals, each key before those below it and these before the next one.
using StoredKeys = std::map<std::wstring, StoredKey>;

// All below these keys of the current store, with the keys themselves.
StoredKeys ReadStored(const std::vector<std::wstring>& paths, Error& error);
// The keys that service providers read, and those of one service: its device, service and logical key.
std::vector<std::wstring> KeysOfServices();
std::vector<std::wstring> KeysOf(const ServiceIdentity& service);

struct StoredDifference
{
    std::wstring path;
    std::optional<std::wstring> name; // none: one of the two lacks the key with all below it
    const StoredValue* left = nullptr;
    const StoredValue* right = nullptr;
    bool isInLeft = false;
    bool isInRight = false;
    std::size_t keys = 0; // of a key: it and those below it
    std::size_t values = 0;
};

// Valid as long as both.
std::vector<StoredDifference> Compare(const StoredKeys& left, const StoredKeys& right);

// Whether any class has a setting of this name that is a key or a password, or the name is nothing else that a class
// reads and may be a slip for such a one.
bool IsSecretName(std::wstring_view name);

} // namespace wqspcfg::diagnosis
