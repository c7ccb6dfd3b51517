#include "wqspcfg/models/idc/SpIDCPrdCardReaderRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCPrdCardReaderRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDC_MOTOR", &C::m_strDN_IDC_MOTOR, L"",
     L"name of the device driver module of the motorised card reader", Saved},
    {key::Control, L"PowerOffOption",   &C::m_dwPowerOffOption,   0, meaning::kPowerOffOption, OneOf},
    {key::Control, L"SpCloseOption",    &C::m_dwSpCloseOption,    2, meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"PowerOnOption",    &C::m_dwPowerOnOption,    1, meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"SkimOfInsertCard", &C::m_dwSkimOfInsertCard, 0, meaning::kSkimOfInsertCard, Saved},
    {key::Control, L"UnPresentOfMoveCardManual", &C::m_bUnPresentOfMoveCardManual, 0,
     meaning::kUnPresentOfMoveCardManual, Saved},
    {key::Control, L"NeedResetOfRecoverSkimmerSt", &C::m_bNeedResetOfRecoverSkimmerSt, 0,
     meaning::kNeedResetOfRecoverSkimmerSt, Saved},
    {key::Control, L"ToReadPositionIfNoActionReset", &C::m_bToReadPositionIfNoActionReset, 0,
     meaning::kToReadPositionIfNoActionReset, Saved},
    {key::Control, L"TimeDelayOnline", &C::m_dwTimeDelayOnline, 0, meaning::kTimeDelayOnline, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCPrdCardReaderRegInfo, CIDCRegInfo, kSettings)
