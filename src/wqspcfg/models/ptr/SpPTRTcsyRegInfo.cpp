#include "wqspcfg/models/ptr/SpPTRTcsyRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRTcsyRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1, kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"Type", &C::m_dwType, 0, printer::kType, Saved},
    {key::Device, L"OnlyGetFeature", &C::m_bOnlyGetFeature, 0,
     L"only the fingerprint feature is taken: 0 no; nonzero yes", Saved},
    {key::Device, L"FeatureTimeOut", &C::m_dwFeatureTimeOut, 30, L"time-out in s for taking the feature", Saved},
    {key::Control, L"StExtraRetFacInfo", &C::m_bStExtraRetFacInfo, 0,
     L"the extended status returns vendor information: 0 no; nonzero yes", Saved},
    {key::Control, L"EventBroTime", &C::m_dwEventBroTime, 0,
     L"time in s after which events are broadcast; 0 at once", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRTcsyRegInfo, CPTRRegInfo, kSettings)
