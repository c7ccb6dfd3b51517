#include "wqspcfg/models/cam/SpCAMWQTJWI300RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCAMWQTJWI300RegInfo;

namespace {

constexpr Key kRecoverComm = key::Below(L"Recover\\Comm");
constexpr Key kRecover = key::Below(L"Recover");

// Two commands of one bank profile, which are translated into others.
constexpr auto kPrintTranslations = [](C&, Loading& loading) {
    LogInfo(loading.Log(), L"[CFG] %40d : %d  [%s]", 1004, 1088,
            L"for one bank profile, the extended take-picture command is translated");
    LogInfo(loading.Log(), L"[CFG] %40d : %d  [%s]", 1003, 1087,
            L"for one bank profile, the display command is translated");
};

// clang-format off
constexpr Setting kSettings[] = {
    {kRecoverComm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {kRecoverComm, L"BaudRate", &C::m_dwBaudRate, 9600,
     meaning::kBaudRate, Saved},
    {key::Device, L"DevType", &C::m_dwDevType, 0,
     L"device type: 0 document camera; 1 document camera with retract; 2 document camera with tray control", Saved,
     OneOf},
    {key::Device, L"MaxPictures", &C::m_dwMaxPictures, 1000,
     L"maximum number of pictures kept in the folder", Saved},
    {key::Device, L"ControlTrayOnlyInTakePicture", &C::m_dwControlTrayOnlyInTakePicture, 0,
     L"who controls the tray: 0 the display command opens it and take-picture closes it; 1 take-picture only", Saved,
     OneOf},
    {kRecover, L"RetractCount", &C::m_dwRetractCount, 0,
     L"number of retracted documents", Saved},
    {kRecover, L"MaxRetract", &C::m_dwMaxRetract, 50,
     L"maximum number of retracted documents", Saved},
    {kRecover, L"AutoCloseTray", &C::m_dwAutoCloseTray, 0,
     L"seconds after which the tray is retracted; 0 off", Saved},
    {key::Device, L"TakePictureDir", &C::m_strTakePictureDir, L"C:\\Camera\\TakePictureDir",
     L"folder of take-picture images", Saved, RefersTo(Reference::Directory)},
    {key::Device, L"PictureRotate", &C::m_dwPictureRotate, 0,
     L"rotation of the picture: 0 none; 1 90 degrees; 2 180 degrees; 3 270 degrees", Saved, OneOf},
    {key::Device, L"DPI", &C::m_dwDPI, 300,
     L"image resolution in dots per inch", Saved},
    {key::Device, L"Brightness", &C::m_dwBrightness, 10,
     L"brightness set at take-picture: 0 to 20", Saved, Range(0, 20)},
    {key::Device, L"Contrast", &C::m_dwContrast, 10,
     L"contrast set at take-picture: 1 to 20", Saved, Range(1, 20)},
    {key::Device, L"Saturation", &C::m_dwSaturation, 5,
     L"saturation set at take-picture: 0 to 10", Saved, Range(0, 10)},
    {key::Device, L"HUE", &C::m_dwHUE, 5,
     L"hue set at take-picture: 0 to 10", Saved, Range(0, 10)},
    {key::Device, L"Sharpness", &C::m_dwSharpness, 5,
     L"sharpness set at take-picture: 0 to 10", Saved, Range(0, 10)},
    {key::Device, L"Gamma", &C::m_dwGamma, 100,
     L"gamma set at take-picture: 100 to 200", Saved, Range(100, 200)},
    {key::Device, L"WhiteBalance", &C::m_dwWhiteBalance, 4600,
     L"white balance set at take-picture, in kelvin: 2800 to 6500", Saved, Range(2800, 6500)},
    {key::Device, L"BackLightCompensation", &C::m_dwBackLightCompensation, 0,
     L"back-light compensation set at take-picture: 0 off; 1 on", Saved, OneOf},
    {key::Device, L"Exposure", &C::m_dwExposure, 3,
     L"exposure set at take-picture: 0 to 5", Saved, Range(0, 5)},
    {key::Device, L"AtivePropertyParam", &C::m_dwAtivePropertyParam, 0,
     L"the image properties are applied at take-picture: 0 no; nonzero yes", Saved},
    {key::Device, L"FontSize", &C::m_dwFontSize, 20,
     L"size of the text printed on the picture", Saved},
    {key::Device, L"XPos", &C::m_dwXPos, 10,
     L"X position of the text printed on the picture", Saved},
    {key::Device, L"YPos", &C::m_dwYPos, 10,
     L"Y position of the text printed on the picture", Saved},
    Step(kPrintTranslations),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMWQTJWI300RegInfo, CCAMRegInfo, kSettings)
