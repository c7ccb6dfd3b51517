// The system parameters of the SM2 elliptic curve.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/parts/meanings/PIN.h"

namespace wqspcfg {

struct EllipseParameters
{
    CString m_strEllipseParamP;
    CString m_strEllipseParamA;
    CString m_strEllipseParamB;
    CString m_strEllipseParamN;
    CString m_strEllipseParamXg;
    CString m_strEllipseParamYg;
};

inline constexpr Key kSM2Paramete = key::Below(L"SM\\SM2Paramete");

// clang-format off
template <class C>
inline constexpr Setting kEllipseRows[] = {
    {kSM2Paramete, L"EllipseParamP", Of<C, &EllipseParameters::m_strEllipseParamP>, L"",
     meaning::kEllipseParamP, Saved},
    {kSM2Paramete, L"EllipseParamA", Of<C, &EllipseParameters::m_strEllipseParamA>, L"",
     meaning::kEllipseParamA, Saved},
    {kSM2Paramete, L"EllipseParamB", Of<C, &EllipseParameters::m_strEllipseParamB>, L"",
     meaning::kEllipseParamB, Saved},
    {kSM2Paramete, L"EllipseParamN", Of<C, &EllipseParameters::m_strEllipseParamN>, L"",
     meaning::kEllipseParamN, Saved},
    {kSM2Paramete, L"EllipseParamXg", Of<C, &EllipseParameters::m_strEllipseParamXg>, L"",
     meaning::kEllipseParamXg, Saved},
    {kSM2Paramete, L"EllipseParamYg", Of<C, &EllipseParameters::m_strEllipseParamYg>, L"",
     meaning::kEllipseParamYg, Saved},
};
// clang-format on

} // namespace wqspcfg
