#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

namespace wqspcfg {

// What passbook printers have in common: the lines of a page.
class WQSPCFG_API PassbookPrinter : public CPTRRegInfo
{
  public:
    using CPTRRegInfo::CPTRRegInfo;

    bool m_bUsePrintLine{};
    DWORD m_dwPageLen{};
    DWORD m_dwTopLen{};
    DWORD m_dwBlankLen{};
    DWORD m_dwFirstOverLen{};
    DWORD m_dwSecondOverLen{};
};

// What the PLQ-20KM and DPK210 passbook printers have in common besides.
class WQSPCFG_API LinePassbookPrinter : public PassbookPrinter
{
  public:
    using PassbookPrinter::PassbookPrinter;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwInitCount{};
    DWORD m_dwFontSize{};
    DWORD m_dwLeftMargin{};
    DWORD m_dwLineSpace{};
    bool m_bUseBlackFace{};
};

} // namespace wqspcfg
