// Settings that card dispensers share.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/models/shared/CardDispenserParts.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

// clang-format off
inline constexpr Setting kNumberedBinRows[] = {
    {key::Comm, L"Port", &NumberedBinDispenser::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &NumberedBinDispenser::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Control, L"RetainBinNumber", &NumberedBinDispenser::m_dwRetainBinNumber, 1,
     meaning::crd::kRetainBinNumber, Saved},
    {key::Control, L"RetainBin", &NumberedBinDispenser::m_dwRetainBin, 1, meaning::kRetainBin, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"SupplyBin1Number", &NumberedBinDispenser::m_dwSupplyBin1Number, 2,
     L"number of supply bin 1", Saved},
    {key::Control, L"DispenseBin1Number", &NumberedBinDispenser::m_dwDispenseBin1Number, 2,
     L"number of dispense bin 1", Saved},
};

inline constexpr Setting kTwoBinRows[] = {
    {key::Control, L"DispenseBin1",  &TwoBinDispenser::m_dwDispenseBin1,  2,   meaning::kDispenseBin1, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"DispenseBin2",  &TwoBinDispenser::m_dwDispenseBin2,  3,   meaning::kDispenseBin2, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"RetainBin",     &TwoBinDispenser::m_dwRetainBin,     1,   meaning::kRetainBin, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"MaxSupplyCard", &TwoBinDispenser::m_dwMaxSupplyCard, 100, meaning::kMaxSupplyCard, Saved},
    {key::Control, L"SupplyBinLow",  &TwoBinDispenser::m_dwSupplyBinLow,  5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"RetainBinStatus", &TwoBinDispenser::m_dwRetainBinStatus, 0,
     meaning::kRetainBinStatus, Saved, OneOf},
    {key::Control, L"NeedSupportMediaLatched", &TwoBinDispenser::m_bNeedSupportMediaLatched, 0,
     meaning::kMediaLatched, Saved},
    {key::Control, L"AllowDispenseOfRetainBinErr", &TwoBinDispenser::m_bAllowDispenseOfRetainBinErr, 0,
     L"dispensing allowed while the retain bin is faulty: 0 no; nonzero yes", Saved},
};

inline constexpr Setting kThreeBinRows[] = {
    {key::Control, L"PowerOnOption", &ThreeBinDispenser::m_dwPowerOnOption, 1, meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"CloseOption",   &ThreeBinDispenser::m_dwCloseOption,   2, meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"DispenseBin1",  &ThreeBinDispenser::m_dwDispenseBin1,  2, meaning::kDispenseBin1, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"DispenseBin2",  &ThreeBinDispenser::m_dwDispenseBin2,  3, meaning::kDispenseBin2, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"DispenseBin3", &ThreeBinDispenser::m_dwDispenseBin3, 4,
     L"card-unit number of physical bin 3", Saved, RefersTo(Reference::CardUnit)},
    {key::Control, L"RetainBin",     &ThreeBinDispenser::m_dwRetainBin,     1,   meaning::kRetainBin, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"MaxSupplyCard", &ThreeBinDispenser::m_dwMaxSupplyCard, 100, meaning::kMaxSupplyCard, Saved},
    {key::Control, L"SupplyBinLow",  &ThreeBinDispenser::m_dwSupplyBinLow,  5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"AllowRetainOfRetainBinErr", &ThreeBinDispenser::m_bAllowRetainOfRetainBinErr, 0,
     meaning::crd::kAllowRetainOfRetainBinErr, Saved},
    {key::Control, L"MoveTansPortCardOptionWhenRest", &ThreeBinDispenser::m_dwMoveTansPortCardOptionWhenRest, 1,
     meaning::crd::kMoveTransPortCardOptionWhenReset, Saved},
    {key::Control, L"MoveTansPortCardOptionWhenIDCDispense",
     &ThreeBinDispenser::m_dwMoveTansPortCardOptionWhenIDCDispense, 1,
     L"where a card in the transport goes when dispensing through the card reader", Saved},
};

template <class Base, class C = TLD1000Dispenser<Base>>
inline constexpr Setting kTLD1000LinkRows[] = {
    {key::Comm, L"Type", &C::m_dwType, 0, meaning::kNotDocumented, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",       &C::m_dwBaudRate,       9600, meaning::kBaudRate, Saved},
    {key::Control, L"PowerOffOption", &C::m_dwPowerOffOption, 0,    meaning::kPowerOffOption, OneOf},
    {key::Control, L"PowerOnOption",  &C::m_dwPowerOnOption,  1,    meaning::kPowerOnOption, Saved, OneOf},
};

template <class Base, class C = TLD1000Dispenser<Base>>
inline constexpr Setting kTLD1000CardRows[] = {
    {key::Control, L"SkimOfInsertCard",      &C::m_dwSkimOfInsertCard,      0, meaning::kSkimOfInsertCard, Saved},
    {key::Control, L"ZEntryOfInsertCard",    &C::m_dwZEntryOfInsertCard,    0, meaning::kNotDocumented, Saved},
    {key::Control, L"CheckModeOfInsertCard", &C::m_dwCheckModeOfInsertCard, 0, meaning::kNotDocumented, Saved},
    {key::Control, L"CheckMode",             &C::m_dwCheckMode,             0, meaning::kNotDocumented, Saved},
    {key::Control, L"ShutterActionOfInit", &C::m_dwShutterActionOfInit, 0,
     L"action of the shutter at initialisation", Saved},
    {key::Control, L"ConnectAfterHWError", &C::m_bConnectAfterHWError, 0,
     L"the connection is made again after a hardware error: 0 no; nonzero yes", Saved},
    {key::Control, L"CloseOption", &C::m_dwCloseOption, 2, meaning::kCloseOption, Saved, OneOf},
};
// clang-format on

} // namespace wqspcfg
