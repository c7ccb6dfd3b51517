#include "wqspcfg/models/idc/SpIDCID15RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCID15RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"CardImagePath", &C::m_strCardImagePath, L"", L"path of the card's image", Saved},
    {key::Control, L"FrontScanImagePath", &C::m_strFrontScanImagePath, L"",
     L"path of the scanned image of the card's front", Saved},
    {key::Control, L"BackScanImagePath", &C::m_strBackScanImagePath, L"",
     L"path of the scanned image of the card's back", Saved},
    {key::Device, L"ImageSavePath", &C::m_strImageSavePath, L"", meaning::kImageSavePath, Saved},
    {key::Device, L"ScanFormat",    &C::m_dwScanFormat,     0,   meaning::kScanFormat, Saved},
    {key::Device, L"ScanColor", &C::m_dwScanColor, 0,
     L"colour mode of scanning, as the device's driver numbers it", Saved},
    {key::Device, L"IsReadIDCardInfo", &C::m_bIsReadIDCardInfo, 1, meaning::kReadIDCardInfo, Saved},
    {key::Device, L"IsScan",           &C::m_bIsScan,           1, L"the card is scanned: 0 no; nonzero yes", Saved},
    {key::Device, L"IsHoldCardAfterEject", &C::m_bIsHoldCardAfterEject, 0,
     L"the card is held after eject: 0 no; nonzero yes", Saved},
    {key::Device, L"IDMustEjectCardAfterScan", &C::m_bIDMustEjectCardAfterScan, 0,
     meaning::kIDMustEjectCardAfterScan, Saved},
    {key::Device, L"ChangeBySPDB", &C::m_bChangeBySPDB, 0, meaning::kChangeBySPDB, Saved},
    {key::Device, L"SavingGetImagePathTime", &C::m_dwSavingGetImagePathTime, 5,
     meaning::kSavingGetImagePathTime, Saved},
    {key::Comm, L"MachineType", &C::m_dwMachineType, 0, meaning::kNotDocumented, Saved},
    {key::Control, L"PowerOffRecover", &C::m_bPowerOffRecover, 0,
     L"recovery after a power loss: 0 no; nonzero yes", Saved},
    {key::Device, L"IsChangeNoToNO", &C::m_bIsChangeNoToNO, 0, meaning::kIsChangeNoToNO, Saved},
    Group(Rows<kIdentityCardScannerRows>),
    {key::Device, L"dwWidthOfFrontBack", &C::m_dwWidthOfFrontBack, 1011, meaning::kWidthOfFrontBack, Saved},
    {key::Device, L"dwHightOfFrontBack", &C::m_dwHightOfFrontBack, 638,  meaning::kHeightOfFrontBack, Saved},
    {key::Device, L"IsSaveNationCompleInfo", &C::m_bIsSaveNationCompleInfo, 0,
     meaning::kIsSaveNationCompleInfo, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCID15RegInfo, IdentityCardScanner, kSettings)
