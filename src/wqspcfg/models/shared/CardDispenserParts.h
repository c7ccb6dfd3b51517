#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

namespace wqspcfg {

// Dispensers whose bins are numbered twice, as supply or retain bins and as card units.
class WQSPCFG_API NumberedBinDispenser : public CCRDRegInfo
{
  public:
    using CCRDRegInfo::CCRDRegInfo;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwRetainBinNumber{};
    DWORD m_dwRetainBin{};
    DWORD m_dwSupplyBin1Number{};
    DWORD m_dwDispenseBin1Number{};
};

// Dispensers with two supply bins and a retain bin.
class WQSPCFG_API TwoBinDispenser : public CCRDRegInfo
{
  public:
    using CCRDRegInfo::CCRDRegInfo;

    DWORD m_dwDispenseBin1{};
    DWORD m_dwDispenseBin2{};
    DWORD m_dwRetainBin{};
    DWORD m_dwMaxSupplyCard{};
    DWORD m_dwSupplyBinLow{};
    DWORD m_dwRetainBinStatus{};
    bool m_bNeedSupportMediaLatched{};
    bool m_bAllowDispenseOfRetainBinErr{};
};

// Dispensers with three supply bins, a retain bin and a transport to a card reader.
class WQSPCFG_API ThreeBinDispenser : public CCRDRegInfo
{
  public:
    using CCRDRegInfo::CCRDRegInfo;

    DWORD m_dwPowerOnOption{};
    DWORD m_dwCloseOption{};
    DWORD m_dwDispenseBin1{};
    DWORD m_dwDispenseBin2{};
    DWORD m_dwDispenseBin3{};
    DWORD m_dwRetainBin{};
    DWORD m_dwMaxSupplyCard{};
    DWORD m_dwSupplyBinLow{};
    bool m_bAllowRetainOfRetainBinErr{};
    DWORD m_dwMoveTansPortCardOptionWhenRest{};
    DWORD m_dwMoveTansPortCardOptionWhenIDCDispense{};
};

// The TLD1000 card dispenser, served as a card reader or as a card dispenser.
template <class Base>
class TLD1000Dispenser : public Base
{
  public:
    using Base::Base;

    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwSkimOfInsertCard{};
    DWORD m_dwZEntryOfInsertCard{};
    DWORD m_dwCheckModeOfInsertCard{};
    DWORD m_dwCheckMode{};
    DWORD m_dwShutterActionOfInit{};
    bool m_bConnectAfterHWError{};
    DWORD m_dwCloseOption{};
};

} // namespace wqspcfg
