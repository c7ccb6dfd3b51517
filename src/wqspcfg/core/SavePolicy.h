// What Save writes over what somebody else has changed.
#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <cstdint>
#include <string_view>

namespace wqspcfg {

enum class SavePolicy : std::uint8_t
{
    // Every value that the class saves, whatever the registry holds by then: an edit made since Load is undone.
    All,
    // A value that the object changed since it loaded or constructed it, and a value of which the registry has none of
    // the right type. What somebody else changed meanwhile stays. Where both changed one, the object's is written, and
    // an error line says so in the log that Load was given, which must then live as long as the object.
    // The serial-number records write under both policies only what the object changed: a value of another type stays.
    // The parts of their names are one list each, which is written as under All.
    OwnChanges,
};

// For the whole process; to be called before the first object is constructed. Without a call the environment variable
// WQSPCFG_SAVE_POLICY decides: "own-changes" is OwnChanges, anything else All.
WQSPCFG_API void SetSavePolicy(SavePolicy policy) noexcept;
WQSPCFG_API SavePolicy GetSavePolicy() noexcept;
// The policy that a text stands for as the value of that variable: "own-changes"; "all" or an empty one. False, and
// nothing is changed, for any other, which is taken for All.
WQSPCFG_API bool ParseSavePolicy(std::string_view text, SavePolicy& policy) noexcept;

} // namespace wqspcfg
