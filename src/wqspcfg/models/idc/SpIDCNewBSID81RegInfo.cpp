#include "wqspcfg/models/idc/SpIDCNewBSID81RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCNewBSID81RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"IDMustEjectCardAfterScan", &C::m_bIDMustEjectCardAfterScan, 0,
     meaning::kIDMustEjectCardAfterScan, Saved},
    {key::Device, L"IDCardImagePath", &C::m_strIDCardImagePath, L"", meaning::kIDCardImagePath, Saved},
    {key::Device, L"IDFrontScanImagePath", &C::m_strIDFrontScanImagePath, L"",
     L"path of the scanned image of the identity card's front", Saved},
    {key::Device, L"IDBackScanImagePath", &C::m_strIDBackScanImagePath, L"",
     L"path of the scanned image of the identity card's back", Saved},
    {key::Device, L"InforReturnFormat", &C::m_dwInforReturnFormat, 0,   meaning::kInforReturnFormat, Saved},
    {key::Device, L"ImageSavePath",     &C::m_strImageSavePath,    L"", meaning::kImageSavePath, Saved},
    {key::Device, L"SavingGetImagePathTime", &C::m_dwSavingGetImagePathTime, 5,
     meaning::kSavingGetImagePathTime, Saved},
    {key::Device, L"ChangeBySPDB", &C::m_bChangeBySPDB, 0, meaning::kChangeBySPDB, Saved},
    {key::Device, L"SetDPIMode", &C::m_dwSetDPIMode, 0,
     L"resolution (DPI) mode of scanning, as the device's driver numbers it", Saved},
    {key::Device, L"dwWidthOfFrontBack", &C::m_dwWidthOfFrontBack, 1011, meaning::kWidthOfFrontBack, Saved},
    {key::Device, L"dwHightOfFrontBack", &C::m_dwHightOfFrontBack, 638,  meaning::kHeightOfFrontBack, Saved},
    {key::Device, L"ScanFormat",         &C::m_dwScanFormat,       0,    meaning::kScanFormat, Saved},
    {key::Device, L"ReadIdCardInfo",     &C::m_bReadIdCardInfo,    1,    meaning::kReadIDCardInfo, Saved},
    {key::Device, L"InforReturnFormatForWQ", &C::m_dwInforReturnFormatForWQ, 0,
     L"format in which the card's information is returned to WQ applications", Saved},
    {key::Device, L"IsScanAfterReadFail", &C::m_bIsScanAfterReadFail, 0,
     L"the card is scanned although reading it failed: 0 no; nonzero yes", Saved},
    {key::Device, L"IsAppendFingerData", &C::m_bIsAppendFingerData, 0,
     L"fingerprint data are appended to the card's information: 0 no; nonzero yes", Saved},
    {key::Device, L"IsChangeNoToNO",         &C::m_bIsChangeNoToNO,         0, meaning::kIsChangeNoToNO, Saved},
    {key::Device, L"IsSaveNationCompleInfo", &C::m_bIsSaveNationCompleInfo, 0, meaning::kIsSaveNationCompleInfo, Saved},
    Group(Rows<kIdentityCardScannerRows>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCNewBSID81RegInfo, IdentityCardScanner, kSettings)
