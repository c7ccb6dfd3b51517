#include "wqspcfg/models/idc/SpIDCMT8RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCMT8RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"Type",                 &C::m_dwType,                 0,  meaning::kNotDocumented, Saved},
    {key::Control, L"TimeOutOfReadMagCard", &C::m_dwTimeOutOfReadMagCard, 30, meaning::kTimeOutOfReadMagCard, Saved},
    Group(Rows<kCombinedReaderRows<CIDCRegInfo>>),
    {key::Device, L"IDCardImagePath", &C::m_strIDCardImagePath, L"", meaning::kIDCardImagePath, Saved},
    {key::Device, L"IDCardImageName", &C::m_strIDCardImageName, L"", L"file name of the identity card's image", Saved},
    {key::Device, L"IDCardImagePathBeCopyed", &C::m_strIDCardImagePathBeCopyed, L"",
     meaning::kIDCardImagePathBeCopyed, Saved},
    {key::Device, L"ReadIDStandard", &C::m_dwReadIDStandard, 0,
     L"standard by which identity cards are read, as the device's driver numbers it", Saved},
    {key::Device,  L"IsUnContactFailed",     &C::m_bIsUnContactFailed,     0,   meaning::kIsUnContactFailed, Saved},
    {key::Device,  L"GetImageFrontAndBack",  &C::m_bGetImageFrontAndBack,  0,   meaning::kGetImageFrontAndBack, Saved},
    {key::Device,  L"ImageFrontPath",        &C::m_strImageFrontPath,      L"", meaning::kImageFrontPath, Saved},
    {key::Device,  L"ImageBackPath",         &C::m_strImageBackPath,       L"", meaning::kImageBackPath, Saved},
    {key::Device,  L"ImagePhotoPath",        &C::m_strImagePhotoPath,      L"", L"path of the photo", Saved},
    {key::Device,  L"SendSrveDevStChanges",  &C::m_bSendSrveDevStChanges,  0,   meaning::kSendSrveDevStChanges, Saved},
    {key::Control, L"SetMediaNotPresent",    &C::m_bSetMediaNotPresent,    0,   meaning::kSetMediaNotPresent, Saved},
    {key::Control, L"CheckCardInsertOfIdle", &C::m_bCheckCardInsertOfIdle, 0,   meaning::kCheckCardInsertOfIdle, Saved},
    {key::Control, L"TranformIC2Hex",        &C::m_bTranformIC2Hex,        0,   meaning::kTranformIC2Hex, Saved},
    {key::Device, L"IDPhotoNamedById", &C::m_bIDPhotoNamedById, 0,
     L"the photo's file is named after the identity card's number: 0 no; nonzero yes", Saved},
    {key::Control, L"HandleRepeatCardPolicy", &C::m_dwHandleRepeatCardPolicy, 0,
     meaning::kHandleRepeatCardPolicy, Saved},
    {key::Device, L"GetFingerData", &C::m_bGetFingerData, 0,
     L"fingerprint data are read from the card: 0 no; nonzero yes", Saved},
    {key::Device, L"GetForeignData", &C::m_bGetForeignData, 0,
     L"the data of foreigners' cards are read: 0 no; nonzero yes", Saved},
    {key::Device, L"IsSaveNationCompleInfo", &C::m_bIsSaveNationCompleInfo, 0, meaning::kIsSaveNationCompleInfo, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCMT8RegInfo, CombinedReader<CIDCRegInfo>, kSettings)
