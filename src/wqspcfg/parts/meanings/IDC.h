// Texts that the card readers share.
#pragma once

namespace wqspcfg::meaning {

inline constexpr wchar_t kPolicyOfSetMediaEntering[] = L"policy for setting the media status to entering";
inline constexpr wchar_t kUnPresentOfMoveCardManual[] =
    L"a card that is moved by hand is reported as not present: 0 no; nonzero yes";
inline constexpr wchar_t kNeedResetOfRecoverSkimmerSt[] =
    L"a reset is needed to recover from the skimmer status: 0 no; nonzero yes";
inline constexpr wchar_t kIsUseSLE4442[] = L"SLE4442 memory cards are used: 0 no; nonzero yes";
inline constexpr wchar_t kToReadPositionIfNoActionReset[] =
    L"a reset without an action moves the card to the read position: 0 no; nonzero yes";
inline constexpr wchar_t kTimeDelayOnline[] = L"delay in seconds before the device is reported online";
inline constexpr wchar_t kInitRelationEjectVolume[] = L"volume of the eject that goes with initialisation";
inline constexpr wchar_t kCardNameOfConn[] = L"name of the card reader to connect to";
inline constexpr wchar_t kHandleRepeatCard[] = L"a card that is presented again is handled: 0 no; nonzero yes";
inline constexpr wchar_t kRtnInvalidMediaOfRepeatCard[] =
    L"a card that is presented again is answered with invalid media: 0 no; nonzero yes";
inline constexpr wchar_t kSupportChipPower[] = L"the chip-power command is supported: 0 no; nonzero yes";
inline constexpr wchar_t kCheckCardInsertOfIdle[] = L"card insertion is checked while idle: 0 no; nonzero yes";
inline constexpr wchar_t kCpuCardType[] = L"type of the CPU card, as the device's driver numbers it";
inline constexpr wchar_t kTimesOfGetStIfSwitchLed[] = L"number of status queries when the LED is switched";
inline constexpr wchar_t kHandleRepeatCardPolicy[] = L"policy for a card that is presented again";
inline constexpr wchar_t kReadTracks[] =
    L"tracks that can be read, the sum of their XFS numbers: 1 track 1; 2 track 2; 4 track 3; 8 chip";
inline constexpr wchar_t kTranformIC2Hex[] = L"chip card data are converted to hexadecimal text: 0 no; nonzero yes";
inline constexpr wchar_t kIDCardImagePath[] = L"path of the identity card's image";
inline constexpr wchar_t kIDCardImagePathBeCopyed[] = L"path that the identity card's image is copied to";
inline constexpr wchar_t kIsUnContactFailed[] = L"contactless reading counts as failed: 0 no; nonzero yes";
inline constexpr wchar_t kGetImageFrontAndBack[] =
    L"images of the identity card's front and back are taken: 0 no; nonzero yes";
inline constexpr wchar_t kImageFrontPath[] = L"path of the image of the card's front";
inline constexpr wchar_t kImageBackPath[] = L"path of the image of the card's back";
inline constexpr wchar_t kTimeOutOfReadMagCard[] = L"time-out in seconds for reading a magnetic-stripe card";
inline constexpr wchar_t kCPUCardLogicName[] = L"logical name of the CPU card service";
inline constexpr wchar_t kSimReader[] = L"name of the reader for SIM and CPU cards";
inline constexpr wchar_t kIDCardLogicName[] = L"logical name of the identity card service";
inline constexpr wchar_t kCertRead[] = L"name of the reader for identity cards";
inline constexpr wchar_t kCardReaderType[] = L"type of the card reader, as the device's driver numbers it";
inline constexpr wchar_t kFindCardPolicy[] = L"policy for finding a card";
inline constexpr wchar_t kSendSrveDevStChanges[] =
    L"the service event for a changed device status is sent: 0 no; nonzero yes";
inline constexpr wchar_t kIsSaveNationCompleInfo[] =
    L"the complete information on the holder's nation is saved: 0 no; nonzero yes";
inline constexpr wchar_t kInforReturnFormat[] = L"format in which the card's information is returned";
inline constexpr wchar_t kImageSavePath[] = L"path that images are saved to";
inline constexpr wchar_t kScanFormat[] = L"format of the scanned images, as the device's driver numbers it";
inline constexpr wchar_t kReadIDCardInfo[] = L"the identity card's information is read: 0 no; nonzero yes";
inline constexpr wchar_t kIDMustEjectCardAfterScan[] =
    L"the identity card must be ejected after scanning: 0 no; nonzero yes";
inline constexpr wchar_t kChangeBySPDB[] = L"changed behaviour for one bank's application (SPDB): 0 no; nonzero yes";
inline constexpr wchar_t kSavingGetImagePathTime[] =
    L"time in seconds for getting the path of an image that is being saved";
inline constexpr wchar_t kIsChangeNoToNO[] = L"\"No\" becomes \"NO\": 0 no; nonzero yes";
inline constexpr wchar_t kIsSupRetain[] = L"retaining a card is supported: 0 no; nonzero yes";
inline constexpr wchar_t kWidthOfFrontBack[] = L"width of the front and back images in pixels";
inline constexpr wchar_t kHeightOfFrontBack[] = L"height of the front and back images in pixels";
inline constexpr wchar_t kSetMediaNotPresent[] = L"the media status is set to not present: 0 no; nonzero yes";
inline constexpr wchar_t kInvialMediaContinueWait[] = L"an invalid fingerprint is captured again: 0 no; nonzero yes";

} // namespace wqspcfg::meaning
