#include "wqspcfg/models/ptr/SpPtrReceiptLT2320RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/Counter.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPtrReceiptLT2320RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,   L"BaudRate",         &C::m_dwBaudRate,         9600,      kBaudRate, Saved},
    {key::Device, L"FontName",         &C::m_strFontName,        L"SimSun", printer::kFontName, Saved},
    {key::Device, L"RawDataFontName",  &C::m_strRawDataFontName, L"SimSun", printer::kRawDataFontName, Saved},
    {key::Device, L"MustBeFontName",   &C::m_bMustBeFontName,    0,         printer::kMustBeFontName, Saved},
    {key::Device, L"UseCPI",           &C::m_bUseCPI,            0,         printer::kUseCPI, Saved},
    {key::Device, L"RawDataUseUnitMM", &C::m_bRawDataUseUnitMM,  0,         printer::kRawDataUseUnitMM, Saved},
    {key::Device, L"MustBeWordWrap",   &C::m_bMustBeWordWrap,    0,         printer::kMustBeWordWrap, Saved},
    {key::Device, L"WrapKeepXPosition", &C::m_bWrapKeepXPosition, 0,
     L"a wrapped line starts at the horizontal position of its field: 0 no; nonzero yes", Saved},
    {key::Device, L"Charset",              &C::m_dwCharset,             0,   printer::kCharSet, Saved},
    {key::Device, L"FormWidth",            &C::m_dwFormWidth,           80,  printer::kFormWidth, Saved},
    {key::Device, L"FormHeight",           &C::m_dwFormHeight,          297, printer::kFormHeight, Saved},
    {key::Device, L"FontSize",             &C::m_dwFontSize,            12,  printer::kFontSize, Saved},
    {key::Device, L"RawDataStyle",         &C::m_dwRawDataStyle,        0,   printer::kRawDataStyle, Saved},
    {key::Device, L"NewLineWhenOverWidth", &C::m_bNewLineWhenOverWidth, 1,   printer::kNewLineWhenOverWidth, Saved},
    {key::Device, L"FixFontSize",          &C::m_bFixFontSize,          0,   printer::kUseFixFontSize, Saved},
    {key::Device, L"MustBeBolt",           &C::m_bMustBeBolt,           0,   printer::kMustBeBold, Saved},
    {key::Device, L"CutPaperPowerOn", &C::m_bCutPaperPowerOn, 0,
     L"the paper is cut at power on: 0 no; nonzero yes", Saved},
    {key::Device, L"MustBeCut",         &C::m_bMustBeCut,          0,   printer::kMustBeCut, Saved},
    {key::Device, L"UseCountWhenLow",   &C::m_bUseCountWhenLow,    0,   printer::kUseCountWhenLow, Saved},
    {key::Device, L"ContinuePrintType", &C::m_dwContinuePrintType, 0,   printer::kContinuePrintType, Saved},
    {key::Device, L"CurLastCount",      &C::m_dwCurLastCount,      100, printer::kCurLastCount, Saved},
    {key::Device, L"LowMaxCount",       &C::m_dwLowMaxCount,       100, printer::kMaxCountWhenLow, Saved},
    {key::Device, L"PrintedLenght",     &C::m_dwPrintedLenght,     0,   L"length printed so far", Saved},
    {key::Device, L"MustCutRawData", &C::m_bMustCutRawData, 0,
     L"the paper is always cut after raw data: 0 no; nonzero yes", Saved},
    {key::Device, L"FieldPosYChange", &C::m_dwFieldPosYChange, 0, printer::kFieldPosYChange, Saved},
    {key::Device, L"PrintHWErrorTime", &C::m_dwPrintHWErrorTime, 30,
     L"time in s after which a print that does not end is a hardware error", Saved},
    {key::Device, L"PrintSpeed",          &C::m_dwPrintSpeed,         0,  printer::kPrintSpeed, Saved},
    {key::Device, L"CutALL",              &C::m_bCutALL,              1,  printer::kFullCut, Saved},
    {key::Device, L"AdjustLen",           &C::m_dwAdjustLen,          0,  L"adjustment of the print length", Saved},
    {key::Device, L"LeftSpace",           &C::m_dwLeftSpace,          0,  printer::kLeftSpace, Saved},
    {key::Device, L"LineSpace",           &C::m_dwLineSpace,          30, printer::kLineSpace, Saved},
    {key::Device, L"WordSpace",           &C::m_dwWordSpace,          0,  printer::kWordSpace, Saved},
    {key::Device, L"SendMediaTakenEvent", &C::m_bSendMediaTakenEvent, 0,  printer::kSendMediaTakenEvent, Saved},
    {key::Device, L"SendTakenEventWhenAutoCut", &C::m_bSendTakenEventWhenAutoCut, 0,
     L"an automatic cut sends the media-taken event: 0 no; nonzero yes", Saved},
    {key::Device, L"CutEveryTime", &C::m_bCutEveryTime, 0,
     L"the paper is cut after every print: 0 no; nonzero yes", Saved},
    {key::Device, L"CheckMediaControlWhenPrintForm", &C::m_bCheckMediaControlWhenPrintForm, 0,
     L"printing a form checks the media control: 0 no; nonzero yes", Saved},
    {key::Device, L"CutPaperPowerOnAsCurrentPos", &C::m_bCutPaperPowerOnAsCurrentPos, 0,
     L"the cut at power on is at the current position: 0 no; nonzero yes", Saved},
    {key::Device, L"OffsetValid", &C::m_bOffsetValid, 0, printer::kOffsetValid, Saved},
    {key::Device, L"SendFieldWarnningEvent", &C::m_bSendFieldWarnningEvent, 0,
     printer::kSendFieldWarnningEvent, Saved},
    {key::Device, L"IsUseImageStretch", &C::m_bIsUseImageStretch, 0,  printer::kUseImageStretch, Saved},
    {key::Device, L"TopSpace",          &C::m_dwTopSpace,         0,  L"space above the print area", Saved},
    {key::Device, L"RawDataFontSize",   &C::m_dwRawDataFontSize,  12, printer::kRawDataFontSize, Saved},
    {key::Device, L"RawDataNewLineWhenOverWidth", &C::m_bRawDataNewLineWhenOverWidth, 1,
     L"raw data that run beyond the width start a new line: 0 no; nonzero yes", Saved},
    {key::Device, L"RawDataRowBitCount", &C::m_dwRawDataRowBitCount, 0, printer::kRawDataRowBitCount, Saved},
    {key::Device, L"WaitMediaTakenTime", &C::m_dwWaitMediaTakenTime, 3, printer::kWaitMediaTakenTime, Saved},
    {key::Device, L"LeastHeight",        &C::m_dwLeastHeight,        0, L"least height of a receipt", Saved},
    {key::Device, L"LimitLeastHeight", &C::m_bLimitLeastHeight, 0,
     L"receipts have at least the height of LeastHeight: 0 no; nonzero yes", Saved},
    {key::Device, L"PrintThickness", &C::m_dwPrintThickness, 0, printer::kPrintDensity, Saved},
    {key::Device, L"CapWithSkip", &C::m_bCapWithSkip, 0,
     L"the capabilities tell of skipping: 0 no; nonzero yes", Saved},
    {key::Device, L"AddNullToUnicodeFields", &C::m_bAddNullToUnicodeFields, 0, printer::kAddNullToUnicodeFields, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPtrReceiptLT2320RegInfo, CPTRRegInfo, kSettings)

void CSpPtrReceiptLT2320RegInfo::ResetValue()
{
    const DWORD dwLeft = m_dwCurLastCount;
    const DWORD dwPrinted = m_dwPrintedLenght;
    Construct(*this, Rows<kSettings>);
    m_dwCurLastCount = dwLeft;
    m_dwPrintedLenght = dwPrinted;
}

void CSpPtrReceiptLT2320RegInfo::DescCurLowCount()
{
    WriteCount(*this, m_dwCurLastCount, OneLess(m_dwCurLastCount), RowOf<kSettings>(L"CurLastCount"));
}

void CSpPtrReceiptLT2320RegInfo::ResetCurLowCount()
{
    WriteCount(*this, m_dwCurLastCount, m_dwLowMaxCount, RowOf<kSettings>(L"CurLastCount"));
}

void CSpPtrReceiptLT2320RegInfo::SavePrintedLength()
{
    Saving(*this).Write(RowOf<kSettings>(L"PrintedLenght"));
}
