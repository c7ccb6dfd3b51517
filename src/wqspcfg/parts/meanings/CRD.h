// Texts that the card dispensers share.
#pragma once

namespace wqspcfg::meaning {

inline constexpr wchar_t kDispenseBin1[] = L"card-unit number of physical bin 1";
inline constexpr wchar_t kDispenseBin2[] = L"card-unit number of physical bin 2";
inline constexpr wchar_t kRetainBin[] = L"card-unit number of the retain bin";
inline constexpr wchar_t kMaxSupplyCard[] = L"capacity of a supply bin, in cards";
inline constexpr wchar_t kSupplyBinLow[] = L"count at which a supply bin is nearly empty";
inline constexpr wchar_t kRetainBinStatus[] =
    L"retain-bin status policy: 0 the XFS standard; 1 the agricultural bank's super-counter interface";
inline constexpr wchar_t kLogicalNameOfIDCReader[] =
    L"logical name of the card reader that the device opens through the XFS API; empty none";

} // namespace wqspcfg::meaning

namespace wqspcfg::meaning::crd {

inline constexpr wchar_t kApProtocolType[] = L"type of the application protocol";
inline constexpr wchar_t kSupplyBinCount[] = L"number of supply bins";
inline constexpr wchar_t kRetainBinCount[] = L"number of retain bins";
inline constexpr wchar_t kSupplyBinMax[] = L"count at which a supply bin is full";
inline constexpr wchar_t kTimesToTryWhenFail[] = L"number of attempts when an operation fails";
inline constexpr wchar_t kAllowResetWithRetainOnFull[] =
    L"a reset that retains is allowed while the retain bin is full: 0 no; nonzero yes";
inline constexpr wchar_t kAllowRetainOfRetainBinErr[] =
    L"retaining allowed while the retain bin is faulty: 0 no; nonzero yes";
inline constexpr wchar_t kMoveTransPortCardOptionWhenReset[] = L"where a card in the transport goes at a reset";
inline constexpr wchar_t kOpenOption[] = L"what happens to a card in the device when the SP opens";
inline constexpr wchar_t kPolicyOfExtraSuppBinST[] = L"policy of the extra supply-bin status";
inline constexpr wchar_t kResetAndAgain[] = L"the device is reset and the operation tried again: 0 no; nonzero yes";
inline constexpr wchar_t kMaxSendUkeyCount[] = L"largest number of USB keys to send";
inline constexpr wchar_t kAllowDisWithRetainBinPhyFull[] =
    L"dispensing allowed while the retain bin is physically full: 0 no; nonzero yes";
inline constexpr wchar_t kAllowDisWithRetainBinLogicFull[] =
    L"dispensing allowed while the retain bin is full by its logical count: 0 no; nonzero yes";
inline constexpr wchar_t kSupplyBinIniCount[] = L"initial count of a supply bin";
inline constexpr wchar_t kRetainBinNumber[] = L"number of the retain bin";
inline constexpr wchar_t kTreatyOfAp[] = L"protocol of the application";
inline constexpr wchar_t kDispenseTo[] = L"where a card is dispensed to";
inline constexpr wchar_t kReConnectSuccessOption[] =
    L"card in the reader after a successful reconnection: 0 eject; 1 retain; 2 leave";
inline constexpr wchar_t kDispenseAfterRetainBinFull[] =
    L"dispensing continues while the retain bin is full: 0 no; nonzero yes";
inline constexpr wchar_t kReturnHardErrWhenSuppBinMiss[] =
    L"a missing supply bin: 0 gives the real result; 1 is reported as a hardware error";
inline constexpr wchar_t kChangeIDCStatusToBusy[] =
    L"while dispensing through the card reader: 0 real states; 1 the reader is reported busy and the dispenser online";

} // namespace wqspcfg::meaning::crd
