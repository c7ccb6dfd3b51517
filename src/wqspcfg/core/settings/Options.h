// What a row may say behind its meaning, in any order.
#pragma once

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/core/RegKeyEx.h"
#include "wqspcfg/core/settings/Key.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>

namespace wqspcfg {

class Loading;

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

// An entry that a whole key has where the store holds none of it.
struct DefaultEntry
{
    const wchar_t* name;
    const wchar_t* text;
};

// What a value refers to, so that a check can follow it.
enum class Reference : std::uint8_t
{
    None,
    SerialPort,     // the number of a serial port; 0 is none
    CardUnit,       // the number of a card unit; 0 is none
    LogicalService, // the name of a logical service; empty is none
    File,           // the path of a file; empty is none
    Directory,
    Command, // a command line
};

// ---- saving ----

struct SavedOption
{
    bool asSwitch = false;
    const wchar_t* name = nullptr;
    const wchar_t* whenEmpty = nullptr;
};
inline constexpr SavedOption Saved{};              // Save writes it back, a flag as 1 or 0
inline constexpr SavedOption SavedAsSwitch{true};  // held as read, saved as 1 or 0
constexpr SavedOption SavedAs(const wchar_t* name) // saved under another name than it is read under
{
    return {false, name};
}
constexpr SavedOption SavedWhenEmptyAs(const wchar_t* text) // an empty text becomes this one, in the member too
{
    return {false, nullptr, text};
}

// ---- loading ----

enum class Flags : std::uint32_t
{
    Secret = 1U << 0,          // a key or a password
    NotLogged = 1U << 1,       // no line
    LogHeld = 1U << 2,         // the line shows what the member holds, not the number as read
    AsSwitch = 1U << 3,        // a DWORD member held as 1 or 0
    KeepWhenMissing = 1U << 4, // a missing value leaves the member as it was; entries of a map that are missing stay
    Preloaded = 1U << 5,       // other code has loaded the member; the row logs and documents it
    Documented = 1U << 6,      // other code reads and writes it; the row only documents it
    QualifiedLabel = 1U << 7,  // the line's label is "Subkey\Value"
    OneOf = 1U << 8,           // the meaning lists every allowed value: "...: 0 eject; 1 retain"
    Computed = 1U << 9,        // made by the class, and never in the registry
    SubkeyNames = 1U << 10,    // a whole key: its subkeys' names are entries too, with an empty text
    DefaultByClass = 1U << 11, // the class makes the default of a missing value
    Needed = 1U << 12,         // where it is missing, Load goes on and returns false
    AsWord = 1U << 13,         // code that takes the number holds its low 16 bits
};
template <Flags Flag>
struct FlagOption
{};
inline constexpr FlagOption<Flags::Secret> Secret{};
inline constexpr FlagOption<Flags::NotLogged> NotLogged{};
inline constexpr FlagOption<Flags::LogHeld> LogHeld{};
inline constexpr FlagOption<Flags::AsSwitch> AsSwitch{};
inline constexpr FlagOption<Flags::KeepWhenMissing> KeepWhenMissing{};
inline constexpr FlagOption<Flags::Preloaded> Preloaded{};
inline constexpr FlagOption<Flags::Documented> Documented{};
inline constexpr FlagOption<Flags::QualifiedLabel> QualifiedLabel{};
inline constexpr FlagOption<Flags::OneOf> OneOf{};
inline constexpr FlagOption<Flags::Computed> Computed{};
inline constexpr FlagOption<Flags::SubkeyNames> SubkeyNames{};
inline constexpr FlagOption<Flags::DefaultByClass> DefaultByClass{};
inline constexpr FlagOption<Flags::Needed> Needed{};
inline constexpr FlagOption<Flags::AsWord> AsWord{};

template <auto Which, class T>
struct TextOption
{
    T value;
};
enum class Text : std::uint8_t
{
    Conversion,
    Line,
    Label
};
// The value's conversion in its line, in place of %d, %s or %c; text may follow it.
constexpr TextOption<Text::Conversion, const wchar_t*> Format(const wchar_t* conversion)
{
    return {conversion};
}
// The format of the whole line, for label, value and meaning, in place of "[CFG] %40s : %d[%s]".
constexpr TextOption<Text::Line, const wchar_t*> Line(const wchar_t* format)
{
    return {format};
}
// The label in the line, in place of the value name. Within Repeat it may hold a conversion for the iteration's name.
constexpr TextOption<Text::Label, const wchar_t*> Label(const wchar_t* label)
{
    return {label};
}

struct FallbackOption
{
    Key key;
    const wchar_t* name;
};
// The key that is asked when the setting's own does not hold the value, for `name` where that is another one.
constexpr FallbackOption Fallback(Key key, const wchar_t* name = nullptr)
{
    return {key, name};
}

struct ConstructedOption
{
    Value value;
};
// What the constructor sets, where that is not the default.
constexpr ConstructedOption Constructed(Value value)
{
    return {value};
}

struct PerIterationOption
{
    const DWORD* values;
};
// Within Repeat: each iteration's own default, which the constructor sets too. `values` has one for each iteration.
constexpr PerIterationOption PerIteration(const DWORD* values)
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

struct ScaleOption
{
    DWORD factor;
};
// After it is read, the class holds this many times the stored number: another unit.
constexpr ScaleOption HeldTimes(DWORD factor)
{
    return {factor};
}

struct RequiredOption
{
    unsigned line;
};
// A missing value is reported with an error line, which names the row's place.
constexpr RequiredOption Required(unsigned line = __builtin_LINE())
{
    return {line};
}

struct DefaultEntriesOption
{
    std::span<const DefaultEntry> entries;
};
// A whole key: what the map holds when the store has no entry.
constexpr DefaultEntriesOption DefaultEntries(std::span<const DefaultEntry> entries)
{
    return {entries};
}

struct RefersToOption
{
    Reference reference;
};
constexpr RefersToOption RefersTo(Reference reference)
{
    return {reference};
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

enum class Hook : std::uint8_t
{
    Normalize,
    LogAs,
    LoadedBy,
    SavedIf,
    RefersIf,
    HeldAs
};
template <Hook Which, class F>
struct HookOption
{};
// A correction after reading, before the line: DWORD(Owner&, DWORD value, bool found) for numbers and flags,
// void(Owner&, CString& value, bool found) for strings; within Repeat either may take the iteration as a last argument.
template <class F>
constexpr HookOption<Hook::Normalize, F> Normalize(F)
{
    return {};
}
// The number that the line shows: DWORD(Owner&, DWORD value).
template <class F>
constexpr HookOption<Hook::LogAs, F> LogAs(F)
{
    return {};
}
// Code that loads the setting in place of the row's query: void(Owner&, Loading&).
template <class F>
constexpr HookOption<Hook::LoadedBy, F> LoadedBy(F)
{
    return {};
}
// Asked by Save before it takes the member: bool(Owner&, unsigned iteration). False: the setting is not written.
template <class F>
constexpr HookOption<Hook::SavedIf, F> SavedIf(F)
{
    return {};
}
// A number that code of the class read for a Documented row.
struct NumberRead
{
    std::wstring_view key; // below the root
    std::wstring_view name;
    bool found = false;
    DWORD number = 0; // where it is missing, the default
};
// The number that is in effect, as the object holds it after a Load: DWORD(Owner&, const NumberRead&).
template <class F>
constexpr HookOption<Hook::HeldAs, F> HeldAs(F)
{
    return {};
}
// Whether the value refers to what RefersTo says, as the object was loaded: bool(const Owner&).
template <class F>
constexpr HookOption<Hook::RefersIf, F> RefersIf(F)
{
    return {};
}

} // namespace wqspcfg
