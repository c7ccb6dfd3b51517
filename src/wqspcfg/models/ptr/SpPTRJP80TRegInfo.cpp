#include "wqspcfg/models/ptr/SpPTRJP80TRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRJP80TRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,   L"Port",      &C::m_dwPort,       1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,   L"BautRate",  &C::m_dwBautRate,   9600, kBaudRate, Saved},
    {key::Comm,   L"HandShake", &C::m_bHandShake,   0,    L"handshake on the serial line: 0 no; nonzero yes", Saved},
    {key::Comm,   L"Indentity", &C::m_strIndentity, L"",  L"identity of the device; empty any", Saved},
    {key::Device, L"LineSpace", &C::m_dwLineSpace,  30,   printer::kLineSpace, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRJP80TRegInfo, CPTRRegInfo, kSettings)
