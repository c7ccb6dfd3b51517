#include "wqspcfg/models/crd/SpCRDWQACTF55340RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQACTF55340RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",      &C::m_dwBaudRate,      9600, meaning::kBaudRate, Saved},
    {key::Control, L"PowerOnOption", &C::m_dwPowerOnOption, 1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"CloseOption",   &C::m_dwCloseOption,   2,    meaning::kCloseOption, Saved, OneOf},
    Group(Rows<kTwoBinRows>),
    {key::Control, L"ReConnectSuccessOption", &C::m_dwReConnectSuccessOption, 2,
     meaning::crd::kReConnectSuccessOption, Saved, OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQACTF55340RegInfo, TwoBinDispenser, kSettings)
