// Settings of the AH32 and JT58 receipt printers.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/models/shared/RasterReceiptPrinter.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

// clang-format off
inline constexpr Setting kRasterReceiptPrinterRows[] = {
    {key::Comm, L"Port", &RasterReceiptPrinter::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",    &RasterReceiptPrinter::m_dwBaudRate,    9600, meaning::kBaudRate, Saved},
    {key::Control, L"PaperWidth",  &RasterReceiptPrinter::m_dwPaperWidth,  80,   meaning::printer::kPaperWidth, Saved},
    {key::Control, L"PaperHeight", &RasterReceiptPrinter::m_dwPaperHeight, 297,  meaning::printer::kPaperHeight, Saved},
    {key::Control, L"OffsetValid", &RasterReceiptPrinter::m_bOffsetValid,  0,    meaning::printer::kOffsetValid, Saved},
    {key::Control, L"LineSpace",   &RasterReceiptPrinter::m_dwLineSpace,   30,   meaning::printer::kLineSpace, Saved},
    {key::Control, L"WordSpace",   &RasterReceiptPrinter::m_dwWordSpace,   0,    meaning::printer::kWordSpace, Saved},
    {key::Control, L"LeftSpace",   &RasterReceiptPrinter::m_dwLeftSpace,   0,    meaning::printer::kLeftSpace, Saved},
    {key::Control, L"MustBeBold",  &RasterReceiptPrinter::m_bMustBeBold,   0,    meaning::printer::kMustBeBold, Saved},
    {key::Control, L"UseFixFontSize", &RasterReceiptPrinter::m_bUseFixFontSize, 0,
     meaning::printer::kUseFixFontSize, Saved},
    {key::Control, L"FontSize", &RasterReceiptPrinter::m_dwFontSize, 12, meaning::printer::kFontSize, Saved},
    {key::Control, L"UseCPI",   &RasterReceiptPrinter::m_bUseCPI,    0,  meaning::printer::kUseCPI, Saved},
    {key::Control, L"MustBeFontName", &RasterReceiptPrinter::m_bMustBeFontName, 0,
     meaning::printer::kMustBeFontName, Saved},
    {key::Control, L"FontName", &RasterReceiptPrinter::m_strFontName, L"SimSun",
     meaning::printer::kFontName, Saved},
    {key::Control, L"RawDataAsBmp", &RasterReceiptPrinter::m_bRawDataAsBmp, 0,
     meaning::printer::kRawDataAsBmp, Saved},
    {key::Control, L"RawDataWordWrap", &RasterReceiptPrinter::m_bRawDataWordWrap, 1,
     meaning::printer::kRawDataWordWrap, Saved},
    {key::Control, L"RawDataFontSize", &RasterReceiptPrinter::m_dwRawDataFontSize, 12,
     meaning::printer::kRawDataFontSize, Saved},
    {key::Control, L"RawDataFontName", &RasterReceiptPrinter::m_strRawDataFontName, L"SimSun",
     meaning::printer::kRawDataFontName, Saved},
    {key::Control, L"UseImageStretch", &RasterReceiptPrinter::m_bUseImageStretch, 0,
     meaning::printer::kUseImageStretch, Saved},
    {key::Control, L"BlackColorRangeMax", &RasterReceiptPrinter::m_dwBlackColorRangeMax, 128,
     meaning::printer::kBlackColorRangeMax, Saved},
    {key::Control, L"FeedBeforePrint", &RasterReceiptPrinter::m_dwFeedBeforePrint, 0,
     meaning::printer::kFeedBeforePrint, Saved},
    {key::Control, L"FeedAfterPrint", &RasterReceiptPrinter::m_dwFeedAfterPrint, 0,
     meaning::printer::kFeedAfterPrint, Saved},
};
// clang-format on

} // namespace wqspcfg
