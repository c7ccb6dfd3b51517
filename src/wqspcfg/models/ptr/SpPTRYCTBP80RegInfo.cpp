#include "wqspcfg/models/ptr/SpPTRYCTBP80RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRYCTBP80RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"BluetoothName", &C::m_strBluetoothName, L"", L"Bluetooth device name", Saved},
    {key::Comm, L"BluetoothPassword", &C::m_strBluetoothPassword, L"",
     L"Bluetooth pairing password", Saved, Secret},
    {key::Device, L"RawDataStyle",      &C::m_dwRawDataStyle,      0, printer::kRawDataStyle, Saved},
    {key::Device, L"FeedBeforePrint",   &C::m_dwFeedBeforePrint,   0, printer::kFeedBeforePrint, Saved},
    {key::Device, L"FeedAfterPrint",    &C::m_dwFeedAfterPrint,    0, printer::kFeedAfterPrint, Saved},
    {key::Device, L"PrintIntervalTime", &C::m_dwPrintIntervalTime, 0, printer::kPrintIntervalTime, Saved},
    {key::Device, L"SendFieldWarnningEvent", &C::m_bSendFieldWarnningEvent, 0,
     printer::kSendFieldWarnningEvent, Saved},
    {key::Device, L"LineSpace", &C::m_dwLineSpace, 30, printer::kLineSpace, Saved},
    {key::Device, L"WordSpace", &C::m_dwWordSpace, 0,  printer::kWordSpace, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRYCTBP80RegInfo, CPTRRegInfo, kSettings)
