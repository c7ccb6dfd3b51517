#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

namespace wqspcfg {

// What page printers with a stamping unit and a paper output transport have in common.
class WQSPCFG_API PagePrinter : public CPTRRegInfo
{
  public:
    using CPTRRegInfo::CPTRRegInfo;

    bool m_bOpenMediaJamCheck{};
    bool m_bAdobeToolPrint{};
    DWORD m_dwCheckTotalTime{};
    DWORD m_dwCheckNOMediaTime{};
    bool m_bPrintHtml{};
    DWORD m_dwPrintHtmlType{};
    CString m_strFontName;
    DWORD m_dwFontSize{};
    bool m_bIsStamp{};
    DWORD m_dwStampPort{};
    DWORD m_dwStampBaudRate{};
    DWORD m_dwPosYOfFirstStamp{};
    DWORD m_dwPaperCount{};
    DWORD m_dwStampNumber{};
    DWORD m_dwFirstYPos{};
    DWORD m_dwSecondYPos{};
    DWORD m_dwThirdYPos{};
    DWORD m_dwStampMode{};
    bool m_bOpenPaperOut{};
    DWORD m_dwPaperOutPort{};
};

// Page printers that follow their print jobs.
class WQSPCFG_API JobPagePrinter : public PagePrinter
{
  public:
    using PagePrinter::PagePrinter;

    DWORD m_dwRawdataParseID{};
    DWORD m_dwSetTotalPagesBy{};
    DWORD m_dwPaperWidth{};
    DWORD m_dwPrintStyleWithMediaStatusSet{};
    bool m_bWaitPrintJob{};
    DWORD m_dwPaperStatusStartIndex{};
};

} // namespace wqspcfg
