#include "support/ConfigTest.h"
#include "wqspcfg/models/crd/SpCRDACT3UKeyRegInfo.h"
#include "wqspcfg/models/crd/SpCRDACTF55540RegInfo.h"
#include "wqspcfg/models/crd/SpCRDKoreaTLD1000RegInfo.h"
#include "wqspcfg/models/crd/SpCRDTD2001GetRegInfo.h"
#include "wqspcfg/models/crd/SpCRDTTCED16X0RegInfo.h"
#include "wqspcfg/models/crd/SpCRDWQTKoreaTLD1000RegInfo.h"
#include "wqspcfg/models/crd/SpCRDWQTSankyo3A7230RegInfo.h"
#include "wqspcfg/models/crd/SpCRDWQTYRM3800RegInfo.h"

#include <algorithm>

namespace {

using wqspcfg::test::ConfigTest;

class CardDispenserModelsTest : public ConfigTest
{};

TEST_F(CardDispenserModelsTest, TheUKeyDispensersBinCountIsNotReadBack)
{
    Set(Device(L"Control"), L"SupplyBinCount", 2);
    CSpCRDACT3UKeyRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwSupplyBinCount, 2U);
    config.m_dwSupplyBinCount = 3;
    config.Save();
    EXPECT_EQ(Number(Device(L"Control"), L"upplyBinCount"), 3U);
    EXPECT_EQ(Number(Device(L"Control"), L"SupplyBinCount"), 2U);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwSupplyBinCount, 2U);
}

TEST_F(CardDispenserModelsTest, TheUKeyDispenserSharesADispenseSwitchWithItsBase)
{
    Set(Device(L"Control"), L"DispenseAfterRetainBinFull", 5);
    CSpCRDACT3UKeyRegInfo config(L"Svc", false);
    config.Load(&m_log);
    EXPECT_EQ(static_cast<CCRDRegInfo&>(config).m_dwDispenseAfterRetainBinFull, 5U);
    EXPECT_NE(Line(L"DispenseAfterRetainBinFull").find(L" : 5["), std::wstring::npos);
    config.Save();
    EXPECT_EQ(Number(Device(L"Control"), L"DispenseAfterRetainBinFull"), 1U);
}

TEST_F(CardDispenserModelsTest, TypeAndProtocolBelongToTheCommunication)
{
    for (const auto* name : {L"DevType", L"ApProtocolType"}) {
        Set(Device(L"Comm"), name, 3);
        Set(Device(L"Control"), name, 4);
    }
    CSpCRDACT3UKeyRegInfo act(L"Svc", false);
    CSpCRDTTCED16X0RegInfo ttce(L"Svc", false);
    act.Load(nullptr);
    ttce.Load(nullptr);
    EXPECT_EQ(act.m_dwDevType, 3U);
    EXPECT_EQ(act.m_dwApProtocolType, 3U);
    EXPECT_EQ(ttce.m_dwDevType, 3U);
    EXPECT_EQ(ttce.m_dwApProtocolType, 3U);
}

TEST_F(CardDispenserModelsTest, TheF55540HasItsOwnNamesForPortAndSpeed)
{
    Set(Device(L"Comm"), L"Port", 7);
    Set(Device(L"Comm"), L"Port5540", 3);
    CSpCRDACTF55540RegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwPort5540, 3U);
    EXPECT_EQ(config.m_dwBaudRate5540, 9600U);
}

TEST_F(CardDispenserModelsTest, TheBluetoothDispenserCanBePairedWithoutConfiguration)
{
    CSpCRDTD2001GetRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(config.m_strBluetoothPassWord.Std(), L"246810");
    EXPECT_EQ(config.m_strBluetoothTypicalityName.Std(), L"TD2001");
    EXPECT_TRUE(config.m_strCurrentCardBoxName.IsEmpty());
    EXPECT_EQ(config.m_dwIdleRefreshStatusOption, 1U);
    EXPECT_TRUE(config.m_bRemoveDispenseCardUnit);
    EXPECT_EQ(config.m_dwMaxCount, 20U);
}

TEST_F(CardDispenserModelsTest, BothTLD1000KeepTheirNearlyFullCountBelowTheCapacity)
{
    Set(Device(L"RetainCardSet"), L"MaxRetainCard", 8);
    CSpCRDKoreaTLD1000RegInfo reader(L"Svc", false);
    CSpCRDWQTKoreaTLD1000RegInfo dispenser(L"Svc", false);
    for (const DWORD stored : {0U, 6U, 7U, 8U}) { // 0: nothing stored yet
        if (stored != 0) {
            Set(Device(L"RetainCardSet"), L"RetainBinHigh", stored);
        }
        reader.Load(nullptr);
        dispenser.Load(nullptr);
        EXPECT_EQ(dispenser.m_dwRetainBinHigh, stored == 7 ? 7U : 6U) << stored;
        EXPECT_EQ(dispenser.m_dwRetainBinHigh, reader.m_dwRetainBinHigh) << stored;
    }
}

TEST_F(CardDispenserModelsTest, OneLineOfTheSankyoHasItsTagLeftOpen)
{
    CSpCRDWQTSankyo3A7230RegInfo config(L"Svc", false);
    config.Load(&m_log);
    EXPECT_FALSE(config.m_bSendThresholdEvt);
    const auto line = Line(L"SendThresholdEvt");
    EXPECT_TRUE(line.starts_with(L"[CFG " + std::wstring(24, L' ') + L"SendThresholdEvt : 0[")) << line.size();
    EXPECT_TRUE(Line(L"DisabledReInsertCard").starts_with(L"[CFG] "));
}

TEST_F(CardDispenserModelsTest, TheCardUnitsComeBeforeTheModelsValues)
{
    Set(Device(L"CardUnit\\CardUnitInfo1"), L"Number", 1);
    CSpCRDWQTYRM3800RegInfo config(L"Svc", false);
    config.Load(&m_log);
    const auto lines = Lines();
    const auto at = [&](const wchar_t* text) {
        return std::find_if(lines.begin(), lines.end(), [&](const auto& line) { return line.find(text) != line.npos; });
    };
    ASSERT_NE(at(L"[CST]"), lines.end());
    EXPECT_LT(at(L"TemporaryRetainBin :"), at(L"[CST]"));
    EXPECT_LT(at(L"[CST]"), at(L" Port :"));
}

TEST_F(CardDispenserModelsTest, ADispenserThatIsACardReaderSharesTheReadersRetainBin)
{
    Set(Device(L"RetainCardSet"), L"MaxRetainCard", 10);
    Set(Device(L"RetainCardSet"), L"RetainBinHigh", 10);
    CSpCRDKoreaTLD1000RegInfo config(L"Svc", false);
    config.Load(&m_log);
    EXPECT_EQ(static_cast<CIDCRegInfo&>(config).m_dwRetainBinHigh, 7U);
    const auto lines = Lines();
    EXPECT_NE(lines.back().find(L"DispenseCardStyle"), std::wstring::npos);
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const auto& line) { return line.find(L" RetainBinHigh : 7[") != line.npos; }),
              2);
}

} // namespace
