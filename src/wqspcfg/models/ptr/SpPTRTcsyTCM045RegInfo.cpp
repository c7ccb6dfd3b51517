#include "wqspcfg/models/ptr/SpPTRTcsyTCM045RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRTcsyTCM045RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"MatchLev", &C::m_dwMatchLev, 3, printer::kMatchLev, Saved},
    {key::Comm,    L"Type",     &C::m_dwType,     0, printer::kType, Saved},
    {key::Comm,    L"Port",     &C::m_dwPort,     1, kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BautRateIndex", &C::m_dwBautRateIndex, 0,
     L"index of the serial speed in the device's list of speeds", Saved},
    {key::Control, L"SentMediatakenWaitFingerUp", &C::m_bSentMediatakenWaitFingerUp, 0,
     L"the media-taken event waits for the finger to be lifted: 0 no; nonzero yes", Saved},
    {key::Control, L"RetrunFinPicOrData", &C::m_dwRetrunFinPicOrData, 0,
     L"what a fingerprint capture returns: 0 the data; nonzero the picture", Saved},
    {key::Control, L"RetrunWhat", &C::m_dwRetrunWhat, 0, printer::kNotDocumented, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRTcsyTCM045RegInfo, CPTRRegInfo, kSettings)
