#include "wqspcfg/models/idc/SpIDCPrdIDFMotorRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCPrdIDFMotorRegInfo;

namespace {

constexpr Key kCapability = key::Below(L"Capability");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDF_MOTOR", &C::m_strDN_IDF_MOTOR, L"",
     L"name of the device driver module of the motorised identity card reader", Saved},
    Group(Rows<kIdentityCardReaderRows>),
    {key::Control, L"OpenAction", &C::m_dwOpenAction, 0,
     L"action with a card in the reader when the device is opened", Saved},
    {kCapability, L"ReadTracks", &C::m_dwReadTracks, 7, meaning::kReadTracks, Saved},
    {key::Control, L"IsPermitRetain", &C::m_bIsPermitRetain, 0,
     L"retaining a card is permitted: 0 no; nonzero yes", Saved},
    {key::Control, L"IsSupRetain",       &C::m_bIsSupRetain,        0,    meaning::kIsSupRetain, Saved},
    {key::Control, L"WidthOfFrontBack",  &C::m_dwWidthOfFrontBack,  1011, meaning::kWidthOfFrontBack, Saved},
    {key::Control, L"HeightOfFrontBack", &C::m_dwHeightOfFrontBack, 638,  meaning::kHeightOfFrontBack, Saved},
    {key::Control, L"IsEjectAfterScan", &C::m_bIsEjectAfterScan, 0,
     L"the card is ejected after scanning: 0 no; nonzero yes", Saved},
    {key::Control, L"EjectAfterScanTime", &C::m_dwEjectAfterScanTime, 30,
     L"time in seconds after scanning until the card is ejected", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCPrdIDFMotorRegInfo, IdentityCardReader, kSettings)
