// What card reader models have beyond their tables, and the mix-in of fingerprint collectors.
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/idc/SpIDCDCT10NRegInfo.h"
#include "wqspcfg/models/idc/SpIDCMT4DPR312RegInfo.h"
#include "wqspcfg/models/idc/SpIDCOmronV2GRegInfo.h"
#include "wqspcfg/models/idc/SpIDCPrdFPCNormalRegInfo.h"
#include "wqspcfg/models/idc/SpIDCTTD2001RegInfo.h"
#include "wqspcfg/models/idc/SpRCMDlpRegInfo.h"
#include "wqspcfg/models/mcr/SpMCRCF66RegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>

namespace {

using wqspcfg::test::ConfigTest;

class CardReadersTest : public ConfigTest
{
  protected:
    // The label of each configuration line from the one of `first` on.
    std::vector<std::wstring> LabelsFrom(const std::wstring& first) const
    {
        std::vector<std::wstring> labels;
        for (const auto& line : Lines()) {
            const auto end = line.find(L" : ");
            if (line.rfind(L"[CFG] ", 0) != 0 || end == std::wstring::npos) {
                continue;
            }
            const auto label = line.substr(line.find_first_not_of(L' ', 6), end - line.find_first_not_of(L' ', 6));
            if (!labels.empty() || label == first) {
                labels.push_back(label);
            }
        }
        return labels;
    }
};

using Texts = std::vector<std::wstring>;

TEST_F(CardReadersTest, TheClassBaseIsLoadedAndWrittenBeforeTheModel)
{
    Set(Device(L"Control"), L"ApID", 7);
    Set(Device(L"Comm"), L"ICBaudRate", 38400);
    CSpIDCDCT10NRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_dwApID, 7U);
    EXPECT_EQ(config.m_dwICBaudRate, 38400U);
    const auto labels = LabelsFrom(L"FastUpdateStatuWhenContactlessPresent");
    ASSERT_EQ(labels.size(), 39U);
    EXPECT_EQ(labels[1], L"BaudRate");
    EXPECT_EQ(labels.back(), L"InforReturnFormat");

    ClearRecord();
    config.Save();
    const auto writes = Writes();
    ASSERT_EQ(writes.size(), 1U + 40U + 38U);
    EXPECT_EQ(writes[40], Device(L"IdleInterval") + L"|FastUpdateStatuWhenContactlessPresent");
    EXPECT_EQ(writes[41], Device(L"Comm") + L"|BaudRate");
    EXPECT_EQ(writes[43], Device() + L"|CpuCardType");
    EXPECT_EQ(writes[44], Device(L"TimeSet") + L"|TimesOfGetStIfSwitchLed");
}

TEST_F(CardReadersTest, WhatIsConfiguredForAPowerLossIsReadOnly)
{
    Set(Device(L"Control"), L"PowerOffOption", 2);
    CSpIDCOmronV2GRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwPowerOffOption, 2U);
    config.m_dwPowerOffOption = 1;
    config.Save();
    EXPECT_EQ(Number(Device(L"Control"), L"PowerOffOption"), 2U);
}

TEST_F(CardReadersTest, TheirOwnSpellingsAndKeys)
{
    Set(Device(L"Comm"), L"BaudRate", 1);
    Set(Device(L"Comm"), L"BautRate", 19200);
    Set(Device(L"RCM\\Dlp"), L"ReconnectCount", 9);
    CSpIDCTTD2001RegInfo dip(L"Svc", false);
    dip.Load(nullptr);
    EXPECT_EQ(dip.m_dwBautRate, 19200U);
    CSpRCMDlpRegInfo dlp(L"Svc", false);
    dlp.Load(nullptr);
    EXPECT_EQ(dlp.m_dwReconnectCount, 9U);
}

TEST_F(CardReadersTest, AFingerprintCollectorIsLoadedAfterTheCardReaderAndBeforeItsModel)
{
    Set(Device(L"Collect"), L"FeatureFile2PathForTemplet", L"C:\\second.bmp");
    Set(Device(L"Collect"), L"FingerPicPath", L"C:\\fingers");
    Set(Device(), L"ProtocolType", 5);
    CSpIDCPrdFPCNormalRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));

    EXPECT_EQ(config.m_strDN_FPC_NORMAL, L"WQDrFPCWEL410AFE");
    EXPECT_EQ(config.m_strVendorProductModelKeyName, L"VendorProductModel");
    EXPECT_EQ(config.m_strVendorVdnameKeyName, L"FingerVendor");
    EXPECT_EQ(config.m_strVendorFwverKeyName, L"FirmwareVersion");
    EXPECT_EQ(config.m_strVendorDrverKeyName, L"VendorDrver");
    EXPECT_EQ(config.m_strFeatureFilePathForTemplet[0], L"");
    EXPECT_EQ(config.m_strFeatureFilePathForTemplet[1], L"C:\\second.bmp");
    EXPECT_EQ(config.m_dwProtocolType, 5U);
    EXPECT_EQ(LabelsFrom(L"FastUpdateStatuWhenContactlessPresent"),
              (Texts{L"FastUpdateStatuWhenContactlessPresent", L"DN.FPC_NORMAL", L"Collect\\IntervalOfTemplate",
                     L"VendorInfo", L"InvialMediaContinueWait", L"RtResultLastTimeWaitMediaTaken",
                     L"Collect\\FeatureFilePath", L"Collect\\FeatureFile1PathForTemplet",
                     L"Collect\\FeatureFile2PathForTemplet", L"Collect\\FeatureFile3PathForTemplet",
                     L"VendorProductModelKeyName", L"VendorVdnameKeyName", L"VendorVdnameValue", L"VendorFwverKeyName",
                     L"VendorDrverKeyName", L"ProtocolType", L"Collect\\FingerPicPath"}));
    EXPECT_EQ(Line(L"Collect\\FingerPicPath"), L"[CFG] " + std::wstring(19, L' ') +
                                                   L"Collect\\FingerPicPath : C:\\fingers[path that captured "
                                                   L"fingerprint images are saved to]");
}

TEST_F(CardReadersTest, AFingerprintCollectorServedAsACardReaderWritesOnePathOnly)
{
    CSpIDCPrdFPCNormalRegInfo config(L"Svc", false);
    config.Load(nullptr);
    config.m_strFingerPicPath = L"D:\\new";
    ClearRecord();
    static_cast<CRegInfo&>(config).Save();
    EXPECT_EQ(Writes(), Texts{Device(L"Collect") + L"|FingerPicPath"});
    EXPECT_EQ(Text(Device(L"Collect"), L"FingerPicPath"), L"D:\\new");
    ClearRecord();
    static_cast<CSpFPCRegInfo&>(config).Save(); // its model's, too
    EXPECT_EQ(Writes(), Texts{Device(L"Collect") + L"|FingerPicPath"});
}

TEST_F(CardReadersTest, ACollectorWritesItsOwnersProtocolBehindTheDriver)
{
    const CRegInfo owner(L"Svc", false);
    CSpFPCRegInfo collector(owner);
    ASSERT_TRUE(collector.Load(nullptr));
    collector.m_dwProtocolType = 1;
    collector.m_strFeatureFilePathForTemplet[2] = L"C:\\third.jpg";
    ClearRecord();
    collector.Save();
    auto& store = *m_store;
    const auto recorded = store.Take();
    EXPECT_EQ(std::count_if(recorded.begin(), recorded.end(),
                            [](const auto& r) { return r.what == wqspcfg::test::Recorded::What::Commit; }),
              1);
    Texts writes;
    for (const auto& entry : recorded) {
        if (entry.what == wqspcfg::test::Recorded::What::Set) {
            writes.push_back(entry.path + L"|" + entry.name);
        }
    }
    const auto device = [](const wchar_t* name) { return Device() + L"|" + name; };
    const auto collect = [](const wchar_t* name) { return Device(L"Collect") + L"|" + name; };
    EXPECT_EQ(writes, (Texts{device(L"DN.FPC_NORMAL"), device(L"ProtocolType"), collect(L"IntervalOfTemplate"),
                             device(L"VendorInfo"), device(L"InvialMediaContinueWait"),
                             device(L"RtResultLastTimeWaitMediaTaken"), collect(L"FeatureFilePath"),
                             collect(L"FeatureFile1PathForTemplet"), collect(L"FeatureFile2PathForTemplet"),
                             collect(L"FeatureFile3PathForTemplet"), device(L"VendorProductModelKeyName"),
                             device(L"VendorVdnameKeyName"), device(L"VendorFwverKeyName"),
                             device(L"VendorDrverKeyName"), device(L"VendorVdnameValue")}));
    EXPECT_EQ(Number(Device(), L"ProtocolType"), 1U);
    EXPECT_EQ(Text(Device(L"Collect"), L"FeatureFile3PathForTemplet"), L"C:\\third.jpg");
}

TEST_F(CardReadersTest, TheCF66ReportsAnUnknownTypeAsUsbButKeepsIt)
{
    CSpMCRCF66RegInfo config(L"Svc", false);
    for (const DWORD type : {0U, 7U, 0xFFFFFFFFU}) {
        Set(Device(L"Comm"), L"Type", type);
        m_log.Clear();
        ASSERT_TRUE(config.Load(&m_log));
        EXPECT_EQ(config.m_dwType, type);
        EXPECT_NE(Line(L"Type").find(L"Type : 2["), std::wstring::npos) << type;
    }
    Set(Device(L"Comm"), L"Type", 1);
    m_log.Clear();
    config.Load(&m_log);
    EXPECT_NE(Line(L"Type").find(L"Type : 1["), std::wstring::npos);
}

TEST_F(CardReadersTest, TheCF66WritesItsCommunicationOnly)
{
    Set(Device(), L"SyncEjectCard", 9);
    CSpMCRCF66RegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwPort, 4U);
    EXPECT_EQ(config.m_dwSyncEjectCard, 1U);
    config.m_dwCountOfRetained = 3;
    ClearRecord();
    config.Save();
    EXPECT_EQ(Writes(), (Texts{Device(L"Comm") + L"|Type", Device(L"Comm") + L"|Port"}));
}

} // namespace
