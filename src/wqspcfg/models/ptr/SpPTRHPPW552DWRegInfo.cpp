#include "wqspcfg/models/ptr/SpPTRHPPW552DWRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using C = CSpPTRHPPW552DWRegInfo;

namespace {

constexpr Key kStamp = key::Below(L"Stamp");
constexpr Key kPaperOutTransport = key::Below(L"PaperOutTransport");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device,        L"OpenMediaJamCheck", &C::m_bOpenMediaJamCheck, 0,         meaning::printer::kOpenMediaJamCheck, Saved},
    {key::Device,        L"AdobeToolPrint",    &C::m_bAdobeToolPrint,    0,         meaning::printer::kAdobeToolPrint, Saved},
    {key::Device,        L"CheckTotalTime",    &C::m_dwCheckTotalTime,   60,        meaning::printer::kCheckTotalTime, Saved},
    {key::Device,        L"CheckNOMediaTime",  &C::m_dwCheckNOMediaTime, 10,        meaning::printer::kCheckNOMediaTime, Saved},
    {key::Device,        L"PrintHtml",         &C::m_bPrintHtml,         0,         meaning::printer::kPrintHtml, Saved},
    {key::Device,        L"PrintHtmlType",     &C::m_dwPrintHtmlType,    0,         meaning::printer::kPrintHtmlType, Saved},
    {key::Device,        L"FontName",          &C::m_strFontName,        L"SimSun", meaning::printer::kFontName, Saved},
    {key::Device,        L"FontSize",          &C::m_dwFontSize,         12,        meaning::printer::kFontSize, Saved},
    {kStamp,             L"IsStamp",           &C::m_bIsStamp,           0,         meaning::printer::kIsStamp, Saved},
    {kStamp,             L"StampPort",         &C::m_dwStampPort,        1,         meaning::printer::kStampPort, Saved},
    {kStamp,             L"StampBaudRate",     &C::m_dwStampBaudRate,    9600,      meaning::printer::kStampBaudRate, Saved},
    {kStamp,             L"PosYOfFirstStamp",  &C::m_dwPosYOfFirstStamp, 0,         meaning::printer::kPosYOfFirstStamp, Saved},
    {kStamp,             L"PaperCount",        &C::m_dwPaperCount,       0,         meaning::printer::kPaperCount, Saved},
    {kStamp,             L"StampNumber",       &C::m_dwStampNumber,      1,         meaning::printer::kStampNumber, Saved},
    {kStamp,             L"FirstYPos",         &C::m_dwFirstYPos,        0,         meaning::printer::kFirstYPos, Saved},
    {kStamp,             L"SecondYPos",        &C::m_dwSecondYPos,       0,         meaning::printer::kSecondYPos, Saved},
    {kStamp,             L"ThirdYPos",         &C::m_dwThirdYPos,        0,         meaning::printer::kThirdYPos, Saved},
    {kStamp,             L"StampMode",         &C::m_dwStampMode,        0,         meaning::printer::kStampMode, Saved},
    {kPaperOutTransport, L"OpenPaperOut",      &C::m_bOpenPaperOut,      0,         meaning::printer::kOpenPaperOut, Saved},
    {kPaperOutTransport, L"PaperOutPort",      &C::m_dwPaperOutPort,     1,         meaning::printer::kPaperOutPort, Saved},
    {key::Device,        L"dwRawdataParseID",  &C::m_dwRawdataParseID,   0,         meaning::printer::kRawDataParseID, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRHPPW552DWRegInfo, CPTRRegInfo, kSettings)
