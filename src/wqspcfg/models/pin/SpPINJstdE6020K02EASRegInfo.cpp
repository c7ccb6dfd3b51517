#include "wqspcfg/models/pin/SpPINJstdE6020K02EASRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPINJstdE6020K02EASRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kJstdKeypadRows<C>>),
    {key::Device, L"AtiveStillDown", &C::m_bAtiveStillDown, 0,
     L"a key that is held down is reported as an error: 0 no; 1 yes", Saved, OneOf},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600,
     meaning::kBaudRate, Saved},
    {key::Device, L"AtiveClearAndBaskSpaceOption", &C::m_dwAtiveClearAndBaskSpaceOption, 0,
     meaning::kClearAndBackspace, Saved, OneOf},
    {key::Device, L"PageUpAsXFSFK", &C::m_dwPageUpAsXFSFK, 0x00010000,
     L"XFS key that the page-up key stands for, by default WFS_PIN_FK_00", Saved, Format(L"0x%x")},
    {key::Device, L"PageDownAsXFSFK", &C::m_dwPageDownAsXFSFK, 0x00004000,
     L"XFS key that the page-down key stands for, by default WFS_PIN_FK_HELP", Saved, Format(L"0x%x")},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPINJstdE6020K02EASRegInfo, CPINRegInfo, kSettings)
