#include "wqspcfg/models/crd/SpCRDPrdUkeyRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDPrdUkeyRegInfo;

namespace {

constexpr Key kAction = key::Below(L"Action");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.UKEY_MOTOR", &C::m_strDN_UKEY_MOTOR, L"",
     L"the vendor's device name of the USB-key dispenser", Saved},
    {kAction,      L"PowerOnOption",      &C::m_dwPowerOnOption,      1, meaning::kPowerOnOption, Saved, OneOf},
    {kAction,      L"PowerOffOption",     &C::m_dwPowerOffOption,     0, meaning::kPowerOffOption, OneOf},
    {kAction,      L"OpenOption",         &C::m_dwOpenOption,         0, meaning::crd::kOpenOption, Saved},
    {key::Control, L"TimesToTryWhenFail", &C::m_dwTimesToTryWhenFail, 3, meaning::crd::kTimesToTryWhenFail, Saved},
    {key::Control, L"IDCCompound", &C::m_bIDCCompound, 0,
     L"the device is combined with a card reader: 0 no; nonzero yes", Saved},
    {key::Control, L"ReadBarCodeCmd", &C::m_strReadBarCodeCmd, L"", L"command that reads a barcode", Saved},
    {key::Control, L"RDataTrack3", &C::m_bRDataTrack3, 0,
     L"raw data of track 3 are read: 0 no; nonzero yes", Saved},
    {key::Control, L"IssueUkeyCmd", &C::m_strIssueUkeyCmd, L"", L"command that issues a USB key", Saved},
    {key::Control, L"RetainHighToOkStatus", &C::m_bRetainHighToOkStatus, 0,
     L"a nearly full retain bin is reported as good: 0 no; nonzero yes", Saved},
    {key::Control, L"RawDataNullToTrack1", &C::m_bRawDataNullToTrack1, 0,
     L"empty raw data are given as track 1: 0 no; nonzero yes", Saved},
    {key::Control, L"WriteDataFrontToTrack1", &C::m_bWriteDataFrontToTrack1, 0,
     L"written data are put in front of track 1: 0 no; nonzero yes", Saved},
    {key::Control, L"PreDispenseUkeyType", &C::m_dwPreDispenseUkeyType, 0,
     L"type of the USB key dispensed in advance", Saved},
    {key::Control, L"PolicyOfExtraSuppBinST", &C::m_dwPolicyOfExtraSuppBinST, 0,
     meaning::crd::kPolicyOfExtraSuppBinST, Saved},
    {key::Control, L"ResetAndAganin",   &C::m_bResetAndAganin,    0, meaning::crd::kResetAndAgain, Saved},
    {key::Control, L"MaxSendUkeyCount", &C::m_dwMaxSendUkeyCount, 1, meaning::crd::kMaxSendUkeyCount, Saved},
    {key::Control, L"AllowDisWithRetainBinPhyFull", &C::m_bAllowDisWithRetainBinPhyFull, 0,
     meaning::crd::kAllowDisWithRetainBinPhyFull, Saved},
    {key::Control, L"AllowDisWithRetainBinLogicFull", &C::m_bAllowDisWithRetainBinLogicFull, 0,
     meaning::crd::kAllowDisWithRetainBinLogicFull, Saved},
    {key::Control, L"AllowDisWithCountLogicEmpty", &C::m_bAllowDisWithCountLogicEmpty, 0,
     L"dispensing allowed while a supply bin is empty by its logical count: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDPrdUkeyRegInfo, CCRDRegInfo, kSettings)
