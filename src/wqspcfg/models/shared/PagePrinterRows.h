// Settings that page printers share.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/models/shared/PagePrinter.h"
#include "wqspcfg/parts/meanings/PTR.h"

#include <array>

namespace wqspcfg {

inline constexpr Key kStamp = key::Below(L"Stamp");
inline constexpr Key kPaperOutTransport = key::Below(L"PaperOutTransport");

// clang-format off
inline constexpr Setting kPageCheckRows[] = {
    {key::Device, L"OpenMediaJamCheck", &PagePrinter::m_bOpenMediaJamCheck, 0,
     L"the check for jammed media is on: 0 no; nonzero yes", Saved},
    {key::Device, L"AdobeToolPrint", &PagePrinter::m_bAdobeToolPrint, 0,
     L"PDF files are printed through the Adobe program: 0 no; nonzero yes", Saved},
    {key::Device, L"CheckTotalTime", &PagePrinter::m_dwCheckTotalTime, 60,
     L"longest time in s for checking the media of a print job", Saved},
    {key::Device, L"CheckNOMediaTime", &PagePrinter::m_dwCheckNOMediaTime, 10,
     L"time in s without media after which a print job's media count as absent", Saved},
    {key::Device, L"PrintHtml", &PagePrinter::m_bPrintHtml, 0, L"HTML files are printed: 0 no; nonzero yes", Saved},
};
inline constexpr Setting kPageFontRows[] = {
    {key::Device, L"PrintHtmlType", &PagePrinter::m_dwPrintHtmlType, 0,
     L"way in which HTML files are printed; 0 the standard one", Saved},
    {key::Device, L"FontName", &PagePrinter::m_strFontName, L"SimSun", meaning::printer::kFontName, Saved},
    {key::Device, L"FontSize", &PagePrinter::m_dwFontSize,  12,        meaning::printer::kFontSize, Saved},
};
inline constexpr Setting kPagePrinterRows[] = {Group(Rows<kPageCheckRows>), Group(Rows<kPageFontRows>)};

// The stamping unit's settings, which are in the given key.
consteval std::array<Setting, 9> StampRows(Key key)
{
    return {{
        {key, L"StampPort", &PagePrinter::m_dwStampPort, 1, L"serial port number of the stamping unit", Saved,
         RefersTo(Reference::SerialPort), RefersIf([](const PagePrinter& c) -> bool { return c.m_bIsStamp; })},
        {key, L"StampBaudRate", &PagePrinter::m_dwStampBaudRate, 9600,
         L"serial speed of the stamping unit in baud", Saved},
        {key, L"PosYOfFirstStamp", &PagePrinter::m_dwPosYOfFirstStamp, 0,
         L"vertical position of the first stamp on the page", Saved},
        {key, L"PaperCount",  &PagePrinter::m_dwPaperCount,  0, L"number of sheets for the stamping unit", Saved},
        {key, L"StampNumber", &PagePrinter::m_dwStampNumber, 1, L"number of stamps", Saved},
        {key, L"FirstYPos",   &PagePrinter::m_dwFirstYPos,   0, L"vertical position of stamp 1", Saved},
        {key, L"SecondYPos",  &PagePrinter::m_dwSecondYPos,  0, L"vertical position of stamp 2", Saved},
        {key, L"ThirdYPos",   &PagePrinter::m_dwThirdYPos,   0, L"vertical position of stamp 3", Saved},
        {key, L"StampMode",   &PagePrinter::m_dwStampMode,   0, meaning::printer::kNotDocumented, Saved},
    }};
}
inline constexpr auto kStampRows = StampRows(kStamp);
inline constexpr Setting kPaperOutRows[] = {
    {kPaperOutTransport, L"OpenPaperOut", &PagePrinter::m_bOpenPaperOut, 0,
     L"the paper output transport is used: 0 no; nonzero yes", Saved},
    {kPaperOutTransport, L"PaperOutPort", &PagePrinter::m_dwPaperOutPort, 1,
     L"serial port number of the paper output transport", Saved, RefersTo(Reference::SerialPort),
     RefersIf([](const PagePrinter& c) -> bool { return c.m_bOpenPaperOut; })},
};
inline constexpr Setting kStampingUnitRows[] = {
    {kStamp, L"IsStamp", &PagePrinter::m_bIsStamp, 0, meaning::printer::kIsStamp, Saved},
    Group(Rows<kStampRows>),
    Group(Rows<kPaperOutRows>),
};

inline constexpr Setting kJobPagePrinterRows[] = {
    {key::Device, L"RawdataParseID", &JobPagePrinter::m_dwRawdataParseID, 0, meaning::printer::kRawDataParseID, Saved},
    {key::Device, L"CheckInputParam", &JobPagePrinter::m_dwCheckInputParam, 0,
     meaning::printer::kCheckInputParam, Saved},
    {key::Device, L"SetTotalPagesBy", &JobPagePrinter::m_dwSetTotalPagesBy, 0,
     L"where the total number of pages is taken from; 0 the print job", Saved},
    {key::Device, L"PaperWidth", &JobPagePrinter::m_dwPaperWidth, 80, meaning::printer::kPaperWidth, Saved},
    {key::Device, L"PrintStyleWithMediaStatusSet", &JobPagePrinter::m_dwPrintStyleWithMediaStatusSet, 0,
     L"how printing sets the media status; 0 the standard way", Saved},
    {key::Device, L"WaitPrintJob", &JobPagePrinter::m_bWaitPrintJob, 1, meaning::printer::kWaitPrintJob, Saved},
    {key::Device, L"PaperStatusStartIndex", &JobPagePrinter::m_dwPaperStatusStartIndex, 0,
     meaning::printer::kPaperStatusStartIndex, Saved},
};
// clang-format on

} // namespace wqspcfg
