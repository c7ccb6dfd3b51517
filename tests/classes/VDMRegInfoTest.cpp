#include "wqspcfg/classes/VDMRegInfo.h"

#include "support/ConfigTest.h"
#include "wqspcfg/platform/utility/Utility.h"

namespace {

using wqspcfg::test::ConfigTest;

class VDMRegInfoTest : public ConfigTest
{
  protected:
    static std::wstring PathFrom(const wchar_t* value)
    {
        Set(Device(L"VDA"), L"Path", value);
        CVDMRegInfo config(L"Svc", false);
        config.Load(nullptr);
        return config.m_strPath.Std();
    }
};

TEST_F(VDMRegInfoTest, APathWithoutADriveIsRelativeToTheLibrary)
{
    EXPECT_EQ(PathFrom(L"D:\\vda\\VDA.exe"), L"D:\\vda\\VDA.exe");
    EXPECT_EQ(PathFrom(L"VDA.exe"), L"C:\\vexo\\sp\\bin\\VDA.exe");
    EXPECT_EQ(PathFrom(L"\\tools\\VDA.exe"), L"C:\\vexo\\sp\\bin\\tools\\VDA.exe");
    EXPECT_EQ(PathFrom(L""), L"C:\\vexo\\sp\\bin\\WQVDA.exe");
    wqspcfg::OverrideModuleDir(L"D:\\");
    EXPECT_EQ(PathFrom(L"\\tools\\VDA.exe"), L"D:\\tools\\VDA.exe");
    EXPECT_EQ(PathFrom(L"VDA.exe"), L"D:\\VDA.exe");
}

TEST_F(VDMRegInfoTest, MissingValuesHaveTheirDefaultsAndNothingIsWritten)
{
    CVDMRegInfo config(L"Svc", false);
    EXPECT_TRUE(config.m_strPath.IsEmpty());
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_strPath.Std(), L"C:\\vexo\\sp\\bin\\WQVDA.exe");
    EXPECT_NE(Line(L"Path").find(L" : C:\\vexo\\sp\\bin\\WQVDA.exe["), std::wstring::npos);
    EXPECT_EQ(config.m_dwMaxExitTime, 40U);
    EXPECT_TRUE(config.m_bForceExitSP);
    config.m_dwMaxExitTime = 1;
    ClearRecord();
    config.Save();
    for (const auto& write : Writes()) {
        EXPECT_EQ(write.find(L"\\VDA"), std::wstring::npos);
    }
}

TEST_F(VDMRegInfoTest, NoLimitIsKept)
{
    Set(Device(L"VDA"), L"MaxExitTime", 0U);
    CVDMRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwMaxExitTime, 0U);
}

} // namespace
