// The keys of cassettes and hoppers that cash modules have in common.
#pragma once

#include "wqspcfg/core/settings/Key.h"

namespace wqspcfg::key {

inline constexpr Key Hopper = Below(L"Cassette\\Hopper");
inline constexpr Key HopperSlot = Below(L"Cassette\\Hopper\\%s");

} // namespace wqspcfg::key
