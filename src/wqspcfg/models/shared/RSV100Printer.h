#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

namespace wqspcfg {

// The RSV100 ticket printer with retain bins and RFID reader, whatever name it goes by.
class WQSPCFG_API RSV100Printer : public CPTRRegInfo
{
  public:
    using CPTRRegInfo::CPTRRegInfo;

    static constexpr unsigned kRetainBins = 4;

    DWORD m_dwMaxRetainCount{};
    DWORD m_dwHighRetainCount{};
    DWORD m_dwRetainBinCount[kRetainBins]{}; // of bin 0 to 3, each in a key of its own
    DWORD m_dwPortOfRFID{};
    DWORD m_dwLeftAdjustSpace{};
    DWORD m_dwResetCount{};
    DWORD m_dwOpenActionType{};
    DWORD m_dwCloseActionType{};
    DWORD m_dwResetActionType{};
};

} // namespace wqspcfg
