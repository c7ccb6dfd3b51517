// The connection of a barcode reader at a real or virtual serial port.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

struct SerialBarcodeReader
{
    DWORD m_dwVirtualCom{};
    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
};

// clang-format off
template <class C>
inline constexpr Setting kSerialBarcodeReaderRows[] = {
    {key::Comm, L"VirtualCom", Of<C, &SerialBarcodeReader::m_dwVirtualCom>, 0,
     L"serial port: 0 real; 1 virtual", Saved, KeepWhenMissing, OneOf},
    {key::Comm, L"Type", Of<C, &SerialBarcodeReader::m_dwType>, 0,
     L"communication type: 0 serial; 1 USB", Saved, OneOf},
    {key::Comm, L"Port", Of<C, &SerialBarcodeReader::m_dwPort>,
     1, meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", Of<C, &SerialBarcodeReader::m_dwBaudRate>, 9600,
     meaning::kBaudRate, Saved, KeepWhenMissing},
};
// clang-format on

} // namespace wqspcfg
