#include "wqspcfg/models/ptr/SpPTRWQRID100RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using C = CSpPTRWQRID100RegInfo;

namespace {

constexpr Key kSim = key::Below(L"Sim");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"MaxRetainCount",           &C::m_dwMaxRetainCount,          100, meaning::printer::kMaxRetainCount, Saved},
    {key::Device, L"HighRetainCount",          &C::m_dwHighRetainCount,         90,  meaning::printer::kHighRetainCount, Saved},
    {key::Device, L"Thickness",                &C::m_dwThickness,               30,  meaning::printer::kThickness, Saved},
    {key::Device, L"AllOffsetX",               &C::m_dwAllOffsetX,              0,   meaning::printer::kAllOffsetX, Saved},
    {key::Device, L"AllOffsetY",               &C::m_dwAllOffsetY,              0,   meaning::printer::kAllOffsetY, Saved},
    {key::Device, L"LineSpace",                &C::m_dwLineSpace,               30,  meaning::printer::kLineSpace, Saved},
    {key::Device, L"FieldsPrintAsText",        &C::m_strFieldsPrintAsText,      L"", meaning::printer::kFieldsPrintAsText, Saved},
    {key::Comm,   L"RFIDPort",                 &C::m_dwRFIDPort,                1,   meaning::printer::kRFIDPort, Saved},
    {key::Device, L"PowerOnOption",            &C::m_dwPowerOnOption,           1,   meaning::printer::kPowerOnOption, Saved, OneOf},
    {key::Device, L"PowerOffOption",           &C::m_dwPowerOffOption,          0,   meaning::printer::kPowerOffOption, Saved, OneOf},
    {key::Device, L"WaitEnteringAfterEject",   &C::m_dwWaitEnteringAfterEject,  5,   meaning::printer::kWaitEnteringAfterEject, Saved},
    {key::Device, L"WaitMNPAfterRetract",      &C::m_dwWaitMNPAfterRetract,     5,   meaning::printer::kWaitMNPAfterRetract, Saved},
    {key::Device, L"WaitMPAfterDispense",      &C::m_dwWaitMPAfterDispense,     5,   meaning::printer::kWaitMPAfterDispense, Saved},
    {key::Device, L"ResetMode",                &C::m_dwResetMode,               1,   meaning::printer::kResetMode, Saved, OneOf},
    {key::Device, L"WaitMediaTakenTime",       &C::m_dwWaitMediaTakenTime,      3,   meaning::printer::kWaitMediaTakenTime, Saved},
    {key::Device, L"TextRotate",               &C::m_dwTextRotate,              0,   meaning::printer::kTextRotate, Saved, OneOf},
    {key::Device, L"PicRotate",                &C::m_dwPicRotate,               0,   meaning::printer::kPicRotate, Saved, OneOf},
    {key::Device, L"BlackColorRangeMax",       &C::m_dwBlackColorRangeMax,      128, meaning::printer::kBlackColorRangeMax, Saved, Range(0, 255)},
    {key::Device, L"MustBeBoldWhenDoubleHigh", &C::m_bMustBeBoldWhenDoubleHigh, 0,   meaning::printer::kMustBeBoldWhenDoubleHigh, Saved, OneOf},
    {key::Device, L"TryScanCount",             &C::m_dwTryScanCount,            3,   meaning::printer::kTryScanCount, Saved},
    {key::Device, L"MaxPaperCount",            &C::m_dwMaxPaperCount,           500, meaning::printer::kMaxPaperCount, Saved},
    {key::Device, L"HighPaperCount",           &C::m_dwHighPaperCount,          450, meaning::printer::kHighPaperCount, Saved},
    {key::Device, L"CompareCheckStartNo",      &C::m_bCompareCheckStartNo,      0,   meaning::printer::kCompareCheckStartNo, Saved, OneOf},
    {key::Device, L"PrintTwoDimCodePic",       &C::m_bPrintTwoDimCodePic,       0,   meaning::printer::kPrintTwoDimCodePic, Saved, OneOf},
    {key::Device, L"SizeofQRCode",             &C::m_dwSizeofQRCode,            100, meaning::printer::kSizeofQRCode, Saved},
    {key::Device, L"PrintMagCode",             &C::m_dwPrintMagCode,            0,   meaning::printer::kPrintMagCode, Saved, OneOf},
    {key::Device, L"WhichBoxActive",           &C::m_dwWhichBoxActive,          1,   meaning::printer::kWhichBoxActive, Saved, OneOf},
    {key::Device, L"SaveImageTime",            &C::m_dwSaveImageTime,           30,  meaning::printer::kSaveImageTime, Saved, Range(0, 90)},
    {key::Device, L"SupplyBinCount",           &C::m_dwSupplyBinCount,          2,   meaning::printer::kSupplyBinCount, Saved, OneOf},
    {key::Device, L"PaperCount",               &C::m_dwPaperCount,              0,   L"tickets left in the supply bin in use", Saved},
    {key::Device, L"PhotoPath",                &C::m_strPhotoPath,              L"", meaning::printer::kPhotoPath, Saved},
    {key::Device, L"RawDataPrintTextAsBmp",    &C::m_bRawDataPrintTextAsBmp,    0,   meaning::printer::kRawDataPrintTextAsBmp, Saved, OneOf},
};

constexpr Setting kSimulation[] = {
    {kSim, L"SimCheckNo",  &C::m_strSimCheckNo,  L"", meaning::printer::kSimCheckNo},
    {kSim, L"SimRFIDData", &C::m_strSimRFIDData, L"", meaning::printer::kSimRFIDData},
};
constexpr OperationSettings kOnRequest[] = {{L"LoadSimData", L"", kSimulation}};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRWQRID100RegInfo, CPTRRegInfo, kSettings, {}, kOnRequest)

void CSpPTRWQRID100RegInfo::LoadSimData(CLog* pLog)
{
    Loading(*this, pLog).Read(Settings(), kSimulation);
}
