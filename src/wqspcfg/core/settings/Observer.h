// Tells what happens to each setting while a class is loaded: the configuration log, tests and tools listen.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/platform/store/Session.h"

namespace wqspcfg {

// Where a setting's value comes from.
enum class Origin : std::uint8_t
{
    Key,       // its own key
    Fallback,  // its fallback key
    Missing,   // the default, as no key holds the value
    WrongType, // the default, as what a key holds is of another type
    Kept,      // what the member held before, as no key holds the value
    Code,      // code of the class
};

// One pass of a Repeat.
struct Iteration
{
    const wchar_t* name = nullptr; // null where the iterations are numbers
    unsigned number = 0;
    unsigned index = 0; // from 0
};

// A text of a row with the one conversion that it may hold filled in. `iteration` is null outside Repeat.
WQSPCFG_API std::wstring ForIteration(const wchar_t* text, const Iteration* iteration);

// A setting that was loaded.
struct LoadedSetting
{
    CRegKeyEx& object;
    const Setting& row;
    const Iteration* iteration; // null outside Repeat
    Origin origin = Origin::Code;
    DWORD read = 0;      // as a key holds it, or the default
    DWORD corrected = 0; // after the row's correction
    DWORD held = 0;      // what the member holds now: of a switch 0 or 1
    // The same for texts and characters; null where the setting is a number or a whole key.
    const CString* textRead = nullptr;
    const CString* textHeld = nullptr;
};

// Told, on the thread that loads, of everything that a Load reads, in order. Between Begin and Loaded stand the keys
// that were asked for this setting; what is asked outside is read by code of the class. References are valid during the
// call.
class LoadObserver : public ReadObserver
{
  public:
    virtual void Begin(const Setting& row, const Iteration* iteration) = 0;
    virtual void Loaded(const LoadedSetting& setting) = 0;

  protected:
    ~LoadObserver() = default;
};

// While it lives, `observer` is told of every Load on this thread. The innermost one counts.
class WQSPCFG_API ObserveLoads
{
  public:
    explicit ObserveLoads(LoadObserver& observer) noexcept;
    ~ObserveLoads();
    ObserveLoads(const ObserveLoads&) = delete;
    ObserveLoads& operator=(const ObserveLoads&) = delete;

  private:
    LoadObserver* m_outer;
};

} // namespace wqspcfg
