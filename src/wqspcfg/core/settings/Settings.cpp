#include "wqspcfg/core/settings/Settings.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/SavePolicy.h"
#include "wqspcfg/core/settings/OwnChanges.h"
#include "wqspcfg/core/settings/Walk.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/text/Utf.h"

#include <cstdint>
#include <new>
#include <utility>

namespace wqspcfg {

namespace {

thread_local Loading* t_loading = nullptr;
thread_local LoadObserver* t_observer = nullptr;

void AppendPath(std::wstring& path, Root root, std::wstring_view subkey, std::wstring_view device,
                std::wstring_view service, std::wstring_view logical)
{
    const auto below = [&](std::wstring_view above, std::wstring_view name) {
        path.reserve(above.size() + name.size() + 1 + subkey.size());
        path += above;
        path += name;
        if (!subkey.empty()) {
            path += L'\\';
        }
    };
    switch (root) {
    case Root::Device:
        below(kDeviceRoot, device);
        break;
    case Root::Service:
        below(kServiceRoot, service);
        break;
    case Root::Logical:
        below(kLogicalRoot, logical);
        break;
    case Root::Common:
        path += kServiceRoot;
        path += kCommonKey;
        break;
    case Root::Absolute:
        break;
    }
    path += subkey;
}

unsigned IndexOf(const Iteration* iteration)
{
    return iteration != nullptr ? iteration->index : 0;
}

template <class T>
T& MemberOf(const Setting& row, CRegKeyEx& object, unsigned index)
{
    if (row.locate != nullptr) {
        return *static_cast<T*>(row.locate(object, index));
    }
    if constexpr (std::is_same_v<T, DWORD>) {
        return object.*row.member.dword;
    } else if constexpr (std::is_same_v<T, bool>) {
        return object.*row.member.flag;
    } else if constexpr (std::is_same_v<T, CString>) {
        return object.*row.member.string;
    } else {
        return object.*row.member.character;
    }
}

// A character as text; none (NUL) is an empty text, in the registry and in a line, which it would cut short.
CString TextOf(wchar_t character)
{
    return character != 0 ? CString(character) : CString();
}

bool IsNumber(const Setting& row)
{
    return row.type == Type::Dword || row.type == Type::Flag;
}

// What a setting holds, as a number (DWORD) or a text (CString).
template <class T>
T HeldOf(const Setting& row, CRegKeyEx& object, unsigned index)
{
    if constexpr (std::is_same_v<T, DWORD>) {
        return row.type == Type::Flag ? MemberOf<bool>(row, object, index) : MemberOf<DWORD>(row, object, index);
    } else {
        return row.type == Type::Char ? TextOf(MemberOf<wchar_t>(row, object, index))
                                      : MemberOf<CString>(row, object, index);
    }
}

void Hold(const Setting& row, CRegKeyEx& object, unsigned index, DWORD value)
{
    if (row.type == Type::Flag) {
        MemberOf<bool>(row, object, index) = value != 0;
    } else {
        MemberOf<DWORD>(row, object, index) = value;
    }
}

void Hold(const Setting& row, CRegKeyEx& object, unsigned index, CString value)
{
    if (row.type == Type::Char) {
        MemberOf<wchar_t>(row, object, index) = value.IsEmpty() ? L'\0' : value[0];
    } else {
        MemberOf<CString>(row, object, index) = std::move(value);
    }
}

// A setting's default or what its constructor sets.
template <class T>
T FromValue(const Setting& row, const Value& value, unsigned index)
{
    if constexpr (std::is_same_v<T, DWORD>) {
        return row.perIteration != nullptr ? row.perIteration[index] : value.number;
    } else {
        return value.text;
    }
}

template <class T>
T ConstructedOf(const Setting& row, unsigned index)
{
    if (!row.hasConstructed) {
        return FromValue<T>(row, row.defaultValue, index);
    }
    if constexpr (std::is_same_v<T, DWORD>) {
        return row.constructed.number;
    } else {
        return row.constructed.text;
    }
}

SettingContent ContentOf(DWORD number)
{
    return {number, {}, {}};
}

SettingContent ContentOf(const CString& text)
{
    return {0, text.Std(), {}};
}

SettingContent ContentOf(const Texts& map)
{
    SettingContent content;
    for (const auto& [strName, strText] : map) {
        content.entries.emplace(strName.Std(), strText.Std());
    }
    return content;
}

// Whether Save can write the setting.
bool IsWritten(const Setting& row)
{
    return row.saved && row.bound && !row.Has(Flags::Documented);
}

void Correct(const Setting& row, CRegKeyEx& object, DWORD& value, bool found, unsigned index)
{
    if (row.normalize != nullptr) {
        value = row.normalize(object, value, found, index);
    }
}

void Correct(const Setting& row, CRegKeyEx& object, CString& value, bool found, unsigned index)
{
    if (row.normalizeText != nullptr) {
        row.normalizeText(object, value, found, index);
    }
    if (row.type == Type::Char) {
        value = value.Left(1);
    }
}

} // namespace

DWORD HeldNumber(const Setting& row, CRegKeyEx& object, unsigned iteration)
{
    return HeldOf<DWORD>(row, object, iteration);
}

CString HeldText(const Setting& row, CRegKeyEx& object, unsigned iteration)
{
    return HeldOf<CString>(row, object, iteration);
}

namespace detail {

Setting* NewRows(std::size_t count)
{
    return static_cast<Setting*>(::operator new(count * sizeof(Setting)));
}

} // namespace detail

void Construct(CRegKeyEx& object, RowList rows)
{
    ForgetLoaded(object); // of an object that lay here before
    Walk(rows, nullptr, EnterAll, [&](const Setting& row, const Iteration* iteration) {
        if (row.kind == Kind::Value && row.bound && !row.Has(Flags::Preloaded)) {
            const auto index = IndexOf(iteration);
            if (IsNumber(row)) {
                Hold(row, object, index, ConstructedOf<DWORD>(row, index));
            } else {
                Hold(row, object, index, ConstructedOf<CString>(row, index));
            }
        }
        return true;
    });
}

std::wstring ForIteration(const wchar_t* text, const Iteration* iteration)
{
    if (iteration == nullptr) {
        return text;
    }
    return iteration->name != nullptr ? FormatString(text, iteration->name) : FormatString(text, iteration->number);
}

ObserveLoads::ObserveLoads(LoadObserver& observer) noexcept : m_outer(std::exchange(t_observer, &observer))
{
    ObserveReads(&observer);
}

ObserveLoads::~ObserveLoads()
{
    t_observer = m_outer;
    ObserveReads(m_outer);
}

// ---- keys ----

SettingKeys::SettingKeys(CString strDeviceKeyName, CString strServiceName, CString strLogicalName)
    : m_deviceKeyName(std::move(strDeviceKeyName)), m_serviceName(std::move(strServiceName)),
      m_logicalName(std::move(strLogicalName))
{}

std::wstring SettingKeys::PathOf(Key key, const Iteration* iteration) const
{
    std::wstring path;
    Append(path, key, iteration);
    return path;
}

void SettingKeys::Append(std::wstring& path, Key key, const Iteration* iteration) const
{
    if (iteration != nullptr) {
        AppendPath(path, key.root, ForIteration(key.subkey, iteration), m_deviceKeyName.View(), m_serviceName.View(),
                   m_logicalName.View());
    } else {
        AppendPath(path, key.root, key.subkey, m_deviceKeyName.View(), m_serviceName.View(), m_logicalName.View());
    }
}

Session::Key SettingKeys::Open(Session& session, Key key, const Iteration* iteration)
{
    // Subkeys of rows are literals: one address is one text.
    const auto address = reinterpret_cast<std::uintptr_t>(key.subkey) / alignof(wchar_t);
    auto& known = m_known[(address ^ address / kKnown ^ static_cast<std::uintptr_t>(key.root)) % kKnown];
    const bool isSameIteration = iteration == nullptr ? !known.isIterated
                                                      : known.isIterated && iteration->name == known.iteration.name &&
                                                            iteration->number == known.iteration.number;
    if (key.subkey != known.key.subkey || key.root != known.key.root || !isSameIteration) {
        m_path.clear();
        Append(m_path, key, iteration);
        known = {key, iteration != nullptr ? *iteration : Iteration{}, iteration != nullptr, session.Open(m_path)};
    }
    return known.opened;
}

// ---- the configuration log ----

void ConfigurationLog::Loaded(const LoadedSetting& setting)
{
    const auto& row = setting.row;
    if (m_log == nullptr || row.Has(Flags::NotLogged)) {
        return;
    }
    if (setting.textHeld != nullptr) {
        Print(row, setting.iteration, *setting.textHeld);
        return;
    }
    DWORD shown = row.Has(Flags::LogHeld) ? setting.held : setting.corrected;
    if (row.logAs != nullptr) {
        shown = row.logAs(setting.object, shown);
    }
    Print(row, setting.iteration, shown);
}

void ConfigurationLog::Print(const Setting& row, const Iteration* iteration, const FormatArg& value,
                             const wchar_t* entry)
{
    if (m_log == nullptr) {
        return;
    }
    std::wstring_view name = entry != nullptr ? entry : row.label != nullptr ? row.label : row.name;
    std::wstring label;
    if (iteration != nullptr) {
        name = label = ForIteration(name.data(), iteration);
    }
    if (row.Has(Flags::QualifiedLabel)) {
        std::wstring subkey = ForIteration(row.key.subkey, iteration);
        while (!subkey.empty() && subkey.back() == L'\\') {
            subkey.pop_back();
        }
        name = label = subkey + L'\\' + std::wstring(name);
    }
    m_text.clear();
    if (row.line != nullptr) {
        const FormatArg args[] = {name, value, row.meaning};
        FormatTo(m_text, row.line, std::span<const FormatArg>(args));
    } else {
        // "[CFG] %40s : " of nearly every line; formatting it takes a twentieth of a Load
        constexpr std::size_t kLabelWidth = 40;
        m_text = L"[CFG] ";
        m_text.append(name.size() < kLabelWidth ? kLabelWidth - name.size() : 0, L' ');
        m_text.append(name).append(L" : ");
        const wchar_t* conversion = row.conversion;
        if (conversion == nullptr) {
            conversion = row.type == Type::String ? L"%s" : row.type == Type::Char ? L"%c" : L"%d";
        }
        FormatTo(m_text, conversion, std::span<const FormatArg>(&value, 1));
        m_text.append(L"[").append(row.meaning).append(L"]");
    }
    m_log->Write(Severity::Info, kLogCategory, m_text);
}

void ConfigurationLog::PrintMissing(const wchar_t* className, const Setting& row, const Iteration* iteration)
{
    if (m_log != nullptr) {
        // The source file is named after the class without its leading C.
        m_log->Error(kLogCategory, L"<%s(%d) : %s> ReadRegedit Info Fail : %s", className + 1, row.requiredLine,
                     std::wstring(className) + L"::Load", ForIteration(row.name.data(), iteration));
    }
}

// ---- Loading ----

Loading::Loading(CRegInfo& object, CLog* pLog)
    : m_object(object),
      // A class's Load calls its base's, which have the name in common.
      m_keys(object.GetExeDllMother(1, nullptr), object.m_strPhysicalName, object.m_strLogicalName), m_lines(pLog),
      m_observer(t_observer), m_outer(std::exchange(t_loading, this))
{}

Loading::Loading(CRegKeyEx& object, const CString& strDeviceKeyName, CLog* pLog)
    : m_object(object), m_keys(strDeviceKeyName, {}, {}), m_lines(pLog), m_observer(t_observer),
      m_outer(std::exchange(t_loading, this))
{}

Loading::Loading(CRegKeyEx& record, HKEY key)
    : m_object(record), m_keys({}, {}, {}), m_lines(t_loading != nullptr ? t_loading->Log() : nullptr),
      m_observer(t_observer), m_outer(std::exchange(t_loading, this)), m_recordKey(key)
{
    m_record.emplace(key);
}

Loading::~Loading()
{
    t_loading = m_outer;
    if (m_outer == nullptr && Log() != nullptr && HasFailed()) {
        Log()->Error(kLogCategory, L"<%s(%d) : %s> The store failed while the configuration was loaded : %s",
                     L"core/settings/Settings.cpp", __LINE__, L"wqspcfg::Loading", m_scope->Failure().message);
    }
}

const CString* Loading::DeviceKeyNameOf(const CRegKeyEx& object) noexcept
{
    return t_loading != nullptr && &t_loading->m_object == &object ? &t_loading->m_keys.DeviceKeyName() : nullptr;
}

bool Loading::ReadRows(const Table& table, std::span<const Setting> rows)
{
    m_table = &table;
    const auto enter = [this](const Setting& group) { return group.condition == nullptr || group.condition(m_object); };
    const bool ended = !Walk(rows, nullptr, enter, [this](const Setting& row, const Iteration* iteration) {
        if (row.kind == Kind::Step) {
            return row.step(m_object, *this);
        }
        ReadRow(row, iteration);
        return true;
    });
    return !ended && m_complete;
}

bool Loading::Read(RowList rows)
{
    static const Table record{L"", nullptr, nullptr, {}};
    Read(record, rows);
    return m_record->Exists();
}

void Loading::ReadRow(const Setting& row, const Iteration* iteration)
{
    if (row.Has(Flags::Documented)) {
        return;
    }
    if (m_observer != nullptr) {
        m_observer->Begin(row, iteration);
    }
    if (row.step != nullptr) {
        row.step(m_object, *this);
    }
    if (row.kind == Kind::WholeKey) {
        ReadWholeKey(row, iteration);
    } else if (row.step == nullptr || row.bound) {
        IsNumber(row) ? ReadValue<DWORD>(row, iteration) : ReadValue<CString>(row, iteration);
    }
}

template <class T>
void Loading::ReadValue(const Setting& row, const Iteration* iteration)
{
    constexpr bool kNumber = std::is_same_v<T, DWORD>;
    const auto index = IndexOf(iteration);
    const bool given = row.IsGiven();
    const bool keep = row.bound && (given || row.Has(Flags::KeepWhenMissing));
    T value = keep ? HeldOf<T>(row, m_object, index) : FromValue<T>(row, row.defaultValue, index);
    LoadedSetting loaded{m_object, row, iteration};
    bool found = false;
    if (!given) {
        if constexpr (kNumber) {
            if (row.bound && row.type == Type::Dword) {
                Hold(row, m_object, index, value); // hooks and other members may look at it
            }
        }
        loaded.origin = Find(row, iteration, value);
        found = loaded.origin == Origin::Key || loaded.origin == Origin::Fallback;
        if (!found && keep) {
            loaded.origin = Origin::Kept;
        }
        if (!found && row.requiredLine != 0) {
            m_lines.PrintMissing(m_table->className, row, iteration);
        }
        m_complete = m_complete && (found || !row.Has(Flags::Needed));
    }
    const bool remember = m_remembers && IsWritten(row);
    T read{};
    if (kNumber || m_observer != nullptr || remember) {
        read = value;
    }
    if (!given) {
        Correct(row, m_object, value, found, index);
    }
    if constexpr (kNumber) {
        loaded.read = read;
        loaded.corrected = value;
        loaded.held = row.type == Type::Flag || row.Has(Flags::AsSwitch) ? (value != 0 ? 1U : 0U) : value;
        if (row.bound && !given) {
            Hold(row, m_object, index, loaded.held);
        }
        m_lines.Loaded(loaded);
    } else {
        loaded.textRead = &read;
        loaded.textHeld = &value;
        m_lines.Loaded(loaded);
        if (row.bound && !given) {
            m_observer == nullptr ? Hold(row, m_object, index, std::move(value)) : Hold(row, m_object, index, value);
        }
    }
    if (remember) {
        // What other code has loaded counts as stored.
        RememberLoaded(m_object, row, index,
                       {given || loaded.origin == Origin::Key ? std::optional(ContentOf(read)) : std::nullopt,
                        ContentOf(HeldOf<T>(row, m_object, index))},
                       Log());
    }
    if (m_observer != nullptr) {
        m_observer->Loaded(loaded);
    }
}

template <class T>
Origin Loading::Find(const Setting& row, const Iteration* iteration, T& value)
{
    auto origin = Origin::Missing;
    const auto ask = [&](Key key, std::wstring_view name) {
        ValueView view;
        if (m_record) {
            if (!m_record->Find(name, view)) {
                return false;
            }
        } else {
            const auto opened = m_keys.Open(*m_scope, key, iteration);
            const auto outcome = iteration != nullptr
                                     ? m_scope->Query(opened, ForIteration(name.data(), iteration), view)
                                     : m_scope->Query(opened, name, view);
            if (outcome != Outcome::Found) {
                return false;
            }
        }
        if (!ToValue(view, value)) {
            origin = Origin::WrongType;
            return false;
        }
        return true;
    };
    if (ask(row.key, row.name)) {
        return Origin::Key;
    }
    if (row.fallbackSubkey != nullptr &&
        ask({row.fallbackRoot, row.fallbackSubkey}, row.fallbackName != nullptr ? row.fallbackName : row.name)) {
        return Origin::Fallback;
    }
    return origin;
}

void Loading::ReadWholeKey(const Setting& row, const Iteration* iteration)
{
    const auto path = m_keys.PathOf(row.key, iteration);
    Texts unbound;
    void* map = row.bound ? row.locate(m_object, IndexOf(iteration)) : &unbound;
    if (row.bound && !row.Has(Flags::KeepWhenMissing)) {
        row.map->clear(map);
    }
    if (row.Has(Flags::SubkeyNames)) {
        CStringArray arNames;
        CRegKeyEx::EnumSubKeyName(arNames, L"%s", path);
        for (const auto& strName : arNames) {
            static_cast<Texts*>(map)->SetAt(strName, CString());
        }
    }
    const bool found =
        row.bound ? row.map->query(map, path.c_str()) != 0 : CRegKeyEx::QueryValues(unbound, L"%s", path) != 0;
    if (!found) {
        m_complete = m_complete && !row.Has(Flags::Needed);
        for (const auto& entry : row.entries) {
            static_cast<Texts*>(map)->SetAt(entry.name, entry.text);
        }
    }
    if (m_remembers && IsWritten(row)) {
        auto content = ContentOf(*static_cast<const Texts*>(map));
        RememberLoaded(m_object, row, IndexOf(iteration), {content, content}, Log());
    }
    if (Log() != nullptr && !row.Has(Flags::NotLogged)) {
        for (const auto& [strName, strText] : *static_cast<const Texts*>(map)) {
            m_lines.Print(row, nullptr, strText, strName);
        }
    }
    if (m_observer != nullptr) {
        LoadedSetting loaded{m_object, row, iteration};
        loaded.origin = found ? Origin::Key : Origin::Missing;
        m_observer->Loaded(loaded);
    }
}

template <class T>
bool Loading::QueryIteration(const Setting& row, const Iteration& iteration, T& value)
{
    if (m_observer != nullptr) {
        m_observer->Begin(row, &iteration);
    }
    LoadedSetting loaded{m_object, row, &iteration};
    loaded.origin = Find(row, &iteration, value);
    const bool found = loaded.origin == Origin::Key;
    if (m_observer != nullptr) {
        if constexpr (std::is_same_v<T, DWORD>) {
            loaded.read = loaded.corrected = value;
            loaded.held = row.Has(Flags::AsWord) ? LOWORD(value) : value;
        } else {
            loaded.textRead = loaded.textHeld = &value;
        }
        m_observer->Loaded(loaded);
    }
    if (m_remembers) {
        RememberLoaded(m_object, row, iteration.index,
                       {found ? std::optional(ContentOf(value)) : std::nullopt, ContentOf(value)}, Log());
    }
    return found;
}

bool Loading::Query(const Setting& row, const Iteration& iteration, DWORD& value)
{
    return QueryIteration(row, iteration, value);
}

bool Loading::Query(const Setting& row, const Iteration& iteration, CString& value)
{
    return QueryIteration(row, iteration, value);
}

void Loading::Remember(const Setting& row, const Iteration& iteration, DWORD held)
{
    if (m_remembers) {
        DWORD stored = 0;
        ValueView view;
        const bool found =
            m_scope->Query(m_keys.Open(*m_scope, row.key, &iteration), row.name, view) == Outcome::Found &&
            ToValue(view, stored);
        RememberLoaded(m_object, row, iteration.index,
                       {found ? std::optional(ContentOf(stored)) : std::nullopt, ContentOf(held)}, Log());
    }
}

bool Loading::Query(Key key, const CString& strName, DWORD& value)
{
    ValueView view;
    return m_scope->QueryAt(m_keys.PathOf(key), strName.View(), view) == Outcome::Found && ToValue(view, value);
}

bool Loading::Query(Key key, const CString& strName, CString& value)
{
    ValueView view;
    return m_scope->QueryAt(m_keys.PathOf(key), strName.View(), view) == Outcome::Found && ToValue(view, value);
}

void Loading::Print(const Setting& row, DWORD value, const Iteration* iteration)
{
    m_lines.Print(row, iteration, value);
}

void Loading::Print(const Setting& row, const CString& value, const Iteration* iteration)
{
    m_lines.Print(row, iteration, value);
}

void Loading::PrintHeld(const Setting& row)
{
    if (IsNumber(row)) {
        Print(row, HeldOf<DWORD>(row, m_object, 0));
    } else {
        Print(row, HeldOf<CString>(row, m_object, 0));
    }
}

namespace {

template <class T>
bool ReadOne(const CRegInfo& object, const Setting& row, T& value)
{
    ReadScope scope;
    // Only what the key's root needs is asked for.
    const auto deviceKeyName = [&](Root root) {
        return root == Root::Device ? object.GetExeDllMother(1, nullptr) : CString();
    };
    const auto ask = [&](Key key, std::wstring_view name) {
        const SettingKeys keys(deviceKeyName(key.root), object.m_strPhysicalName, object.m_strLogicalName);
        ValueView view;
        return scope->QueryAt(keys.PathOf(key), name, view) == Outcome::Found && ToValue(view, value);
    };
    if (ask(row.key, row.name) ||
        (row.fallbackSubkey != nullptr &&
         ask({row.fallbackRoot, row.fallbackSubkey}, row.fallbackName != nullptr ? row.fallbackName : row.name))) {
        return true;
    }
    value = FromValue<T>(row, row.defaultValue, 0);
    return false;
}

} // namespace

bool ReadSetting(const CRegInfo& object, const Setting& row, DWORD& value)
{
    return ReadOne(object, row, value);
}

bool ReadSetting(const CRegInfo& object, const Setting& row, CString& value)
{
    return ReadOne(object, row, value);
}

// ---- Saving ----

Saving::Saving(CRegInfo& object, ExceptionCount inFlight)
    : m_scope(inFlight), m_object(object),
      m_keys(object.GetExeDllMother(1, nullptr), object.m_strPhysicalName, object.m_strLogicalName)
{
    if (m_keys.DeviceKeyName().IsEmpty()) {
        m_scope->Refuse({ErrorKind::BadArgument, "nothing is saved: the service \"" +
                                                     Utf8ForMessage(object.m_strLogicalName.View()) +
                                                     "\" has no provider, so its device key is not known"});
    }
}

Saving::Saving(CRegKeyEx& object, const CString& strDeviceKeyName, ExceptionCount inFlight)
    : m_scope(inFlight), m_object(object), m_keys(strDeviceKeyName, {}, {})
{}

void Saving::Write(const Table& table)
{
    if (table.saveOrder == nullptr) {
        Write(table.rows);
    } else {
        Write(table.saveOrder());
    }
}

void Saving::WriteRows(std::span<const Setting> rows)
{
    Walk(rows, nullptr, EnterAll, [this](const Setting& row, const Iteration* iteration) {
        if (IsWritten(row)) {
            WriteRow(row, iteration);
        }
        return true;
    });
}

void Saving::Write(std::span<const Setting* const> rows)
{
    for (const auto* row : rows) {
        Write(*row);
    }
}

void Saving::WriteRow(const Setting& row, const Iteration* iteration)
{
    const auto index = IndexOf(iteration);
    if (row.savedIf != nullptr && !row.savedIf(m_object, index)) {
        return;
    }
    if (row.kind == Kind::WholeKey) {
        WriteWholeKey(row, index, m_keys.PathOf(row.key, iteration));
        return;
    }
    const auto key = m_keys.Open(*m_scope, row.key, iteration);
    const auto name = ForIteration(row.savedName != nullptr ? row.savedName : row.name.data(), iteration);
    if (IsNumber(row)) {
        const DWORD held = HeldOf<DWORD>(row, m_object, index);
        const DWORD written = row.savedAsSwitch ? (held != 0 ? 1U : 0U) : held;
        if (IsToBeWritten(row, index, key, name, held, written)) {
            m_scope->Set(key, name, DwordBytes(written).View());
        }
        return;
    }
    if (row.emptySavedAs != nullptr && MemberOf<CString>(row, m_object, index).IsEmpty()) {
        MemberOf<CString>(row, m_object, index) = row.emptySavedAs;
    }
    const auto held = HeldOf<CString>(row, m_object, index);
    if (IsToBeWritten(row, index, key, name, held, held)) {
        SetText(*m_scope, key, name, held.View());
    }
}

namespace {

void PrintConflict(const CRegKeyEx& object, std::wstring_view name)
{
    if (CLog* const log = LogOfLoad(object)) {
        log->Error(
            kLogCategory,
            L"<%s(%d) : %s> %s was changed in the registry since it was loaded; what the service provider set is "
            L"saved over it",
            L"core/settings/Settings.cpp", __LINE__, L"wqspcfg::Saving", std::wstring(name));
    }
}

// Whether the object has changed what it loaded, or what its constructor set. Tells the log when somebody else has too.
bool IsOwnChange(const CRegKeyEx& object, const Setting& row, unsigned index, const SettingContent& held,
                 const SettingContent& constructed, const SettingContent& current, const std::wstring& name)
{
    const auto* loaded = FindLoaded(object, row, index);
    if (held == (loaded != nullptr ? loaded->held : constructed)) {
        return false;
    }
    if (loaded != nullptr && loaded->stored != current && held != current) {
        PrintConflict(object, name);
    }
    return true;
}

} // namespace

void Saving::RememberAtEnd(const Setting& row, unsigned index, LoadedContent content)
{
    RememberWritten(m_object, row, index, std::move(content));
    if (!std::exchange(m_remembers, true)) {
        m_scope->AtEnd([&object = m_object](bool committed) { SettleWritten(object, committed); });
    }
}

template <class T>
bool Saving::IsToBeWritten(const Setting& row, unsigned index, Session::Key key, const std::wstring& name,
                           const T& held, const T& written)
{
    if (GetSavePolicy() == SavePolicy::All) {
        return true;
    }
    T current{};
    ValueView view;
    const bool isThere = m_scope->Query(key, name, view) == Outcome::Found && ToValue(view, current);
    if (isThere && !IsOwnChange(m_object, row, index, ContentOf(held), ContentOf(ConstructedOf<T>(row, index)),
                                ContentOf(current), name)) {
        return false;
    }
    RememberAtEnd(row, index, {ContentOf(written), ContentOf(held)});
    return true;
}

void Saving::WriteWholeKey(const Setting& row, unsigned index, const std::wstring& path)
{
    const auto& map = *static_cast<const Texts*>(row.locate(m_object, index));
    if (GetSavePolicy() == SavePolicy::All) {
        CRegKeyEx::SetValues(map, L"%s", path);
        return;
    }
    const auto* loaded = FindLoaded(m_object, row, index);
    const auto before = [loaded](const std::wstring& name) -> std::wstring {
        if (loaded == nullptr) {
            return {};
        }
        const auto entry = loaded->held.entries.find(name);
        return entry != loaded->held.entries.end() ? entry->second : std::wstring();
    };
    const auto key = m_scope->Open(path);
    for (const auto& [strName, strText] : map) {
        CString strCurrent;
        ValueView view;
        const bool stored = m_scope->Query(key, strName.View(), view) == Outcome::Found && ToValue(view, strCurrent);
        const auto old = before(strName.Std());
        if (!stored || strText.Std() != old) {
            if (stored && loaded != nullptr && strCurrent.Std() != old && strCurrent != strText) {
                PrintConflict(m_object, strName.View());
            }
            SetText(*m_scope, key, strName.View(), strText.View());
        }
    }
    RememberAtEnd(row, index, {ContentOf(map), ContentOf(map)});
}

void Saving::Put(const Setting& row, const Iteration& iteration, DWORD value)
{
    Put(m_keys.Open(*m_scope, row.key, &iteration), row, iteration, value);
}

void Saving::Put(Session::Key key, const Setting& row, const Iteration& iteration, DWORD value)
{
    const std::wstring name(row.name);
    if (IsToBeWritten(row, iteration.index, key, name, value, value)) {
        m_scope->Set(key, name, DwordBytes(value).View());
    }
}

void Saving::Remember(const Setting& row, const Iteration& iteration, DWORD held)
{
    if (GetSavePolicy() == SavePolicy::OwnChanges) {
        RememberAtEnd(row, iteration.index, {ContentOf(held), ContentOf(held)});
    }
}

void Saving::Put(const Setting& row, const Iteration& iteration, const CString& value)
{
    const auto key = m_keys.Open(*m_scope, row.key, &iteration);
    const std::wstring name(row.name);
    if (IsToBeWritten(row, iteration.index, key, name, value, value)) {
        SetText(*m_scope, key, name, value.View());
    }
}

void Saving::Put(Key key, const CString& strName, DWORD value)
{
    const DwordBytes bytes(value);
    m_scope->Set(m_scope->Open(m_keys.PathOf(key)), strName.View(), bytes.View());
}

void Saving::Put(Key key, const CString& strName, const CString& value)
{
    SetText(*m_scope, m_scope->Open(m_keys.PathOf(key)), strName.View(), value.View());
}

namespace {

template <class T>
void WriteChanged(CRegKeyEx& record, const Setting& row, KeyReader& reader, KeyWriter& writer)
{
    T stored = FromValue<T>(row, row.defaultValue, 0);
    const bool found = reader.Query(row.name, stored);
    Correct(row, record, stored, found, 0);
    const T held = HeldOf<T>(row, record, 0);
    if (held == stored) {
        return;
    }
    if (GetSavePolicy() == SavePolicy::OwnChanges) {
        if (!IsOwnChange(record, row, 0, ContentOf(held), ContentOf(ConstructedOf<T>(row, 0)), ContentOf(stored),
                         std::wstring(row.name))) {
            return; // somebody else changed it
        }
        RememberWritten(record, row, 0, {ContentOf(held), ContentOf(held)});
    }
    writer.Set(row.name, held);
}

} // namespace

void WriteRecord(const CRegKeyEx& record, RowList rows, HKEY key, KeyWriter& writer)
{
    KeyReader reader(key);
    auto& object = const_cast<CRegKeyEx&>(record); // rows find the members of objects that can be loaded
    Walk(rows, nullptr, EnterAll, [&](const Setting& row, const Iteration*) {
        if (IsWritten(row)) {
            IsNumber(row) ? WriteChanged<DWORD>(object, row, reader, writer)
                          : WriteChanged<CString>(object, row, reader, writer);
        }
        return true;
    });
    if (GetSavePolicy() == SavePolicy::OwnChanges) {
        writer.AtEnd([&record](bool committed) { SettleWritten(record, committed); });
    }
}

} // namespace wqspcfg
