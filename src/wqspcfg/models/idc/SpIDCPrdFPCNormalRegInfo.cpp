#include "wqspcfg/models/idc/SpIDCPrdFPCNormalRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpIDCPrdFPCNormalRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"ProtocolType", [](C& c, unsigned) -> DWORD& { return c.m_dwProtocolType; }, 0,
     L"protocol with the application: 0 ReadRawData; nonzero chip I/O"},
    // The line has a number's conversion, which prints the text all the same.
    {key::Below(L"Collect"), L"FingerPicPath", &C::m_strFingerPicPath, L"",
     L"path that captured fingerprint images are saved to", Saved, QualifiedLabel, Format(L"%d")},
};
// clang-format on

} // namespace

const Table& CSpIDCPrdFPCNormalRegInfo::Settings() noexcept
{
    static const Table table{L"CSpIDCPrdFPCNormalRegInfo",
                             &CIDCRegInfo::Settings,
                             nullptr,
                             Rows<kSettings>,
                             nullptr,
                             {},
                             &CSpFPCRegInfo::Settings,
                             false};
    return table;
}

CSpIDCPrdFPCNormalRegInfo::CSpIDCPrdFPCNormalRegInfo(const CString& strName, bool bPhysicalName)
    : CIDCRegInfo(strName, bPhysicalName), CSpFPCRegInfo(static_cast<const CRegInfo&>(*this))
{
    Construct(static_cast<CRegInfo&>(*this), Rows<kSettings>);
}

CSpIDCPrdFPCNormalRegInfo::~CSpIDCPrdFPCNormalRegInfo() = default;

bool CSpIDCPrdFPCNormalRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CIDCRegInfo::Load(pLog);
    CSpFPCRegInfo::Load(pLog);
    return loading.Read(Settings()) && bResult;
}

void CSpIDCPrdFPCNormalRegInfo::Save()
{
    Saving saving(*this);
    saving.Write(Settings());
}

WQSPCFG_CATALOGUE_ENTRY(CSpIDCPrdFPCNormalRegInfo)
