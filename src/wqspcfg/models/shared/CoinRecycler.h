#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"
#include "wqspcfg/parts/CassetteSlot.h"

namespace wqspcfg {

// What the coin recyclers with the hoppers A (1 yuan), B (5 jiao), C (1 jiao) and R (retract) have in common.
class CoinRecycler : public CCRMRegInfo
{
  public:
    using CCRMRegInfo::CCRMRegInfo;

    DWORD m_dwUnitPhyPosName{};
    tagCoinRecycleHopper m_arSlot[4]{};
};

} // namespace wqspcfg
