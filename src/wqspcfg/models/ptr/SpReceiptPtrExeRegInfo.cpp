#include "wqspcfg/models/ptr/SpReceiptPtrExeRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/Counter.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpReceiptPtrExeRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"FontName",        &C::m_strFontName,       L"SimSun", printer::kFontName, Saved},
    {key::Device, L"RealWidth",       &C::m_dwRealWidth,       80,        printer::kRealWidth, Saved},
    {key::Device, L"RealHeight",      &C::m_dwRealHeight,      297,       printer::kRealHeight, Saved},
    {key::Device, L"FontSize",        &C::m_dwFontSize,        12,        printer::kFontSize, Saved},
    {key::Device, L"RawDataFontSize", &C::m_dwRawDataFontSize, 12,        printer::kRawDataFontSize, Saved},
    {key::Device, L"FixFontSize",     &C::m_bFixFontSize,      0,         printer::kUseFixFontSize, Saved},
    {key::Device, L"AutoReset",       &C::m_bAutoReset,        0,         printer::kAutoReset, Saved},
    {key::Device, L"Hide7731", &C::m_bHide7731, 0,
     L"the device's error 7731 is not reported: 0 no; nonzero yes", Saved},
    {key::Device, L"MustBeBolt",       &C::m_bMustBeBolt,        0,         printer::kMustBeBold, Saved},
    {key::Device, L"MustBeCut",        &C::m_bMustBeCut,         0,         printer::kMustBeCut, Saved},
    {key::Device, L"MustBeFontName",   &C::m_bMustBeFontName,    0,         printer::kMustBeFontName, Saved},
    {key::Device, L"UseCPI",           &C::m_bUseCPI,            0,         printer::kUseCPI, Saved},
    {key::Device, L"RawDataUseUnitMM", &C::m_bRawDataUseUnitMM,  0,         printer::kRawDataUseUnitMM, Saved},
    {key::Device, L"RawDataFontName",  &C::m_strRawDataFontName, L"SimSun", printer::kRawDataFontName, Saved},
    {key::Device, L"dwPostTakenEventWhenAtten", &C::m_dwPostTakenEventWhenAtten, 0,
     L"the media-taken event is posted when the printer asks for attention: 0 no; nonzero yes", Saved},
    {key::Device, L"RawDataRowBitCount",   &C::m_dwRawDataRowBitCount,  0,   printer::kRawDataRowBitCount, Saved},
    {key::Device, L"ContinuePrintType",    &C::m_dwContinuePrintType,   0,   printer::kContinuePrintType, Saved},
    {key::Device, L"NewLineWhenOverWidth", &C::m_bNewLineWhenOverWidth, 1,   printer::kNewLineWhenOverWidth, Saved},
    {key::Device, L"UseCountWhenLow",      &C::m_bUseCountWhenLow,      0,   printer::kUseCountWhenLow, Saved},
    {key::Device, L"CurLastCount",         &C::m_dwCurLastCount,        100, printer::kCurLastCount, Saved},
    {key::Device, L"LowMaxCount",          &C::m_dwLowMaxCount,         100, printer::kMaxCountWhenLow, Saved},
    {key::Device, L"Charset",              &C::m_dwCharset,             0,   printer::kCharSet, Saved},
    {key::Device, L"ReturnWord",           &C::m_strReturnWord,         L"", printer::kReturnWord, Saved},
    {key::Device, L"RawDataWholeOrPart", &C::m_dwRawDataWholeOrPart, 0,
     L"raw data are printed: 0 as a whole; nonzero in parts", Saved},
    {key::Device, L"RawDataLineDealType", &C::m_dwRawDataLineDealType, 0,
     L"how the lines of raw data are dealt with; 0 the standard way", Saved},
    {key::Device, L"RawDataLineWordCnt", &C::m_dwRawDataLineWordCnt, 40, L"characters in a line of raw data", Saved},
    {key::Device, L"RawDataAutoCutLineCnt", &C::m_dwRawDataAutoCutLineCnt, 0,
     L"number of raw-data lines after which the paper is cut; 0 no automatic cut", Saved},
    {key::Device, L"SendFieldWarnningEvent", &C::m_bSendFieldWarnningEvent, 0, printer::kSendFieldWarnningEvent, Saved},
    {key::Device, L"TonerAndInkNotSupport", &C::m_bTonerAndInkNotSupport, 0,
     L"the toner and ink status are reported as not supported: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpReceiptPtrExeRegInfo, CPTRRegInfo, kSettings)

void CSpReceiptPtrExeRegInfo::ResetValue()
{
    const DWORD dwLeft = m_dwCurLastCount;
    Construct(*this, Rows<kSettings>);
    m_dwCurLastCount = dwLeft;
}

void CSpReceiptPtrExeRegInfo::DescCurLowCount()
{
    WriteCount(*this, m_dwCurLastCount, OneLess(m_dwCurLastCount), RowOf<kSettings>(L"CurLastCount"));
}

void CSpReceiptPtrExeRegInfo::ResetCurLowCount()
{
    WriteCount(*this, m_dwCurLastCount, m_dwLowMaxCount, RowOf<kSettings>(L"CurLastCount"));
}
