#include "wqspcfg/diagnosis/Check.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/diagnosis/NameIndex.h"
#include "wqspcfg/diagnosis/Nearest.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/diagnosis/StoredText.h"
#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/store/regfile/View32.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace wqspcfg::diagnosis {

namespace {

std::string Utf8(std::wstring_view text)
{
    return Utf8ForMessage(text);
}

std::string Quoted(std::wstring_view text)
{
    return '"' + Utf8(text) + '"';
}

// The path without the root that everybody knows: "WQSpCRDWQTYM1200\Comm".
std::string ShortPath(std::wstring_view path)
{
    for (const std::wstring_view root : {kDeviceRoot, kServiceRoot, kLogicalRoot}) {
        if (path.size() > root.size() && EqualNoCase(path.substr(0, root.size()), root)) {
            path.remove_prefix(root == kDeviceRoot ? root.size() : root.find_last_of(L'\\', root.size() - 2) + 1);
            return Utf8(path);
        }
    }
    return Utf8(path);
}

// The value as the messages show it; a long name must not hide what is said of it.
std::string FullName(std::wstring_view path, std::wstring_view name)
{
    constexpr std::size_t kLongest = 80;
    const auto shown = name.empty() ? std::string("(default)") : Utf8(name.substr(0, kLongest));
    return ShortPath(path) + '\\' + shown + (name.size() > kLongest ? "..." : "");
}

std::string FullName(const ExaminedSetting& setting)
{
    return FullName(setting.path, setting.name);
}

std::vector<std::wstring> SubkeysOf(std::wstring_view path)
{
    std::vector<std::wstring> names;
    const ReadScope scope;
    scope->EnumKeys(scope->Open(path), [&](std::wstring_view name) {
        names.emplace_back(name);
        return true;
    });
    return names;
}

bool Exists(const std::wstring& path)
{
    const ReadScope scope;
    return scope->Exists(scope->Open(path));
}

std::optional<AskedKey> StoredAt(const std::wstring& path, const std::wstring& name)
{
    const ReadScope scope;
    ValueView view;
    if (scope->QueryAt(path, name, view) != Outcome::Found) {
        return std::nullopt;
    }
    return AskedKey{path, name, true, view.type, {view.data.begin(), view.data.end()}};
}

// An empty text without a name says nothing: tools that create a key leave it.
bool IsEmptyDefault(std::wstring_view name, const ValueView& value)
{
    return name.empty() && value.type == ValueType::Sz &&
           std::all_of(value.data.begin(), value.data.end(), [](std::byte byte) { return byte == std::byte{0}; });
}

// The key or one below it holds a value.
bool HasValuesBelow(const std::wstring& path)
{
    bool has = false;
    const ReadScope scope;
    scope->EnumValues(scope->Open(path), [&](std::wstring_view name, const ValueView& value) {
        has = !IsEmptyDefault(name, value);
        return !has;
    });
    const auto subkeys = has ? std::vector<std::wstring>() : SubkeysOf(path);
    return has || std::any_of(subkeys.begin(), subkeys.end(),
                              [&](const std::wstring& name) { return HasValuesBelow(path + L'\\' + name); });
}

std::string ClassOf(const Examination& examination)
{
    return Utf8(examination.entry->table().className);
}

// What code of the services' classes reads besides what their tables say.
class CodePlaces
{
  public:
    void Add(const Examination& examination)
    {
        for (const auto& key : examination.asked) {
            AddValue(key.path, key.name);
        }
        for (const auto& path : examination.listed) {
            m_whole.insert(path);
            AddKey(path);
        }
        for (const auto& setting : examination.settings) {
            if (setting.Setting().root == Root::Absolute) {
                AddValue(setting.path, setting.name);
            }
        }
    }
    void AddValue(const std::wstring& path, const std::wstring& name)
    {
        // Values of one key come one after the other.
        if (m_last == nullptr || m_lastPath != path) {
            m_last = &m_values[path];
            m_lastPath = path;
            AddKey(path);
        }
        m_last->insert(name);
    }

    // The names of values of a key; null where there are none.
    const NameSet* ValuesOf(const std::wstring& path) const
    {
        const auto key = m_values.find(path);
        return key != m_values.end() ? &key->second : nullptr;
    }
    // All values of the key are read.
    bool IsWhole(const std::wstring& path) const { return m_whole.contains(path); }
    // Also a key above one that is read.
    bool HasKey(const std::wstring& path) const { return m_above.contains(path); }

  private:
    void AddKey(const std::wstring& path)
    {
        // A path that is made of a stored text may have as many levels as that has characters.
        if (!CanExist(path)) {
            return;
        }
        for (auto end = path.size(); end != std::wstring::npos && end > 0; end = path.rfind(L'\\', end - 1)) {
            if (!m_above.insert(path.substr(0, end)).second) {
                break;
            }
        }
    }

    std::unordered_map<std::wstring, NameSet, HasherNoCase, EqualToNoCase> m_values;
    std::wstring m_lastPath;
    NameSet* m_last = nullptr; // of m_lastPath
    NameSet m_whole;
    NameSet m_above;
};

// The settings of an examination by key and name.
class SettingIndex
{
  public:
    explicit SettingIndex(const Examination& examination)
    {
        for (const auto& setting : examination.settings) {
            m_byKey[setting.Setting().key].try_emplace(setting.name, &setting);
        }
    }

    const ExaminedSetting* Find(std::wstring_view key, std::wstring_view name) const
    {
        const auto names = m_byKey.find(key);
        if (names == m_byKey.end()) {
            return nullptr;
        }
        const auto found = names->second.find(name);
        return found != names->second.end() ? found->second : nullptr;
    }

  private:
    template <class T>
    using Map = std::unordered_map<std::wstring, T, HasherNoCase, EqualToNoCase>;
    Map<Map<const ExaminedSetting*>> m_byKey;
};

constexpr wchar_t kProviderValue[] = L"Provider";

// A name of several words: no other program has it by chance, as it may have "Path" or "Server".
bool IsSpecific(std::wstring_view name)
{
    const auto isLower = [](wchar_t ch) { return ch >= L'a' && ch <= L'z'; };
    const auto isUpper = [](wchar_t ch) { return ch >= L'A' && ch <= L'Z'; };
    for (std::size_t i = 1; i < name.size(); ++i) {
        if (isLower(name[i - 1]) && isUpper(name[i])) {
            return true;
        }
    }
    return false;
}

constexpr wchar_t kLogicalServices[] = L"LOGICAL_SERVICES";

// The key in which somebody has put the logical services in place of the one that is read; empty where none is like it.
struct MisplacedServices
{
    std::wstring path; // empty in a hive that no message about a path can name
    std::string text;
};
MisplacedServices FindMisplacedServices()
{
    constexpr std::size_t kMostSlips = 3;
    const auto wanted = Utf8(kLogicalServices);
    for (const auto parent : {kUsersXfsKey, kXfsKey}) {
        for (const auto& name : SubkeysOf(parent)) {
            const bool isRead = parent == kUsersXfsKey && EqualNoCase(name, kLogicalServices);
            if (!isRead && Distance(Utf8(UpCase(name)), wanted) <= kMostSlips) {
                const auto path = std::wstring(parent) + L'\\' + name;
                return {path, FullPath(path)};
            }
        }
    }
    Error error;
    const auto store = CurrentStore(error);
    const auto transaction = store ? store->Begin(Access::Read, error) : nullptr;
    KeyId key = 0;
    const auto own = std::wstring(L"XFS\\") + kLogicalServices;
    return transaction && transaction->OpenKey(Hive::CurrentUser, own, key) == Outcome::Found
               ? MisplacedServices{{}, "HKCU\\" + Utf8(own)}
               : MisplacedServices{};
}

class Checker
{
  public:
    Checker(const CheckOptions& options, Places& places) : m_options(options), m_places(places) {}

    Checkup Run()
    {
        const ReadScope scope;
        AddServices();
        CollectKnown();
        for (const auto& examination : m_out.services) {
            if (IsWanted(examination.service)) {
                CheckIdentity(examination);
                CheckSettings(examination);
            }
        }
        CheckPorts();
        CheckNames();
        if (m_options.services.empty()) {
            CheckLogicalServices();
            CheckDeviceKeys();
            CheckView32();
        }
        if (!m_out.failure) {
            m_out.failure = scope->Failure();
        }
        return std::move(m_out);
    }

  private:
    bool IsWanted(const ServiceIdentity& service) const { return IsAmong(service, m_options.services); }

    void AddServices()
    {
        for (const auto& name : SubkeysOf(kLogicalRoot)) {
            m_logical.insert(UpCase(name));
        }
        auto terminal = ExamineTerminal(m_options.alone ? m_options.services : std::vector<std::wstring>());
        m_out.services = std::move(terminal.services);
        m_out.failure = std::move(terminal.failure);
    }

    // The same finding in two services that share a key is one.
    void Report(Finding finding)
    {
        const auto key = std::to_string(static_cast<int>(finding.kind)) + Utf8(UpCase(finding.path)) + '|' +
                         (finding.name ? Utf8(UpCase(*finding.name)) : std::string("|")) + finding.message;
        if (m_reported.insert(key).second) {
            finding.place = m_places.Of(finding.path, finding.name ? &*finding.name : nullptr);
            m_out.findings.push_back(std::move(finding));
        }
    }

    void Report(Severity severity, FindingKind kind, const Examination& examination, std::wstring path,
                std::optional<std::wstring> name, std::string message)
    {
        Report({severity, kind, NameOf(examination.service), std::move(path), std::move(name), std::move(message), {}});
    }

    // ---- services ----

    void CheckIdentity(const Examination& examination)
    {
        const auto& service = examination.service;
        const bool isLogical = !service.logicalName.empty();
        const auto logical = kLogicalRoot + service.logicalName;
        const auto& own = isLogical ? logical : kServiceRoot + service.physicalName;
        const auto title = "service " + Utf8(NameOf(service));
        if (isLogical && service.physicalName.empty()) {
            const auto stored = StoredAt(logical, kProviderValue);
            if (stored && stored->type != ValueType::Sz) {
                Report(Severity::Error, FindingKind::WrongType, examination, logical, kProviderValue,
                       FullName(logical, kProviderValue) + " is " + StoredText(stored->type, stored->data) +
                           ", a REG_SZ is read: " + title + " has no service provider");
            } else {
                Report(Severity::Error, FindingKind::NoProvider, examination, logical, std::nullopt,
                       title + " names no service provider: its value Provider is " + (stored ? "empty" : "missing"));
            }
            return;
        }
        const auto provider = kServiceRoot + service.physicalName;
        const bool hasProvider = Exists(provider);
        const bool hasDevice = !service.deviceKey.empty() && Exists(kDeviceRoot + service.deviceKey);
        if (!hasProvider) {
            Report(Severity::Error, FindingKind::NoProvider, examination, own,
                   isLogical ? std::optional<std::wstring>(kProviderValue) : std::nullopt,
                   title + ": its service provider " + Utf8(service.physicalName) + " has no service key" +
                       (hasDevice ? "" : " and no device key"));
        } else if (!hasDevice) {
            const auto common = PathOf(service, Root::Common, {});
            const auto commonName = common.substr(common.rfind(L'\\') + 1);
            const bool isMisspelt =
                !Exists(common) && Distance(Utf8(UpCase(service.physicalName)), Utf8(UpCase(commonName))) <= 2;
            Report(Severity::Error, FindingKind::NoDeviceKey, examination, provider, std::nullopt,
                   title + ": its service provider " + Utf8(service.physicalName) + " has no device key" +
                       (service.deviceKey.empty() ? ": the value ExeDllMother of its service key is missing"
                                                  : " " + Utf8(service.deviceKey)) +
                       (isMisspelt ? "; did you mean " + Utf8(commonName) + ", which is missing?" : ""));
        }
        CheckClass(examination, own, hasProvider && hasDevice ? provider : std::wstring(), title);
    }

    void CheckClass(const Examination& examination, const std::wstring& own, const std::wstring& provider,
                    const std::string& title)
    {
        const std::wstring name = L"Class";
        bool has = provider.empty();
        for (const auto& path : {own, provider}) {
            const auto stored = path.empty() ? std::nullopt : StoredAt(path, name);
            has = has || stored;
            CString text;
            if (!stored || !ToValue(ValueView{stored->type, stored->data}, text) || text.IsEmpty()) {
                continue;
            }
            auto service = examination.service;
            service.xfsClass = text.Std();
            if (!IsXfsClass(service.xfsClass)) {
                Report(Severity::Error, FindingKind::UnknownClass, examination, path, name,
                       title + ": " + FullName(path, name) + " is " + Quoted(service.xfsClass) +
                           ", which is no class of XFS");
            } else if (const auto contradiction = ContradictionOf(service, *examination.entry);
                       !contradiction.empty()) {
                Report(Severity::Error, FindingKind::ClassContradicts, examination, path, name,
                       title + ": " + Utf8(contradiction) +
                           (EqualNoCase(path, own) ? "" : " (" + FullName(path, name) + ")"));
            }
        }
        if (!has) {
            Report(Severity::Warning, FindingKind::UnknownClass, examination, own, std::nullopt,
                   title + " has no class value: Class is missing from " + ShortPath(own));
        }
    }

    void CollectKnown()
    {
        for (const auto& examination : m_out.services) {
            m_known.Add(examination);
            const auto& settings = SettingsOf(*examination.entry);
            for (const auto root : {Root::Device, Root::Service, Root::Logical, Root::Common}) {
                auto& readers = m_readers[PathOf(examination.service, root, {})];
                if (std::find(readers.begin(), readers.end(), &settings) == readers.end()) {
                    readers.push_back(&settings);
                }
            }
            for (const auto* name : kManagerNames) {
                m_known.AddValue(kServiceRoot + examination.service.physicalName, name);
            }
        }
    }

    void CheckPorts()
    {
        struct User
        {
            const Examination* examination;
            const ExaminedSetting* setting;
        };
        std::map<DWORD, std::vector<User>> byPort;
        for (const auto& examination : m_out.services) {
            for (const auto& setting : examination.settings) {
                // A port by default may be one that the device does not use, as where it is connected by USB.
                if (setting.refersTo == Reference::SerialPort && setting.source == Source::Key &&
                    setting.value.number != 0) {
                    byPort[setting.value.number].push_back({&examination, &setting});
                }
            }
        }
        for (const auto& [port, users] : byPort) {
            for (std::size_t i = 1; i < users.size(); ++i) {
                const auto& first = users.front();
                const auto& other = users[i];
                if (EqualNoCase(first.examination->service.deviceKey, other.examination->service.deviceKey) ||
                    !IsWanted(other.examination->service)) {
                    continue;
                }
                Report(Severity::Error, FindingKind::SharedPort, *other.examination, other.setting->path,
                       other.setting->name,
                       FullName(*other.setting) + " is serial port " + std::to_string(port) + ", which " +
                           Utf8(NameOf(first.examination->service)) + " uses too (" + FullName(*first.setting) + ")");
            }
        }
    }

    // Applications open logical services: service providers alone serve nobody.
    void CheckLogicalServices()
    {
        if (!m_logical.empty() || m_out.services.empty()) {
            return;
        }
        std::wstring read(kLogicalRoot);
        read.pop_back();
        const auto misplaced = FindMisplacedServices();
        Report({Severity::Warning,
                FindingKind::NoLogicalService,
                {},
                misplaced.path.empty() ? read : misplaced.path,
                std::nullopt,
                "there is no logical service: " + FullPath(read) + (Exists(read) ? " is empty" : " is missing") +
                    (misplaced.text.empty() ? std::string() : "; " + misplaced.text + " is not read"),
                {}});
    }

    void CheckDeviceKeys()
    {
        std::set<std::wstring> used;
        for (const auto& examination : m_out.services) {
            used.insert(UpCase(examination.service.deviceKey));
        }
        for (const auto& name : SubkeysOf(kDeviceRoot)) {
            if (!used.contains(UpCase(name)) && !m_known.HasKey(kDeviceRoot + name)) {
                Report({Severity::Warning,
                        FindingKind::UnusedDeviceKey,
                        {},
                        kDeviceRoot + name,
                        std::nullopt,
                        "device key " + Utf8(name) + " belongs to no service",
                        {}});
            }
        }
    }

    void CheckView32()
    {
        const std::wstring key(kXfsKey32);
        const std::array<const wchar_t*, 3> roots{L"\\LOGICAL_SERVICES", L"\\SERVICE_PROVIDERS",
                                                  L"\\PHYSICAL_SERVICES"};
        if (!m_options.view32 && Exists(std::wstring(kXfsKey)) &&
            std::any_of(roots.begin(), roots.end(), [&](const wchar_t* root) { return HasValuesBelow(key + root); })) {
            Report({Severity::Warning,
                    FindingKind::View32,
                    {},
                    key,
                    std::nullopt,
                    "the keys of 32-bit programs under " + Utf8(key) +
                        " are not read; --view32 reads them, and `import --view32` brings them into an embedded store",
                    {}});
        }
    }

    // ---- values ----

    void CheckSettings(const Examination& examination)
    {
        for (const auto& setting : examination.settings) {
            CheckTypes(examination, setting);
            CheckValue(examination, setting);
        }
        const auto* deviceClass = DeviceClassOf(examination.entry->table());
        if (deviceClass != nullptr &&
            (deviceClass == std::wstring_view(L"CRD") || deviceClass == std::wstring_view(L"CRM"))) {
            const SettingIndex index(examination);
            CheckCardUnits(examination, index);
            CheckNoteTypes(examination, index);
        }
    }

    void CheckTypes(const Examination& examination, const ExaminedSetting& setting)
    {
        const auto& described = setting.Setting();
        const bool isMasked = described.secret && !m_options.showSecrets;
        for (const auto& key : setting.asked) {
            const bool isOwn = described.wholeKey || EqualNoCase(key.name, setting.name) ||
                               (described.fallback && EqualNoCase(key.name, described.fallback->name));
            if (!key.found || !isOwn || IsRightType(described, key) || IsEmptyDefault(key.name, {key.type, key.data}) ||
                (described.wholeKey &&
                 SettingsOf(*examination.entry).ReadsValue(described.root, described.key, key.name))) {
                continue;
            }
            // CheckIdentity has told what comes of it.
            if (described.root == Root::Logical && EqualNoCase(key.name, kProviderValue)) {
                continue;
            }
            if (described.wholeKey && ReportSlip(examination, described, key)) {
                continue;
            }
            const auto fault = TypeFaultOf(described, key, isMasked);
            const auto effect = setting.source == Source::WrongType
                                    ? "the default " + DefaultText(described) + " is in effect"
                                    : std::string("it is ignored");
            Report(Severity::Error, FindingKind::WrongType, examination, key.path, key.name,
                   FullName(key.path, key.name) + " is " + fault.is + ", " + fault.read + ": " + effect);
        }
    }

    // A value of a key that is read whole may be meant for one of the names that are read for themselves.
    bool ReportSlip(const Examination& examination, const DescribedSetting& described, const AskedKey& key)
    {
        const auto meant =
            NameIndex::Of(*examination.entry)
                .NearestName(
                    described.root, described.key, key.name, [](const std::wstring&) { return false; }, false);
        if (!meant.empty()) {
            ReportSlip(examination, key.path, key.name, meant);
        }
        return !meant.empty();
    }

    void ReportSlip(const Examination& examination, const std::wstring& path, const std::wstring& name,
                    const std::string& meant)
    {
        Report(Severity::Warning, FindingKind::UnknownName, examination, path, name,
               FullName(path, name) + " is not read by " + ClassOf(examination) +
                   " as a setting of its own; did you mean " + meant + "?");
    }

    static const AskedKey* FirstOfRightType(const ExaminedSetting& setting)
    {
        const auto found = std::find_if(setting.asked.begin(), setting.asked.end(), [&](const AskedKey& key) {
            return key.found && IsRightType(setting.Setting(), key);
        });
        return found != setting.asked.end() ? &*found : nullptr;
    }

    void CheckValue(const Examination& examination, const ExaminedSetting& setting)
    {
        const auto& described = setting.Setting();
        // One that is not read now may be read when another setting is changed.
        const auto* key = setting.source == Source::NotRead ? FirstOfRightType(setting) : setting.KeyInEffect();
        if (key == nullptr || described.wholeKey) {
            const bool isNeeded =
                (described.required && HasValues(setting.path)) ||
                (described.heldAs != nullptr && setting.isCorrected && HasUnused(examination, setting.path));
            if (isNeeded && setting.source == Source::Missing) {
                Report(Severity::Error, FindingKind::MissingValue, examination, setting.path, std::nullopt,
                       FullName(setting) + " is missing, which " + ClassOf(examination) + " needs beside the others");
            }
            return;
        }
        const bool isMasked = described.secret && !m_options.showSecrets;
        const auto full = [&] { return FullName(key->path, key->name); };
        const bool isNumber = described.type == Type::Dword || described.type == Type::Flag;
        DWORD number = 0;
        if (isNumber && ToValue(ValueView{key->type, key->data}, number) && !IsAllowed(described, number)) {
            Report(Severity::Error, FindingKind::NotAllowed, examination, key->path, key->name,
                   full() + " is " + (isMasked ? kMasked : std::to_string(number)) +
                       "; allowed: " + AllowedText(described) +
                       (setting.isCorrected ? "; " + ValueText(described, setting.value) + " is in effect" : ""));
        } else if (setting.isCorrected) {
            Report(Severity::Warning, FindingKind::Corrected, examination, key->path, key->name,
                   full() + " is " + (isMasked ? kMasked : ValueText(described, setting.read)) + "; " +
                       ClassOf(examination) + " takes " + (isMasked ? kMasked : ValueText(described, setting.value)) +
                       " instead");
        }
        if (setting.refersTo == Reference::LogicalService && !setting.value.text.empty() &&
            !m_logical.contains(UpCase(setting.value.text))) {
            Report(Severity::Error, FindingKind::NoSuchService, examination, key->path, key->name,
                   full() + " names the service " + Quoted(setting.value.text) + ", which is not there");
        }
    }

    // A value of the key that is stored and not in effect.
    static bool HasUnused(const Examination& examination, const std::wstring& path)
    {
        return std::any_of(examination.settings.begin(), examination.settings.end(), [&](const ExaminedSetting& each) {
            return each.isCorrected && each.source == Source::Key && each.path == path;
        });
    }

    static bool HasValues(const std::wstring& path)
    {
        bool has = false;
        const ReadScope scope;
        scope->EnumValues(scope->Open(path), [&](std::wstring_view, const ValueView&) {
            has = true;
            return false;
        });
        return has;
    }

    // ---- card units and note types ----

    void CheckCardUnits(const Examination& examination, const SettingIndex& index)
    {
        constexpr std::wstring_view kUnits = L"CardUnit";
        const auto* current = index.Find(kUnits, L"CurNumber");
        if (current == nullptr) {
            return;
        }
        std::map<DWORD, std::wstring> byNumber;
        for (const auto& unit : SubkeysOf(current->path)) {
            const auto key = std::wstring(kUnits) + L'\\' + unit;
            const auto path = current->path + L'\\' + unit;
            const auto report = [&](std::optional<std::wstring> name, const std::string& what) {
                Report(Severity::Error, FindingKind::Inconsistent, examination, path, std::move(name),
                       ShortPath(path) + what);
            };
            const auto numberOf = [&](const wchar_t* name) -> DWORD {
                const auto* setting = index.Find(key, name);
                return setting != nullptr ? setting->value.number : 0;
            };
            const auto number = numberOf(L"Number");
            if (number == 0) {
                report(std::nullopt, " has no Number: the card unit is not loaded");
                continue;
            }
            const auto [other, isNew] = byNumber.emplace(number, unit);
            if (!isNew) {
                report(L"Number", "\\Number is " + std::to_string(number) + ", as that of " + Utf8(other->second));
            }
            const auto count = numberOf(L"Count");
            const auto most = numberOf(L"MaxCount");
            if (most != 0 && count > most) {
                report(L"Count",
                       "\\Count is " + std::to_string(count) + ", more than MaxCount " + std::to_string(most));
            }
        }
        for (const auto& setting : examination.settings) {
            if (setting.refersTo == Reference::CardUnit && setting.source == Source::Key) {
                CheckCardUnitNumber(examination, setting, byNumber, &setting == current);
            }
        }
    }

    // A default is no bin that somebody meant: a Save writes those of bins that the device does not have.
    void CheckCardUnitNumber(const Examination& examination, const ExaminedSetting& setting,
                             const std::map<DWORD, std::wstring>& units, bool isOfUnits)
    {
        const auto number = setting.value.number;
        if (number != 0 && !units.contains(number) && !setting.IsDefault() && (isOfUnits || !units.empty())) {
            Report(Severity::Error, FindingKind::Inconsistent, examination, setting.path, setting.name,
                   FullName(setting) + " is " + std::to_string(number) + ", and no card unit has that number");
        }
    }

    void CheckNoteTypes(const Examination& examination, const SettingIndex& index)
    {
        const auto* count = index.Find(L"NoteType", L"Count");
        if (count == nullptr) {
            return;
        }
        std::set<std::wstring> expected;
        const std::array<const wchar_t*, 5> names{L"NoteID", L"CurrencyID", L"Value", L"Release", L"Config"};
        const auto subkeys = SubkeysOf(count->path);
        std::set<std::wstring> present;
        for (const auto& subkey : subkeys) {
            present.insert(UpCase(subkey));
        }
        const auto most = std::min<DWORD>(count->value.number, static_cast<DWORD>(subkeys.size()) + 1);
        for (DWORD i = 1; i <= most; ++i) {
            const auto subkey = L"NoteType" + std::to_wstring(i);
            const auto path = count->path + L'\\' + subkey;
            expected.insert(UpCase(subkey));
            if (!present.contains(UpCase(subkey))) {
                Report(Severity::Error, FindingKind::Inconsistent, examination, count->path, count->name,
                       FullName(*count) + " is " + std::to_string(count->value.number) + ", and " + Utf8(subkey) +
                           " is missing: the note types are not loaded");
                return;
            }
            for (const auto* name : names) {
                const auto* setting = index.Find(L"NoteType\\" + subkey, name);
                if (setting != nullptr && setting->source == Source::Missing) {
                    Report(Severity::Error, FindingKind::MissingValue, examination, path, std::nullopt,
                           ShortPath(path) + '\\' + Utf8(name) +
                               " is missing: the note types from there on are not "
                               "loaded");
                }
            }
            const auto* currency = index.Find(L"NoteType\\" + subkey, L"CurrencyID");
            if (currency != nullptr && currency->source == Source::Key && currency->value.text.size() != 3) {
                Report(Severity::Error, FindingKind::NotAllowed, examination, path, L"CurrencyID",
                       FullName(*currency) + " is " + Quoted(currency->value.text) +
                           "; a currency has exactly 3 characters: the note types from there on are not loaded");
            }
        }
        for (const auto& subkey : subkeys) {
            if (!expected.contains(UpCase(subkey)) && MatchesPattern(L"NoteType%d", subkey)) {
                Report(Severity::Warning, FindingKind::Inconsistent, examination, count->path + L'\\' + subkey,
                       std::nullopt,
                       ShortPath(count->path) + '\\' + Utf8(subkey) + " is not read: Count is " +
                           std::to_string(count->value.number));
            }
        }
    }

    // ---- names ----

    void CheckNames()
    {
        std::set<std::wstring> visited;
        for (const auto& examination : m_out.services) {
            const auto& service = examination.service;
            if (!IsWanted(service)) {
                continue;
            }
            const auto visit = [&](const wchar_t* root, const std::wstring& name, Root kind) {
                if (!name.empty() && visited.insert(UpCase(root + name)).second) {
                    VisitKey(examination, m_readers[root + name], {root + name, L"", kind});
                }
            };
            visit(kDeviceRoot, service.deviceKey, Root::Device);
            visit(kServiceRoot, service.physicalName, Root::Service);
            visit(kLogicalRoot, service.logicalName, Root::Logical);
        }
        if (m_options.services.empty() && !m_out.services.empty()) {
            const auto common = PathOf(m_out.services.front().service, Root::Common, {});
            VisitKey(m_out.services.front(), m_readers[common], {common, L"", Root::Common});
        }
    }

    struct VisitedKey
    {
        std::wstring path;
        std::wstring subkey; // below the root
        Root root;
    };

    void VisitKey(const Examination& examination, const std::vector<const ClassSettings*>& readers,
                  const VisitedKey& key)
    {
        std::vector<std::wstring> unknown;
        std::vector<std::wstring> readWhole; // judged below: a store is not asked within its enumeration
        const auto isAny = [&](auto is) { return std::any_of(readers.begin(), readers.end(), is); };
        const auto* byCode = m_known.ValuesOf(key.path);
        const bool isWhole = m_known.IsWhole(key.path);
        const ReadScope scope;
        scope->EnumValues(scope->Open(key.path), [&](std::wstring_view name, const ValueView& value) {
            if (IsEmptyDefault(name, value) || (key.subkey.empty() && name.empty()) ||
                (byCode != nullptr && byCode->find(name) != byCode->end()) ||
                isAny([&](const auto* reader) { return reader->ReadsValue(key.root, key.subkey, name); })) {
                return true;
            }
            if (isWhole || isAny([&](const auto* reader) { return reader->MayRead(key.root, key.subkey, name); })) {
                readWhole.emplace_back(name);
            } else {
                unknown.emplace_back(name);
            }
            return true;
        });
        for (const auto& name : readWhole) {
            if (const auto meant = NearestMissing(examination, key, name); !meant.empty()) {
                ReportSlip(examination, key.path, name, meant);
            }
        }
        const auto subkeys = SubkeysOf(key.path);
        const bool isKnown = key.subkey.empty() || m_known.HasKey(key.path) || isAny([&](const ClassSettings* reader) {
                                 return reader->MayReadKey(key.root, key.subkey);
                             });
        if (!isKnown && !(unknown.empty() && subkeys.empty()) &&
            (key.root == Root::Device ? ReportUnknownKey(examination, key, unknown, !subkeys.empty())
                                      : ReportMisspeltKey(examination, key))) {
            return;
        }
        for (const auto& name : unknown) {
            ReportName(examination, key, name);
        }
        for (const auto& name : subkeys) {
            VisitKey(examination, readers,
                     {key.path + L'\\' + name, key.subkey.empty() ? name : key.subkey + L'\\' + name, key.root});
        }
    }

    static bool IsStored(const std::wstring& path, const std::wstring& name)
    {
        const ReadScope scope;
        ValueView view;
        return scope->QueryAt(path, name, view) == Outcome::Found;
    }

    static std::string NearestMissing(const Examination& examination, const VisitedKey& key, std::wstring_view name)
    {
        return NameIndex::Of(*examination.entry)
            .NearestName(
                key.root, key.subkey, name, [&](const std::wstring& other) { return IsStored(key.path, other); },
                false);
    }

    static std::string NearestKey(const Examination& examination, const VisitedKey& key, bool elsewhere)
    {
        const auto root = key.path.substr(0, key.path.size() - key.subkey.size());
        return NameIndex::Of(*examination.entry)
            .NearestKey(
                key.root, key.subkey, [&](const std::wstring& other) { return Exists(root + other); }, elsewhere);
    }

    // Of the keys that installers may use for themselves, only one that looks like a slip for a missing one is told.
    bool ReportMisspeltKey(const Examination& examination, const VisitedKey& key)
    {
        const auto meant = NearestKey(examination, key, false);
        if (!meant.empty()) {
            Report(Severity::Warning, FindingKind::UnknownKey, examination, key.path, std::nullopt,
                   ShortPath(key.path) + " is not read by " + ReaderOf(examination, key) + "; did you mean " + meant +
                       "?");
        }
        return !meant.empty();
    }

    static std::string ReaderOf(const Examination& examination, const VisitedKey& key)
    {
        return key.root == Root::Common ? std::string("any class") : ClassOf(examination);
    }

    // A key of which nothing is read. Its values may be at home in another one, each for itself, unless the key's own
    // name is misspelt.
    bool ReportUnknownKey(const Examination& examination, const VisitedKey& key,
                          const std::vector<std::wstring>& values, bool hasMore)
    {
        const auto& own = NameIndex::Of(*examination.entry);
        const auto meant = NearestKey(examination, key, true);
        for (const auto& name : values) {
            if (meant.empty() && !own.KeysOf(name).empty()) {
                ReportName(examination, key, name);
            } else {
                hasMore = true;
            }
        }
        if (!hasMore) {
            return true;
        }
        if (meant.empty() && !IsModel(*examination.entry)) {
            ReportModel(examination);
            return true;
        }
        const auto model = NameIndex::All().ModelOfKey(key.root, key.subkey, *examination.entry);
        const auto path = ShortPath(key.path);
        if (!model.text.empty() && (meant.empty() || model.isSameDevice)) {
            Report(Severity::Warning, FindingKind::OtherModel, examination, key.path, std::nullopt,
                   path + " belongs to " + model.text + "; this service is a " + ClassOf(examination));
        } else {
            Report(Severity::Warning, FindingKind::UnknownKey, examination, key.path, std::nullopt,
                   path + " is not read by " + ClassOf(examination) +
                       (meant.empty() ? std::string() : "; did you mean " + meant + "?"));
        }
        return true;
    }

    // What no class is made for has settings that none knows: that is told once.
    void ReportModel(const Examination& examination)
    {
        const auto& service = examination.service;
        Report(Severity::Warning, FindingKind::UnknownModel, examination, kDeviceRoot + service.deviceKey, std::nullopt,
               "device key " + Utf8(service.deviceKey) + " is of no model that is known (class value " +
                   Quoted(service.xfsClass) + "): only what " + ClassOf(examination) + " reads of it is checked");
    }

    void ReportName(const Examination& examination, const VisitedKey& key, const std::wstring& name)
    {
        if (key.root != Root::Device) {
            ReportForeignName(examination, key, name);
            return;
        }
        const auto& own = NameIndex::Of(*examination.entry);
        const bool isModel = IsModel(*examination.entry);
        const auto meant = isModel ? own.NearestName(
                                         key.root, key.subkey, name,
                                         [&](const std::wstring& other) { return IsStored(key.path, other); }, true)
                                   : NearestMissing(examination, key, name);
        const auto report = [&](FindingKind kind, const std::string& what) {
            Report(Severity::Warning, kind, examination, key.path, name, FullName(key.path, name) + what);
        };
        if (const auto elsewhere = own.KeysOf(name); !elsewhere.empty()) {
            return report(FindingKind::ReadElsewhere, " is not read: " + ClassOf(examination) + " reads " + Utf8(name) +
                                                          " from " + elsewhere + ", not from " +
                                                          KeyText(key.root, key.subkey));
        }
        const auto& all = SettingsOf(*examination.entry).All();
        const bool isMade = std::any_of(all.begin(), all.end(), [&](const ClassSetting& each) {
            return each.setting.computed && EqualNoCase(each.setting.key, key.subkey) &&
                   EqualNoCase(each.setting.name, name);
        });
        if (isMade) {
            return report(FindingKind::UnknownName,
                          " is not read: " + ClassOf(examination) + " makes " + Utf8(name) + " itself");
        }
        const auto model = NameIndex::All().ModelOf(key.root, key.subkey, name, *examination.entry);
        if (!isModel && (meant.empty() || !model.text.empty())) {
            ReportModel(examination);
        } else if (!model.text.empty() && (meant.empty() || model.isSameDevice)) {
            report(FindingKind::OtherModel,
                   " belongs to " + model.text + "; this service is a " + ClassOf(examination));
        } else {
            report(FindingKind::UnknownName, " is not read by " + ClassOf(examination) +
                                                 (meant.empty() ? std::string() : "; did you mean " + meant + "?"));
        }
    }

    // Installers and other programs keep values beside those that are read: only what looks like a slip is told, and
    // what is a setting of the device key.
    void ReportForeignName(const Examination& examination, const VisitedKey& key, const std::wstring& name)
    {
        const auto report = [&](FindingKind kind, const std::string& what) {
            Report(Severity::Warning, kind, examination, key.path, name, FullName(key.path, name) + what);
        };
        if (const auto [reader, place] = ReaderInDeviceKey(examination, key, name);
            reader != nullptr && IsMeantFor(*reader, place, key, name) &&
            !NameIndex::All().Has(key.root, key.subkey, name)) {
            report(FindingKind::ReadElsewhere,
                   " is not read: " + ClassOf(*reader) + " reads it from " + FullPath(place) + ", not from here");
        } else if (const auto meant = NearestMissing(examination, key, name);
                   !meant.empty() && !NameIndex::All().Has(key.root, key.subkey, name)) {
            report(FindingKind::UnknownName,
                   " is not read by " + ReaderOf(examination, key) + "; did you mean " + meant + "?");
        }
    }

    // By its type and by its name, or by the subkey that it stands in, as programs do not have the same by chance.
    static bool IsMeantFor(const Examination& reader, const std::wstring& place, const VisitedKey& key,
                           const std::wstring& name)
    {
        const auto stored = StoredAt(key.path, name);
        const bool isRightType =
            std::any_of(reader.settings.begin(), reader.settings.end(), [&](const ExaminedSetting& setting) {
                return stored && EqualNoCase(setting.path, place) && EqualNoCase(setting.name, name) &&
                       IsRightType(setting.Setting(), *stored);
            });
        return isRightType && (!key.subkey.empty() || IsSpecific(name));
    }

    struct Reader
    {
        const Examination* examination = nullptr; // null where there is none
        std::wstring path;
    };

    // The service, and the key below its device key that it reads the value from. Another subkey counts only where the
    // value is missing from it: the same name may mean something else to another program.
    Reader ReaderInDeviceKey(const Examination& examination, const VisitedKey& key, const std::wstring& name) const
    {
        if (key.root == Root::Common) {
            const auto reader =
                std::find_if(m_out.services.begin(), m_out.services.end(), [&](const Examination& each) {
                    return NameIndex::Of(*each.entry).HasFixed(Root::Device, key.subkey, name);
                });
            return reader != m_out.services.end() ? Reader{&*reader, PathOf(reader->service, Root::Device, key.subkey)}
                                                  : Reader{};
        }
        const auto& own = NameIndex::Of(*examination.entry);
        if (!Exists(PathOf(examination.service, Root::Device, {}))) {
            return {}; // a service of another kind
        }
        if (own.HasFixed(Root::Device, key.subkey, name)) {
            return {&examination, PathOf(examination.service, Root::Device, key.subkey)};
        }
        const auto* subkey = key.subkey.empty() ? own.SubkeyOf(Root::Device, name) : nullptr;
        if (subkey == nullptr || IsStored(PathOf(examination.service, Root::Device, *subkey), name)) {
            return {};
        }
        return {&examination, PathOf(examination.service, Root::Device, *subkey)};
    }

    const CheckOptions& m_options;
    Places& m_places;
    Checkup m_out;
    CodePlaces m_known;
    // The classes that read the keys of a root: a service's device key, its service key, ...
    std::unordered_map<std::wstring, std::vector<const ClassSettings*>, HasherNoCase, EqualToNoCase> m_readers;
    std::set<std::wstring> m_logical; // names of logical services in capitals
    std::set<std::string> m_reported;
};

} // namespace

Checkup Check(const CheckOptions& options, Places& places)
{
    return Checker(options, places).Run();
}

const char* NameOf(FindingKind kind) noexcept
{
    switch (kind) {
    case FindingKind::WrongType:
        return "wrongType";
    case FindingKind::NotAllowed:
        return "notAllowed";
    case FindingKind::Corrected:
        return "corrected";
    case FindingKind::MissingValue:
        return "missingValue";
    case FindingKind::UnknownName:
        return "unknownName";
    case FindingKind::UnknownKey:
        return "unknownKey";
    case FindingKind::ReadElsewhere:
        return "readElsewhere";
    case FindingKind::OtherModel:
        return "otherModel";
    case FindingKind::NoProvider:
        return "noProvider";
    case FindingKind::NoDeviceKey:
        return "noDeviceKey";
    case FindingKind::UnusedDeviceKey:
        return "unusedDeviceKey";
    case FindingKind::ClassContradicts:
        return "classContradicts";
    case FindingKind::UnknownClass:
        return "unknownClass";
    case FindingKind::UnknownModel:
        return "unknownModel";
    case FindingKind::SharedPort:
        return "sharedPort";
    case FindingKind::NoSuchService:
        return "noSuchService";
    case FindingKind::Inconsistent:
        return "inconsistent";
    case FindingKind::NoLogicalService:
        return "noLogicalService";
    case FindingKind::View32:
        break;
    }
    return "view32";
}

} // namespace wqspcfg::diagnosis
