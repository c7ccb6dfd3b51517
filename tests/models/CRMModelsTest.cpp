#include "wqspcfg/models/crm/SPCRMWQ07RegInfo.h"
#include "wqspcfg/models/crm/SPCRMWQ09RegInfo.h"
#include "wqspcfg/models/crm/SpC81DriverRegInfo.h"
#include "wqspcfg/models/crm/SpCRMFujitsuCRF3RegInfo.h"
#include "wqspcfg/models/crm/SpCRMSBBHopperRegInfo.h"
#include "wqspcfg/models/crm/SpCRMTCRRegInfo.h"
#include "wqspcfg/models/crm/SpCcadRegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using wqspcfg::test::ConfigTest;

class CRMModelsTest : public ConfigTest
{
  protected:
    CRMModelsTest() { Set(Device(L"SNRData"), L"dwAPID", 2); }

    static std::wstring Slot(const wchar_t* name) { return Device(L"Cassette\\Hopper\\" + std::wstring(name)); }
};

// The three note recyclers share their slots' values and the checks of the shutter valve.
template <class Model>
class NoteRecyclerTest : public CRMModelsTest
{};
using NoteRecyclers = ::testing::Types<CSPCRMWQ09RegInfo, CSPCRMWQ07RegInfo, CSpC81DriverRegInfo>;
TYPED_TEST_SUITE(NoteRecyclerTest, NoteRecyclers, );

TYPED_TEST(NoteRecyclerTest, ShutterValveIndicesAreChecked)
{
    const auto comm = this->Device(L"Comm");
    TypeParam config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwVtmOutShtCtrlIndex, 2U);
    EXPECT_EQ(config.m_dwVtmOutShtSafeDoorIndex, 3U);

    this->Set(comm, L"VtmOutShtCtrlIndex", 16);
    this->Set(comm, L"VtmOutShtSafeDoorIndex", 7);
    this->Set(comm, L"VtmOutShtStIndex", 8);
    ASSERT_TRUE(config.Load(&this->m_log));
    EXPECT_EQ(config.m_dwVtmOutShtCtrlIndex, 10U);
    EXPECT_EQ(config.m_dwVtmOutShtSafeDoorIndex, 7U);
    EXPECT_EQ(config.m_dwVtmOutShtStIndex, 4U);
    EXPECT_NE(this->Line(L"VtmOutShtCtrlIndex").find(L" : 10["), std::wstring::npos);

    // The control index pays for a wrong safe-door index.
    this->Set(comm, L"VtmOutShtCtrlIndex", 1);
    this->Set(comm, L"VtmOutShtSafeDoorIndex", 9);
    this->Set(comm, L"VtmOutShtStIndex", 7);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwVtmOutShtCtrlIndex, 5U);
    EXPECT_EQ(config.m_dwVtmOutShtSafeDoorIndex, 9U);
    EXPECT_EQ(config.m_dwVtmOutShtStIndex, 7U);
}

TYPED_TEST(NoteRecyclerTest, SlotsAreReadAndSavedUnderTheirNames)
{
    this->Set(this->Slot(L"B"), L"CasNearEmpty", 85);
    this->Set(this->Slot(L"R"), L"Type", 0x00040010);
    TypeParam config(L"Svc", false);
    ASSERT_TRUE(config.Load(&this->m_log));
    EXPECT_NE(this->Line(L"R.Type").find(L" : 0x00040010["), std::wstring::npos);
    EXPECT_NE(this->Line(L"B.CasNearEmpty").find(L" : 85["), std::wstring::npos);
    EXPECT_NE(this->Line(L"A.CasFull").find(L" : 2["), std::wstring::npos);
    this->ClearRecord();
    config.Save();
    EXPECT_EQ(this->Commits(), 1U);
    EXPECT_EQ(this->Number(this->Slot(L"R"), L"Type"), 0x00040010U);
    EXPECT_EQ(this->Number(this->Slot(L"A"), L"Type"), 0x00040030U);
}

TEST_F(CRMModelsTest, TwelveAndSevenSlotsHaveTheirOwnTypes)
{
    CSPCRMWQ09RegInfo twelve(L"Svc", false);
    CSPCRMWQ07RegInfo seven(L"Svc", false);
    const auto check = [&] {
        EXPECT_EQ(twelve.m_arSlot[3].dwType, 0x40U);   // B2
        EXPECT_EQ(twelve.m_arSlot[8].dwType, 0x40U);   // E
        EXPECT_EQ(twelve.m_arSlot[9].dwType, 0xF0U);   // E2
        EXPECT_EQ(twelve.m_arSlot[11].dwType, 0U);     // R
        EXPECT_EQ(seven.m_arSlot[2].dwType, 0x40030U); // C
        EXPECT_EQ(seven.m_arSlot[3].dwType, 0x40U);    // D
        EXPECT_EQ(seven.m_arSlot[5].dwType, 0xF0U);    // F
    };
    check();
    ASSERT_TRUE(twelve.Load(nullptr));
    ASSERT_TRUE(seven.Load(nullptr));
    check();
}

TEST_F(CRMModelsTest, CcadReadsCassetteTypesOutsideItsDeviceKeyAndNeverWritesThem)
{
    const std::wstring types = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\CASHDISPENSER\\COMMON\\CASSETTETYPE";
    Set(types, L"dwBType", DWORD{0});
    CSpCcadRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwAType, 1U);
    EXPECT_EQ(config.m_dwBType, 0U);
    ClearRecord();
    config.Save();
    const auto writes = Writes();
    EXPECT_TRUE(std::none_of(writes.begin(), writes.end(),
                             [&](const std::wstring& write) { return write.find(types) != std::wstring::npos; }));
    EXPECT_EQ(Number(Slot(L"RJ"), L"CasFull"), 2U);
}

TEST_F(CRMModelsTest, CoinAndTellerModelsNameTheirSlots)
{
    Set(Slot(L"A"), L"CurrentCasCount", 33);
    Set(Device(L"NoteType"), L"10VerifyLevel", 5);
    CSpCRMSBBHopperRegInfo hopper(L"Svc", false);
    ASSERT_TRUE(hopper.Load(&m_log));
    EXPECT_NE(Line(L"A.CurrentCasCount").find(L" : 33["), std::wstring::npos);
    CSpCRMFujitsuCRF3RegInfo coins(L"Svc", false);
    ASSERT_TRUE(coins.Load(&m_log));
    EXPECT_EQ(coins.m_dw10VerifyLevel, 5U);
    EXPECT_NE(Line(L"B.Type").find(L" : 0x050["), std::wstring::npos);
    CSpCRMTCRRegInfo teller(L"Svc", false);
    Set(Slot(L"B"), L"CasType", 0xFFFFFFFF);
    ASSERT_TRUE(teller.Load(&m_log));
    EXPECT_NE(Line(L"B.CasType").find(L" : 0xFFFFFFFF["), std::wstring::npos);
    EXPECT_EQ(teller.m_arSlot[2].dwCasValues, 20U);
}

TEST_F(CRMModelsTest, NumbersAreGivenBackAsTheyWereStoredAndSwitchesAsZeroOrOne)
{
    const auto capabilities = Device(L"CAPABILITIES");
    for (const auto* name : {L"TryRetract2CasE", L"CheckEmptyOnOutSht", L"CashOutAPI", L"DisplayRJEveryCountInfo",
                             L"RJBillMustStack", L"DepositRejectType"}) {
        Set(capabilities, name, 5);
    }
    CSPCRMWQ07RegInfo recycler(L"Svc", false);
    CSpCcadRegInfo ccad(L"Svc", false);
    CSpCRMTCRRegInfo teller(L"Svc", false);
    CSpCRMFujitsuCRF3RegInfo coins(L"Svc", false);
    for (CRegInfo* config : {static_cast<CRegInfo*>(&recycler), static_cast<CRegInfo*>(&ccad),
                             static_cast<CRegInfo*>(&teller), static_cast<CRegInfo*>(&coins)}) {
        ASSERT_TRUE(config->Load(nullptr));
        config->Save();
    }
    for (const auto* name :
         {L"TryRetract2CasE", L"CheckEmptyOnOutSht", L"DisplayRJEveryCountInfo", L"RJBillMustStack"}) {
        EXPECT_EQ(Number(capabilities, name), 5U) << std::wstring(name).c_str();
    }
    EXPECT_TRUE(teller.m_bCashOutAPI);
    EXPECT_EQ(Number(capabilities, L"CashOutAPI"), 1U);
    EXPECT_EQ(Number(capabilities, L"DepositRejectType"), 1U);
}

class CRMWithoutSerialNumbersTest : public ConfigTest
{};

TEST_F(CRMWithoutSerialNumbersTest, ModelsReadAndSaveTheirOwnWithoutTheSerialNumberKey)
{
    Set(Device(L"CAPABILITIES"), L"HwInitCount", 4);
    CSPCRMWQ09RegInfo config(L"Svc", false);
    EXPECT_FALSE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwHwInitCount, 4U);
    config.m_dwHwInitCount = 5;
    config.Save();
    EXPECT_EQ(Number(Device(L"CAPABILITIES"), L"HwInitCount"), 5U);
    EXPECT_EQ(Number(Device(L"CAPABILITIES"), L"RetractBillsWhenSPStart"), std::nullopt);
}

} // namespace
