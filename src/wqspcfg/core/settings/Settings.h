// Loads, saves and constructs what tables of settings declare.
#pragma once

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/core/SavePolicy.h"
#include "wqspcfg/core/settings/Observer.h"
#include "wqspcfg/core/settings/SaveOrder.h"
#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/platform/store/KeyHandle.h"
#include "wqspcfg/platform/store/Session.h"

#include <array>
#include <optional>
#include <span>
#include <string>

namespace wqspcfg {

struct LoadedContent;

// Settings that one operation of the class reads or writes, and not Load and Save.
struct OperationSettings
{
    const wchar_t* readBy;    // the operation's name; empty where nothing reads them
    const wchar_t* writtenBy; // empty where nothing writes them
    RowList rows;
};

// A class's settings, and what the catalogue tells of it. Like the rows it is made when it is first asked for, and not
// kept as data with addresses.
struct Table
{
    using Get = const Table& (*)() noexcept;

    Table(const wchar_t* name, Get baseTable, const wchar_t* device, RowList list, SavedRows order = nullptr,
          std::span<const OperationSettings> others = {}, Get mixinTable = nullptr, bool savesBases = true)
        : className(name), base(baseTable), deviceClass(device), rows(list), saveOrder(order), operations(others),
          mixin(mixinTable), savesBase(savesBases)
    {}

    const wchar_t* className;
    Get base;                   // null for the root and the mix-in
    const wchar_t* deviceClass; // null where the base tells it
    RowList rows;
    SavedRows saveOrder; // null: the order of the table
    std::span<const OperationSettings> operations;
    Get mixin;      // a second base
    bool savesBase; // false: Save leaves out what the bases save
};

// Where the keys of one object's settings are, and those that were opened: rows share them.
class SettingKeys
{
  public:
    SettingKeys(CString strDeviceKeyName, CString strServiceName, CString strLogicalName);

    Session::Key Open(Session& session, Key key, const Iteration* iteration);
    std::wstring PathOf(Key key, const Iteration* iteration = nullptr) const;
    const CString& DeviceKeyName() const noexcept { return m_deviceKeyName; }

  private:
    void Append(std::wstring& path, Key key, const Iteration* iteration) const;

    CString m_deviceKeyName;
    CString m_serviceName;
    CString m_logicalName;
    // Keys that were opened, by the address of their subkey.
    struct KnownKey
    {
        Key key{Root::Device, nullptr};
        Iteration iteration{};
        bool isIterated = false;
        Session::Key opened = 0;
    };
    static constexpr std::size_t kKnown = 16;
    std::array<KnownKey, kKnown> m_known;
    std::wstring m_path; // reused
};

// Writes the configuration lines of what is loaded.
class ConfigurationLog final : public LoadObserver
{
  public:
    explicit ConfigurationLog(CLog* log) : m_log(log) {}

    void Begin(const Setting&, const Iteration*) override {}
    void Loaded(const LoadedSetting& setting) override;
    void Asked(std::wstring_view, std::wstring_view, Outcome, const ValueView&) override {}
    void AskedAll(std::wstring_view, bool) override {}

    // The line of a row with this value; of an entry of a whole key under the entry's name.
    void Print(const Setting& row, const Iteration* iteration, const FormatArg& value, const wchar_t* entry = nullptr);
    void PrintMissing(const wchar_t* className, const Setting& row, const Iteration* iteration);
    CLog* Log() const noexcept { return m_log; }

  private:
    CLog* m_log;
    std::wstring m_text; // reused
};

// One Load of one table's settings. Opens a read scope, so that everything comes from one state of the store; a Load
// within a Load shares it, with the keys it has opened.
class WQSPCFG_API Loading
{
  public:
    Loading(CRegInfo& object, CLog* pLog);
    // For an object that is not of the tree, with the name of its device key.
    Loading(CRegKeyEx& object, const CString& strDeviceKeyName, CLog* pLog);
    // For a record: all rows are read from this open key. Within another Load, its lines go into the log of that.
    Loading(CRegKeyEx& record, HKEY key);
    ~Loading();
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

    // Reads and logs the settings in order. False when a step ended it, and when a needed setting was missing.
    bool Read(const Table& table) { return Read(table, table.rows); }
    // Some of the table's rows.
    bool Read(const Table& table, RowList rows) { return ReadRows(table, rows); }
    bool Read(const Table& table, const Setting& row) { return ReadRows(table, std::span(&row, 1)); }
    // All rows of a record. False when its key is not open, so that everything is default.
    bool Read(RowList rows);

    // For code between rows. A missing value gives false and leaves `value` untouched.
    bool Query(Key key, const CString& strName, DWORD& value);
    bool Query(Key key, const CString& strName, CString& value);
    bool Query(const Setting& row, DWORD& value) { return Query(row.key, CString(row.name), value); }
    bool Query(const Setting& row, CString& value) { return Query(row.key, CString(row.name), value); }
    // Of an iteration that only the code knows. A default or a correction is the code's business; what was found is
    // remembered under the iteration's index for Saving::Put.
    bool Query(const Setting& row, const Iteration& iteration, DWORD& value);
    bool Query(const Setting& row, const Iteration& iteration, CString& value);
    // Under SavePolicy::OwnChanges: remembers for Saving::Put what the object holds of a setting that code loads.
    void Remember(const Setting& row, const Iteration& iteration, DWORD held);
    // The line of one row, with a number or a text in place of the member.
    void Print(const Setting& row, DWORD value, const Iteration* iteration = nullptr);
    void Print(const Setting& row, const CString& value, const Iteration* iteration = nullptr);
    // The line of one row with what its member holds.
    void PrintHeld(const Setting& row);
    CLog* Log() const noexcept { return m_lines.Log(); }
    // A log or an observer is told of what is loaded.
    bool IsTold() const noexcept { return Log() != nullptr || m_observer != nullptr; }
    // The open key of a record.
    HKEY RecordKey() const noexcept { return m_recordKey; }
    // The store could not be read, so that what is loaded are defaults.
    bool HasFailed() const noexcept { return static_cast<bool>(m_scope->Failure()); }
    // The name of the object's device key, when this thread is loading that object; else null.
    static const CString* DeviceKeyNameOf(const CRegKeyEx& object) noexcept;

  private:
    bool ReadRows(const Table& table, std::span<const Setting> rows);
    void ReadRow(const Setting& row, const Iteration* iteration);
    void ReadWholeKey(const Setting& row, const Iteration* iteration);
    template <class T>
    void ReadValue(const Setting& row, const Iteration* iteration);
    template <class T>
    Origin Find(const Setting& row, const Iteration* iteration, T& value);
    template <class T>
    bool QueryIteration(const Setting& row, const Iteration& iteration, T& value);

    ReadScope m_scope;
    CRegKeyEx& m_object;
    SettingKeys m_keys;
    ConfigurationLog m_lines;
    LoadObserver* m_observer;
    const Table* m_table = nullptr;
    Loading* m_outer;
    HKEY m_recordKey = nullptr;
    std::optional<KeyReader> m_record; // of a record
    bool m_complete = true;            // no needed setting was missing
    bool m_remembers = GetSavePolicy() == SavePolicy::OwnChanges;
};

// One Save: everything written within it becomes durable together, or nothing does. An object without a device key (a
// service without a provider) writes nothing; LastStoreError() tells.
class WQSPCFG_API Saving
{
  public:
    explicit Saving(CRegInfo& object, ExceptionCount inFlight = ExceptionsInFlight);
    Saving(CRegKeyEx& object, const CString& strDeviceKeyName, ExceptionCount inFlight = ExceptionsInFlight);
    Saving(const Saving&) = delete;
    Saving& operator=(const Saving&) = delete;

    // Writes the saved settings in the table's order of saving.
    void Write(const Table& table);
    void Write(RowList rows) { WriteRows(rows); }
    void Write(std::span<const Setting* const> rows);
    // Writes one setting, for an operation.
    void Write(const Setting& row) { WriteRows(std::span(&row, 1)); }

    // Writes what code holds of one iteration of a setting. The iteration's number or the address of its name tells it
    // from the one before.
    void Put(const Setting& row, const Iteration& iteration, DWORD value);
    void Put(const Setting& row, const Iteration& iteration, const CString& value);
    // The same in a key that was opened.
    void Put(Session::Key key, const Setting& row, const Iteration& iteration, DWORD value);
    // Under SavePolicy::OwnChanges: `held` counts as loaded for Put once what is written is committed.
    void Remember(const Setting& row, const Iteration& iteration, DWORD held);
    void Put(Key key, const CString& strName, DWORD value);
    void Put(Key key, const CString& strName, const CString& value);

  private:
    void WriteRows(std::span<const Setting> rows);
    void WriteRow(const Setting& row, const Iteration* iteration);
    void WriteWholeKey(const Setting& row, unsigned index, const std::wstring& path);
    template <class T>
    bool IsToBeWritten(const Setting& row, unsigned index, Session::Key key, const std::wstring& name, const T& held,
                       const T& written);

    void RememberAtEnd(const Setting& row, unsigned index, LoadedContent content);

    WriteScope m_scope;
    CRegKeyEx& m_object;
    SettingKeys m_keys;
    bool m_remembers = false;
};

// Writes the saved settings of a record to the open key that `writer` is for. A value that a Load would take from there
// as the record holds it is not written: what is missing or of another type stays as it is until somebody changes the
// member.
WQSPCFG_API void WriteRecord(const CRegKeyEx& record, RowList rows, HKEY key, KeyWriter& writer);

// Reads one setting from its key or its fallback key; where neither holds it, `value` becomes the default, and the
// result is false. What is corrected while loading is not corrected here.
WQSPCFG_API bool ReadSetting(const CRegInfo& object, const Setting& row, DWORD& value);
WQSPCFG_API bool ReadSetting(const CRegInfo& object, const Setting& row, CString& value);

// What the member of a row holds: a number or flag, a text or character. The row has one (`bound`).
WQSPCFG_API DWORD HeldNumber(const Setting& row, CRegKeyEx& object, unsigned iteration);
WQSPCFG_API CString HeldText(const Setting& row, CRegKeyEx& object, unsigned iteration);

// Sets every member to what its constructor is to set.
WQSPCFG_API void Construct(CRegKeyEx& object, RowList rows);

// How a class of the tree is made and described, for the catalogue.
struct ClassEntry
{
    const Table& (*table)() noexcept;
    CRegInfo* (*create)(const CString& strName, bool bPhysicalName); // the caller owns the object; null for the mix-in
};

template <class C>
CRegInfo* CreateObject(const CString& strName, bool bPhysicalName)
{
    return new C(strName, bPhysicalName);
}

} // namespace wqspcfg

// The catalogue's entry of a class; stands once in the class's source file.
#define WQSPCFG_CATALOGUE_ENTRY(Class)                                                                                 \
    namespace wqspcfg::entry {                                                                                         \
    ClassEntry Class##Entry();                                                                                         \
    ClassEntry Class##Entry()                                                                                          \
    {                                                                                                                  \
        return {&::Class::Settings, &CreateObject<::Class>};                                                           \
    }                                                                                                                  \
    }

// Constructor, Load and Save of a class whose table says it all, and the catalogue's entry.
#define WQSPCFG_SETTINGS_MEMBERS(Class, Base)                                                                          \
    Class::Class(const CString& strName, bool bPhysicalName) : Base(strName, bPhysicalName)                            \
    {                                                                                                                  \
        wqspcfg::Construct(*this, Class::Settings().rows);                                                             \
    }                                                                                                                  \
    Class::~Class() = default;                                                                                         \
    bool Class::Load(CLog* pLog)                                                                                       \
    {                                                                                                                  \
        wqspcfg::Loading loading(*this, pLog);                                                                         \
        const bool bResult = Base::Load(pLog);                                                                         \
        return loading.Read(Class::Settings()) && bResult;                                                             \
    }                                                                                                                  \
    void Class::Save()                                                                                                 \
    {                                                                                                                  \
        wqspcfg::Saving saving(*this);                                                                                 \
        if (Class::Settings().savesBase) {                                                                             \
            Base::Save();                                                                                              \
        }                                                                                                              \
        saving.Write(Class::Settings());                                                                               \
    }                                                                                                                  \
    WQSPCFG_CATALOGUE_ENTRY(Class)

// Everything that such a class needs besides its table `rows`. The fields of Table from the order of saving on follow
// as further arguments.
#define WQSPCFG_SETTINGS(Class, Base, rows, ...)                                                                       \
    const wqspcfg::Table& Class::Settings() noexcept                                                                   \
    {                                                                                                                  \
        static const wqspcfg::Table table{L## #Class, &Base::Settings, nullptr,                                        \
                                          wqspcfg::Rows<rows> __VA_OPT__(, ) __VA_ARGS__};                             \
        return table;                                                                                                  \
    }                                                                                                                  \
    WQSPCFG_SETTINGS_MEMBERS(Class, Base)

// The same for a class base, which also names its XFS device class.
#define WQSPCFG_CLASS_SETTINGS(Class, DeviceClass, rows, ...)                                                          \
    const wqspcfg::Table& Class::Settings() noexcept                                                                   \
    {                                                                                                                  \
        static const wqspcfg::Table table{L## #Class, &CRegInfo::Settings, DeviceClass,                                \
                                          wqspcfg::Rows<rows> __VA_OPT__(, ) __VA_ARGS__};                             \
        return table;                                                                                                  \
    }                                                                                                                  \
    WQSPCFG_SETTINGS_MEMBERS(Class, CRegInfo)
