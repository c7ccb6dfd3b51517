#include "wqspcfg/models/ttu/SpTTUVirtualRegInfo.h"

using namespace wqspcfg;
using C = CSpTTUVirtualRegInfo;

namespace {

constexpr Key kFdk = key::Below(L"FDK\\FDK%d");

// clang-format off
constexpr Setting kButtonRows[] = {
    {kFdk, L"Enabled", Element<&C::m_arFdkButton, &FdkButton::m_bEnabled>,
     1, L"the function-key button is shown and can be pressed: 0 no; nonzero yes", Saved, Label(L"FDK%d\\Enabled")},
    {kFdk, L"Text", Element<&C::m_arFdkButton, &FdkButton::m_strText>,
     L"", L"text on the function-key button; empty shows its number", Saved, Label(L"FDK%d\\Text")},
};
constexpr Setting kSettings[] = {
    Group(Rows<kTextTerminalRows<C>>),
    Repeat(1, C::kFdkButtons, Rows<kButtonRows>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpTTUVirtualRegInfo, CTTURegInfo, kSettings)
