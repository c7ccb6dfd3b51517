#include "wqspcfg/models/idc/SpFPCRegInfo.h"

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/core/settings/OwnChanges.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpFPCRegInfo;

namespace {

constexpr Key kCollect = key::Below(L"Collect");

// clang-format off
constexpr Setting kTemplates[] = {
    {kCollect, L"FeatureFile%dPathForTemplet", Element<&C::m_strFeatureFilePathForTemplet>, L"",
     L"path of the feature image of this capture during template enrolment, a bmp or jpg file; with a path that is "
     L"not valid it is not saved", Saved, QualifiedLabel, RefersTo(Reference::File)},
};

constexpr Setting kCollector[] = {
    {key::Device, L"DN.FPC_NORMAL", &C::m_strDN_FPC_NORMAL, L"WQDrFPCWEL410AFE",
     L"name of the device driver module of the fingerprint collector", Saved},
    {kCollect, L"IntervalOfTemplate", &C::m_dwIntervalOfTemplate, 0,
     L"interval of template capture: 0 the next capture starts only after the finger has been lifted; nonzero the "
     L"seconds after which the next capture starts without waiting for the finger to be pressed again",
     Saved, QualifiedLabel},
    {key::Device, L"VendorInfo", &C::m_bVendorInfo, 0, L"the vendor information is returned: 0 no; nonzero yes", Saved},
    {key::Device, L"InvialMediaContinueWait", &C::m_bInvialMediaContinueWait, 0,
     meaning::kInvialMediaContinueWait, Saved},
    {key::Device, L"RtResultLastTimeWaitMediaTaken", &C::m_bRtResultLastTimeWaitMediaTaken, 0,
     L"the last capture returns its result only after the finger has been lifted: 0 no; nonzero yes", Saved},
    {kCollect, L"FeatureFilePath", &C::m_strFeatureFilePath, L"",
     L"path of the fingerprint feature image, a bmp or jpg file; with a path that is not valid it is not saved",
     Saved, QualifiedLabel, RefersTo(Reference::File)},
    Repeat(1, 3, Rows<kTemplates>),
    {key::Device, L"VendorProductModelKeyName", &C::m_strVendorProductModelKeyName, L"VendorProductModel",
     L"key name under which the product model is reported", Saved},
    {key::Device, L"VendorVdnameKeyName", &C::m_strVendorVdnameKeyName, L"FingerVendor",
     L"key name under which the vendor name is reported", Saved},
    {key::Device, L"VendorVdnameValue", &C::m_strVendorVdnameValue, L"",
     L"vendor name to report; empty the one that the driver returns", Saved},
    {key::Device, L"VendorFwverKeyName", &C::m_strVendorFwverKeyName, L"FirmwareVersion",
     L"key name under which the firmware version is reported", Saved},
    {key::Device, L"VendorDrverKeyName", &C::m_strVendorDrverKeyName, L"VendorDrver",
     L"key name under which the driver version is reported", Saved},
};

constexpr Setting kSettings[] = {
    Group(Rows<kCollector>),
    {key::Device, L"ProtocolType", &C::m_dwProtocolType, 0,
     L"protocol with the application, which the model loads", Preloaded, NotLogged, Saved},
};

constexpr const wchar_t* kSaved[] = {
    L"DN.FPC_NORMAL", L"ProtocolType", L"IntervalOfTemplate", L"VendorInfo", L"InvialMediaContinueWait",
    L"RtResultLastTimeWaitMediaTaken", L"FeatureFilePath", L"FeatureFile%dPathForTemplet", L"VendorProductModelKeyName",
    L"VendorVdnameKeyName", L"VendorFwverKeyName", L"VendorDrverKeyName", L"VendorVdnameValue"};
// clang-format on
constexpr auto kSaveOrder = SaveOrder<kSettings, kSaved>;

} // namespace

const Table& CSpFPCRegInfo::Settings() noexcept
{
    static const Table table{L"CSpFPCRegInfo", nullptr, nullptr, Rows<kSettings>, kSaveOrder};
    return table;
}

CSpFPCRegInfo::CSpFPCRegInfo(const CRegInfo& owner) : m_owner(owner)
{
    Construct(*this, Rows<kSettings>);
}

CSpFPCRegInfo::~CSpFPCRegInfo()
{
    ForgetLoaded(*this);
}

bool CSpFPCRegInfo::Load(CLog* pLog)
{
    m_strKeyName = m_owner.GetExeDllMother(1, nullptr);
    Loading loading(*this, m_strKeyName, pLog);
    return loading.Read(Settings(), Rows<kCollector>);
}

void CSpFPCRegInfo::ProtocolTypeLoaded(CLog* pLog)
{
    Loading loading(*this, m_strKeyName, pLog);
    loading.Read(Settings(), RowOf<kSettings>(L"ProtocolType"));
}

void CSpFPCRegInfo::Save()
{
    m_strKeyName = m_owner.GetExeDllMother(1, nullptr);
    Saving saving(*this, m_strKeyName);
    saving.Write(Settings());
}

// A part of other classes' objects, never an object of its own.
namespace wqspcfg::entry {
ClassEntry CSpFPCRegInfoEntry();
ClassEntry CSpFPCRegInfoEntry()
{
    return {&::CSpFPCRegInfo::Settings, nullptr};
}
} // namespace wqspcfg::entry
