// The anti-skimming unit of a controller board.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/parts/meanings/SIU.h"

namespace wqspcfg {

struct SafeAgent
{
    DWORD m_dwBeepOn{};
    DWORD m_dwRelayAlarmOn{};
    DWORD m_dwBlindPoint{};
    DWORD m_dwBlindAlarmTime{}; // seconds
    DWORD m_dwCoverAlarmTime{}; // seconds
    DWORD m_dwAutoCancel{};
};

inline constexpr Key kSafeAgent = key::Below(L"SafeAgent\\");

// clang-format off
template <class C>
inline constexpr Setting kSafeAgentRows[] = {
    {kSafeAgent, L"BeepOn",       Of<C, &SafeAgent::m_dwBeepOn>,       1, meaning::kBeepOn, Saved},
    {kSafeAgent, L"RelayAlarmOn", Of<C, &SafeAgent::m_dwRelayAlarmOn>, 0, meaning::kRelayAlarmOn, Saved},
    {kSafeAgent, L"BlindPoint",   Of<C, &SafeAgent::m_dwBlindPoint>,   0, meaning::kBlindPoint, Saved, Range(0, 255)},
    {kSafeAgent, L"BlindAlarmTime", Of<C, &SafeAgent::m_dwBlindAlarmTime>, 3,
     meaning::kBlindAlarmTime, Saved, Range(0, 255)},
    {kSafeAgent, L"CoverAlarmTime", Of<C, &SafeAgent::m_dwCoverAlarmTime>, 300,
     meaning::kCoverAlarmTime, Saved, Range(0, 65535)},
    {kSafeAgent, L"AutoCancel", Of<C, &SafeAgent::m_dwAutoCancel>, 1, meaning::kAutoCancel, Saved},
};
// clang-format on

} // namespace wqspcfg
