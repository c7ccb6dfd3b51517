#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

namespace wqspcfg {

// What the AH32 and JT58 receipt printers have in common: they print text in fonts of the terminal.
class WQSPCFG_API RasterReceiptPrinter : public CPTRRegInfo
{
  public:
    using CPTRRegInfo::CPTRRegInfo;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPaperWidth{};
    DWORD m_dwPaperHeight{};
    bool m_bOffsetValid{};
    DWORD m_dwLineSpace{};
    DWORD m_dwWordSpace{};
    DWORD m_dwLeftSpace{};
    bool m_bMustBeBold{};
    bool m_bUseFixFontSize{};
    DWORD m_dwFontSize{};
    bool m_bUseCPI{};
    bool m_bMustBeFontName{};
    CString m_strFontName;
    bool m_bRawDataAsBmp{};
    bool m_bRawDataWordWrap{};
    DWORD m_dwRawDataFontSize{};
    CString m_strRawDataFontName;
    bool m_bUseImageStretch{};
    DWORD m_dwBlackColorRangeMax{};
    DWORD m_dwFeedBeforePrint{};
    DWORD m_dwFeedAfterPrint{};
};

} // namespace wqspcfg
