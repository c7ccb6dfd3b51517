#include "wqspcfg/models/idc/SpCardReaderRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCardReaderRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Type", &C::m_dwType, 0, meaning::kNotDocumented, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",       &C::m_dwBaudRate,       9600, meaning::kBaudRate, Saved},
    {key::Control, L"PowerOffOption", &C::m_dwPowerOffOption, 0,    meaning::kPowerOffOption, OneOf},
    {key::Control, L"SpCloseOption",  &C::m_dwSpCloseOption,  2,    meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"PowerOnOption",  &C::m_dwPowerOnOption,  1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"PolicyOfSetMediaEntering", &C::m_dwPolicyOfSetMediaEntering, 0,
     meaning::kPolicyOfSetMediaEntering, Saved},
    {key::Control, L"SkimOfInsertCard", &C::m_dwSkimOfInsertCard, 0, meaning::kSkimOfInsertCard, Saved},
    {key::Control, L"UnPresentOfMoveCardManual", &C::m_bUnPresentOfMoveCardManual, 0,
     meaning::kUnPresentOfMoveCardManual, Saved},
    {key::Control, L"NeedResetOfRecoverSkimmerSt", &C::m_bNeedResetOfRecoverSkimmerSt, 0,
     meaning::kNeedResetOfRecoverSkimmerSt, Saved},
    {key::Control, L"IsUseSLE4442", &C::m_bIsUseSLE4442, 0, meaning::kIsUseSLE4442, Saved},
    {key::Control, L"ToReadPositionIfNoActionReset", &C::m_bToReadPositionIfNoActionReset, 0,
     meaning::kToReadPositionIfNoActionReset, Saved},
    {key::Control, L"TimeDelayOnline", &C::m_dwTimeDelayOnline, 0, meaning::kTimeDelayOnline, Saved},
    {key::Control, L"InitRelationEjectVolume", &C::m_dwInitRelationEjectVolume, 0,
     meaning::kInitRelationEjectVolume, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCardReaderRegInfo, CIDCRegInfo, kSettings)
