#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

namespace wqspcfg {

// What the TM-U220 and POS1900 receipt printers have in common: paper with black marks, and their own characters.
class WQSPCFG_API BlackMarkReceiptPrinter : public CPTRRegInfo
{
  public:
    using CPTRRegInfo::CPTRRegInfo;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    bool m_bIsUseBlackMark{};
    DWORD m_dwRawDataStyle{};
    DWORD m_dwLineSpace{};
    DWORD m_dwLeftMargin{};
    DWORD m_dwCutPosition{};
    DWORD m_dwPrintPos{};
    DWORD m_dwEnCharSpace{};
    DWORD m_dwChCharSpaceLeft{};
    DWORD m_dwChCharSpaceRight{};
    DWORD m_dwPrintTimeOut{};
};

} // namespace wqspcfg
