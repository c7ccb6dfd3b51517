#include "wqspcfg/models/crd/SpCRDWQACTF56100RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQACTF56100RegInfo;

namespace {

constexpr Key kRetainCardSet = key::Below(L"RetainCardSet");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    Group(Rows<kThreeBinRows>),
    {key::Control, L"ErrorCodeToHardwareError", &C::m_strErrorCodeToHardwareError, L"",
     L"error codes that are reported as a hardware error", Saved},
    {key::Control, L"ReturnHardErrWhenSuppBinMiss", &C::m_dwReturnHardErrWhenSuppBinMiss, 0,
     meaning::crd::kReturnHardErrWhenSuppBinMiss, OneOf},
    {key::Control, L"ChangeIDCStatusToBusy", &C::m_dwChangeIDCStatusToBusy, 0,
     meaning::crd::kChangeIDCStatusToBusy, OneOf},
    {key::Control, L"MoveTransPortToSuppBin1WhenRetain", &C::m_bMoveTransPortToSuppBin1WhenRetain, 0,
     L"retaining moves a card in the transport to supply bin 1: 0 no; nonzero yes", Saved},
    {key::Control, L"NeedSupportMediaLatched", &C::m_bNeedSupportMediaLatched, 0, meaning::kMediaLatched, Saved},
    {key::Control, L"LogicalNameOfIDCReader", &C::m_strLogicalNameOfIDCReader, L"",
     meaning::kLogicalNameOfIDCReader, Saved, RefersTo(Reference::LogicalService)},
    {key::Control, L"ShutterFailNeedRetainWhenEjectCard", &C::m_bShutterFailNeedRetainWhenEjectCard, 0,
     L"a card is retained when the shutter fails while ejecting it: 0 no; nonzero yes", Saved},
    {key::Control, L"CheckShutterOpenHwErr", &C::m_bCheckShutterOpenHwErr, 0,
     L"a hardware error of opening the shutter is checked: 0 no; nonzero yes", Saved},
    {key::Control, L"IsSupTEMPORARY", &C::m_bIsSupTEMPORARY, 0,
     L"temporary holding of cards is supported: 0 no; nonzero yes", Saved},
    {kRetainCardSet, L"NumRetainBin2",   &C::m_dwNumRetainBin2,   5, L"number of retain bin 2", Saved},
    {kRetainCardSet, L"RetainBin2Count", &C::m_dwRetainBin2Count, 0, L"count of retain bin 2", Saved},
    {kRetainCardSet, L"RetainBin2High", &C::m_dwRetainBin2High, 15,
     L"count at which retain bin 2 is nearly full", Saved},
    {kRetainCardSet, L"RetainBin2Full", &C::m_dwRetainBin2Full, 20, L"count at which retain bin 2 is full", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQACTF56100RegInfo, ThreeBinDispenser, kSettings)
