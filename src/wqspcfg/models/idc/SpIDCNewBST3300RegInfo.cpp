#include "wqspcfg/models/idc/SpIDCNewBST3300RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCNewBST3300RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"IDCardImagePath", &C::m_strIDCardImagePath, L"", meaning::kIDCardImagePath, Saved},
    {key::Device, L"IDScanImagePath", &C::m_strIDScanImagePath, L"",
     L"path of the scanned image of the identity card", Saved},
    {key::Device, L"IDSaveScanImageForm", &C::m_dwIDSaveScanImageForm, 0,
     L"form in which the scanned image of the identity card is saved", Saved},
    {key::Control, L"IsSavePictureGroup", &C::m_bIsSavePictureGroup, 0,
     L"the group of pictures is saved: 0 no; nonzero yes", Saved},
    {key::Control, L"IsSavePictureOrig", &C::m_bIsSavePictureOrig, 0,
     L"the original picture is saved: 0 no; nonzero yes", Saved},
    {key::Control, L"IsSavePictureDirection", &C::m_bIsSavePictureDirection, 0,
     L"the picture's direction is saved: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCNewBST3300RegInfo, CIDCRegInfo, kSettings)
