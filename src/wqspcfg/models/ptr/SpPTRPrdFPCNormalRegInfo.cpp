#include "wqspcfg/models/ptr/SpPTRPrdFPCNormalRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpPTRPrdFPCNormalRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"ProtocolType", [](C& c, unsigned) -> DWORD& { return c.m_dwProtocolType; }, 0,
     L"protocol of the fingerprint commands: 0 the read-raw-data protocol; nonzero the chip-I/O protocol"},
    {key::Device, L"DelDataAfterMatchFinger", &C::m_bDelDataAfterMatchFinger, 0,
     L"fingerprint data are deleted after the match: 0 no; nonzero yes", Saved},
};
constexpr Setting kReadImageRule[] = {
    {key::Below(L"ReadImageRule"), L"%s", Map<&C::m_mapReadImageRule>, L"", L"rule of the read-image command"},
};
// clang-format on
constexpr OperationSettings kOperations[] = {{L"LoadReadImageRuleCfg", L"", Rows<kReadImageRule>}};

} // namespace

const Table& CSpPTRPrdFPCNormalRegInfo::Settings() noexcept
{
    static const Table table{
        L"CSpPTRPrdFPCNormalRegInfo", &CPTRRegInfo::Settings, nullptr, Rows<kSettings>, nullptr, kOperations,
        &CSpFPCRegInfo::Settings};
    return table;
}

CSpPTRPrdFPCNormalRegInfo::CSpPTRPrdFPCNormalRegInfo(const CString& strName, bool bPhysicalName)
    : CPTRRegInfo(strName, bPhysicalName), CSpFPCRegInfo(static_cast<const CRegInfo&>(*this))
{
    Construct(static_cast<CRegInfo&>(*this), Rows<kSettings>);
}

CSpPTRPrdFPCNormalRegInfo::~CSpPTRPrdFPCNormalRegInfo() = default;

bool CSpPTRPrdFPCNormalRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CPTRRegInfo::Load(pLog);
    CSpFPCRegInfo::Load(pLog);
    const bool bRead = loading.Read(Settings());
    ProtocolTypeLoaded(pLog);
    return bRead && bResult;
}

void CSpPTRPrdFPCNormalRegInfo::Save()
{
    Saving saving(*this);
    CPTRRegInfo::Save();
    CSpFPCRegInfo::Save();
    saving.Write(Settings());
}

bool CSpPTRPrdFPCNormalRegInfo::LoadReadImageRuleCfg(CLog* pLog)
{
    Loading loading(*this, pLog);
    loading.Read(Settings(), Rows<kReadImageRule>);
    return !m_mapReadImageRule.IsEmpty();
}

WQSPCFG_CATALOGUE_ENTRY(CSpPTRPrdFPCNormalRegInfo)
