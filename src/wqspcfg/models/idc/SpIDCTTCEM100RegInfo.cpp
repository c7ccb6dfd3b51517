#include "wqspcfg/models/idc/SpIDCTTCEM100RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCTTCEM100RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Control, L"PolicyOfSetMediaEntering", &C::m_dwPolicyOfSetMediaEntering, 0,
     meaning::kPolicyOfSetMediaEntering, Saved},
    {key::Control, L"SkimOfInsertCard", &C::m_dwSkimOfInsertCard, 0, meaning::kSkimOfInsertCard, Saved},
    {key::Control, L"PowerOffOption",   &C::m_dwPowerOffOption,   0, meaning::kPowerOffOption, OneOf},
    {key::Control, L"PowerOnOption",    &C::m_dwPowerOnOption,    1, meaning::kPowerOnOption, Saved, OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCTTCEM100RegInfo, CIDCRegInfo, kSettings)
