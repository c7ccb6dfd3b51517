// Settings that passbook printers share.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/models/shared/PassbookPrinter.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

// clang-format off
inline constexpr Setting kPassbookPageRows[] = {
    {key::Device, L"UsePrintLine", &PassbookPrinter::m_bUsePrintLine, 0,
     L"printing goes by line number: 0 no; nonzero yes", Saved},
    {key::Device, L"PageLen", &PassbookPrinter::m_dwPageLen, 0, L"length of a page; 0 as the form says", Saved},
    {key::Device, L"TopLen", &PassbookPrinter::m_dwTopLen, 0,
     L"length from the top of the page to the first line", Saved},
    {key::Device, L"BlankLen", &PassbookPrinter::m_dwBlankLen, 0,
     L"length of the blank in the middle of a page", Saved},
    {key::Device, L"FirstOverLen", &PassbookPrinter::m_dwFirstOverLen, 0,
     L"length by which the first page may be overrun", Saved},
    {key::Device, L"SecondOverLen", &PassbookPrinter::m_dwSecondOverLen, 0,
     L"length by which the second page may be overrun", Saved},
};
inline constexpr Setting kLinePassbookPrinterRows[] = {
    {key::Comm, L"Port", &LinePassbookPrinter::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &LinePassbookPrinter::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Device, L"InitCount", &LinePassbookPrinter::m_dwInitCount, 3,
     L"attempts to initialise the device", Saved},
    {key::Device, L"FontSize",   &LinePassbookPrinter::m_dwFontSize,   12, meaning::printer::kFontSize, Saved},
    {key::Device, L"LeftMargin", &LinePassbookPrinter::m_dwLeftMargin, 0,  meaning::printer::kLeftMargin, Saved},
    {key::Device, L"LineSpace",  &LinePassbookPrinter::m_dwLineSpace,  30, meaning::printer::kLineSpace, Saved},
    {key::Device, L"UseBlackFace", &LinePassbookPrinter::m_bUseBlackFace, 0,
     L"print in bold face: 0 no; nonzero yes", Saved},
    Group(Rows<kPassbookPageRows>),
};
// clang-format on

} // namespace wqspcfg
