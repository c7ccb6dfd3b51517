// Loads, saves and constructs what tables of settings declare.
#pragma once

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/platform/store/Session.h"

#include <span>
#include <string>
#include <vector>

namespace wqspcfg {

// Settings that an operation of the class reads or writes in its own right, for the reference.
struct OnRequest
{
    const wchar_t* readBy;    // the operation's name; empty where nothing reads them
    const wchar_t* writtenBy; // empty where nothing writes them
    std::span<const Setting> rows;
};

// A class's settings, and what the catalogue tells of it.
struct Table
{
    const wchar_t* className;
    const Table& (*base)() noexcept; // null for the root and the mix-in
    const wchar_t* deviceClass;      // null where the base tells it
    std::span<const Setting> rows;
    std::span<const Setting* const> saveOrder{}; // empty: the order of the table
    std::span<const OnRequest> onRequest{};
};

// One Load of one table's settings. Opens a read scope, so that everything comes from one state of the store; a Load
// within a Load shares it, with the keys it has opened.
class WQSPCFG_API Loading
{
  public:
    Loading(CRegInfo& object, CLog* pLog);
    // For an object that is not of the tree, with the name of its device key.
    Loading(CRegKeyEx& object, const CString& strDeviceKeyName, CLog* pLog);
    ~Loading();
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

    // Reads and logs the settings in order. False when a step ended it.
    bool Read(const Table& table);
    bool Read(std::span<const Setting> rows);

    // For code between rows. A missing value gives false and leaves `value` untouched.
    bool Query(Key key, const CString& strName, DWORD& value);
    bool Query(Key key, const CString& strName, CString& value);
    // The line of one row, with a number or a text in place of the member.
    void Print(const Setting& row, DWORD value);
    void Print(const Setting& row, const CString& value);
    // The line of one row with what its member holds.
    void PrintHeld(const Setting& row);
    CLog* Log() const noexcept { return m_log; }
    // The name of the object's device key, when this thread is loading that object; else null.
    static const CString* DeviceKeyNameOf(const CRegKeyEx& object) noexcept;

  private:
    struct Turn
    {
        const wchar_t* name = nullptr;
        unsigned number = 0;
        unsigned index = 0;
    };

    bool ReadRows(std::span<const Setting> rows, const Turn* turn);
    void ReadRow(const Setting& row, const Turn* turn);
    bool Find(const Setting& row, const Turn* turn, DWORD& value);
    bool Find(const Setting& row, const Turn* turn, CString& value);
    template <class T>
    bool FindIn(const Setting& row, const Turn* turn, T& value);
    Session::Key Open(Key key, const Turn* turn);
    void PrintRow(const Setting& row, const Turn* turn, const FormatArg& value);
    void PrintMissing(const Setting& row, const Turn* turn);

    ReadScope m_scope;
    CRegKeyEx& m_object;
    CLog* m_log;
    const Table* m_table = nullptr;
    Loading* m_outer;
    CString m_deviceKeyName;
    CString m_serviceName;
    CString m_logicalName;
    // The key of the last row, which most rows share with their neighbours.
    Key m_lastKey{Root::Device, nullptr};
    const Turn* m_lastTurn = nullptr;
    Session::Key m_lastOpened = 0;
    std::wstring m_text; // reused
};

// One Save: everything written within it becomes durable together, or nothing does.
class WQSPCFG_API Saving
{
  public:
    explicit Saving(CRegInfo& object, ExceptionCount inFlight = ExceptionsInFlight);
    Saving(CRegKeyEx& object, const CString& strDeviceKeyName, ExceptionCount inFlight = ExceptionsInFlight);
    Saving(const Saving&) = delete;
    Saving& operator=(const Saving&) = delete;

    // Writes the saved settings in the table's order of saving.
    void Write(const Table& table);
    void Write(std::span<const Setting> rows);
    void Write(std::span<const Setting* const> rows);

    void Put(Key key, const CString& strName, DWORD value);
    void Put(Key key, const CString& strName, const CString& value);

  private:
    Session::Key Open(Key key);
    void Put(Session::Key key, const CString& strName, DWORD value);
    void Put(Session::Key key, const CString& strName, const CString& value);
    void WriteRow(const Setting& row, const wchar_t* turnName, unsigned turnNumber, unsigned index);

    WriteScope m_scope;
    CRegKeyEx& m_object;
    CString m_deviceKeyName;
    CString m_serviceName;
    CString m_logicalName;
    // The key of the last row of a table, which most rows share with their neighbours.
    Key m_lastKey{Root::Device, nullptr};
    Session::Key m_lastOpened = 0;
};

// Sets every member to what its constructor is to set.
WQSPCFG_API void Construct(CRegKeyEx& object, std::span<const Setting> rows);

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
    extern const ClassEntry Class##Entry;                                                                              \
    constinit const ClassEntry Class##Entry{&::Class::Settings, &CreateObject<::Class>};                               \
    }

// Constructor, Load and Save of a class whose table says it all, and the catalogue's entry.
#define WQSPCFG_SETTINGS_MEMBERS(Class, Base)                                                                          \
    Class::Class(const CString& strName, bool bPhysicalName) : Base(strName, bPhysicalName)                            \
    {                                                                                                                  \
        wqspcfg::Construct(*this, Class::Settings().rows);                                                             \
    }                                                                                                                  \
    bool Class::Load(CLog* pLog)                                                                                       \
    {                                                                                                                  \
        wqspcfg::Loading loading(*this, pLog);                                                                         \
        const bool bResult = Base::Load(pLog);                                                                         \
        return loading.Read(Class::Settings()) && bResult;                                                             \
    }                                                                                                                  \
    void Class::Save()                                                                                                 \
    {                                                                                                                  \
        wqspcfg::Saving saving(*this);                                                                                 \
        Base::Save();                                                                                                  \
        saving.Write(Class::Settings());                                                                               \
    }                                                                                                                  \
    WQSPCFG_CATALOGUE_ENTRY(Class)

// Everything that such a class needs besides its table `rows`. An order of saving that is not the table's ({} where it
// is) and the settings that its operations read follow as further arguments.
#define WQSPCFG_SETTINGS(Class, Base, rows, ...)                                                                       \
    const wqspcfg::Table& Class::Settings() noexcept                                                                   \
    {                                                                                                                  \
        static constexpr wqspcfg::Table kTable{L## #Class, &Base::Settings, nullptr, rows __VA_OPT__(, ) __VA_ARGS__}; \
        return kTable;                                                                                                 \
    }                                                                                                                  \
    WQSPCFG_SETTINGS_MEMBERS(Class, Base)

// The same for a class base, which also names its XFS device class.
#define WQSPCFG_CLASS_SETTINGS(Class, DeviceClass, rows, ...)                                                          \
    const wqspcfg::Table& Class::Settings() noexcept                                                                   \
    {                                                                                                                  \
        static constexpr wqspcfg::Table kTable{L## #Class, &CRegInfo::Settings, DeviceClass,                           \
                                               rows __VA_OPT__(, ) __VA_ARGS__};                                       \
        return kTable;                                                                                                 \
    }                                                                                                                  \
    WQSPCFG_SETTINGS_MEMBERS(Class, CRegInfo)
