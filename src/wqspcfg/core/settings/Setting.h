// A setting is declared once: one row of a table says its key, value name, member, default and meaning, how its line
// in the log looks and whether it is saved. Loading, saving, the constructor's defaults and the reference come from it.
//
//     constexpr Setting kSettings[] = {
//         {key::Comm,    L"Port",    &C::m_dwPort,    1,    L"serial port number",                 Saved},
//         {key::Comm,    L"BaudRate",&C::m_dwBaudRate,9600, L"serial speed in baud",               Saved},
//         {key::Control, L"ApID",    &C::m_dwApID,    0,    L"application profile", Saved, Format(L"0x%02X")},
//     };
//
// The member's type is the setting's: DWORD, bool (a DWORD that is zero or not), CString or wchar_t (the first
// character of a string). Whatever follows the meaning are options, in any order; they stand below.
#pragma once

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/core/RegKeyEx.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

#include <array>
#include <cstdint>
#include <span>
#include <type_traits>

namespace wqspcfg {

class Loading;

enum class Root : std::uint8_t
{
    Device,   // the device key: "SOFTWARE\XFS\PHYSICAL_SERVICES\" and the device key name
    Service,  // the service key: "SOFTWARE\XFS\SERVICE_PROVIDERS\" and the physical service name
    Logical,  // the logical key: ".DEFAULT\XFS\LOGICAL_SERVICES\" and the logical service name
    Common,   // "SOFTWARE\XFS\SERVICE_PROVIDERS\WQCmnCfg\", shared by all service providers
    Absolute, // the subkey is the whole path
};

// A registry key by its root and the path below it, as the log and the registry are to see it (a trailing backslash or
// odd case included). Within Repeat the path may hold one %d, %s or %c for the turn's name.
struct Key
{
    Root root;
    const wchar_t* subkey;

    friend constexpr bool operator==(const Key&, const Key&) = default;
};

namespace key {

inline constexpr Key Device{Root::Device, L""};
inline constexpr Key Comm{Root::Device, L"Comm"};
inline constexpr Key Control{Root::Device, L"Control"};
inline constexpr Key Capabilities{Root::Device, L"CAPABILITIES"};
inline constexpr Key IdleInterval{Root::Device, L"IdleInterval"};
inline constexpr Key Policy{Root::Device, L"Policy"};
inline constexpr Key Beep{Root::Device, L"Beep"};
inline constexpr Key Service{Root::Service, L""};
inline constexpr Key Setup{Root::Common, L"Setup"};

constexpr Key Below(const wchar_t* subkey)
{
    return {Root::Device, subkey};
}
constexpr Key Common(const wchar_t* subkey)
{
    return {Root::Common, subkey};
}
constexpr Key Absolute(const wchar_t* path)
{
    return {Root::Absolute, path};
}

} // namespace key

enum class Type : std::uint8_t
{
    None, // a group or a step, no setting
    Dword,
    Flag,
    String,
    Char,
};

// A default: a number or a text.
struct Value
{
    DWORD number = 0;
    const wchar_t* text = L"";

    constexpr Value() = default;
    template <class T>
    requires std::is_integral_v<T> || std::is_enum_v<T>
    constexpr Value(T value) : number(static_cast<DWORD>(value)) {}
    constexpr Value(const wchar_t* value) : text(value) {}

    friend constexpr bool operator==(const Value&, const Value&) = default;
};

// ---- options ----

// clang-format off
struct SavedOption {};
inline constexpr SavedOption Saved{};                   // Save writes it back, a flag as 1 or 0
struct SavedAsSwitchOption {};
inline constexpr SavedAsSwitchOption SavedAsSwitch{};   // held as read, saved as 1 or 0
struct AsSwitchOption {};
inline constexpr AsSwitchOption AsSwitch{};             // a DWORD member held as 1 or 0
struct SecretOption {};
inline constexpr SecretOption Secret{};                 // a key or a password
struct NotLoggedOption {};
inline constexpr NotLoggedOption NotLogged{};           // no line
struct LogHeldOption {};
inline constexpr LogHeldOption LogHeld{};               // the line shows what the member holds, not the number as read
struct NoDescriptionOption {};
inline constexpr NoDescriptionOption NoDescription{};   // the line ends behind the value
struct OpenBracketOption {};
inline constexpr OpenBracketOption OpenBracket{};       // the description's bracket is never closed
struct KeepOption {};
inline constexpr KeepOption KeepWhenMissing{};          // a missing value leaves the member as it was
struct PreloadedOption {};
inline constexpr PreloadedOption Preloaded{};           // other code has loaded the member; the row logs and documents it
struct QualifiedLabelOption {};
inline constexpr QualifiedLabelOption QualifiedLabel{}; // the line's label is "Subkey\Value"
struct FormatOption { const wchar_t* text; };
struct HeadOption { const wchar_t* text; };
struct LabelOption { const wchar_t* text; };
struct ReadAsOption { const wchar_t* name; };
struct SavedAsOption { const wchar_t* name; };
struct OrElseOption { Key key; };
struct ConstructedOption { Value value; };
struct PerTurnOption { const DWORD* values; };
// clang-format on

// The value's conversion in its line, in place of %d, %s or %c; text may follow it.
constexpr FormatOption Format(const wchar_t* conversion)
{
    return {conversion};
}
// What stands before the value in its line, in place of "[CFG] %40s : "; the label fills its conversion.
constexpr HeadOption Head(const wchar_t* head)
{
    return {head};
}
// The label in the line, in place of the value name. Within Repeat it may hold a conversion for the turn's name.
constexpr LabelOption Label(const wchar_t* label)
{
    return {label};
}
// The name it is read under from its own key, when that is not the setting's name.
constexpr ReadAsOption ReadAs(const wchar_t* name)
{
    return {name};
}
// Saved, but under another name than it is read under.
constexpr SavedAsOption SavedAs(const wchar_t* name)
{
    return {name};
}
// The key that is asked, for the setting's name, when its own key does not hold the value.
constexpr OrElseOption OrElse(Key key)
{
    return {key};
}
// What the constructor sets, where that is not the default.
constexpr ConstructedOption Constructed(Value value)
{
    return {value};
}
// Within Repeat: each turn's own default, which the constructor sets too. `values` has one for each turn.
constexpr PerTurnOption PerTurn(const DWORD* values)
{
    return {values};
}

struct RangeOption
{
    DWORD low;
    DWORD high;
};
constexpr RangeOption Range(DWORD low, DWORD high)
{
    return {low, high};
}

template <DWORD... Values>
struct OneOfOption
{
    static constexpr DWORD kValues[] = {Values...};
};
template <DWORD... Values>
inline constexpr OneOfOption<Values...> OneOf{}; // the allowed values

struct RequiredOption
{
    unsigned line;
};
// A missing value is reported with an error line, which names the row's place.
constexpr RequiredOption Required(unsigned line = __builtin_LINE())
{
    return {line};
}

// ---- hooks: lambdas without captures that take the owning object first ----

template <class F>
struct Signature : Signature<decltype(&F::operator())>
{};
template <class F, class R, class O, class... A>
struct Signature<R (F::*)(O&, A...) const>
{
    using Owner = O;
    using Result = R;
};

// The mix-in's models have two registry bases; the way to a class of the tree is through its root.
template <class Owner>
constexpr Owner& Down(CRegKeyEx& object) noexcept
{
    if constexpr (std::is_base_of_v<CRegInfo, Owner>) {
        return static_cast<Owner&>(static_cast<CRegInfo&>(object));
    } else {
        return static_cast<Owner&>(object);
    }
}
template <class F>
constexpr auto& OwnerOf(CRegKeyEx& object) noexcept
{
    return Down<std::remove_const_t<typename Signature<F>::Owner>>(object);
}

template <class F>
struct CorrectOption
{};
// A correction after reading, before the line: DWORD(Owner&, DWORD value, bool found) for numbers and flags,
// void(Owner&, CString& value, bool found) for strings.
template <class F>
constexpr CorrectOption<F> Correct(F)
{
    return {};
}

template <class F>
struct LogAsOption
{};
// The number that the line shows: DWORD(Owner&, DWORD value).
template <class F>
constexpr LogAsOption<F> LogAs(F)
{
    return {};
}

template <class F>
struct LoadedByOption
{};
// Code that loads the setting in place of the row's query: void(Owner&, Loading&).
template <class F>
constexpr LoadedByOption<F> LoadedBy(F)
{
    return {};
}

// ---- members ----

// A setting without a member that can be named: loaded by code, or read for its line only.
template <Type T>
struct Unbound
{};
inline constexpr Unbound<Type::Dword> DwordValue{};
inline constexpr Unbound<Type::Flag> FlagValue{};
inline constexpr Unbound<Type::String> StringValue{};

template <class T>
inline constexpr Type kTypeOf = Type::None;
template <>
inline constexpr Type kTypeOf<DWORD> = Type::Dword;
template <>
inline constexpr Type kTypeOf<bool> = Type::Flag;
template <>
inline constexpr Type kTypeOf<CString> = Type::String;
template <>
inline constexpr Type kTypeOf<wchar_t> = Type::Char;

// Member pointers into an array member, for rows within Repeat: Element<&C::m_dwLight>, Element<&C::m_arSlot,
// &tagSlot::dwType>.
template <class T>
struct OwnerOfMember;
template <class T, class O>
struct OwnerOfMember<T O::*>
{
    using type = O;
};
template <auto Array, auto... Field>
inline constexpr auto Element = [](typename OwnerOfMember<decltype(Array)>::type& object, unsigned turn) -> auto&
{
    if constexpr (sizeof...(Field) == 0) {
        return (object.*Array)[turn];
    } else {
        return (object.*Array)[turn].*(Field, ...);
    }
};

// ---- the row ----

struct Setting
{
    Key key{Root::Device, L""};
    std::wstring_view name; // of a literal, as is the meaning
    std::wstring_view meaning;
    Value fallback;
    Value constructed;

    union
    {
        DWORD CRegKeyEx::*dword = nullptr;
        bool CRegKeyEx::*flag;
        CString CRegKeyEx::*string;
        wchar_t CRegKeyEx::*character;
    } member;
    void* (*locate)(CRegKeyEx& object, unsigned turn) = nullptr; // in place of `member`

    const wchar_t* conversion = nullptr;
    const wchar_t* head = nullptr;
    const wchar_t* label = nullptr;
    const wchar_t* readName = nullptr;
    const wchar_t* savedName = nullptr;
    const wchar_t* elseSubkey = nullptr;
    const DWORD* perTurn = nullptr;
    const DWORD* allowed = nullptr;
    unsigned allowedCount = 0;
    DWORD low = 0;
    DWORD high = 0;
    unsigned requiredLine = 0;

    DWORD (*correct)(CRegKeyEx& object, DWORD value, bool found) = nullptr;
    void (*correctText)(CRegKeyEx& object, CString& value, bool found) = nullptr;
    DWORD (*logAs)(CRegKeyEx& object, DWORD value) = nullptr;
    bool (*step)(CRegKeyEx& object, Loading& loading) = nullptr;
    bool (*condition)(CRegKeyEx& object) = nullptr;

    // A group: its rows, and the names or numbers of its turns.
    const Setting* rows = nullptr;
    unsigned rowCount = 0;
    const wchar_t* const* turnNames = nullptr;
    unsigned turnFirst = 0;
    unsigned turns = 1;

    Type type = Type::None;
    Root elseRoot = Root::Common;
    bool bound = false;
    bool saved = false;
    bool secret = false;
    bool logged = true;
    bool logHeld = false;
    bool described = true;
    bool openBracket = false;
    bool keep = false;
    bool preloaded = false;
    bool asSwitch = false;
    bool savedAsSwitch = false;
    bool qualifiedLabel = false;
    bool hasConstructed = false;
    bool hasRange = false;

    constexpr Setting() = default;

    template <class T, class Owner, class... Options>
    constexpr Setting(Key k, const wchar_t* n, T Owner::*m, Value standard, const wchar_t* text, Options... options)
        : key(k), name(n), meaning(text), fallback(standard), type(kTypeOf<T>), bound(true)
    {
        static_assert(kTypeOf<T> != Type::None, "a setting is a DWORD, a bool, a CString or a wchar_t");
        if constexpr (std::is_same_v<T, DWORD>) {
            member.dword = Up(m);
        } else if constexpr (std::is_same_v<T, bool>) {
            member.flag = Up(m);
        } else if constexpr (std::is_same_v<T, CString>) {
            member.string = Up(m);
        } else {
            member.character = Up(m);
        }
        (Apply(options), ...);
    }

    // `accessor` is a lambda T&(Owner&, unsigned turn).
    template <class F, class... Options>
    requires std::is_class_v<Signature<F>>
    constexpr Setting(Key k, const wchar_t* n, F, Value standard, const wchar_t* text, Options... options)
        : key(k), name(n), meaning(text), fallback(standard),
          type(kTypeOf<std::remove_reference_t<typename Signature<F>::Result>>), bound(true)
    {
        locate = [](CRegKeyEx& object, unsigned turn) -> void* { return &F{}(OwnerOf<F>(object), turn); };
        (Apply(options), ...);
    }

    template <Type T, class... Options>
    constexpr Setting(Key k, const wchar_t* n, Unbound<T>, Value standard, const wchar_t* text, Options... options)
        : key(k), name(n), meaning(text), fallback(standard), type(T)
    {
        (Apply(options), ...);
    }

  private:
    template <class T, class Owner>
    static constexpr T CRegKeyEx::*Up(T Owner::*m)
    {
        if constexpr (std::is_base_of_v<CRegInfo, Owner>) {
            return static_cast<T CRegKeyEx::*>(static_cast<T CRegInfo::*>(m));
        } else {
            return static_cast<T CRegKeyEx::*>(m);
        }
    }

    constexpr void Apply(SavedOption) { saved = true; }
    constexpr void Apply(SecretOption) { secret = true; }
    constexpr void Apply(NotLoggedOption) { logged = false; }
    constexpr void Apply(LogHeldOption) { logHeld = true; }
    constexpr void Apply(NoDescriptionOption) { described = false; }
    constexpr void Apply(OpenBracketOption) { openBracket = true; }
    constexpr void Apply(KeepOption) { keep = true; }
    constexpr void Apply(PreloadedOption) { preloaded = true; }
    constexpr void Apply(AsSwitchOption) { asSwitch = true; }
    constexpr void Apply(SavedAsSwitchOption) { saved = savedAsSwitch = true; }
    constexpr void Apply(QualifiedLabelOption) { qualifiedLabel = true; }
    constexpr void Apply(FormatOption option) { conversion = option.text; }
    constexpr void Apply(HeadOption option) { head = option.text; }
    constexpr void Apply(LabelOption option) { label = option.text; }
    constexpr void Apply(ReadAsOption option) { readName = option.name; }
    constexpr void Apply(SavedAsOption option)
    {
        saved = true;
        savedName = option.name;
    }
    constexpr void Apply(OrElseOption option)
    {
        elseRoot = option.key.root;
        elseSubkey = option.key.subkey;
    }
    constexpr void Apply(ConstructedOption option)
    {
        hasConstructed = true;
        constructed = option.value;
    }
    constexpr void Apply(PerTurnOption option) { perTurn = option.values; }
    constexpr void Apply(RequiredOption option) { requiredLine = option.line; }
    constexpr void Apply(RangeOption option)
    {
        hasRange = true;
        low = option.low;
        high = option.high;
    }
    template <DWORD... Values>
    constexpr void Apply(OneOfOption<Values...>)
    {
        allowed = OneOfOption<Values...>::kValues;
        allowedCount = sizeof...(Values);
    }
    template <class F>
    constexpr void Apply(CorrectOption<F>)
    {
        if constexpr (std::is_void_v<typename Signature<F>::Result>) {
            correctText = [](CRegKeyEx& object, CString& value, bool found) { F{}(OwnerOf<F>(object), value, found); };
        } else {
            correct = [](CRegKeyEx& object, DWORD value, bool found) -> DWORD {
                return F{}(OwnerOf<F>(object), value, found);
            };
        }
    }
    template <class F>
    constexpr void Apply(LogAsOption<F>)
    {
        logAs = [](CRegKeyEx& object, DWORD value) -> DWORD { return F{}(OwnerOf<F>(object), value); };
    }
    template <class F>
    constexpr void Apply(LoadedByOption<F>)
    {
        step = StepOf<F>();
    }

  public:
    template <class F>
    static constexpr auto StepOf()
    {
        return +[](CRegKeyEx& object, Loading& loading) -> bool {
            if constexpr (std::is_void_v<typename Signature<F>::Result>) {
                F{}(OwnerOf<F>(object), loading);
                return true;
            } else {
                return F{}(OwnerOf<F>(object), loading);
            }
        };
    }
};

// Rows that are read only when the condition bool(const Owner&) holds at that point. They are saved all the same.
template <class F, std::size_t N>
constexpr Setting When(F, const Setting (&rows)[N])
{
    Setting group;
    group.rows = rows;
    group.rowCount = N;
    group.condition = [](CRegKeyEx& object) -> bool { return F{}(OwnerOf<F>(object)); };
    return group;
}

// Rows that are read once for each name, in the order of the names: the name fills the conversion that their key, value
// name or label holds (%s, %c or %d), and accessors get the turn, counted from 0.
template <std::size_t Names, std::size_t N>
constexpr Setting Repeat(const wchar_t* const (&names)[Names], const Setting (&rows)[N])
{
    Setting group;
    group.rows = rows;
    group.rowCount = N;
    group.turnNames = names;
    group.turns = Names;
    return group;
}

// The same for the numbers from `first` to `last`.
template <std::size_t N>
constexpr Setting Repeat(unsigned first, unsigned last, const Setting (&rows)[N])
{
    Setting group;
    group.rows = rows;
    group.rowCount = N;
    group.turnFirst = first;
    group.turns = last - first + 1;
    return group;
}

// Code between rows: void or bool (Owner&, Loading&). False ends the Load, which then returns false.
template <class F>
constexpr Setting Step(F)
{
    Setting step;
    step.step = Setting::StepOf<F>();
    return step;
}

// ---- the order of saving, where it is not the table's ----

constexpr const Setting* FindRow(std::span<const Setting> rows, std::wstring_view name)
{
    for (const auto& row : rows) {
        if (row.rows == nullptr && row.name == name) {
            return &row;
        }
    }
    return nullptr;
}

// The rows of the given names, in the order of the names.
template <std::size_t N>
consteval std::array<const Setting*, N> FindRows(std::span<const Setting> rows, const wchar_t* const (&names)[N])
{
    std::array<const Setting*, N> found{};
    std::size_t count = 0;
    for (const auto* name : names) {
        for (const auto& row : rows) {
            if (row.rows == nullptr && row.name == name) {
                found[count++] = &row;
                break;
            }
        }
    }
    if (count != N) { // counted, as GCC's sanitizer does not know here that an address is not null
        throw "no setting has one of the names";
    }
    return found;
}

constexpr const Setting* FindSaved(std::span<const Setting> rows, std::wstring_view name)
{
    for (const auto& row : rows) {
        if (row.rows != nullptr) {
            if (const auto* found = FindSaved({row.rows, row.rowCount}, name)) {
                return found;
            }
        } else if (row.saved && row.name == name) {
            return &row;
        }
    }
    return nullptr;
}

constexpr std::size_t CountSaved(std::span<const Setting> rows)
{
    std::size_t count = 0;
    for (const auto& row : rows) {
        count += row.rows != nullptr ? CountSaved({row.rows, row.rowCount}) : (row.saved ? 1U : 0U);
    }
    return count;
}

// The saved rows of a table by name, in the order in which they are written. Does not compile when a name has no saved
// row or stands twice, or when `whole` is set and a saved row is left out.
template <std::size_t N>
consteval std::array<const Setting*, N> SaveOrder(std::span<const Setting> rows, const wchar_t* const (&names)[N],
                                                  bool whole = true)
{
    std::array<const Setting*, N> order{};
    for (std::size_t i = 0; i < N; ++i) {
        order[i] = FindSaved(rows, names[i]);
        if (order[i] == nullptr) {
            throw "no saved setting has this name";
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (order[j] == order[i]) {
                throw "the name stands twice";
            }
        }
    }
    if (whole && CountSaved(rows) != N) {
        throw "a saved setting is missing from the order";
    }
    return order;
}

} // namespace wqspcfg
