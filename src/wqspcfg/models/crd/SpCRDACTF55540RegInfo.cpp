#include "wqspcfg/models/crd/SpCRDACTF55540RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDACTF55540RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port5540",                              &C::m_dwPort5540,                              1,    meaning::kPort, Saved},
    {key::Comm,    L"BaudRate5540",                          &C::m_dwBaudRate5540,                          9600, meaning::kBaudRate, Saved},
    {key::Control, L"PowerOnOption",                         &C::m_dwPowerOnOption,                         1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"CloseOption",                           &C::m_dwCloseOption,                           2,    meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"DispenseBin1",                          &C::m_dwDispenseBin1,                          2,    meaning::kDispenseBin1, Saved},
    {key::Control, L"DispenseBin2",                          &C::m_dwDispenseBin2,                          3,    meaning::kDispenseBin2, Saved},
    {key::Control, L"DispenseBin3",                          &C::m_dwDispenseBin3,                          4,    meaning::crd::kDispenseBin3, Saved},
    {key::Control, L"RetainBin",                             &C::m_dwRetainBin,                             1,    meaning::kRetainBin, Saved},
    {key::Control, L"MaxSupplyCard",                         &C::m_dwMaxSupplyCard,                         100,  meaning::kMaxSupplyCard, Saved},
    {key::Control, L"SupplyBinLow",                          &C::m_dwSupplyBinLow,                          5,    meaning::kSupplyBinLow, Saved},
    {key::Control, L"AllowRetainOfRetainBinErr",             &C::m_bAllowRetainOfRetainBinErr,              0,    meaning::crd::kAllowRetainOfRetainBinErr, Saved},
    {key::Control, L"MoveTansPortCardOptionWhenRest",        &C::m_dwMoveTansPortCardOptionWhenRest,        1,    meaning::crd::kMoveTransPortCardOptionWhenReset, Saved},
    {key::Control, L"MoveTansPortCardOptionWhenIDCDispense", &C::m_dwMoveTansPortCardOptionWhenIDCDispense, 1,    meaning::crd::kMoveTransPortCardOptionWhenIDCDispense, Saved},
    {key::Control, L"NeedSupportMediaLatched",               &C::m_bNeedSupportMediaLatched,                0,    meaning::kMediaLatched, Saved},
    {key::Control, L"LogicalNameOfIDCReader",                &C::m_strLogicalNameOfIDCReader,               L"",  meaning::kLogicalNameOfIDCReader, Saved},
    {key::Control, L"SendBin1Param",                         &C::m_dwSendBin1Param,                         0,    L"parameter for sending a card from bin 1", Saved},
    {key::Control, L"SendBin2Param",                         &C::m_dwSendBin2Param,                         0,    L"parameter for sending a card from bin 2", Saved},
    {key::Control, L"WaitDispenseCardTime",                  &C::m_dwWaitDispenseCardTime,                  30,   L"time to wait for a card to be dispensed, in seconds", Saved},
    {key::Control, L"CanCacelOrTimeOutAfterDispense",        &C::m_bCanCacelOrTimeOutAfterDispense,         0,    L"the command can be cancelled or time out after the dispense: 0 no; nonzero yes", Saved},
    {key::Control, L"WaitBackInsertTime",                    &C::m_dwWaitBackInsertTime,                    30,   L"time to wait for the insertion from the back, in seconds", Saved},
    {key::Control, L"SendBin1CardAgainTime",                 &C::m_dwSendBin1CardAgainTime,                 5,    L"time until a card is sent from bin 1 again, in seconds", Saved},
    {key::Control, L"SendBin2CardAgainTime",                 &C::m_dwSendBin2CardAgainTime,                 5,    L"time until a card is sent from bin 2 again, in seconds", Saved},
    {key::Control, L"CardHookPosition",                      &C::m_dwCardHookPosition,                      0,    L"position of the card hook", Saved},
    {key::Control, L"RetainBinStatus",                       &C::m_dwRetainBinStatus,                       0,    meaning::kRetainBinStatus, Saved, OneOf},
    {key::Control, L"AfterDispensBin1WaitTime",              &C::m_dwAfterDispensBin1WaitTime,              0,    L"time to wait after a dispense from bin 1, in seconds", Saved},
    {key::Control, L"AfterDispensBin2WaitTime",              &C::m_dwAfterDispensBin2WaitTime,              0,    L"time to wait after a dispense from bin 2, in seconds", Saved},
    {key::Control, L"UseLogicCountOfRetainBinPhyFull",       &C::m_bUseLogicCountOfRetainBinPhyFull,        0,    L"a physically full retain bin is judged from the logical count: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDACTF55540RegInfo, CCRDRegInfo, kSettings)
