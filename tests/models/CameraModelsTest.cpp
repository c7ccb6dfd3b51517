#include "wqspcfg/models/cam/SpCAMEm27585RegInfo.h"
#include "wqspcfg/models/cam/SpCAMPrdMNCCameraRegInfo.h"
#include "wqspcfg/models/cam/SpCAMPrdYGBRegInfo.h"
#include "wqspcfg/models/cam/SpCAMWQTJWI300RegInfo.h"

#include "support/ConfigTest.h"

namespace {

using wqspcfg::test::ConfigTest;
using Strings = std::vector<std::wstring>;

class CameraModelsTest : public ConfigTest
{};

TEST_F(CameraModelsTest, TheClassBaseReadsAndSavesInItsOrders)
{
    CCAMRegInfo config(L"Svc", false);
    EXPECT_EQ(config.m_dwPosW, 400U);
    Set(Device(L"Control"), L"CheckDisplayHwnd", 5);
    Set(Device(L"Camera"), L"x", 1);
    config.Load(nullptr);
    EXPECT_TRUE(config.m_bCheckDisplayHwnd);
    EXPECT_EQ(config.m_dwPosH, 300U);
    ClearRecord();
    config.Save();
    const auto control = Device(L"Control") + L"|";
    const auto camera = Device(L"Camera") + L"|";
    // IsDeleteSensetiveInfo, which every service provider has, is not among them.
    EXPECT_EQ(Writes(),
              (Strings{control + L"ApID", camera + L"PosX", camera + L"PosY", camera + L"PosW", camera + L"PosH",
                       control + L"CheckDisplayHwnd", control + L"CheckPicPath", control + L"FirstCheckCameraST",
                       control + L"NoCheckCamPar", control + L"HaveOutWhenTakePic"}));
    EXPECT_EQ(Number(Device(L"Control"), L"CheckDisplayHwnd"), 1U);
}

TEST_F(CameraModelsTest, ADocumentCameraEndsWithTwoFixedTranslations)
{
    CSpCAMWQTJWI300RegInfo config(L"Svc", false);
    config.Load(&m_log);
    const auto lines = Lines();
    ASSERT_GT(lines.size(), 2U);
    EXPECT_TRUE(lines[lines.size() - 2].starts_with(L"[CFG] " + std::wstring(36, L' ') + L"1004 : 1088  ["));
    EXPECT_TRUE(lines.back().starts_with(L"[CFG] " + std::wstring(36, L' ') + L"1003 : 1087  ["));
}

TEST_F(CameraModelsTest, EveryCameraPositionHasItsOwnValues)
{
    Set(Device(L"PosIDMap"), L"Cam_2", L"usb2");
    Set(Device(L"Pics"), L"CurPicCntOfCam3", 8);
    Set(Device(L"Control"), L"CurPicIndex", 9);
    Set(Device(L"Control"), L"dwAvailCamCount", 3);
    CSpCAMEm27585RegInfo grabber(L"Svc", false);
    grabber.Load(nullptr);
    EXPECT_EQ(grabber.m_strCam[0], L"**NoDevice**");
    EXPECT_EQ(grabber.m_strCam[2], L"usb2");
    EXPECT_EQ(grabber.m_dwCurPicCntOfCam[3], 8U);
    EXPECT_EQ(grabber.m_dwCurPicIndex, 9U); // of all cameras together
    EXPECT_EQ(grabber.m_dwAvailCamCount, 3U);

    Set(Device(L"CAPABILITIES\\PERSON"), L"WFS_CAM_AVAILABLE", 1);
    Set(Device(), L"DN.CAM_MNC.EXTRA", L"dev");
    CSpCAMPrdMNCCameraRegInfo mnc(L"Svc", false);
    mnc.Load(&m_log);
    EXPECT_TRUE(mnc.m_arPosition[1].bAvailable);
    EXPECT_FALSE(mnc.m_arPosition[0].bAvailable);
    EXPECT_EQ(mnc.m_arPosition[3].strDeviceName, L"dev");
    EXPECT_NE(Line(L"PERSON.WFS_CAM_AVAILABLE").find(L" : 1["), std::wstring::npos);
    mnc.m_arPosition[2].dwPictureNumber = 6;
    mnc.Save();
    EXPECT_EQ(Number(Device(L"CAPABILITIES\\EXITSLOT"), L"PictureNumber"), 6U);
    EXPECT_EQ(Text(Device(), L"DN.CAM_MNC.EXTRA"), L"dev");
    EXPECT_EQ(mnc.m_strPreTextFontName, L"\u5fae\u8f6f\u96c5\u9ed1");
}

TEST_F(CameraModelsTest, ASignaturePadHasWhatItWritesBelowTheSignaturesKey)
{
    CSpCAMPrdYGBRegInfo config(L"Svc", false);
    config.m_strSignPicPath = L"D:\\sign.png";
    config.m_dwPosX = 4; // of the tip text, not of the preview window
    config.Save();
    EXPECT_EQ(Text(Device(L"SignAttribute"), L"SignPicPath"), L"D:\\sign.png");
    EXPECT_EQ(Number(Device(L"SignAttribute"), L"PosX"), 4U);
    EXPECT_EQ(Number(Device(L"Camera"), L"PosX"), DWORD{0});
}

} // namespace
