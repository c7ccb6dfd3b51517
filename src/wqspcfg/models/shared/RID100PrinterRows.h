// Settings of the RID100 ticket printer.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/models/shared/RID100Printer.h"
#include "wqspcfg/parts/meanings/PTR.h"

namespace wqspcfg {

// clang-format off
inline constexpr Setting kRID100Rows[] = {
    {key::Device, L"MaxRetainCount", &RID100Printer::m_dwMaxRetainCount, 100, meaning::printer::kMaxRetainCount, Saved},
    {key::Device, L"HighRetainCount", &RID100Printer::m_dwHighRetainCount, 90,
     meaning::printer::kHighRetainCount, Saved},
    {key::Device, L"Thickness",  &RID100Printer::m_dwThickness,  30, L"print density", Saved},
    {key::Device, L"AllOffsetX", &RID100Printer::m_dwAllOffsetX, 0,  L"horizontal offset of all form nodes", Saved},
    {key::Device, L"AllOffsetY", &RID100Printer::m_dwAllOffsetY, 0,  L"vertical offset of all form nodes", Saved},
    {key::Device, L"LineSpace",  &RID100Printer::m_dwLineSpace,  30, meaning::printer::kLineSpace, Saved},
    {key::Device, L"FieldsPrintAsText", &RID100Printer::m_strFieldsPrintAsText, L"",
     L"the form fields printed as text, separated by \";\"; all others are printed as images", Saved},
    {key::Comm, L"RFIDPort", &RID100Printer::m_dwRFIDPort, 1,
     meaning::printer::kRFIDPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Device, L"PowerOnOption", &RID100Printer::m_dwPowerOnOption, 1,
     meaning::printer::kPowerOnOption, Saved, OneOf},
    {key::Device, L"PowerOffOption", &RID100Printer::m_dwPowerOffOption, 0,
     L"action at power off: 0 none; 1 eject the media; 2 retract them", Saved, OneOf},
    {key::Device, L"WaitEnteringAfterEject", &RID100Printer::m_dwWaitEnteringAfterEject, 5,
     L"seconds to wait, after eject and opening the slot, for the exit to report entering", Saved},
    {key::Device, L"WaitMNPAfterRetract", &RID100Printer::m_dwWaitMNPAfterRetract, 5,
     L"seconds to wait after a successful retract for media not present", Saved},
    {key::Device, L"WaitMPAfterDispense", &RID100Printer::m_dwWaitMPAfterDispense, 5,
     L"seconds to wait after a successful dispense for media present", Saved},
    {key::Device, L"ResetMode", &RID100Printer::m_dwResetMode, 1,
     L"0 software reset without action; 1 soft reset that clears the path; 2 the device must be restarted after a "
     L"successful reset", Saved, OneOf},
    {key::Device, L"WaitMediaTakenTime", &RID100Printer::m_dwWaitMediaTakenTime, 3,
     meaning::printer::kWaitMediaTakenTime, Saved},
    {key::Device, L"TextRotate", &RID100Printer::m_dwTextRotate, 0,
     L"rotation of printed text in degrees: 0, 90, 180 or 270", Saved, OneOf},
    {key::Device, L"PicRotate", &RID100Printer::m_dwPicRotate, 0,
     L"rotation of printed pictures in degrees: 0, 90, 180 or 270", Saved, OneOf},
    {key::Device, L"BlackColorRangeMax", &RID100Printer::m_dwBlackColorRangeMax, 128,
     meaning::printer::kBlackColorRangeMax, Saved, Range(0, 255)},
    {key::Device, L"MustBeBoldWhenDoubleHigh", &RID100Printer::m_bMustBeBoldWhenDoubleHigh, 0,
     L"double height always prints bold: 0 no; 1 yes", Saved, OneOf},
    {key::Device, L"TryScanCount", &RID100Printer::m_dwTryScanCount, 3,
     L"attempts to scan the front and back images", Saved},
    {key::Device, L"MaxPaperCount", &RID100Printer::m_dwMaxPaperCount, 500,
     L"maximum number of tickets in the supply bin", Saved},
    {key::Device, L"HighPaperCount", &RID100Printer::m_dwHighPaperCount, 450,
     L"number at which the supply bin counts as nearly full", Saved},
    {key::Device, L"CompareCheckStartNo", &RID100Printer::m_bCompareCheckStartNo, 0,
     L"compare the starting ticket number given by the application while printing: 0 no; 1 yes", Saved, OneOf},
    {key::Device, L"PrintTwoDimCodePic", &RID100Printer::m_bPrintTwoDimCodePic, 0,
     L"print a two-dimensional code: 0 no; 1 yes", Saved, OneOf},
    {key::Device, L"SizeofQRCode", &RID100Printer::m_dwSizeofQRCode, 100, L"size of the two-dimensional code", Saved},
    {key::Device, L"PrintMagCode", &RID100Printer::m_dwPrintMagCode, 0,
     L"print the magnetic code: 0 no; 1 as a picture; 2 as text", Saved, OneOf},
    {key::Device, L"WhichBoxActive", &RID100Printer::m_dwWhichBoxActive, 1,
     L"the active supply bin: 1, 2 or 3", Saved, OneOf},
    {key::Device, L"SaveImageTime", &RID100Printer::m_dwSaveImageTime, 30,
     meaning::printer::kSaveImageTime, Saved, Range(0, 90)},
    {key::Device, L"SupplyBinCount", &RID100Printer::m_dwSupplyBinCount, 2,
     L"number of supply bins: 2 new device; 3 old device", Saved, OneOf},
    {key::Device, L"PaperCount", &RID100Printer::m_dwPaperCount, 0, L"tickets left in the supply bin in use", Saved},
    {key::Device, L"PhotoPath", &RID100Printer::m_strPhotoPath, L"",
     L"folder of the photos taken for character recognition", Saved, RefersTo(Reference::Directory)},
    {key::Device, L"RawDataPrintTextAsBmp", &RID100Printer::m_bRawDataPrintTextAsBmp, 0,
     L"raw-data printing prints plain text as a picture: 0 no; 1 yes", Saved, OneOf},
};
inline constexpr Key kSim = key::Below(L"Sim");
inline constexpr Setting kRID100SimulationRows[] = {
    {kSim, L"SimCheckNo",  &RID100Printer::m_strSimCheckNo,  L"", L"ticket number to simulate"},
    {kSim, L"SimRFIDData", &RID100Printer::m_strSimRFIDData, L"", L"RFID data to simulate"},
};
// clang-format on

} // namespace wqspcfg
