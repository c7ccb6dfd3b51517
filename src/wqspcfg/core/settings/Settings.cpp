#include "wqspcfg/core/settings/Settings.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/platform/store/RegistryValue.h"

namespace wqspcfg {

namespace {

thread_local Loading* t_loading = nullptr;

constexpr unsigned kNoTurn = 0xFFFFFFFF; // a row outside Repeat

// The path of a key as its formats and arguments make it.
void AppendPath(std::wstring& path, Key key, std::wstring_view device, std::wstring_view service,
                std::wstring_view logical)
{
    const auto below = [&](std::wstring_view root, std::wstring_view name) {
        path += root;
        path += name;
        if (*key.subkey != 0) {
            path += L'\\';
        }
    };
    switch (key.root) {
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
    path += key.subkey;
}

// Fills the one conversion that a text of a repeated row may hold.
std::wstring ForTurn(const wchar_t* text, const wchar_t* turnName, unsigned turnNumber)
{
    if (turnName == nullptr) {
        return FormatString(text, turnNumber);
    }
    // A slot letter may stand for %c as well as for %s; both print the whole name.
    return FormatString(text, turnName);
}

template <class T>
T& MemberOf(const Setting& row, CRegKeyEx& object, unsigned turn)
{
    if (row.locate != nullptr) {
        return *static_cast<T*>(row.locate(object, turn));
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

void SetMember(const Setting& row, CRegKeyEx& object, unsigned turn, const Value& value)
{
    switch (row.type) {
    case Type::Dword:
        MemberOf<DWORD>(row, object, turn) = value.number;
        break;
    case Type::Flag:
        MemberOf<bool>(row, object, turn) = value.number != 0;
        break;
    case Type::String:
        MemberOf<CString>(row, object, turn) = value.text;
        break;
    case Type::Char:
        MemberOf<wchar_t>(row, object, turn) = value.text[0];
        break;
    case Type::None:
        break;
    }
}

// A character as text; none (NUL) is an empty text, in the registry and in a line, which it would cut short.
CString TextOf(wchar_t character)
{
    return character != 0 ? CString(character) : CString();
}

DWORD DefaultNumber(const Setting& row, unsigned turn)
{
    return row.perTurn ? row.perTurn[turn] : row.fallback.number;
}

void ConstructRows(CRegKeyEx& object, std::span<const Setting> rows, unsigned turn)
{
    for (const auto& row : rows) {
        if (row.rows != nullptr) {
            for (unsigned i = 0; i < row.turns; ++i) {
                ConstructRows(object, {row.rows, row.rowCount}, row.turns > 1 ? i : turn);
            }
        } else if (row.bound && !row.preloaded) {
            auto value = row.hasConstructed ? row.constructed : row.fallback;
            if (row.perTurn != nullptr && !row.hasConstructed) {
                value.number = row.perTurn[turn];
            }
            SetMember(row, object, turn, value);
        }
    }
}

} // namespace

void Construct(CRegKeyEx& object, std::span<const Setting> rows)
{
    ConstructRows(object, rows, 0);
}

// ---- Loading ----

Loading::Loading(CRegInfo& object, CLog* pLog)
    : m_object(object), m_log(pLog), m_outer(t_loading), m_serviceName(object.m_strPhysicalName),
      m_logicalName(object.m_strLogicalName)
{
    m_deviceKeyName = object.GetExeDllMother(1, nullptr); // a class's Load calls its base's, which have it in common
    t_loading = this;
}

const CString* Loading::DeviceKeyNameOf(const CRegKeyEx& object) noexcept
{
    return t_loading != nullptr && &t_loading->m_object == &object ? &t_loading->m_deviceKeyName : nullptr;
}

Loading::Loading(CRegKeyEx& object, const CString& strDeviceKeyName, CLog* pLog)
    : m_object(object), m_log(pLog), m_outer(t_loading), m_deviceKeyName(strDeviceKeyName)
{
    t_loading = this;
}

Loading::~Loading()
{
    t_loading = m_outer;
    if (m_outer == nullptr && m_log != nullptr && m_scope->Failure()) {
        m_log->Error(kLogCategory, L"<%s(%d) : %s> The store failed while the configuration was loaded : %s",
                     L"core/settings/Settings.cpp", __LINE__, L"wqspcfg::Loading", m_scope->Failure().message);
    }
}

bool Loading::Read(const Table& table)
{
    m_table = &table;
    return ReadRows(table.rows, nullptr);
}

bool Loading::Read(std::span<const Setting> rows)
{
    return ReadRows(rows, nullptr);
}

bool Loading::ReadRows(std::span<const Setting> rows, const Turn* turn)
{
    for (const auto& row : rows) {
        if (row.rows != nullptr) {
            if (row.condition != nullptr && !row.condition(m_object)) {
                continue;
            }
            const std::span<const Setting> group{row.rows, row.rowCount};
            if (row.condition != nullptr) {
                if (!ReadRows(group, turn)) {
                    return false;
                }
                continue;
            }
            for (unsigned i = 0; i < row.turns; ++i) {
                const Turn each{row.turnNames ? row.turnNames[i] : nullptr, row.turnFirst + i, i};
                m_lastTurn = nullptr;
                m_lastKey.subkey = nullptr;
                const bool done = ReadRows(group, &each);
                m_lastKey.subkey = nullptr;
                if (!done) {
                    return false;
                }
            }
        } else if (row.step != nullptr && row.type == Type::None) {
            if (!row.step(m_object, *this)) {
                return false;
            }
        } else {
            ReadRow(row, turn);
        }
    }
    return true;
}

void Loading::ReadRow(const Setting& row, const Turn* turn)
{
    const unsigned index = turn != nullptr ? turn->index : 0;
    if (row.step != nullptr) {
        row.step(m_object, *this);
        if (!row.bound) {
            return;
        }
    }
    const bool given = row.preloaded || row.step != nullptr;
    if (row.type == Type::Dword || row.type == Type::Flag) {
        DWORD number = DefaultNumber(row, index);
        if (row.bound && (row.keep || given)) {
            number =
                row.type == Type::Flag ? MemberOf<bool>(row, m_object, index) : MemberOf<DWORD>(row, m_object, index);
        }
        bool found = false;
        if (!given) {
            // Hooks and other members may look at this one while it is corrected.
            if (row.bound && row.type == Type::Dword) {
                MemberOf<DWORD>(row, m_object, index) = number;
            }
            found = Find(row, turn, number);
            if (!found && row.requiredLine != 0) {
                PrintMissing(row, turn);
            }
        }
        if (row.correct != nullptr) {
            number = row.correct(m_object, number, found);
        }
        DWORD held = number;
        if (row.type == Type::Flag || row.asSwitch) {
            held = number != 0 ? 1 : 0;
        }
        if (row.bound && !given) {
            if (row.type == Type::Flag) {
                MemberOf<bool>(row, m_object, index) = held != 0;
            } else {
                MemberOf<DWORD>(row, m_object, index) = held;
            }
        }
        if (row.logged && m_log != nullptr) {
            DWORD shown = row.logHeld ? held : number;
            if (row.logAs != nullptr) {
                shown = row.logAs(m_object, shown);
            }
            PrintRow(row, turn, shown);
        }
        return;
    }
    CString text(row.fallback.text);
    if (row.bound && (row.keep || given)) {
        text = row.type == Type::Char ? TextOf(MemberOf<wchar_t>(row, m_object, index))
                                      : MemberOf<CString>(row, m_object, index);
    }
    if (!given) {
        const bool found = Find(row, turn, text);
        if (!found && row.requiredLine != 0) {
            PrintMissing(row, turn);
        }
        if (row.correctText != nullptr) {
            row.correctText(m_object, text, found);
        }
    }
    if (row.type == Type::Char) {
        const wchar_t first = text.IsEmpty() ? L'\0' : text[0];
        if (row.bound && !given) {
            MemberOf<wchar_t>(row, m_object, index) = first;
        }
        if (row.logged && m_log != nullptr) {
            PrintRow(row, turn, TextOf(first));
        }
        return;
    }
    if (row.logged && m_log != nullptr) {
        PrintRow(row, turn, text);
    }
    if (row.bound && !given) {
        MemberOf<CString>(row, m_object, index) = std::move(text);
    }
}

Session::Key Loading::Open(Key key, const Turn* turn)
{
    if (key.subkey == m_lastKey.subkey && key.root == m_lastKey.root && turn == m_lastTurn) {
        return m_lastOpened;
    }
    m_text.clear();
    if (turn != nullptr) {
        const auto subkey = ForTurn(key.subkey, turn->name, turn->number);
        AppendPath(m_text, {key.root, subkey.c_str()}, m_deviceKeyName.View(), m_serviceName.View(),
                   m_logicalName.View());
    } else {
        AppendPath(m_text, key, m_deviceKeyName.View(), m_serviceName.View(), m_logicalName.View());
    }
    m_lastOpened = m_scope->Open(m_text);
    m_lastKey = key;
    m_lastTurn = turn;
    return m_lastOpened;
}

template <class T>
bool Loading::FindIn(const Setting& row, const Turn* turn, T& value)
{
    const auto ask = [&](Key key, std::wstring_view name) {
        const auto opened = Open(key, turn);
        ValueView view;
        const auto outcome = turn != nullptr
                                 ? m_scope->Query(opened, ForTurn(name.data(), turn->name, turn->number), view)
                                 : m_scope->Query(opened, name, view);
        return outcome == Outcome::Found && ToValue(view, value);
    };
    if (ask(row.key, row.readName != nullptr ? std::wstring_view(row.readName) : row.name)) {
        return true;
    }
    return row.elseSubkey != nullptr && ask({row.elseRoot, row.elseSubkey}, row.name);
}

bool Loading::Find(const Setting& row, const Turn* turn, DWORD& value)
{
    return FindIn(row, turn, value);
}

bool Loading::Find(const Setting& row, const Turn* turn, CString& value)
{
    return FindIn(row, turn, value);
}

bool Loading::Query(Key key, const CString& strName, DWORD& value)
{
    ValueView view;
    return m_scope->Query(Open(key, nullptr), strName.View(), view) == Outcome::Found && ToValue(view, value);
}

bool Loading::Query(Key key, const CString& strName, CString& value)
{
    ValueView view;
    return m_scope->Query(Open(key, nullptr), strName.View(), view) == Outcome::Found && ToValue(view, value);
}

void Loading::PrintRow(const Setting& row, const Turn* turn, const FormatArg& value)
{
    std::wstring_view name = row.label != nullptr ? std::wstring_view(row.label) : row.name;
    std::wstring label;
    if (turn != nullptr) {
        name = label = ForTurn(name.data(), turn->name, turn->number);
    }
    if (row.qualifiedLabel) {
        std::wstring subkey = turn != nullptr ? ForTurn(row.key.subkey, turn->name, turn->number) : row.key.subkey;
        while (!subkey.empty() && subkey.back() == L'\\') {
            subkey.pop_back();
        }
        name = label = subkey + L'\\' + std::wstring(name);
    }
    m_text.clear();
    if (row.head != nullptr) {
        FormatTo(m_text, row.head, name);
    } else {
        // "[CFG] %40s : " of nearly every line; formatting it takes a twentieth of a Load
        constexpr std::size_t kLabelWidth = 40;
        m_text = L"[CFG] ";
        m_text.append(name.size() < kLabelWidth ? kLabelWidth - name.size() : 0, L' ');
        m_text.append(name).append(L" : ");
    }
    const wchar_t* conversion = row.conversion;
    if (conversion == nullptr) {
        conversion = row.type == Type::String ? L"%s" : row.type == Type::Char ? L"%c" : L"%d";
    }
    FormatTo(m_text, conversion, std::span<const FormatArg>(&value, 1));
    if (row.described) {
        m_text += L'[';
        m_text += row.meaning;
        if (!row.openBracket) {
            m_text += L']';
        }
    }
    m_log->Write(Severity::Info, kLogCategory, m_text);
}

void Loading::Print(const Setting& row, DWORD value)
{
    if (m_log != nullptr) {
        PrintRow(row, nullptr, value);
    }
}

void Loading::Print(const Setting& row, const CString& value)
{
    if (m_log != nullptr) {
        PrintRow(row, nullptr, value);
    }
}

void Loading::PrintHeld(const Setting& row)
{
    switch (row.type) {
    case Type::Dword:
        Print(row, MemberOf<DWORD>(row, m_object, 0));
        break;
    case Type::Flag:
        Print(row, MemberOf<bool>(row, m_object, 0) ? 1U : 0U);
        break;
    case Type::String:
        Print(row, MemberOf<CString>(row, m_object, 0));
        break;
    case Type::Char:
        Print(row, TextOf(MemberOf<wchar_t>(row, m_object, 0)));
        break;
    case Type::None:
        break;
    }
}

void Loading::PrintMissing(const Setting& row, const Turn* turn)
{
    if (m_log == nullptr || m_table == nullptr) {
        return;
    }
    // The source file is named after the class without its leading C.
    const auto name = turn != nullptr ? ForTurn(row.name.data(), turn->name, turn->number) : std::wstring(row.name);
    m_log->Error(kLogCategory, L"<%s(%d) : %s> ReadRegedit Info Fail : %s", m_table->className + 1, row.requiredLine,
                 std::wstring(m_table->className) + L"::Load", name);
}

// ---- Saving ----

Saving::Saving(CRegInfo& object, ExceptionCount inFlight)
    : m_scope(inFlight), m_object(object), m_deviceKeyName(object.GetExeDllMother(1, nullptr)),
      m_serviceName(object.m_strPhysicalName), m_logicalName(object.m_strLogicalName)
{}

Saving::Saving(CRegKeyEx& object, const CString& strDeviceKeyName, ExceptionCount inFlight)
    : m_scope(inFlight), m_object(object), m_deviceKeyName(strDeviceKeyName)
{}

void Saving::Write(const Table& table)
{
    if (table.saveOrder.empty()) {
        Write(table.rows);
    } else {
        Write(table.saveOrder);
    }
}

void Saving::Write(std::span<const Setting> rows)
{
    for (const auto& row : rows) {
        if (row.rows != nullptr) {
            if (row.condition != nullptr) {
                Write(std::span<const Setting>{row.rows, row.rowCount});
                continue;
            }
            for (unsigned i = 0; i < row.turns; ++i) {
                for (unsigned j = 0; j < row.rowCount; ++j) {
                    WriteRow(row.rows[j], row.turnNames ? row.turnNames[i] : nullptr, row.turnFirst + i, i);
                }
            }
        } else {
            WriteRow(row, nullptr, kNoTurn, 0);
        }
    }
}

void Saving::Write(std::span<const Setting* const> rows)
{
    for (const auto* row : rows) {
        WriteRow(*row, nullptr, kNoTurn, 0);
    }
}

void Saving::WriteRow(const Setting& row, const wchar_t* turnName, unsigned turnNumber, unsigned index)
{
    if (!row.saved || !row.bound) {
        return;
    }
    const wchar_t* name = row.savedName != nullptr ? row.savedName : row.name.data();
    Session::Key key = 0;
    std::wstring nameOfTurn;
    if (turnName != nullptr || turnNumber != kNoTurn) {
        const auto subkey = ForTurn(row.key.subkey, turnName, turnNumber);
        key = Open({row.key.root, subkey.c_str()});
        nameOfTurn = ForTurn(name, turnName, turnNumber);
        name = nameOfTurn.c_str();
    } else {
        if (row.key.subkey != m_lastKey.subkey || row.key.root != m_lastKey.root) {
            m_lastOpened = Open(row.key);
            m_lastKey = row.key;
        }
        key = m_lastOpened;
    }
    switch (row.type) {
    case Type::Dword: {
        const DWORD held = MemberOf<DWORD>(row, m_object, index);
        Put(key, name, row.savedAsSwitch ? (held != 0 ? 1U : 0U) : held);
        break;
    }
    case Type::Flag:
        Put(key, name, MemberOf<bool>(row, m_object, index) ? 1U : 0U);
        break;
    case Type::String:
        Put(key, name, MemberOf<CString>(row, m_object, index));
        break;
    case Type::Char:
        Put(key, name, TextOf(MemberOf<wchar_t>(row, m_object, index)));
        break;
    case Type::None:
        break;
    }
}

Session::Key Saving::Open(Key key)
{
    std::wstring path;
    AppendPath(path, key, m_deviceKeyName.View(), m_serviceName.View(), m_logicalName.View());
    return m_scope->Open(path);
}

void Saving::Put(Key key, const CString& strName, DWORD value)
{
    Put(Open(key), strName, value);
}

void Saving::Put(Key key, const CString& strName, const CString& value)
{
    Put(Open(key), strName, value);
}

void Saving::Put(Session::Key key, const CString& strName, DWORD value)
{
    const DwordBytes bytes(value);
    m_scope->Set(key, strName.View(), bytes.View());
}

void Saving::Put(Session::Key key, const CString& strName, const CString& value)
{
    SetText(*m_scope, key, strName.View(), value.View());
}

} // namespace wqspcfg
