#include "wqspcfg/models/ptr/SpPTRAH32RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/RasterReceiptPrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRAH32RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kRasterReceiptPrinterRows>),
    {key::Control, L"SendMediaTakenEvent", &C::m_bSendMediaTakenEvent, 0, printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"WaitMediaTakenTime",  &C::m_dwWaitMediaTakenTime, 3, printer::kWaitMediaTakenTime, Saved},
    {key::Control, L"PrintIntervalTime",   &C::m_dwPrintIntervalTime,  0, printer::kPrintIntervalTime, Saved},
    {key::Control, L"PolicyOfLineSpace",   &C::m_dwPolicyOfLineSpace,  0, printer::kPolicyOfLineSpace, Saved},
    {key::Control, L"UseOneFormPrintManyKindsReceipt", &C::m_bUseOneFormPrintManyKindsReceipt, 0,
     printer::kUseOneFormPrintManyKindsReceipt, Saved},
    {key::Control, L"AdjustPosY",        &C::m_dwAdjustPosY,       0, printer::kAdjustPosY, Saved},
    {key::Control, L"RawDataStyle",      &C::m_dwRawDataStyle,     0, printer::kRawDataStyle, Saved},
    {key::Control, L"IgnoreInvalidData", &C::m_bIgnoreInvalidData, 0, printer::kIgnoreInvalidData, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRAH32RegInfo, RasterReceiptPrinter, kSettings)
