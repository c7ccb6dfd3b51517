#include "wqspcfg/models/crd/SpCRDACTF55540RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDACTF55540RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port5540",     &C::m_dwPort5540,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate5540", &C::m_dwBaudRate5540, 9600, meaning::kBaudRate, Saved},
    Group(Rows<kThreeBinRows>),
    {key::Control, L"NeedSupportMediaLatched", &C::m_bNeedSupportMediaLatched, 0, meaning::kMediaLatched, Saved},
    {key::Control, L"LogicalNameOfIDCReader", &C::m_strLogicalNameOfIDCReader, L"",
     meaning::kLogicalNameOfIDCReader, Saved, RefersTo(Reference::LogicalService)},
    {key::Control, L"SendBin1Param", &C::m_dwSendBin1Param, 0, L"parameter for sending a card from bin 1", Saved},
    {key::Control, L"SendBin2Param", &C::m_dwSendBin2Param, 0, L"parameter for sending a card from bin 2", Saved},
    {key::Control, L"WaitDispenseCardTime", &C::m_dwWaitDispenseCardTime, 30,
     L"time to wait for a card to be dispensed, in seconds", Saved},
    {key::Control, L"CanCacelOrTimeOutAfterDispense", &C::m_bCanCacelOrTimeOutAfterDispense, 0,
     L"the command can be cancelled or time out after the dispense: 0 no; nonzero yes", Saved},
    {key::Control, L"WaitBackInsertTime", &C::m_dwWaitBackInsertTime, 30,
     L"time to wait for the insertion from the back, in seconds", Saved},
    {key::Control, L"SendBin1CardAgainTime", &C::m_dwSendBin1CardAgainTime, 5,
     L"time until a card is sent from bin 1 again, in seconds", Saved},
    {key::Control, L"SendBin2CardAgainTime", &C::m_dwSendBin2CardAgainTime, 5,
     L"time until a card is sent from bin 2 again, in seconds", Saved},
    {key::Control, L"CardHookPosition", &C::m_dwCardHookPosition, 0, L"position of the card hook", Saved},
    {key::Control, L"RetainBinStatus",  &C::m_dwRetainBinStatus,  0, meaning::kRetainBinStatus, Saved, OneOf},
    {key::Control, L"AfterDispensBin1WaitTime", &C::m_dwAfterDispensBin1WaitTime, 0,
     L"time to wait after a dispense from bin 1, in seconds", Saved},
    {key::Control, L"AfterDispensBin2WaitTime", &C::m_dwAfterDispensBin2WaitTime, 0,
     L"time to wait after a dispense from bin 2, in seconds", Saved},
    {key::Control, L"UseLogicCountOfRetainBinPhyFull", &C::m_bUseLogicCountOfRetainBinPhyFull, 0,
     L"a physically full retain bin is judged from the logical count: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDACTF55540RegInfo, ThreeBinDispenser, kSettings)
