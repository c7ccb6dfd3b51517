#include "wqspcfg/models/idc/SpIDCDCT10NRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCDCT10NRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kDcReaderRows>),
    {key::Comm, L"ICBaudRate", &C::m_dwICBaudRate, 9600, L"speed of the chip card in baud", Saved},
    {key::Comm, L"ICVolt", &C::m_dwICVolt, 0,
     L"voltage of the chip card, as the device's driver numbers it", Saved},
    {key::Control, L"TimeOutOfReadMagCard", &C::m_dwTimeOutOfReadMagCard, 30, meaning::kTimeOutOfReadMagCard, Saved},
    {key::Control, L"PcdRate", &C::m_dwPcdRate, 0,
     L"data rate of the contactless coupler (PCD), as the device's driver numbers it", Saved},
    Group(Rows<kCombinedReaderRows<DcReader>>),
    {key::Device, L"IDCardImagePath", &C::m_strIDCardImagePath, L"", meaning::kIDCardImagePath, Saved},
    {key::Device, L"IDCardImagePathBeCopyed", &C::m_strIDCardImagePathBeCopyed, L"",
     meaning::kIDCardImagePathBeCopyed, Saved},
    {key::Device, L"IsUnContactFailed",    &C::m_bIsUnContactFailed,    0,   meaning::kIsUnContactFailed, Saved},
    {key::Device, L"CardReaderType",       &C::m_dwCardReaderType,      0,   meaning::kCardReaderType, Saved},
    {key::Device, L"CardNameOfConn",       &C::m_strCardNameOfConn,     L"", meaning::kCardNameOfConn, Saved},
    {key::Device, L"GetImageFrontAndBack", &C::m_bGetImageFrontAndBack, 0,   meaning::kGetImageFrontAndBack, Saved},
    {key::Device, L"ImageFrontPath",       &C::m_strImageFrontPath,     L"", meaning::kImageFrontPath, Saved},
    {key::Device, L"ImageBackPath",        &C::m_strImageBackPath,      L"", meaning::kImageBackPath, Saved},
    {key::Device, L"ReadIDCardPattern", &C::m_dwReadIDCardPattern, 0,
     L"mode of reading identity cards, as the device's driver numbers it", Saved},
    {key::Control, L"HandleRepeatCardPolicy", &C::m_dwHandleRepeatCardPolicy, 0,
     meaning::kHandleRepeatCardPolicy, Saved},
    {key::Control, L"FindCardPolicy",        &C::m_dwFindCardPolicy,       0, meaning::kFindCardPolicy, Saved},
    {key::Device,  L"SupportChipPower",      &C::m_bSupportChipPower,      0, meaning::kSupportChipPower, Saved},
    {key::Control, L"CheckCardInsertOfIdle", &C::m_bCheckCardInsertOfIdle, 0, meaning::kCheckCardInsertOfIdle, Saved},
    {key::Device, L"IsSaveIDCardPhoto", &C::m_bIsSaveIDCardPhoto, 0,
     L"the photo of the identity card is saved: 0 no; nonzero yes", Saved},
    {key::Control, L"TranformIC2Hex",       &C::m_bTranformIC2Hex,       0, meaning::kTranformIC2Hex, Saved},
    {key::Device,  L"SendSrveDevStChanges", &C::m_bSendSrveDevStChanges, 0, meaning::kSendSrveDevStChanges, Saved},
    {key::Device, L"IsUseRemoteTransFile", &C::m_bIsUseRemoteTransFile, 0,
     L"files are transferred to a remote host: 0 no; nonzero yes", Saved},
    {key::Device, L"FileHostPort", &C::m_dwFileHostPort, 0,
     L"port number of the host that files are transferred to", Saved},
    {key::Device, L"FileHostIP", &C::m_strFileHostIP, L"",
     L"IP address of the host that files are transferred to", Saved},
    {key::Device, L"IsSaveNationCompleInfo", &C::m_bIsSaveNationCompleInfo, 0, meaning::kIsSaveNationCompleInfo, Saved},
    {key::Control, L"SetPcdRate", &C::m_bSetPcdRate, 0,
     L"the data rate of the contactless coupler (PCD) is set: 0 no; nonzero yes", Saved},
    {key::Device, L"InforReturnFormat", &C::m_dwInforReturnFormat, 0, meaning::kInforReturnFormat, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCT10NRegInfo, CombinedReader<DcReader>, kSettings)
