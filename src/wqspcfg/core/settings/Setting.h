// A setting is declared once: one row of a table says its key, value name, member, default and meaning, how its line
// in the log looks and whether it is saved. Loading, saving, the constructor's defaults and the reference come from it.
//
//     constexpr Setting kSettings[] = {
//         {key::Comm,    L"Port",        &C::m_dwPort,        1, L"serial port number", Saved},
//         {key::Control, L"CloseOption", &C::m_dwCloseOption, 2, L"card at close: 0 eject; 1 retain; 2 leave", OneOf},
//     };
//
// The member decides the setting's type: DWORD, bool (a DWORD that is zero or not), CString, wchar_t (the first
// character of a string), or a map, which takes a whole key. Options follow the meaning in any order; they are
// described in Options.h.
#pragma once

#include "wqspcfg/core/settings/Choices.h"
#include "wqspcfg/core/settings/Options.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

#include <array>
#include <span>
#include <string_view>
#include <utility>

namespace wqspcfg {

struct Setting;

enum class Kind : std::uint8_t
{
    Value,
    WholeKey, // every value of a key, in a map
    Group,    // rows that stand here, with or without a condition
    Repeat,   // rows that are read once for each iteration
    Step,     // code between rows
};

enum class Type : std::uint8_t
{
    None, // a group or a step, no setting
    Dword,
    Flag,
    String,
    Char,
};

// A setting without a member that can be named: loaded by code, or read for its line only.
template <Type T, Kind K = Kind::Value>
struct Unbound
{};
inline constexpr Unbound<Type::Dword> DwordValue{};
inline constexpr Unbound<Type::String> StringValue{};
inline constexpr Unbound<Type::Dword, Kind::WholeKey> DwordValues{};
inline constexpr Unbound<Type::String, Kind::WholeKey> StringValues{};

// The maps that take a whole key: its strings by name, its DWORDs by name, or its DWORDs by the number in their name.
using Texts = CMapStringToString;
using Numbers = CMap<CString, LPCWSTR, DWORD, DWORD>;
using Codes = CMap<DWORD, DWORD, DWORD, DWORD>;

template <class T>
inline constexpr bool kIsMap = std::is_same_v<T, Texts> || std::is_same_v<T, Numbers> || std::is_same_v<T, Codes>;
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
template <>
inline constexpr Type kTypeOf<Texts> = Type::String;
template <>
inline constexpr Type kTypeOf<Numbers> = Type::Dword;
template <>
inline constexpr Type kTypeOf<Codes> = Type::Dword;

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
inline constexpr auto Element = [](typename OwnerOfMember<decltype(Array)>::type& object, unsigned iteration) -> auto&
{
    if constexpr (sizeof...(Field) == 0) {
        return (object.*Array)[iteration];
    } else {
        return (object.*Array)[iteration].*(Field, ...);
    }
};
// A member of a part, a struct that class C has as a base: Of<C, &C::m_dwTimeOut>, and within Repeat
// ElementOf<C, &C::m_arMonitor, &MonitorArea::m_dwLeft>.
template <class C, auto Member>
inline constexpr auto Of = [](C& object, unsigned) -> auto&
{
    return object.*Member;
};
template <class C, auto Array, auto... Field>
inline constexpr auto ElementOf = [](C& object, unsigned iteration) -> auto&
{
    return Element<Array, Field...>(object, iteration);
};

// The rows of a table: Rows<kSettings>. What runs uses a copy of the table that is made when it is first asked for. As
// data of the library all tables would hold some 16,000 addresses, which every process would adjust at its start and
// keep in memory of its own, for one class that it uses.
class RowList
{
  public:
    using Get = std::span<const Setting> (*)();

    constexpr RowList() = default;
    constexpr explicit RowList(Get get) : m_get(get) {}
    constexpr std::span<const Setting> All() const;
    constexpr Get Source() const { return m_get; }
    constexpr auto begin() const;
    constexpr auto end() const;
    constexpr const Setting& operator[](std::size_t index) const;

  private:
    static constexpr std::span<const Setting> None();

    Get m_get = &None; // not null: GCC's sanitizers cannot compare the address of a function at compile time
};

// How a map that takes a whole key is emptied and filled, whatever its type.
struct MapAccess
{
    void (*clear)(void* map);
    int (*query)(void* map, const wchar_t* path);
};
template <class T>
inline constexpr MapAccess kMapAccess{
    [](void* map) { static_cast<T*>(map)->RemoveAll(); },
    [](void* map, const wchar_t* path) { return CRegKeyEx::QueryValues(*static_cast<T*>(map), L"%s", path); }};

struct Setting
{
    Kind kind = Kind::Value;
    Type type = Type::None;
    Root fallbackRoot = Root::Common;
    Reference reference = Reference::None;
    bool bound = false; // has a member
    bool saved = false;
    bool savedAsSwitch = false;
    bool hasConstructed = false;
    bool hasRange = false;
    std::uint32_t flags = 0;
    unsigned requiredLine = 0;
    DWORD scale = 1; // of what the member holds to what is stored

    Key key{Root::Device, L""};
    std::wstring_view name; // of a literal, as is the meaning
    std::wstring_view meaning;
    Value defaultValue;
    Value constructed;
    union
    {
        DWORD CRegKeyEx::*dword = nullptr;
        bool CRegKeyEx::*flag;
        CString CRegKeyEx::*string;
        wchar_t CRegKeyEx::*character;
    } member;
    void* (*locate)(CRegKeyEx& object, unsigned iteration) = nullptr; // in place of `member`

    const wchar_t* conversion = nullptr;
    const wchar_t* line = nullptr;
    const wchar_t* label = nullptr;
    const wchar_t* savedName = nullptr;
    const wchar_t* emptySavedAs = nullptr;
    const wchar_t* fallbackSubkey = nullptr;
    const wchar_t* fallbackName = nullptr;
    const DWORD* perIteration = nullptr;
    DWORD low = 0;
    DWORD high = 0;

    DWORD (*normalize)(CRegKeyEx& object, DWORD value, bool found, unsigned iteration) = nullptr;
    void (*normalizeText)(CRegKeyEx& object, CString& value, bool found, unsigned iteration) = nullptr;
    DWORD (*logAs)(CRegKeyEx& object, DWORD value) = nullptr;
    bool (*step)(CRegKeyEx& object, Loading& loading) = nullptr; // a step, or what loads the value
    // Whether the rows of a group are read; whether a value refers to what `reference` says.
    bool (*condition)(CRegKeyEx& object) = nullptr;
    bool (*savedIf)(CRegKeyEx& object, unsigned iteration) = nullptr;
    DWORD (*heldAs)(CRegKeyEx& object, const NumberRead& read) = nullptr; // of a group: of its rows

    // A whole key.
    const MapAccess* map = nullptr;
    std::span<const DefaultEntry> entries;

    // A group or a repetition: its rows, and the names or numbers of its iterations. A step: the rows that it loads,
    // of a record where `part` finds one.
    RowList rows;
    const wchar_t* const* iterationNames = nullptr;
    unsigned firstIteration = 0;
    unsigned iterations = 0;
    CRegKeyEx& (*part)(CRegKeyEx& object) = nullptr;

    constexpr Setting() = default;

    template <class T, class Owner, class... Options>
    constexpr Setting(Key k, const wchar_t* n, T Owner::*m, Value standard, const wchar_t* text, Options... options)
        : type(kTypeOf<T>), bound(true), key(k), name(n), meaning(text), defaultValue(standard)
    {
        static_assert(kTypeOf<T> != Type::None, "a setting is a DWORD, a bool, a CString, a wchar_t or a map");
        if constexpr (kIsMap<T>) {
            static_assert(sizeof(T) == 0, "name a map by Map<&C::m_map...>");
        } else if constexpr (std::is_same_v<T, DWORD>) {
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

    // `accessor` is a lambda T&(Owner&, unsigned iteration).
    template <class F, class... Options>
    requires std::is_class_v<Signature<F>>
    constexpr Setting(Key k, const wchar_t* n, F, Value standard, const wchar_t* text, Options... options)
        : type(kTypeOf<std::remove_reference_t<typename Signature<F>::Result>>), bound(true), key(k), name(n),
          meaning(text), defaultValue(standard)
    {
        using T = std::remove_reference_t<typename Signature<F>::Result>;
        locate = [](CRegKeyEx& object, unsigned iteration) -> void* { return &F{}(OwnerOf<F>(object), iteration); };
        if constexpr (kIsMap<T>) {
            kind = Kind::WholeKey;
            map = &kMapAccess<T>;
        }
        (Apply(options), ...);
    }

    template <Type T, Kind K, class... Options>
    constexpr Setting(Key k, const wchar_t* n, Unbound<T, K>, Value standard, const wchar_t* text, Options... options)
        : kind(K), type(T), key(k), name(n), meaning(text), defaultValue(standard)
    {
        (Apply(options), ...);
    }

    constexpr bool Has(Flags flag) const { return (flags & static_cast<std::uint32_t>(flag)) != 0; }
    constexpr bool IsValue() const { return kind == Kind::Value || kind == Kind::WholeKey; }
    // Loaded by something other than its query.
    constexpr bool IsGiven() const { return Has(Flags::Preloaded) || step != nullptr; }
    // Has rows.
    constexpr bool IsBlock() const { return kind == Kind::Group || kind == Kind::Repeat; }

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

    constexpr void Apply(SavedOption option)
    {
        saved = true;
        savedAsSwitch = option.asSwitch;
        savedName = option.name;
        emptySavedAs = option.whenEmpty;
    }
    template <Flags Flag>
    constexpr void Apply(FlagOption<Flag>)
    {
        flags |= static_cast<std::uint32_t>(Flag);
        if (Flag == Flags::OneOf && !ForEachChoice(meaning, [](DWORD, std::wstring_view) {})) {
            throw "the meaning does not end in a list of the allowed values";
        }
    }
    constexpr void Apply(TextOption<Text::Conversion, const wchar_t*> option) { conversion = option.value; }
    constexpr void Apply(TextOption<Text::Line, const wchar_t*> option) { line = option.value; }
    constexpr void Apply(TextOption<Text::Label, const wchar_t*> option) { label = option.value; }
    constexpr void Apply(FallbackOption option)
    {
        fallbackRoot = option.key.root;
        fallbackSubkey = option.key.subkey;
        fallbackName = option.name;
    }
    constexpr void Apply(ConstructedOption option)
    {
        hasConstructed = true;
        constructed = option.value;
    }
    constexpr void Apply(PerIterationOption option) { perIteration = option.values; }
    constexpr void Apply(RequiredOption option) { requiredLine = option.line; }
    constexpr void Apply(RangeOption option)
    {
        hasRange = true;
        low = option.low;
        high = option.high;
    }
    constexpr void Apply(ScaleOption option) { scale = option.factor; }
    constexpr void Apply(DefaultEntriesOption option) { entries = option.entries; }
    constexpr void Apply(RefersToOption option) { reference = option.reference; }
    template <class F>
    constexpr void Apply(HookOption<Hook::Normalize, F>)
    {
        if constexpr (std::is_void_v<typename Signature<F>::Result>) {
            normalizeText = [](CRegKeyEx& object, CString& value, bool found, unsigned iteration) {
                Normalized<F>(object, value, found, iteration);
            };
        } else {
            normalize = [](CRegKeyEx& object, DWORD value, bool found, unsigned iteration) -> DWORD {
                return Normalized<F>(object, value, found, iteration);
            };
        }
    }
    template <class F, class T>
    static auto Normalized(CRegKeyEx& object, T& value, bool found, unsigned iteration)
    {
        auto& owner = OwnerOf<F>(object);
        if constexpr (std::is_invocable_v<F, decltype(owner), T&, bool, unsigned>) {
            return F{}(owner, value, found, iteration);
        } else {
            return F{}(owner, value, found);
        }
    }
    template <class F>
    constexpr void Apply(HookOption<Hook::SavedIf, F>)
    {
        savedIf = [](CRegKeyEx& object, unsigned iteration) { return F{}(OwnerOf<F>(object), iteration); };
    }
    template <class F>
    constexpr void Apply(HookOption<Hook::RefersIf, F>)
    {
        condition = [](CRegKeyEx& object) -> bool { return F{}(OwnerOf<F>(object)); };
    }
    template <class F>
    constexpr void Apply(HookOption<Hook::LogAs, F>)
    {
        logAs = [](CRegKeyEx& object, DWORD value) -> DWORD { return F{}(OwnerOf<F>(object), value); };
    }
    template <class F>
    constexpr void Apply(HookOption<Hook::LoadedBy, F>)
    {
        step = StepOf<F>();
    }
};

constexpr std::span<const Setting> RowList::None()
{
    return {};
}

constexpr std::span<const Setting> RowList::All() const
{
    return m_get();
}

constexpr auto RowList::begin() const
{
    return All().begin();
}

constexpr auto RowList::end() const
{
    return All().end();
}

constexpr const Setting& RowList::operator[](std::size_t index) const
{
    return m_get()[index];
}

namespace detail {

// Number by number and address by address: the compiler sets each in code, and no image of the row remains. It names
// every field of a row: one that is added does not compile before it is copied.
[[gnu::always_inline]] inline void Copy(const Setting& from, Setting& to)
{
    const auto& [kind, type, fallbackRoot, reference, bound, saved, savedAsSwitch, hasConstructed, hasRange, flags,
                 requiredLine, scale, key, name, meaning, defaultValue, constructed, member, locate, conversion, line,
                 label, savedName, emptySavedAs, fallbackSubkey, fallbackName, perIteration, low, high, normalize,
                 normalizeText, logAs, step, condition, savedIf, heldAs, map, entries, rows, iterationNames,
                 firstIteration, iterations, part] = from;
    to.kind = kind;
    to.type = type;
    to.fallbackRoot = fallbackRoot;
    to.reference = reference;
    to.bound = bound;
    to.saved = saved;
    to.savedAsSwitch = savedAsSwitch;
    to.hasConstructed = hasConstructed;
    to.hasRange = hasRange;
    to.flags = flags;
    to.requiredLine = requiredLine;
    to.scale = scale;
    to.key.root = key.root;
    to.key.subkey = key.subkey;
    to.name = {name.data(), name.size()};
    to.meaning = {meaning.data(), meaning.size()};
    to.defaultValue.number = defaultValue.number;
    to.defaultValue.text = defaultValue.text;
    to.constructed.number = constructed.number;
    to.constructed.text = constructed.text;
    to.member.dword = member.dword; // all members of a class are told alike
    to.locate = locate;
    to.conversion = conversion;
    to.line = line;
    to.label = label;
    to.savedName = savedName;
    to.emptySavedAs = emptySavedAs;
    to.fallbackSubkey = fallbackSubkey;
    to.fallbackName = fallbackName;
    to.perIteration = perIteration;
    to.low = low;
    to.high = high;
    to.normalize = normalize;
    to.normalizeText = normalizeText;
    to.logAs = logAs;
    to.step = step;
    to.condition = condition;
    to.savedIf = savedIf;
    to.heldAs = heldAs;
    to.map = map;
    to.entries = {entries.data(), entries.size()};
    to.rows = RowList(rows.Source());
    to.iterationNames = iterationNames;
    to.firstIteration = firstIteration;
    to.iterations = iterations;
    to.part = part;
}

// Memory for rows, for good. Together, so that the tables which a process uses fill few of its pages.
WQSPCFG_API Setting* NewRows(std::size_t count);

template <const auto& Declared, std::size_t... Index>
std::span<const Setting> Made(std::index_sequence<Index...>)
{
    static const std::span<const Setting> copies = [] {
        auto* const rows = NewRows(sizeof...(Index));
        (Copy(Declared[Index], rows[Index]), ...);
        return std::span<const Setting>(rows, sizeof...(Index));
    }();
    return copies;
}

template <const Setting& Declared>
inline constexpr Setting kOne[] = {Declared};

// At compile time the table as it is declared.
template <const auto& Declared>
constexpr std::span<const Setting> RowsOf()
{
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(Declared)>, Setting>) {
        return RowsOf<kOne<Declared>>();
    } else if (std::is_constant_evaluated() || std::empty(Declared)) {
        return Declared;
    } else {
        return Made<Declared>(std::make_index_sequence<std::size(Declared)>());
    }
}

} // namespace detail

// The rows of the table `Declared`, or the one row.
template <const auto& Declared>
inline constexpr RowList Rows{&detail::RowsOf<Declared>};

// The one row, which is what Rows<Declared> has.
template <const Setting& Declared>
const Setting& Row()
{
    return Rows<Declared>[0];
}

// A member map, for a row that takes a whole key; its name is L"%s".
template <auto Member>
inline constexpr auto Map = [](typename OwnerOfMember<decltype(Member)>::type& object, unsigned) -> auto&
{
    return object.*Member;
};

// Rows that stand here: a part's, or those that another table has too.
constexpr Setting Group(RowList rows)
{
    Setting group;
    group.kind = Kind::Group;
    group.rows = rows;
    return group;
}

// The same, where code reads them: what is in effect of them, as HeldAs has it.
template <class F>
constexpr Setting Group(RowList rows, HookOption<Hook::HeldAs, F>)
{
    Setting group = Group(rows);
    group.heldAs = [](CRegKeyEx& object, const NumberRead& read) -> DWORD { return F{}(OwnerOf<F>(object), read); };
    return group;
}

// Rows that are read only when the condition bool(const Owner&) holds at that point. They are saved all the same.
template <class F>
constexpr Setting When(F, RowList rows)
{
    Setting group = Group(rows);
    group.condition = [](CRegKeyEx& object) -> bool { return F{}(OwnerOf<F>(object)); };
    return group;
}

// Rows that are read once for each name, in the order of the names: the name fills the conversion that their key, value
// name or label holds, and accessors get the iteration, counted from 0.
template <std::size_t Names>
constexpr Setting Repeat(const wchar_t* const (&names)[Names], RowList rows)
{
    Setting group;
    group.kind = Kind::Repeat;
    group.rows = rows;
    group.iterationNames = names;
    group.iterations = Names;
    return group;
}

// The same for the numbers from `first` to `last`.
constexpr Setting Repeat(unsigned first, unsigned last, RowList rows)
{
    Setting group;
    group.kind = Kind::Repeat;
    group.rows = rows;
    group.firstIteration = first;
    group.iterations = last - first + 1;
    return group;
}

// Code between rows: void or bool (Owner&, Loading&). False ends the Load, which then returns false.
template <class F>
constexpr Setting Step(F)
{
    Setting step;
    step.kind = Kind::Step;
    step.step = Setting::StepOf<F>();
    return step;
}

// The same for code that loads and logs the settings of `rows`, which the reference shows at this place.
template <class F>
constexpr Setting Step(F code, RowList rows)
{
    Setting step = Step(code);
    step.rows = rows;
    return step;
}

// The same for the settings of a record, a member that loads and saves itself.
template <auto Record, class F>
constexpr Setting Step(F code, RowList rows)
{
    Setting step = Step(code, rows);
    step.part = [](CRegKeyEx& object) -> CRegKeyEx& {
        return Down<typename OwnerOfMember<decltype(Record)>::type>(object).*Record;
    };
    return step;
}

} // namespace wqspcfg
