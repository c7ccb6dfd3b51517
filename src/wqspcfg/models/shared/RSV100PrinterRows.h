// Settings of the RSV100 ticket printer.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/models/shared/RSV100Printer.h"
#include "wqspcfg/parts/meanings/PTR.h"

namespace wqspcfg {

// clang-format off
inline constexpr Setting kRetainBinRows[] = {
    {key::Below(L"RetainBins\\RetainBin%d"), L"RetainBinCount", Element<&RSV100Printer::m_dwRetainBinCount>, 0,
     meaning::printer::kRetainBinCount, Saved},
};
inline constexpr Setting kRetainBins[] = {Repeat(0, RSV100Printer::kRetainBins - 1, Rows<kRetainBinRows>)};
inline constexpr Setting kRSV100Rows[] = {
    {key::Device, L"MaxRetainCount", &RSV100Printer::m_dwMaxRetainCount, 100, meaning::printer::kMaxRetainCount, Saved},
    {key::Device, L"HighRetainCount", &RSV100Printer::m_dwHighRetainCount, 90,
     meaning::printer::kHighRetainCount, Saved},
    Group(Rows<kRetainBins>),
    {key::Comm, L"PortOfRFID", &RSV100Printer::m_dwPortOfRFID, 1,
     meaning::printer::kRFIDPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Device, L"LeftAdjustSpace", &RSV100Printer::m_dwLeftAdjustSpace, 0,
     meaning::printer::kLeftAdjustSpace, Saved},
    {key::Device, L"ResetCount",     &RSV100Printer::m_dwResetCount,     3, meaning::printer::kResetCount, Saved},
    {key::Device, L"OpenActionType", &RSV100Printer::m_dwOpenActionType, 0, meaning::printer::kOpenOption, Saved},
    {key::Device, L"CloseActionType", &RSV100Printer::m_dwCloseActionType, 0,
     L"action when the SP closes: 0 none; 1 eject the media; 2 retract them", Saved},
    {key::Device, L"ResetActionType", &RSV100Printer::m_dwResetActionType, 1,
     L"action at a reset: 0 none; 1 eject the media; 2 retract them", Saved},
};
// clang-format on

} // namespace wqspcfg
