#include "wqspcfg/models/crd/SpCRDWQTSankyo3A7230RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQTSankyo3A7230RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Type", &C::m_dwType, 0, meaning::kNotDocumented, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",       &C::m_dwBaudRate,       9600, meaning::kBaudRate, Saved},
    {key::Control, L"PowerOffOption", &C::m_dwPowerOffOption, 0,    meaning::kPowerOffOption, OneOf},
    {key::Control, L"PowerOnOption",  &C::m_dwPowerOnOption,  1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"CloseOption",    &C::m_dwCloseOption,    2,    meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"DispenseBin",      &C::m_dwDispenseBin,      2,    L"card-unit number of the supply bin", Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"RetainBin",        &C::m_dwRetainBin,        1,    meaning::kRetainBin, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"DispenseTo",       &C::m_dwDispenseTo,       0,   meaning::crd::kDispenseTo, Saved},
    {key::Control, L"SkimOfInsertCard", &C::m_dwSkimOfInsertCard, 0,   meaning::kSkimOfInsertCard, Saved},
    {key::Control, L"MaxSupplyCard",    &C::m_dwMaxSupplyCard,    100, meaning::kMaxSupplyCard, Saved},
    {key::Control, L"SupplyBinLow",     &C::m_dwSupplyBinLow,     5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"DevType",          &C::m_dwDevType,          0,   meaning::kNotDocumented, Saved},
    {key::Control, L"CardUnitAssemble", &C::m_dwCardUnitAssemble, 0,
     L"assembly of the card units", Saved},
    {key::Control, L"NeedSupportMediaLatched", &C::m_bNeedSupportMediaLatched, 0, meaning::kMediaLatched, Saved},
    {key::Control, L"SendThresholdEvt", &C::m_bSendThresholdEvt, 0,
     L"the threshold event is sent when the retain bin is missing: 0 no; nonzero yes",
     Saved, Line(L"[CFG %40s : %d[%s]")},
    {key::Control, L"DisabledReInsertCard", &C::m_bDisabledReInsertCard, 0,
     L"inserting a card again is disabled: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQTSankyo3A7230RegInfo, CCRDRegInfo, kSettings)
