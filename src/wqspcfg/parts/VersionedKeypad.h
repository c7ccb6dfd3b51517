// What the keypads have in common whose behaviour depends on their version.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

struct VersionedKeypad
{
    DWORD m_dwPort{};
    DWORD m_dwHardware{};
    bool m_bEnableBackSpace{};
    bool m_bBackspaceToHelp{};
    DWORD m_dwUseDesignatedName{};
    DWORD m_dwReportErrOnPressMultiKey{};
    DWORD m_dwMaxEnDeCryptBlockLen{};
    DWORD m_dwKeyPressInteval{};
    DWORD m_dwReportLongKeyPressErr{};
    DWORD m_dwFindRegKeyIndexByUse{};
    DWORD m_dwMinPinLength{};
};

// clang-format off
template <class C>
inline constexpr Setting kVersionedKeypadRows[] = {
    {key::Comm, L"Port", Of<C, &VersionedKeypad::m_dwPort>,
     1, meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Device, L"Hardware",        Of<C, &VersionedKeypad::m_dwHardware>,       0, meaning::kHardware, Saved},
    {key::Device, L"EnableBackSpace", Of<C, &VersionedKeypad::m_bEnableBackSpace>, 0, meaning::kEnableBackSpace, Saved},
    {key::Device, L"BackspaceToHelp", Of<C, &VersionedKeypad::m_bBackspaceToHelp>, 0,
     meaning::kBackspaceToHelp, Saved, OneOf},
    {key::Device, L"UseDesignatedName", Of<C, &VersionedKeypad::m_dwUseDesignatedName>, 0,
     meaning::kUseDesignatedName, Saved, OneOf},
    {key::Device, L"ReportErrOnPressMultiKey", Of<C, &VersionedKeypad::m_dwReportErrOnPressMultiKey>, 0,
     meaning::kReportErrOnPressMultiKey, Saved, OneOf},
    {key::Device, L"MaxEnDeCryptBlockLen", Of<C, &VersionedKeypad::m_dwMaxEnDeCryptBlockLen>, 0,
     meaning::kMaxEnDeCryptBlockLen, Saved},
    {key::Device, L"KeyPressInteval", Of<C, &VersionedKeypad::m_dwKeyPressInteval>, 3,
     meaning::kKeyPressInteval, Saved},
    {key::Device, L"ReportLongKeyPressErr", Of<C, &VersionedKeypad::m_dwReportLongKeyPressErr>, 0,
     meaning::kReportLongKeyPressErr, Saved},
    {key::Device, L"FindRegKeyIndexByUse", Of<C, &VersionedKeypad::m_dwFindRegKeyIndexByUse>, 0,
     meaning::kFindRegKeyIndexByUse, Saved},
    {key::Device, L"MinPinLength", Of<C, &VersionedKeypad::m_dwMinPinLength>, 4, meaning::kMinPinLength, Saved},
};
// clang-format on

} // namespace wqspcfg
