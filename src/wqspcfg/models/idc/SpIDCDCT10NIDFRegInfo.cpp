#include "wqspcfg/models/idc/SpIDCDCT10NIDFRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCDCT10NIDFRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kDcReaderRows>),
    {key::Device, L"IDCardImagePath", &C::m_strIDCardImagePath, L"", meaning::kIDCardImagePath, Saved},
    {key::Device, L"IDCardImagePathBeCopyed", &C::m_strIDCardImagePathBeCopyed, L"",
     meaning::kIDCardImagePathBeCopyed, Saved},
    {key::Device,  L"IsUnContactFailed",     &C::m_bIsUnContactFailed,     0,   meaning::kIsUnContactFailed, Saved},
    {key::Device,  L"GetImageFrontAndBack",  &C::m_bGetImageFrontAndBack,  0,   meaning::kGetImageFrontAndBack, Saved},
    {key::Device,  L"ImageFrontPath",        &C::m_strImageFrontPath,      L"", meaning::kImageFrontPath, Saved},
    {key::Device,  L"ImageBackPath",         &C::m_strImageBackPath,       L"", meaning::kImageBackPath, Saved},
    {key::Control, L"CheckCardInsertOfIdle", &C::m_bCheckCardInsertOfIdle, 0,   meaning::kCheckCardInsertOfIdle, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCT10NIDFRegInfo, DcReader, kSettings)
