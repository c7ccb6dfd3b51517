#include "wqspcfg/catalogue/ModelSelection.h"

#include "support/ConfigTest.h"

namespace wqspcfg::test {

namespace {

std::wstring Chosen(const ServiceIdentity& service)
{
    return SelectModel(service).entry->table().className;
}

ServiceIdentity Named(std::wstring xfsClass, std::wstring deviceKey, std::wstring executable = {})
{
    ServiceIdentity service;
    service.xfsClass = std::move(xfsClass);
    service.deviceKey = std::move(deviceKey);
    service.executable = std::move(executable);
    return service;
}

} // namespace

TEST(ModelSelectionTest, NamesThatAreAModelsComeFirst)
{
    EXPECT_EQ(Chosen(Named(L"CRD", L"WQSpCRDWQTYM1200")), L"CSpCRDWQTYM1200RegInfo");
    EXPECT_EQ(Chosen(Named(L"CRD", L"spcrdwqtym1200")), L"CSpCRDWQTYM1200RegInfo");
    EXPECT_EQ(Chosen(Named(L"CRD", L"CRDWQTYM1200")), L"CSpCRDWQTYM1200RegInfo");
    // A name that is one goes before a name that only holds one.
    EXPECT_EQ(Chosen(Named(L"CRD", L"XCRDUKeyX", L"WQSpCRDWQTYM1200")), L"CSpCRDWQTYM1200RegInfo");
    // Whatever the class value says.
    EXPECT_EQ(Chosen(Named(L"IDC", L"WQSpCRDWQTYM1200")), L"CSpCRDWQTYM1200RegInfo");
}

TEST(ModelSelectionTest, PartsOfNamesCountWithinTheClass)
{
    EXPECT_EQ(Chosen(Named(L"CRD", L"WQTYM1200")), L"CSpCRDWQTYM1200RegInfo");
    EXPECT_EQ(Chosen(Named(L"CDM", L"WQC81Driver")), L"CSpC81DriverRegInfo");
    // The longest name that is held wins: CSpCRDUKeyRegInfo is part of this name too.
    EXPECT_EQ(Chosen(Named(L"CRD", L"My_CRDUKeyK1503_2")), L"CSpCRDUKeyK1503RegInfo");
    // The same name serves several classes; the class value tells which.
    EXPECT_EQ(Chosen(Named(L"PTR", L"HoneyWellN5680")), L"CSpPTRHoneyWellN5680RegInfo");
    EXPECT_EQ(Chosen(Named(L"IDC", L"HoneyWellN5680")), L"CSpIDCHoneyWellN5680RegInfo");
}

TEST(ModelSelectionTest, ElseTheClassBaseIsChosen)
{
    EXPECT_EQ(Chosen(Named(L"CRD", L"Unknown")), L"CCRDRegInfo");
    EXPECT_EQ(Chosen(Named(L"CIM", L"")), L"CCRMRegInfo");
    EXPECT_EQ(Chosen(Named(L"vdm", L"WQSpVDM")), L"CVDMRegInfo");
    EXPECT_EQ(Chosen(Named(L"XYZ", L"Unknown")), L"CRegInfo");
    EXPECT_NE(SelectModel(Named(L"XYZ", L"Unknown")).reason.find(L"XYZ"), std::wstring::npos);
}

class ServiceIdentityTest : public ConfigTest
{};

TEST_F(ServiceIdentityTest, IsReadFromTheServicesKeys)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", L"PTR");
    Set(Service(), L"Class", L"IDC");
    Set(Service(), L"Executable", L"C:\\sp\\WQSpPTRRID100.EXE");
    Set(Service(), L"DLLName", L"C:\\sp\\WQSpFrm.dll");
    Set(Service(), L"PTRName", L"WQSpPTR.dll");
    const auto logical = IdentifyService(CString(L"Svc"), false);
    EXPECT_TRUE(logical.exists);
    EXPECT_EQ(logical.physicalName, L"Phys");
    EXPECT_EQ(logical.xfsClass, L"PTR");
    EXPECT_EQ(logical.deviceKey, L"Dev");
    EXPECT_EQ(logical.executable, L"WQSpPTRRID100");
    EXPECT_EQ(logical.module, L"WQSpFrm");
    EXPECT_EQ(logical.classModule, L"WQSpPTR");
    EXPECT_EQ(SelectModel(logical).reason, L"executable \"WQSpPTRRID100\" is the model's name");
    EXPECT_EQ(IdentifyService(CString(L"Phys"), true).xfsClass, L"IDC");
    EXPECT_FALSE(IdentifyService(CString(L"Phys"), false).exists);
    EXPECT_FALSE(IdentifyService(CString(L"Svc"), true).exists);
}

} // namespace wqspcfg::test
