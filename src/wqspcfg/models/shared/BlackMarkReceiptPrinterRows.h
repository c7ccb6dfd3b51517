// Settings of the TM-U220 and POS1900 receipt printers.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/models/shared/BlackMarkReceiptPrinter.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

// clang-format off
inline constexpr Setting kBlackMarkReceiptPrinterRows[] = {
    {key::Comm, L"Port", &BlackMarkReceiptPrinter::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &BlackMarkReceiptPrinter::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Control, L"IsUseBlackMark", &BlackMarkReceiptPrinter::m_bIsUseBlackMark, 0,
     meaning::printer::kIsUseBlackMark, Saved},
    {key::Control, L"RawDataStyle", &BlackMarkReceiptPrinter::m_dwRawDataStyle, 0,
     meaning::printer::kRawDataStyle, Saved},
    {key::Control, L"LineSpace",   &BlackMarkReceiptPrinter::m_dwLineSpace,   30, meaning::printer::kLineSpace, Saved},
    {key::Control, L"LeftMargin",  &BlackMarkReceiptPrinter::m_dwLeftMargin,  0,  meaning::printer::kLeftMargin, Saved},
    {key::Control, L"CutPosition", &BlackMarkReceiptPrinter::m_dwCutPosition, 0,  meaning::printer::kCutPos, Saved},
    {key::Control, L"PrintPos", &BlackMarkReceiptPrinter::m_dwPrintPos, 0,
     L"position at which printing starts", Saved},
    {key::Control, L"EnCharSpace", &BlackMarkReceiptPrinter::m_dwEnCharSpace, 0,
     L"space between Latin characters", Saved},
    {key::Control, L"ChCharSpaceLeft", &BlackMarkReceiptPrinter::m_dwChCharSpaceLeft, 0,
     L"space to the left of Chinese characters", Saved},
    {key::Control, L"ChCharSpaceRight", &BlackMarkReceiptPrinter::m_dwChCharSpaceRight, 0,
     L"space to the right of Chinese characters", Saved},
    {key::Control, L"PrintTimeOut", &BlackMarkReceiptPrinter::m_dwPrintTimeOut, 30,
     L"time-out of printing in s", Saved},
};
// clang-format on

} // namespace wqspcfg
