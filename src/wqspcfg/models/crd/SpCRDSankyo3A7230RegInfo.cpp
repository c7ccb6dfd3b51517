#include "wqspcfg/models/crd/SpCRDSankyo3A7230RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDSankyo3A7230RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Type", &C::m_dwType, 0, meaning::kNotDocumented, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",         &C::m_dwBaudRate,         9600, meaning::kBaudRate, Saved},
    {key::Control, L"PowerOffOption",   &C::m_dwPowerOffOption,   0,    meaning::kPowerOffOption, OneOf},
    {key::Control, L"PowerOnOption",    &C::m_dwPowerOnOption,    1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"SkimOfInsertCard", &C::m_dwSkimOfInsertCard, 0,    meaning::kSkimOfInsertCard, Saved},
    {key::Control, L"NeedSupportMediaLatched", &C::m_bNeedSupportMediaLatched, 0,
     meaning::kMediaLatched, Saved, Preloaded},
    {key::Control, L"IDCRetainBinStatus", &C::m_dwIDCRetainBinStatus, 0,
     L"retain-bin status policy of the card reader", Saved},
    {key::Control, L"ISCRetainBinStatus", &C::m_dwISCRetainBinStatus, 0,
     L"retain-bin status policy of the issuing unit", Saved},
    {key::Control, L"ISCPowerOffOption", &C::m_dwISCPowerOffOption, 0,
     L"card in the issuing unit at power loss", Saved},
    {key::Control, L"ISCPowerOnOption", &C::m_dwISCPowerOnOption, 0,
     L"card in the issuing unit at initialisation", Saved},
    {key::Control, L"InitBeforeDispenseCard", &C::m_bInitBeforeDispenseCard, 0,
     L"the device is initialised before a card is dispensed: 0 no; nonzero yes", Saved},
    {key::Control, L"InitBeforeReadCard", &C::m_bInitBeforeReadCard, 0,
     L"the device is initialised before a card is read: 0 no; nonzero yes", Saved},
    {key::Control, L"DevType", &C::m_dwDevType, 0, meaning::kNotDocumented, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDSankyo3A7230RegInfo, CIDCRegInfo, kSettings)
