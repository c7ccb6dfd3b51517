#include "wqspcfg/models/ptr/SpPTRBSD216RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRBSD216RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"MaxRetain",      &C::m_dwMaxRetain,      100, printer::kMaxRetain, Saved},
    {key::Device, L"HighRetainBin",  &C::m_dwHighRetainBin,  90,  printer::kHighRetainBin, Saved},
    {key::Device, L"RetainBinCount", &C::m_dwRetainBinCount, 0,   printer::kRetainBinCount, Saved},
    {key::Device, L"StartWidth",     &C::m_dwStartWidth,     0,   L"smallest width of the scanned area", Saved},
    {key::Device, L"EndWidth",       &C::m_dwEndWidth,       216, L"largest width of the scanned area", Saved},
    {key::Device, L"StartLength",    &C::m_dwStartLength,    0,   L"smallest length of the scanned area", Saved},
    {key::Device, L"EndLength",      &C::m_dwEndLength,      356, L"largest length of the scanned area", Saved},
    {key::Device, L"IsUseRetainBinSensor", &C::m_bIsUseRetainBinSensor, 1,
     L"the sensor of the retain bin is used: 0 no; nonzero yes", Saved},
    {key::Device, L"IsUseRetractSensor", &C::m_bIsUseRetractSensor, 1,
     L"the retract sensor is used: 0 no; nonzero yes", Saved},
    {key::Device, L"RetraIsJamPaperOutTheTimes", &C::m_dwRetraIsJamPaperOutTheTimes, 3,
     L"number of attempts to move jammed paper out", Saved},
    {key::Device, L"DistinguishType", &C::m_dwDistinguishType, 0,   printer::kNotDocumented, Saved},
    {key::Device, L"SetDPI",          &C::m_dwSetDPI,          200, printer::kScanResolution, Saved},
    {key::Device, L"SetFrontFlag", &C::m_dwSetFrontFlag, 0,
     L"which side counts as the front; 0 the standard one", Saved},
    {key::Device, L"EjectWhenIsEntering", &C::m_bEjectWhenIsEntering, 0,
     L"media that are entering are ejected: 0 no; nonzero yes", Saved},
    {key::Device, L"CombineMode", &C::m_dwCombineMode, 0,
     L"how the pictures of the two sides are combined; 0 not at all", Saved},
    {key::Device, L"ScanAreaModal", &C::m_dwScanAreaModal, 0,
     L"how the scanned area is chosen; 0 the standard way", Saved},
    {key::Device, L"Rotation", &C::m_dwRotation, 0,
     L"rotation of scanned pictures in degrees: 0, 90, 180 or 270", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRBSD216RegInfo, CPTRRegInfo, kSettings)
