#include "support/ConfigTest.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/bcr/SpBCRMotoRegInfo.h"
#include "wqspcfg/models/bcr/SpBCRMotoScannerRegInfo.h"
#include "wqspcfg/models/bcr/SpBCRNewLandRegInfo.h"
#include "wqspcfg/models/bcr/SpBCRPrdScannerRegInfo.h"
#include "wqspcfg/models/idc/SpIDCMotoScannerRegInfo.h"

namespace {

using wqspcfg::test::ConfigTest;

class BarcodeModelsTest : public ConfigTest
{
  protected:
    template <class Moto>
    void CheckMoto()
    {
        Set(Device(), L"ScannerNameOfConn", L"desk");
        Set(Device(), L"UseTrackWMRead", 1);
        Moto config(L"Svc", false);
        ASSERT_TRUE(config.Load(&m_log));
        EXPECT_EQ(config.m_strScannerNameOfConn.Std(), L"desk");
        EXPECT_EQ(config.m_dwUseTrackWMRead, 1U);
        EXPECT_NE(Line(L"ScannerNameOfConn").find(L" : desk["), std::wstring::npos);
        CRegInfo root(L"Svc", false);
        root.Load(nullptr);
        ClearRecord();
        root.Save();
        const auto ofRoot = Writes();
        ClearRecord();
        config.Save();
        EXPECT_EQ(Writes(), ofRoot) << "nothing of its own is saved";
    }
};

TEST_F(BarcodeModelsTest, TheMotoScannersLoadTheSameAndSaveNothing)
{
    CheckMoto<CSpBCRMotoRegInfo>();
    CheckMoto<CSpBCRMotoScannerRegInfo>();
    CheckMoto<CSpIDCMotoScannerRegInfo>();
    EXPECT_EQ(&CBCRRegInfo::Settings(), &CSpBCRMotoScannerRegInfo::Settings().base());
    EXPECT_EQ(&CBCRRegInfo::Settings(), &CSpIDCMotoScannerRegInfo::Settings().base());
    EXPECT_EQ(&CBCRRegInfo::Settings(), &CSpBCRMotoRegInfo::Settings().base());
}

TEST_F(BarcodeModelsTest, OnlyValuesWithAFallbackReplaceWhatTheMemberHeld)
{
    CSpBCRNewLandRegInfo newLand(L"Svc", false);
    newLand.m_dwDevType = 1;
    newLand.m_dwPort = 9;
    newLand.m_dwBaudRate = 300;
    newLand.m_dwGetdataTimes = 8;
    newLand.Load(nullptr);
    EXPECT_EQ(newLand.m_dwDevType, 1U);
    EXPECT_EQ(newLand.m_dwPort, 1U);
    EXPECT_EQ(newLand.m_dwBaudRate, 115200U);
    EXPECT_EQ(newLand.m_dwGetdataTimes, 8U);

    CSpBCRMotoRegInfo moto(L"Svc", false);
    moto.m_strScannerNameOfConn = L"other";
    moto.m_strBeepFile = L"beep.wav";
    moto.Load(nullptr);
    EXPECT_EQ(moto.m_strScannerNameOfConn.Std(), L"WQ-DEFAULT");
    EXPECT_EQ(moto.m_strBeepFile.Std(), L"beep.wav");
}

TEST_F(BarcodeModelsTest, TheScannerIsReEnabledBeforeItSwitchesItselfOff)
{
    CSpBCRPrdScannerRegInfo config(L"Svc", false);
    EXPECT_EQ(config.m_dwReEnableScannerWaitTime, 57000U);
    config.m_strDN_BCR_BARCODE = L"WQDrScanner";
    config.Save();
    EXPECT_EQ(Text(Device(), L"DN.BCR_BARCODE"), L"WQDrScanner");
    EXPECT_EQ(Number(Device(L"Control"), L"ReEnableScannerWaitTime"), 57000U);
}

} // namespace
