#include "wqspcfg/models/crd/SpIDCpPrdIDCMotorRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCpPrdIDCMotorRegInfo;

namespace {

constexpr Key kTransport = key::Below(L"TansPort");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDC_MOTOR", &C::m_strDN_IDC_MOTOR, L"",
     L"name of the device driver module of the motorised card reader", Saved},
    {key::Device, L"DN.CRD_MOTOR", &C::m_strDN_CRD_MOTOR, L"",
     L"name of the device driver module of the card dispenser", Saved},
    {key::Control, L"Adaptor",        &C::m_dwAdaptor,        0, meaning::kNotDocumented, Saved},
    {key::Control, L"PowerOnOption",  &C::m_dwPowerOnOption,  1, meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"PowerOffOption", &C::m_dwPowerOffOption, 0, meaning::kPowerOffOption, OneOf},
    {kTransport, L"MoveTansPortCardOptionWhenRest", &C::m_dwMoveTansPortCardOptionWhenRest, 1,
     meaning::crd::kMoveTransPortCardOptionWhenReset, Saved},
    {kTransport, L"MoveTansPortCardOptionWhenDispense", &C::m_dwMoveTansPortCardOptionWhenDispense, 1,
     L"where a card in the transport goes when dispensing", Saved},
    {kTransport, L"StatusOptionWhenCardInTansPort", &C::m_dwStatusOptionWhenCardInTansPort, 0,
     L"status reported while a card is in the transport", Saved},
    {kTransport, L"StatusOptionWhenDispenserStop", &C::m_dwStatusOptionWhenDispenserStop, 0,
     L"status reported while the dispenser has stopped", Saved},
    {key::Control, L"ISCDispenseCardParam", &C::m_dwISCDispenseCardParam, 0,
     L"parameter of the issuing unit for dispensing a card", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCpPrdIDCMotorRegInfo, CCRDRegInfo, kSettings)
