#include "wqspcfg/models/idc/SpIDCPrdIDFContactlessRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCPrdIDFContactlessRegInfo;

namespace {

constexpr Key kCapability = key::Below(L"Capability");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDF_CONTACTLESS", &C::m_strDN_IDF_CONTACTLESS, L"",
     L"name of the device driver module of the contactless identity card reader", Saved},
    Group(Rows<kIdentityCardReaderRows>),
    {kCapability,  L"ReadTracks",        &C::m_dwReadTracks,        7,    meaning::kReadTracks, Saved},
    {key::Control, L"WidthOfFrontBack",  &C::m_dwWidthOfFrontBack,  1011, meaning::kWidthOfFrontBack, Saved},
    {key::Control, L"HeightOfFrontBack", &C::m_dwHeightOfFrontBack, 638,  meaning::kHeightOfFrontBack, Saved},
    {key::Control, L"IsExeComReturnFailofContactless", &C::m_bIsExeComReturnFailofContactless, 0,
     L"execute commands of the contactless reader return failure: 0 no; nonzero yes", Saved},
    {key::Control, L"IsUpdateMediaInOnIdle", &C::m_bIsUpdateMediaInOnIdle, 0,
     L"the media status is updated while idle: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCPrdIDFContactlessRegInfo, IdentityCardReader, kSettings)
