#include "wqspcfg/models/idc/SpIDCHXJ10RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCHXJ10RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Device, L"Format",        &C::m_dwFormat,         0,   meaning::kNotDocumented, Saved},
    {key::Device, L"ImageSavePath", &C::m_strImageSavePath, L"", meaning::kImageSavePath, Saved},
    {key::Device, L"IDCardLogicName", &C::m_strIDCardLogicName, L"",
     meaning::kIDCardLogicName, Saved, RefersTo(Reference::LogicalService)},
    {key::Device, L"CertRead", &C::m_strCertRead, L"", meaning::kCertRead, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCHXJ10RegInfo, CIDCRegInfo, kSettings)
