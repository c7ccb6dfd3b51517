#include "wqspcfg/models/ptr/SpPTRFXP355dbRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using C = CSpPTRFXP355dbRegInfo;

namespace {

constexpr Key kStamp = key::Below(L"Stamp");
constexpr Key kStampUnit = key::Below(L"Stamp\\NEWBSIDBTS100");
constexpr Key kPaperOutTransport = key::Below(L"PaperOutTransport");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device,        L"OpenMediaJamCheck",     &C::m_bOpenMediaJamCheck,      0,         meaning::printer::kOpenMediaJamCheck, Saved},
    {key::Device,        L"AdobeToolPrint",        &C::m_bAdobeToolPrint,         0,         meaning::printer::kAdobeToolPrint, Saved},
    {key::Device,        L"CheckTotalTime",        &C::m_dwCheckTotalTime,        60,        meaning::printer::kCheckTotalTime, Saved},
    {key::Device,        L"CheckNOMediaTime",      &C::m_dwCheckNOMediaTime,      10,        meaning::printer::kCheckNOMediaTime, Saved},
    {key::Device,        L"PrintHtml",             &C::m_bPrintHtml,              0,         meaning::printer::kPrintHtml, Saved},
    {key::Device,        L"PrintHtmlType",         &C::m_dwPrintHtmlType,         0,         meaning::printer::kPrintHtmlType, Saved},
    {key::Device,        L"FontName",              &C::m_strFontName,             L"SimSun", meaning::printer::kFontName, Saved},
    {key::Device,        L"FontSize",              &C::m_dwFontSize,              12,        meaning::printer::kFontSize, Saved},
    {key::Device,        L"TonerStatusType",       &C::m_dwTonerStatusType,       0,         L"how the toner status is told; 0 the standard way", Saved},
    {key::Device,        L"CheckInputParam",       &C::m_dwCheckInputParam,       0,         meaning::printer::kCheckInputParam, Saved},
    {key::Device,        L"RawDataFilePathStyle",  &C::m_dwRawDataFilePathStyle,  0,         meaning::printer::kRawDataFilePathStyle, Saved},
    {key::Device,        L"PrintEndTimeOut",       &C::m_dwPrintEndTimeOut,       60,        L"time-out in s for the end of printing", Saved},
    {key::Device,        L"DeviceType",            &C::m_dwDeviceType,            0,         meaning::printer::kDevType, Saved},
    {kStamp,             L"IsStamp",               &C::m_bIsStamp,                0,         meaning::printer::kIsStamp, Saved},
    {kStamp,             L"StampType",             &C::m_dwStampType,             0,         L"type of stamping unit; 0 the standard one", Saved},
    {kStampUnit,         L"StampPort",             &C::m_dwStampPort,             1,         meaning::printer::kStampPort, Saved},
    {kStampUnit,         L"StampBaudRate",         &C::m_dwStampBaudRate,         9600,      meaning::printer::kStampBaudRate, Saved},
    {kStampUnit,         L"PosYOfFirstStamp",      &C::m_dwPosYOfFirstStamp,      0,         meaning::printer::kPosYOfFirstStamp, Saved},
    {kStampUnit,         L"PaperCount",            &C::m_dwPaperCount,            0,         meaning::printer::kPaperCount, Saved},
    {kStampUnit,         L"StampNumber",           &C::m_dwStampNumber,           1,         meaning::printer::kStampNumber, Saved},
    {kStampUnit,         L"FirstYPos",             &C::m_dwFirstYPos,             0,         meaning::printer::kFirstYPos, Saved},
    {kStampUnit,         L"SecondYPos",            &C::m_dwSecondYPos,            0,         meaning::printer::kSecondYPos, Saved},
    {kStampUnit,         L"ThirdYPos",             &C::m_dwThirdYPos,             0,         meaning::printer::kThirdYPos, Saved},
    {kStampUnit,         L"StampMode",             &C::m_dwStampMode,             0,         meaning::printer::kStampMode, Saved},
    {kPaperOutTransport, L"OpenPaperOut",          &C::m_bOpenPaperOut,           0,         meaning::printer::kOpenPaperOut, Saved},
    {kPaperOutTransport, L"PaperOutPort",          &C::m_dwPaperOutPort,          1,         meaning::printer::kPaperOutPort, Saved},
    {key::Device,        L"CountOfTrays",          &C::m_dwCountOfTrays,          1,         L"number of paper trays", Saved},
    {key::Device,        L"SendExeePresented",     &C::m_bSendExeePresented,      0,         L"the media-presented event is sent: 0 no; nonzero yes", Saved},
    {key::Device,        L"WaitPrintJob",          &C::m_bWaitPrintJob,           1,         meaning::printer::kWaitPrintJob, Saved},
    {key::Device,        L"PaperStatusStartIndex", &C::m_dwPaperStatusStartIndex, 0,         meaning::printer::kPaperStatusStartIndex, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRFXP355dbRegInfo, CPTRRegInfo, kSettings)
