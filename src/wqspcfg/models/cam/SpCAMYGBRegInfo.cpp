#include "wqspcfg/models/cam/SpCAMYGBRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMYGBRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PicturePath", &C::m_strPicturePath, L"C:\\CAM_DATA",
     L"folder of the pictures", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"LoadOneMoreKey", &C::m_bLoadOneMoreKey, 0,
     L"one more key is loaded: 0 no; nonzero yes", Saved},
    {key::Control, L"CreatWinDisPlay", &C::m_bCreatWinDisPlay, 0,
     L"a window is created for the display command: 0 no; nonzero yes", Saved},
    Group(Rows<kSignaturePadRows<C>>),
    {key::Control, L"DevType", &C::m_dwDevType, 0, L"device type", Saved},
    {key::Control, L"BGTextData", &C::m_strBGTextData, L"",
     L"text in the background of the signature", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMYGBRegInfo, CCAMRegInfo, kSettings)
