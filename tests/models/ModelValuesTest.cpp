// What small device models read and with which text a missing value is replaced, told apart from their tables.
#include "support/ConfigTest.h"
#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/models/bcr/SpBCRHoneyWellN5680RegInfo.h"
#include "wqspcfg/models/bcr/SpBCRNT0810RegInfo.h"
#include "wqspcfg/models/chk/SpCHKTcsyRegInfo.h"
#include "wqspcfg/models/shared/NoteRecycler.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace wqspcfg::test {

namespace {

using Strings = std::vector<std::wstring>;

// Names, separated by blanks, and the subkeys of the device key that they may lie below.
struct Group
{
    Strings subkeys;
    const wchar_t* names;
};

struct Model
{
    const wchar_t* name;
    const wchar_t* base;
    std::vector<Group> groups;
    std::map<std::wstring, std::wstring> texts; // defaults
};

const Model kModels[] = {
    {L"CSpCAMCloudWalkRegInfo",
     L"CCAMRegInfo",
     {{{L"Control"}, L"TimeOut MaxPictures FontColor FontSize PointX PointY FMVersion CamID CameraIndex"}},
     {{L"FMVersion", L"V1.01"}, {L"CamID", L"VID_2C7F&PID_C3A1,VID_2C7F&PID_C3B1"}}},
    {L"CSpCAMSTRegInfo",
     L"CCAMRegInfo",
     {{{L"Control"}, L"TimeOut MaxPictures FontColor FontSize PointX PointY FMVersion CamID CameraIndex ShowText"}},
     {{L"CamID", L"VID_2C7F&PID_1A20,VID_2C7F&PID_1A90;VID_C168&PID_C098,VID_D168&PID_D098"}}},
    {L"CSpCAMYTUCB300V01RegInfo",
     L"CCAMRegInfo",
     {{{L"Control"},
       L"TimeOut MaxPictures FontColor FontSize PointX PointY FMVersion CamID CameraIndex ShowText "
       L"ScreenPath PersonPath DeleteFileWhenReset DeleteFilePath ShowWindow BroadcastEvent ResultPath "
       L"EventInterval ImageType CreateWindowWhenOpen"}},
     {{L"ScreenPath", L"C:\\CAM_DATA\\1.jpg"},
      {L"PersonPath", L"C:\\CAM_DATA\\2.jpg"},
      {L"DeleteFilePath", L"C:\\CAM_DATA"}}},
    {L"CSpCAMElectrPenSignatureRegInfo",
     L"CCAMRegInfo",
     {{{L"Control"}, L"CreatWinDisplay WinDlgAlpha"},
      {{L"SignAttribute"}, L"SignBGColor SignPenColor SignPenWidth"},
      {{L"SignAttribute\\TipStyle"}, L"PosX PosY FontName FontSize TextColor"}},
     {}},
    {L"CSpCAMYGBRegInfo",
     L"CCAMRegInfo",
     {{{L"Control", L"SignAttribute", L"SignAttribute\\TipStyle"},
       L"PicturePath LoadOneMoreKey CreatWinDisPlay WinDlgAlpha SignBGColor SignPenColor SignPenWidth PosX PosY "
       L"FontName FontSize TextColor DevType BGTextData"}},
     {}},
    {L"CSpCAMPrdYGBRegInfo",
     L"CCAMRegInfo",
     {{{L""}, L"DN.YGB_LED"},
      {{L"", L"SignAttribute", L"Control"},
       L"DevName SignTxtDataPath SignPicPath BGTextData CreatWinDisPlay WinDlgAlpha SignBGColor SignPenColor "
       L"SignPenWidth PosX PosY FontName FontSize TextColor"}},
     {}},
    {L"CSpCAMWQTJWI300RegInfo",
     L"CCAMRegInfo",
     {{{L"Recover\\Comm"}, L"Port BaudRate"},
      {{L"Recover"}, L"RetractCount MaxRetract AutoCloseTray"},
      {{L""},
       L"DevType MaxPictures ControlTrayOnlyInTakePicture TakePictureDir PictureRotate DPI Brightness Contrast "
       L"Saturation HUE Sharpness Gamma WhiteBalance BackLightCompensation Exposure AtivePropertyParam FontSize XPos "
       L"YPos"}},
     {{L"TakePictureDir", L"C:\\Camera\\TakePictureDir"}, {L"DPI", L"300"}}},
    {L"CSpCAMHandInputRegInfo",
     L"CCAMRegInfo",
     {{{L"Control"}, L"PenWidth PenColorR PenColorG PenColorB PenColor"}},
     {}},
    {L"CSpCAMHiKFaceRegInfo",
     L"CCAMRegInfo",
     {{{L"Control"},
       L"PicturePath XPos YPos FontSize FontFamily wiSO StartFaceDetect HardWareID StartOSD OSDContent "
       L"OSDXPos OSDYPos TakePictureGetFaceFeatureTimes MaxPictures"},
      {{L"CAPABILITIES"}, L"MaxDataLength CamPos"}},
     {{L"PicturePath", L"c:\\Camra_HiK\\"}, {L"HardWareID", L"VID_0BDA&PID_5842"}}},
    {L"CSpCAMHKBRegInfo",
     L"CCAMRegInfo",
     {{{L"Control"}, L"PicturePath CameraName VideoWidth VideoHeight XPos YPos FontSize MaxPictures"},
      {{L"CAPABILITIES"}, L"MaxDataLength HighCamRotateAngle HighCamResolution"}},
     {}},
    {L"CSpCAMUsbYUY2RegInfo",
     L"CCAMRegInfo",
     {{{L"Control"}, L"PicturePath VideoWidth VideoHeight XPos YPos FontSize TakePicWithDis UserRate MaxPictures"},
      {{L"CAPABILITIES"}, L"MaxDataLength CamPos"}},
     {{L"PicturePath", L"c:\\camra_data\\"}}},
    {L"CSpCAMLogitechC920RegInfo",
     L"CCAMRegInfo",
     {{{L"Control"},
       L"PicturePath ExPicturePath CameraName FirmWare CameraFirmWare ExCameraName VideoWidth VideoHeight "
       L"XPos YPos FontSize FontFamily wiSO TakePicWithDis UserRate CamPIDVID ExCamPIDVID "
       L"DestroyWhenNoCreate TakePicDelayTime SetDisplayDlgTopMost ResizePicture"},
      {{L"ResizePicture"}, L"SrcX SrcY"},
      {{L"ResizeDisplayWnd"}, L"dwDispWndX dwDispWndY dwDispWndWidth dwDispWndHight"},
      {{L"CAPABILITIES"}, L"MaxPictures MaxDataLength CamPos ExCamPos CreatVideoDlgInDisplay"},
      {{L"PreviewText"}, L"PreTextXPos PreTextYPos TextFontSize PreTextFontName"}},
     {{L"PicturePath", L"c:\\camera_data\\"},
      {L"CameraName", L"C920"},
      {L"FirmWare", L"LogitechC920.1.0"},
      {L"ExCameraName", L"U3343C"},
      {L"CamPIDVID", L"VID_046D&PID_082D"},
      {L"ExCamPIDVID", L"VID_0C45&PID_6320"}}},
    {L"CSpCAMPrdBNCCameraRegInfo",
     L"CCAMRegInfo",
     {{{L""}, L"DN.CAM_MNC.PERSON DN.CAM_BNC.FACE"},
      {{L"Control"},
       L"ScreenPicPath PersonPicPath MonocularPicPath DeleteFileWhenReset DeleteFilePath ResultPath "
       L"SupportMonocularCamera CreateWindowWhenOpen"},
      {{L"Liveness"}, L"BroadcastEvent EventInterval LivenessTimeOut"},
      {{L"PictureText"}, L"PicTextXPos PicTextYPos PicTextFontName wiSO PicTextFontColor PicTextFontSize"},
      {{L"ResizeDisplayWnd"}, L"MNCDispWndWidth MNCDispWndHight"},
      {{L"Cameras"}, L"MaxPictures"}},
     {{L"ScreenPicPath", L"C:\\CAM_DATA\\1.jpg"},
      {L"PersonPicPath", L"C:\\CAM_DATA\\2.jpg"},
      {L"MonocularPicPath", L"C:\\CAMERA_DATA\\0.jpg"},
      {L"DeleteFilePath", L"C:\\CAM_DATA"}}},
    {L"CSpBCRHoneyWellN5680RegInfo", L"CBCRRegInfo", {{{L"Comm"}, L"VirtualCom Type Port BaudRate"}}, {}},
    {L"CSpBCRNT0810RegInfo", L"CBCRRegInfo", {{{L"Comm"}, L"VirtualCom Type Port BaudRate"}}, {}},
    {L"CSpBCRSUPERlead4100SRegInfo", L"CBCRRegInfo", {{{L"Comm"}, L"DevType Port BaudRate"}}, {}},
    {L"CCHKRegInfo", L"CRegInfo", {{{L"Control"}, L"SendMediaInsertedEvent"}}, {}},
    {L"CSpCHKTcsyRegInfo",
     L"CCHKRegInfo",
     {{{L"Comm"}, L"Port BaudRate"}, {{L"Control"}, L"DevType StExtraRetFacInfo"}},
     {}},
    {L"CSpDEPWQEnvelopeRegInfo", L"CDEPRegInfo", {}, {}},
    // A dispenser that is a reader, whose base reads NeedSupportMediaLatched, and a reader that is a dispenser.
    {L"CSpCRDSankyo3A7230RegInfo",
     L"CIDCRegInfo",
     {{{L"Comm", L"Control"},
       L"Type Port BaudRate PowerOffOption PowerOnOption SkimOfInsertCard IDCRetainBinStatus "
       L"ISCRetainBinStatus ISCPowerOffOption ISCPowerOnOption InitBeforeDispenseCard InitBeforeReadCard DevType"}},
     {}},
    {L"CSpIDCpPrdIDCMotorRegInfo",
     L"CCRDRegInfo",
     {{{L"Control", L"TansPort"},
       L"Adaptor PowerOnOption PowerOffOption MoveTansPortCardOptionWhenRest MoveTansPortCardOptionWhenDispense "
       L"StatusOptionWhenCardInTansPort StatusOptionWhenDispenserStop ISCDispenseCardParam"},
      {{L""}, L"DN.IDC_MOTOR DN.CRD_MOTOR"}},
     {}},
    {L"CDEPRegInfo", L"CRegInfo", {}, {}},
    {L"CBCRRegInfo", L"CRegInfo", {}, {}},
};

// What a model's lines show where the registry holds nothing: labels and numbers, and texts.
struct Defaults
{
    const wchar_t* name;
    const wchar_t* numbers;
    std::map<std::wstring, std::wstring> texts;
};

constexpr wchar_t kDoorSound[] = L"C:\\vexo\\sp\\Config\\sp.data\\DeviceErrSound.wav";

const Defaults kDefaults[] = {
    {L"CSpSIUCABCRegInfo",
     L"SetTamperStOfDependTermType 0 RecoverUpsStOfFlashBreak 1 ConvertOnOffToFlush 0 "
     L"AllowUpsFlashBreakTime 1000 PoweroffAutoShutdown 0 AutoRebootWhenNextPowerOn 1 UsePowerSwitch 0 "
     L"UseSafeDoor 0 KeepSupervisorCabinetOpen 1 BuzzerOfWithoutSelectContinueAudio 0 RearBackLightCtrl 0 "
     L"FrontBackLightCtrl 1 SkimmerNeedReboot 0 UseSkimmer 1 UseSafeAgent 0 UseInnerUPS 0 Port 3 "
     L"OutlayUPSCarrySupply 0 UsePinSta 1 UseKeySta 1 UseCardSta 1 UseProximity 1 BeepOn 1 RelayAlarmOn 0 "
     L"BlindPoint 0 BlindAlarmTime 3 CoverAlarmTime 300 AutoCancel 1 ObserverType 2 DimScreenMode 0 "
     L"RearUpDoorRelationCabinet 0 DecorateDoorRelateCabinet 0 BrmHotLineRelateSafeDoor 0 "
     L"GuidLightOffOfReset 0 PolicyOfCabinetOpen 4 PhoneIndex 10 IsUseHandsetSensor 0",
     {{L"CardInserted", L"WQCARDREADER_E"}, {L"EntryPassword", L"WQPINPADEXE"}, {L"CabinetOpenBeepPath", kDoorSound}}},
    {L"CSpSIUPrdSIUNormalRegInfo",
     L"ParameterCheck\\ContinueBuzzerOfWithoutSelectAudio 0",
     {{L"DN.SIU_NORMAL", L"WQDrSIUTEK0816"},
      {L"ShareCtrl\\CardReader", L"WQSpIDCPrdCardReader"},
      {L"ShareCtrl\\Encryptor", L"WQSpPINPrdPINEPP"},
      {L"Indicators\\CabinetOpenBeepPath", kDoorSound}}},
    {L"CSpPINXZSE8098BRegInfo",
     L"Port 1 BaudRate 9600 MachineType 1 PressKeyTimeOut 60 MacType 1 AtiveClearAndBaskSpaceOption 0 "
     L"AtivePageUpPageDownInGetData 1 EarlyTerminateEnterToMaxLen 0 PageUpToFDK 0 PageDownToFDK 0 "
     L"LoadKeyEncKeyOfCryptCmd 0 ReadOneKeyToMaxForceEnter 0 PageUpToXFSKey 0 PageDownToXFSKey 0 CBHBSM 0",
     {}},
    {L"CSpPINJstdE6060RegInfo", L"MacType 0 Port 0 BaudRate 57600", {}},
    {L"CSpPINJstdE6020K02EASRegInfo", L"MacType 0 Port 1 BaudRate 9600", {}},
    {L"CTTURegInfo", L"IsUseInitialValue 0", {}},
};

class ModelValuesTest : public ConfigTest
{
  protected:
    Strings ReadsOf(const wchar_t* name)
    {
        ResetProcess();
        const auto object = Create(*FindClass(name), CString(L"Svc"), false);
        m_log.Clear();
        ClearRecord();
        EXPECT_TRUE(object->Load(&m_log));
        return Reads();
    }

    template <class Scanner>
    void CheckScanner()
    {
        Scanner config(L"Svc", false);
        EXPECT_EQ(config.m_dwType, DWORD{0});
        EXPECT_EQ(config.m_dwPort, 1U);
        config.m_dwVirtualCom = 8;
        config.m_dwType = 8;
        config.m_dwPort = 8;
        config.m_dwBaudRate = 8;
        ASSERT_TRUE(config.Load(nullptr));
        EXPECT_EQ(config.m_dwType, DWORD{0});
        EXPECT_EQ(config.m_dwPort, 1U);
        EXPECT_EQ(config.m_dwVirtualCom, 8U); // without a fallback, what was held stays
        EXPECT_EQ(config.m_dwBaudRate, 8U);
    }
};

} // namespace

TEST_F(ModelValuesTest, EachReadsItsValuesAfterThoseOfItsBase)
{
    for (const auto& model : kModels) {
        SCOPED_TRACE(std::string(model.name, model.name + std::wcslen(model.name)));
        // Nothing is asked of a key that is missing.
        for (const auto& group : model.groups) {
            for (const auto& subkey : group.subkeys) {
                Set(Device(subkey), L"unrelated", 1);
            }
        }
        const auto ofBase = ReadsOf(model.base);
        auto own = ReadsOf(model.name);
        ASSERT_GE(own.size(), ofBase.size());
        ASSERT_TRUE(std::equal(ofBase.begin(), ofBase.end(), own.begin()));
        own.erase(own.begin(), own.begin() + static_cast<std::ptrdiff_t>(ofBase.size()));
        for (const auto& group : model.groups) {
            std::wistringstream names(group.names);
            for (std::wstring name; names >> name;) {
                const auto found = std::find_if(own.begin(), own.end(), [&](const std::wstring& read) {
                    return std::any_of(group.subkeys.begin(), group.subkeys.end(),
                                       [&](const auto& subkey) { return read == Device(subkey) + L"|" + name; });
                });
                if (found == own.end()) {
                    ADD_FAILURE() << std::string(name.begin(), name.end()) << " is not read";
                } else {
                    own.erase(found);
                }
            }
        }
        EXPECT_EQ(own, Strings{}) << "read besides";
        for (const auto& [name, text] : model.texts) {
            EXPECT_NE(Line(name).find(L" : " + text + L"["), std::wstring::npos)
                << std::string(name.begin(), name.end());
        }
    }
}

TEST_F(ModelValuesTest, AnEmptyRegistryGivesTheDefaults)
{
    for (const auto& model : kDefaults) {
        m_log.Clear();
        Create(*FindClass(model.name), CString(L"Svc"), false)
            ->Load(&m_log); // false where a class needs keys of its own
        const auto check = [&](const std::wstring& label, const std::wstring& value) {
            const auto line = Line(label);
            const auto shown = L" : " + value;
            const auto at = line.find(shown);
            EXPECT_TRUE(at != std::wstring::npos && std::wcschr(L"[ ", line[at + shown.size()]) != nullptr)
                << std::string(label.begin(), label.end()) << ": " << std::string(line.begin(), line.end());
        };
        std::wistringstream numbers(model.numbers);
        for (std::wstring label, number; numbers >> label >> number;) {
            check(label, number);
        }
        for (const auto& [label, text] : model.texts) {
            check(label, text);
        }
    }
    for (const auto* name : {L"CSPCRMWQ09RegInfo", L"CSPCRMWQ07RegInfo", L"CSpC81DriverRegInfo"}) {
        const auto object = Create(*FindClass(name), CString(L"Svc"), false);
        const auto& valve = dynamic_cast<const NoteRecycler&>(*object);
        EXPECT_EQ(valve.m_dwVtmOutShtPort, 3U);
        EXPECT_EQ(valve.m_dwVtmOutShtCtrlIndex, 2U);
        EXPECT_EQ(valve.m_dwVtmOutShtSafeDoorIndex, 3U);
        EXPECT_EQ(valve.m_dwVtmOutShtStIndex, 2U);
    }
}

TEST_F(ModelValuesTest, TheSerialScannersReplaceOnlyTheTypeAndThePort)
{
    CheckScanner<CSpBCRHoneyWellN5680RegInfo>();
    CheckScanner<CSpBCRNT0810RegInfo>();
}

TEST_F(ModelValuesTest, AFingerprintReadersEventIsOffUnlessAskedFor)
{
    CSpCHKTcsyRegInfo config(L"Svc", false);
    EXPECT_FALSE(config.m_bSendMediaInsertedEvent);
    Set(Device(L"Control"), L"SendMediaInsertedEvent", 7);
    Set(Device(L"Control"), L"DevType", 3);
    Set(Device(L"Control"), L"StExtraRetFacInfo", 1);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_TRUE(config.m_bSendMediaInsertedEvent);
    EXPECT_EQ(config.m_dwDevType, 3U);
    EXPECT_NE(Line(L"StExtraRetFacInfo").find(L" : 1["), std::wstring::npos);
}

} // namespace wqspcfg::test
