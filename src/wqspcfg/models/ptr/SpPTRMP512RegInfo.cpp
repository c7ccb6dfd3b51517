#include "wqspcfg/models/ptr/SpPTRMP512RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRMP512RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,   L"Port",         &C::m_dwPort,         1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,   L"BaudRate",     &C::m_dwBaudRate,     9600, kBaudRate, Saved},
    {key::Device, L"PtrName",      &C::m_strPtrName,     L"",  printer::kPtrName, Saved},
    {key::Device, L"PageHeight",   &C::m_dwPageHeight,   297,  printer::kPageHeight, Saved},
    {key::Device, L"LinesPerPage", &C::m_dwLinesPerPage, 60,   printer::kMaxLineNum, Saved},
    {key::Device, L"RealWidth",    &C::m_dwRealWidth,    80,   printer::kRealWidth, Saved},
    {key::Device, L"RealHeight",   &C::m_dwRealHeight,   297,  printer::kRealHeight, Saved},
    {key::Device, L"bWTwice",      &C::m_bWTwice,        0,    printer::kDoubleWidth, Saved},
    {key::Device, L"bHTwice",      &C::m_bHTwice,        0,    printer::kDoubleHeight, Saved},
    {key::Device, L"bUnderLine",   &C::m_bUnderLine,     0,    printer::kUnderline, Saved},
    {key::Device, L"b7X7", &C::m_b7X7, 0,
     L"print in 7 by 7 dots: 0 no; nonzero yes", Saved},
    {key::Device, L"bCutByBlack", &C::m_bCutByBlack, 0, printer::kIsUseBlackMark, Saved},
    {key::Device, L"bCutALL",     &C::m_bCutALL,     1, printer::kFullCut, Saved},
    {key::Device, L"bNeedRotate", &C::m_bNeedRotate, 0,
     L"printing is rotated: 0 no; nonzero yes", Saved},
    {key::Device, L"PrintAdapter", &C::m_dwPrintAdapter, 0, printer::kNotDocumented, Saved},
    {key::Device, L"LinesBetween", &C::m_dwLinesBetween, 0,
     L"number of lines between two print jobs", Saved},
    {key::Device, L"IsUseImageStretch", &C::m_bIsUseImageStretch, 0, printer::kUseImageStretch, Saved},
    {key::Device, L"PrintEndWaitTime", &C::m_dwPrintEndWaitTime, 0,
     L"time in ms to wait after the end of printing", Saved},
    {key::Device, L"StartPrintWaitTimes", &C::m_dwStartPrintWaitTimes, 0,
     L"time in ms to wait before printing starts", Saved},
    {key::Device, L"RawDataAddLineCount", &C::m_dwRawDataAddLineCount, 0,
     L"number of lines added after raw data", Saved},
};
constexpr Setting kReceiptsLeft{key::Device, L"CurLastCount", DwordValue, 0, L"receipts left", NotLogged};
// clang-format on
constexpr OperationSettings kOnRequest[] = {{L"DescCurLowCount", L"DescCurLowCount", Rows<kReceiptsLeft>}};

} // namespace

WQSPCFG_SETTINGS(CSpPTRMP512RegInfo, CPTRRegInfo, kSettings, {}, kOnRequest)

void CSpPTRMP512RegInfo::ResetValue()
{
    Construct(*this, Rows<kSettings>);
}

void CSpPTRMP512RegInfo::DescCurLowCount()
{
    Saving saving(*this);
    DWORD dwLeft = 0;
    if (ReadSetting(*this, kReceiptsLeft, dwLeft) && dwLeft > 0) {
        saving.Put(kReceiptsLeft.key, CString(kReceiptsLeft.name), dwLeft - 1);
    }
}
