#include "wqspcfg/classes/PINRegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>

namespace {

using wqspcfg::test::ConfigTest;

constexpr wchar_t kEncryptor[] = L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\CGB_Encryptor";

class PINRegInfoTest : public ConfigTest
{
  protected:
    CPINRegInfo m_config{L"Svc", false};
};

TEST_F(PINRegInfoTest, ALayoutThatCannotBeReadIsTheDefaultOne)
{
    ASSERT_TRUE(m_config.Load(&m_log));
    EXPECT_EQ(m_config.m_mapKeyboardMapping.GetCount(), 25);
    EXPECT_EQ(m_config.m_mapKeyboardMapping[L"15"], L"00");
    EXPECT_EQ(m_config.m_mapFDKPosition.GetCount(), 8);
    EXPECT_EQ(m_config.m_mapFDKPosition[L"FDK06"], L"100,33");
    EXPECT_TRUE(Line(L"FDK06").empty());

    Set(Device(L"KeybordInfo\\FDKPosition"), L"FDK01", L"1,2");
    Set(Device(L"KeybordInfo\\KeyboardMapping\\Below"), L"x", L"y"); // makes the key, without a value
    m_config.Load(nullptr);
    EXPECT_EQ(m_config.m_mapKeyboardMapping.GetCount(), 0);
    EXPECT_EQ(m_config.m_mapFDKPosition.GetCount(), 1);
    EXPECT_EQ(m_config.m_mapFDKPosition[L"FDK01"], L"1,2");
}

TEST_F(PINRegInfoTest, SMValuesOfZeroAndMacLengthsOutOfRangeTakeTheDefault)
{
    const auto load = [&](DWORD dwValue) {
        Set(Device(L"SM"), L"SMUseValue", dwValue);
        Set(Device(L"SM\\SM4"), L"SM4MacValue", dwValue);
        Set(Device(L"SM\\SM4"), L"SM4MacLen", dwValue);
        m_log.Clear();
        m_config.Load(&m_log);
    };
    load(0);
    EXPECT_EQ(m_config.m_dwSMUseValue, 0x8000U);
    EXPECT_EQ(m_config.m_dwSM4MacValue, 0x2000U);
    EXPECT_EQ(m_config.m_dwSM4MacLen, 16U);
    EXPECT_NE(Line(L"SMUseValue").find(L" : 0x8000["), std::wstring::npos);
    load(8);
    EXPECT_EQ(m_config.m_dwSM4MacValue, 8U);
    EXPECT_EQ(m_config.m_dwSM4MacLen, 8U);
    load(17);
    EXPECT_EQ(m_config.m_dwSM4MacLen, 16U);
    EXPECT_NE(Line(L"SM4MacLen").find(L" : 16["), std::wstring::npos);
}

TEST_F(PINRegInfoTest, TheAutomaticSwitchWritesForceUseSMAndTheSameLoadReadsIt)
{
    const auto load = [&](DWORD dwAutomatic, const wchar_t* lpszUse, DWORD dwForce) {
        Set(Device(), L"IsAutomaticForceUseSM", dwAutomatic);
        Set(kEncryptor, L"UseSMAlgorithm", lpszUse);
        Set(Device(), L"ForceUseSM", dwForce);
        m_config.Load(nullptr);
        EXPECT_EQ(m_config.m_bForceUseSM, Number(Device(), L"ForceUseSM") != 0U);
        return Number(Device(), L"ForceUseSM");
    };
    EXPECT_EQ(load(1, L"1", 0), 1U);
    EXPECT_EQ(load(1, L"0", 1), 0U);
    EXPECT_EQ(load(1, L"01", 1), 0U);
    EXPECT_EQ(load(2, L"1", 0), 0U);
    EXPECT_EQ(load(0, L"0", 5), 5U);
}

TEST_F(PINRegInfoTest, WithoutTheApplicationsValueTheSwitchIsOff)
{
    Set(Device(), L"IsAutomaticForceUseSM", 1);
    Set(Device(), L"ForceUseSM", 1);
    m_config.Load(nullptr);
    EXPECT_FALSE(m_config.m_bForceUseSM);
    EXPECT_EQ(Number(Device(), L"ForceUseSM"), 0U);
}

TEST_F(PINRegInfoTest, LinesAreHexadecimalWhereTheyHaveAlwaysBeen)
{
    Set(Device(), L"ForceUseSM", 0xAB);
    Set(Device(), L"CertificateHashAlgorithm", 0x800C);
    m_config.Load(&m_log);
    EXPECT_NE(Line(L"ForceUseSM").find(L" : AB["), std::wstring::npos);
    EXPECT_NE(Line(L"AllowNonCryptKey").find(L" : 07["), std::wstring::npos);
    EXPECT_NE(Line(L"CertificateHashAlgorithm").find(L" : 0x800C["), std::wstring::npos);
}

TEST_F(PINRegInfoTest, LoadAndSaveHaveTheirOwnOrders)
{
    Set(Device(), L"BankID", 8); // the store is asked only of keys that it has
    Set(Device(L"SM\\SM4"), L"SM4MacLen", 8);
    ClearRecord();
    m_config.Load(nullptr);
    const auto reads = Reads();
    const auto at = [&](const std::wstring& read) { return std::find(reads.begin(), reads.end(), read); };
    EXPECT_LT(at(Device() + L"|CheckInputParam"), at(Device() + L"|IsAutomaticForceUseSM"));
    EXPECT_LT(at(Device() + L"|ForceUseSM"), at(Device(L"SM\\SM4") + L"|SM4MacLen"));
    EXPECT_LT(at(Device(L"SM\\SM4") + L"|SM4MacLen"), at(Device() + L"|CheckPinLength"));
    EXPECT_NE(at(Device() + L"|CheckPinLength"), reads.end());

    m_config.m_mapKeyboardMapping.RemoveAll();
    m_config.m_mapKeyboardMapping.SetAt(L"9", L"ENTER");
    m_config.m_mapFDKPosition.RemoveAll();
    m_config.m_dwCheckKEKUse = 0; // never written
    ClearRecord();
    m_config.Save();
    EXPECT_EQ(Commits(), 1U);
    const auto writes = Writes();
    ASSERT_EQ(writes.size(), 18U);
    EXPECT_EQ(writes[1], Device(L"KeybordInfo\\KeyboardMapping") + L"|9");
    EXPECT_EQ(writes[2], Device() + L"|EarlyTerminateFDK");
    EXPECT_EQ(writes[7], Device() + L"|PaddingCheck");
    EXPECT_EQ(writes[9], Device(L"Beep") + L"|KeyPress");
    EXPECT_EQ(writes[17], Device() + L"|UseProtectKey");
}

} // namespace
