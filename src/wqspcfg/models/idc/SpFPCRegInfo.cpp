#include "wqspcfg/models/idc/SpFPCRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpFPCRegInfo;

namespace {

constexpr Key kCollect = key::Below(L"Collect");

// clang-format off
constexpr Setting kTemplates[] = {
    {kCollect, L"FeatureFile%dPathForTemplet", Element<&C::m_strFeatureFilePathForTemplet>, L"", L"path of the feature image of this capture during template enrolment, a bmp or jpg file; with a path that is not valid it is not saved", Saved, QualifiedLabel},
};

constexpr Setting kDriver[] = {
    {key::Device, L"DN.FPC_NORMAL", &C::m_strDN_FPC_NORMAL, L"WQDrFPCWEL410AFE", L"name of the device driver module of the fingerprint collector", Saved},
};

constexpr Setting kCapture[] = {
    {kCollect,    L"IntervalOfTemplate",             &C::m_dwIntervalOfTemplate,            0,   L"interval of template capture: 0 the next capture starts only after the finger has been lifted; nonzero the seconds after which the next capture starts without waiting for the finger to be pressed again", Saved, QualifiedLabel},
    {key::Device, L"VendorInfo",                     &C::m_bVendorInfo,                     0,   L"the vendor information is returned: 0 no; nonzero yes", Saved},
    {key::Device, L"InvialMediaContinueWait",        &C::m_bInvialMediaContinueWait,        0,   L"an invalid fingerprint is captured again: 0 no; nonzero yes", Saved},
    {key::Device, L"RtResultLastTimeWaitMediaTaken", &C::m_bRtResultLastTimeWaitMediaTaken, 0,   L"the last capture returns its result only after the finger has been lifted: 0 no; nonzero yes", Saved},
    {kCollect,    L"FeatureFilePath",                &C::m_strFeatureFilePath,              L"", L"path of the fingerprint feature image, a bmp or jpg file; with a path that is not valid it is not saved", Saved, QualifiedLabel},
    Repeat(1, 3, kTemplates),
};

constexpr Setting kVendor[] = {
    {key::Device, L"VendorProductModelKeyName", &C::m_strVendorProductModelKeyName, L"VendorProductModel", L"key name under which the product model is reported", Saved},
    {key::Device, L"VendorVdnameKeyName",       &C::m_strVendorVdnameKeyName,       L"FingerVendor",       L"key name under which the vendor name is reported", Saved},
    {key::Device, L"VendorVdnameValue",         &C::m_strVendorVdnameValue,         L"",                   L"vendor name to report; empty the one that the driver returns", Saved},
    {key::Device, L"VendorFwverKeyName",        &C::m_strVendorFwverKeyName,        L"FirmwareVersion",    L"key name under which the firmware version is reported", Saved},
    {key::Device, L"VendorDrverKeyName",        &C::m_strVendorDrverKeyName,        L"VendorDrver",        L"key name under which the driver version is reported", Saved},
};

constexpr const wchar_t* kVendorSaved[] = {L"VendorProductModelKeyName", L"VendorVdnameKeyName", L"VendorFwverKeyName", L"VendorDrverKeyName", L"VendorVdnameValue"};
// clang-format on
constexpr auto kVendorOrder = SaveOrder(kVendor, kVendorSaved);

constexpr auto kSettings = [] {
    std::array<Setting, std::size(kDriver) + std::size(kCapture) + std::size(kVendor)> all{};
    std::size_t n = 0;
    for (const auto rows :
         {std::span<const Setting>(kDriver), std::span<const Setting>(kCapture), std::span<const Setting>(kVendor)}) {
        for (const auto& row : rows) {
            all[n++] = row;
        }
    }
    return all;
}();

} // namespace

const Table& CSpFPCRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CSpFPCRegInfo", nullptr, nullptr, kSettings};
    return kTable;
}

CSpFPCRegInfo::CSpFPCRegInfo()
{
    Construct(*this, kSettings);
}

CSpFPCRegInfo::~CSpFPCRegInfo() = default;

bool CSpFPCRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, m_strKeyName, pLog);
    return loading.Read(Settings());
}

void CSpFPCRegInfo::Save()
{
    Saving saving(*this, m_strKeyName);
    saving.Write(std::span<const Setting>(kDriver));
    saving.Put(key::Device, L"ProtocolType", m_dwProtocolType);
    saving.Write(std::span<const Setting>(kCapture));
    saving.Write(std::span<const Setting* const>(kVendorOrder));
}

// A part of other classes' objects, never an object of its own.
namespace wqspcfg::entry {
extern const ClassEntry CSpFPCRegInfoEntry;
constinit const ClassEntry CSpFPCRegInfoEntry{&::CSpFPCRegInfo::Settings, nullptr};
} // namespace wqspcfg::entry
