#include "wqspcfg/models/ptr/SpPTRPrdFPCNormalRegInfo.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpPTRPrdFPCNormalRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"ProtocolType",            [](C& c, unsigned) -> DWORD& { return c.m_dwProtocolType; }, 0, L"protocol of the fingerprint commands: 0 the read-raw-data protocol; nonzero the chip-I/O protocol", Saved},
    {key::Device, L"DelDataAfterMatchFinger", &C::m_bDelDataAfterMatchFinger, 0, L"fingerprint data are deleted after the match: 0 no; nonzero yes", Saved},
};
constexpr Setting kReadImageRule[] = {
    {key::Below(L"ReadImageRule"), L"%s", StringValue, L"", L"rule of the read-image command, under any name"},
};
// clang-format on
constexpr OperationSettings kOnRequest[] = {{L"LoadReadImageRuleCfg", L"", kReadImageRule}};

constexpr const wchar_t* kSaved[] = {L"DelDataAfterMatchFinger"};
constexpr auto kSaveOrder = SaveOrder(kSettings, kSaved, false); // the mix-in writes the protocol

} // namespace

const Table& CSpPTRPrdFPCNormalRegInfo::Settings() noexcept
{
    static constexpr Table kTable{
        L"CSpPTRPrdFPCNormalRegInfo", &CPTRRegInfo::Settings, nullptr, kSettings, kSaveOrder, kOnRequest};
    return kTable;
}

CSpPTRPrdFPCNormalRegInfo::CSpPTRPrdFPCNormalRegInfo(const CString& strName, bool bPhysicalName)
    : CPTRRegInfo(strName, bPhysicalName)
{
    Construct(static_cast<CRegInfo&>(*this), kSettings);
}

bool CSpPTRPrdFPCNormalRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CPTRRegInfo::Load(pLog);
    m_strKeyName = GetExeDllMother(1, nullptr);
    CSpFPCRegInfo::Load(pLog);
    return loading.Read(Settings()) && bResult;
}

void CSpPTRPrdFPCNormalRegInfo::Save()
{
    Saving saving(*this);
    CPTRRegInfo::Save();
    m_strKeyName = GetExeDllMother(1, nullptr);
    CSpFPCRegInfo::Save();
    saving.Write(Settings());
}

bool CSpPTRPrdFPCNormalRegInfo::LoadReadImageRuleCfg(CLog* pLog)
{
    m_mapReadImageRule.RemoveAll();
    QueryValues(m_mapReadImageRule, L"%s%s\\ReadImageRule", kDeviceRoot, GetExeDllMother(1, nullptr));
    if (pLog != nullptr) {
        POSITION pos = m_mapReadImageRule.GetStartPosition();
        while (pos != nullptr) {
            CString strRule;
            CString strText;
            m_mapReadImageRule.GetNextAssoc(pos, strRule, strText);
            pLog->Info(kLogCategory, L"[CFG] %40s : %s[rule of the read-image command]", strRule, strText);
        }
    }
    return !m_mapReadImageRule.IsEmpty();
}

WQSPCFG_CATALOGUE_ENTRY(CSpPTRPrdFPCNormalRegInfo)
