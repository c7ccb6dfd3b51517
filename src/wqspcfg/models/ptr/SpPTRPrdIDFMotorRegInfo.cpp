#include "wqspcfg/models/ptr/SpPTRPrdIDFMotorRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpPTRPrdIDFMotorRegInfo;

namespace {

constexpr Key kFormat = key::Below(L"Format");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDF_MOTOR", &C::m_strDN_IDF_MOTOR, L"",
     L"name of the device driver module of the motorised identity card reader", Saved},
    {key::Control, L"OpenAction", &C::m_dwOpenAction, 0,
     L"action with a card in the reader when the device is opened", Saved},
    {key::Control, L"IsEjectAfterScan", &C::m_bIsEjectAfterScan, 0,
     L"the card is ejected after scanning: 0 no; nonzero yes", Saved},
    {key::Control, L"EjectAfterScanTime", &C::m_dwEjectAfterScanTime, 30,
     L"time in seconds after scanning until the card is ejected", Saved},
    {kFormat, L"IDFFormat", &C::m_strIDFFormat, L"",
     L"format of the identity-card data; empty the standard one", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRPrdIDFMotorRegInfo, CPTRRegInfo, kSettings)
