#include "wqspcfg/classes/VDMRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/platform/utility/Utility.h"

using namespace wqspcfg;
using C = CVDMRegInfo;

namespace {

// A path without a drive is relative to this library's directory.
constexpr auto kCompletePath = Normalize([](C&, CString& strPath, bool) {
    if (strPath.IsEmpty()) {
        strPath = L"WQVDA.exe";
    }
    if (strPath.Find(L':') < 0) {
        // Without its backslash cut here, the root of a drive would keep it before a path that begins with one.
        const CString strDirectory = CUtility::GetModuleDir(1, ThisModule(), true);
        strPath = strDirectory.Left(strDirectory.GetLength() - (strPath[0] == L'\\' ? 1 : 0)) + strPath;
    }
});

constexpr Key kVda = key::Below(L"VDA");

// clang-format off
constexpr Setting kSettings[] = {
    {kVda, L"Path", &C::m_strPath, L"WQVDA.exe",
     L"path of the VDA process", Constructed(L""), RefersTo(Reference::Command), kCompletePath},
    {kVda, L"RegAppId", &C::m_strRegAppId, L"",
     L"application ID the VDA registers with"},
    {kVda, L"BroardcastReqEvent2All", &C::m_bBroardcastReqEvent2All, 0,
     L"request events are broadcast to all applications: 0 no; nonzero yes"},
    {kVda, L"MaxExitTime", &C::m_dwMaxExitTime, 40,
     L"longest time the VDA may take to exit, in seconds: 0 no limit"},
    {kVda, L"ForceExitSP", &C::m_bForceExitSP, 1,
     L"SPs are forced to exit before entering the VDA: 0 no; nonzero yes"},
};
// clang-format on

} // namespace

const Table& CVDMRegInfo::Settings() noexcept
{
    static const Table table{L"CVDMRegInfo", &CRegInfo::Settings, L"VDM", Rows<kSettings>};
    return table;
}

CVDMRegInfo::CVDMRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName)
{
    Construct(*this, Rows<kSettings>);
}

CVDMRegInfo::~CVDMRegInfo() = default;

bool CVDMRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CRegInfo::Load(pLog);
    return loading.Read(Settings()) && bResult;
}

WQSPCFG_CATALOGUE_ENTRY(CVDMRegInfo)
