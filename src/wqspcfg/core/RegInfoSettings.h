// The settings that all service providers share, in the order in which they are read and in that of their lines.
#pragma once

#include "wqspcfg/core/settings/Settings.h"

namespace wqspcfg::shared {

inline constexpr Key kCommonPolicy{Root::Common, L"Policy"};
inline constexpr Key kShareInfo{Root::Device, L"ShareInfo"};
inline constexpr Key kCheckErrorHandler{Root::Device, L"CheckErrorHandler"};

template <auto Field>
inline constexpr auto Policy = [](CRegInfo&, unsigned) -> auto&
{
    return CRegInfo::m_lpsPolicyGroup->*Field;
};

// Two bytes, each with a line of its own.
#define WQSPCFG_CONVERTED_STATES                                                                                       \
    L"device states that are converted when the status is queried: 0x01 NODEVICE, 0x02 OFFLINE, 0x04 POWEROFF, 0x08 "  \
    L"USERERROR, 0x10 HWERROR; 0x00 none"
#define WQSPCFG_REPORTED_STATES                                                                                        \
    L"the state reported instead: 0x00 HWERROR, 0x01 NODEVICE, 0x02 OFFLINE, 0x04 POWEROFF, 0x08 USERERROR"
inline constexpr Setting kDevErrorLow{key::Policy, L"LOBYTE(DevError)",      DwordValue,
                                      0,           WQSPCFG_CONVERTED_STATES, Format(L"0x%02x")};
inline constexpr Setting kDevErrorHigh{key::Policy, L"HIBYTE(DevError)",     DwordValue,
                                       0,           WQSPCFG_REPORTED_STATES, Format(L"0x%02x")};

// clang-format off
inline constexpr Setting kPolicy[] = {
    {key::Policy, L"DevBusy", Policy<&tagRegPolicyGroup::DevBusy>, 1,
     L"device-busy policy: 0 the device is never reported as busy; nonzero it is", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"DevError", Policy<&tagRegPolicyGroup::DevError>, 0,
     L"device-fault mapping: the low byte, " WQSPCFG_CONVERTED_STATES L"; the second byte, " WQSPCFG_REPORTED_STATES,
     NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"DevErrAction", Policy<&tagRegPolicyGroup::DevErrAction>, 0,
     L"recovery actions of broadcast hardware and software error events: the actions in the low word become those of "
     L"the high word (0x0000 WFS_ERR_ACT_NOACTION, 0x0001 WFS_ERR_ACT_RESET, 0x0002 WFS_ERR_ACT_SWERROR, 0x0004 "
     L"WFS_ERR_ACT_CONFIG, 0x0008 WFS_ERR_ACT_HWCLEAR, 0x0010 WFS_ERR_ACT_HWMAINT, 0x0020 WFS_ERR_ACT_SUSPEND)",
     NotLogged, Format(L"0x%08x"), Fallback(kCommonPolicy)},
    {key::Policy, L"ForceHwSwErrEvtID", Policy<&tagRegPolicyGroup::ForceHwSwErrEvtID>, 0,
     L"event ID that hardware and software error events are forced to: 0 not forced; 2 WFS_SYSE_HARDWARE_ERROR; 6 "
     L"WFS_SYSE_SOFTWARE_ERROR; 7 WFS_SYSE_USER_ERROR", NotLogged, OneOf, Fallback(kCommonPolicy)},
    {key::Policy, L"CancelOnClose", Policy<&tagRegPolicyGroup::CancelOnClose>, 0,
     L"a close cancels all outstanding requests: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"DelayWaitLock", Policy<&tagRegPolicyGroup::DelayWaitLock>, 0,
     L"delayed waiting for a lock: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"HandleArriveError", Policy<&tagRegPolicyGroup::HandleArriveError>, 0xFFFF,
     L"queueing of requests that arrive while the device is in error: 0 not queued; 0x0F information requests; 0xF0 "
     L"execute requests; both may be set", NotLogged, Format(L"0x%02X"), Fallback(kCommonPolicy)},
    {key::Policy, L"HandleSyseDeviceStatusChanges", Policy<&tagRegPolicyGroup::HandleSyseDeviceStatusChanges>, 0,
     L"when the device-status-changed event is sent: 0 when fwDevice changes; nonzero when any status field changes",
     NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"CanCancelOpen", Policy<&tagRegPolicyGroup::CanCancelOpen>, 1,
     L"an open request may be cancelled: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"SPExit", Policy<&tagRegPolicyGroup::SPExit>, 1,
     L"the service provider exits by itself: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"ResetLoadCfg", Policy<&tagRegPolicyGroup::ResetLoadCfg>, 0,
     L"a reset reloads the configuration: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"ExecuteOnlyIfOnLine", Policy<&tagRegPolicyGroup::ExecuteOnlyIfOnLine>, 1,
     L"execute requests: 0 run whatever the device state; nonzero all but reset are refused unless the device is "
     L"online", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"DLIRawMode", Policy<&tagRegPolicyGroup::DLIRawMode>, 1,
     L"raw device-life information is produced: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"ErrorCodeKey",
     [](CRegInfo&, unsigned) -> CString& { return *CRegInfo::m_lpsPolicyGroup->ErrorCodeKey; }, L"LastErrorCode",
     L"name of the error-code field in the extended part of status results", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"ErrorCodeValueType", Policy<&tagRegPolicyGroup::ErrorCodeValueType>, 0,
     L"form of that error code: 0 xx-xxxx; 1 xxxx; 2 xxxxxxxxx (digits)", NotLogged, OneOf, Fallback(kCommonPolicy)},
    {key::Policy, L"DmpMode", Policy<&tagRegPolicyGroup::DmpMode>, 1,
     L"crash dump files are written: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"VDMCoordinator", Policy<&tagRegPolicyGroup::VDMCoordinator>, 0,
     L"coordination of the vendor-dependent mode: 0 no coordinator; nonzero the application does not coordinate and "
     L"the service provider does by itself", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"BindCPU", Policy<&tagRegPolicyGroup::BindCPU>, 0,
     L"the process is bound to the second processor: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"SetTaskBarAutoHide", Policy<&tagRegPolicyGroup::SetTaskBarAutoHide>, 1,
     L"the task bar is set to hide automatically: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {key::Policy, L"SetDeskIconHide", Policy<&tagRegPolicyGroup::SetDeskIconHide>, 0,
     L"the desktop icons are hidden: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    {kCommonPolicy, L"Buff2OfCDMMediaDetectEvent", Policy<&tagRegPolicyGroup::Buff2OfCDMMediaDetectEvent>, 0,
     L"the buffer argument of the CDM media-detected event: 0 a pointer; nonzero a pointer to a pointer", NotLogged},
    {key::Policy, L"ResponseOnQueryEndSession", Policy<&tagRegPolicyGroup::ResponseOnQueryEndSession>, 0,
     L"a system end-session query is: 0 always handled; 1 never handled; 2 handled when no exit of the application "
     L"has been detected", NotLogged, OneOf, Fallback(kCommonPolicy)},
    {key::Policy, L"ForceRetrunBeforComplete", Policy<&tagRegPolicyGroup::ForceRetrunBeforComplete>, 0,
     L"a failed dynamic check returns before the completion: 0 forced; 1 not forced", NotLogged, OneOf,
     Fallback(kCommonPolicy)},
    {key::Policy, L"PostHWEventWhenResetFail", Policy<&tagRegPolicyGroup::PostHWEventWhenResetFail>, 0,
     L"a failed reset posts a system hardware-error event: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
    // The device key is asked for another value, which must be kept.
    {key::Policy, L"ResponseOnQueryEndSession", Policy<&tagRegPolicyGroup::RaiseShutdownPriority>, 0,
     L"the process raises its shutdown-response priority: 0 no; nonzero yes", NotLogged,
     Label(L"RaiseShutdownPriority"), Fallback(kCommonPolicy, L"RaiseShutdownPriority")},
    {key::Policy, L"RecordDeferReqCount", Policy<&tagRegPolicyGroup::RecordDeferReqCount>, 0,
     L"deferred-request counts are recorded per device class: 0 no; nonzero yes", NotLogged, Fallback(kCommonPolicy)},
};

inline constexpr Setting kSetup[] = {
    {key::Setup, L"SetupType",       StringValue, L"", L"installation type"},
    {key::Setup, L"TermType",        StringValue, L"", L"terminal model"},
    {key::Setup, L"DevPID",          DwordValue,  0,   L"device ID", Line(L"[CFG] %40s : %d")},
    {key::Setup, L"BankSettingName", StringValue, L"", L"name of the bank's customisation"},
};
inline constexpr Setting kNewVersion{key::Setup, L"NewVersion", StringValue, L"", L"new version and build"};
inline constexpr Setting kNewBuild{key::Setup, L"NewBuild", StringValue, L"", L"build, which follows the new version"};
inline constexpr Setting kOldVersion{key::Setup, L"OldVersion", StringValue, L"", L"old version and build"};
inline constexpr Setting kOldBuild{key::Setup, L"OldBuild", StringValue, L"", L"build, which follows the old version"};
inline constexpr Setting kExeDllMother{
    key::Service, L"ExeDllMother", StringValue, L"",
    L"how the service provider is assembled: the executable or the mother process that carries it"};
inline constexpr Setting kSetupRest[] = {
    {key::Setup, L"Components",        StringValue, L"", L"installed components"},
    {key::Setup, L"ExcludeComponents", StringValue, L"", L"components that are not installed"},
    {key::Setup, L"ConnetType", DwordValue, 0,
     L"connection of remote calls: 0 network; 1 Bluetooth", OneOf},
    {key::Setup, L"NetTimeOut", DwordValue, 180000, L"time-out in ms for the data of remote calls"},
    kExeDllMother,
};

inline constexpr Setting kFirstErrorInterval{
    Key{Root::Common, L"Log"}, L"FirstErrorIntervalTime",
    [](CRegInfo&, unsigned) -> DWORD& { return CRegInfo::m_dwFirstErrorIntervalTime; }, 0,
    L"interval for recording the first error code, in minutes; 0 the first error code is not recorded",
    KeepWhenMissing, NotLogged, HeldTimes(60)};
inline constexpr Setting kServer{
    kShareInfo, L"Server", [](CRegInfo&, unsigned) -> DWORD& { return CRegInfo::m_dwServer; }, 0,
    L"this service provider is the server of shared data: 0 no; 1 yes", NotLogged, OneOf};
inline constexpr Setting kOtherSideServerName{
    kShareInfo, L"OtherSideServerName", StringValue, L"",
    L"the servers whose shared data this service provider reads, separated by \";\"", NotLogged};
inline constexpr Setting kExtraSepCharacter{
    key::Policy, L"ExtraSepCharacter",
    [](CRegInfo&, unsigned) -> CString& { return CRegInfo::m_strExtraSepCharacter; }, L"=",
    L"separator between key and value in extended information", KeepWhenMissing, NotLogged, Fallback(kShareInfo)};

inline constexpr Setting kCheckLevel{
    kCheckErrorHandler, L"CheckLevel", DwordValue, 1,
    L"a check reports: 0 always success; 1 the error found; 2 what the rules of the request say", OneOf};
inline constexpr Setting kCheckRules{
    kCheckErrorHandler, L"%s", StringValues, L"",
    L"rules of this request: \"Rule=Value\" items separated by \";\", the rule names as the device class defines "
    L"them, each value 0 (report success) or 1 (report the error found)"};
inline constexpr Setting kOpenCompleteTimeout{
    key::Below(L"StartInfo"), L"OpenCompleteTimeout", DwordValue, 0,
    L"time-out of the open-complete message in minutes; 0 none"};
inline constexpr Setting kExtBatFileName{
    key::Device, L"ExtBatFileName", StringValue, L"",
    L"name of a batch file", NotLogged};
inline constexpr Setting kIdleNormal{key::IdleInterval, L"Normal", DwordValue, 60000, L"idle interval in ms"};
inline constexpr Setting kIsDeleteSensetiveInfo{
    key::Policy, L"IsDeleteSensetiveInfo", &CRegInfo::m_bIsDeleteSensetiveInfo, 1,
    L"the service provider deletes, at exit or start, files that applications may leave behind, such as "
    L"identity-card images and camera pictures: 0 no; nonzero yes", Saved};

// What the getters read when they are asked.
inline constexpr Setting kProvider{Key{Root::Logical, L""}, L"Provider", StringValue, L"", L"physical service name"};
inline constexpr Setting kClass{Key{Root::Logical, L""}, L"Class", StringValue, L"", L"XFS class of the service"};
inline constexpr Setting kClassOfProvider{
    key::Service, L"Class", StringValue, L"",
    L"XFS class of a service that is known by its physical name only"};
inline constexpr Setting kClasses[] = {kClass, kClassOfProvider};
inline constexpr Setting kType{Key{Root::Logical, L""}, L"Type", StringValue, L"", L"type of the service"};
inline constexpr Setting kClassModule{
    key::Service, L"%sName", StringValue, L"",
    L"module of the service provider for this XFS class; WQSp and the class where it is missing"};
inline constexpr Setting kDllName{
    key::Service, L"DLLName", StringValue, L"",
    L"module of the service provider; in the directory of this library where no other is given"};
inline constexpr Setting kExecutable{
    key::Service, L"Executable", StringValue, L"",
    L"executable of the service provider; in the module's directory where no other is given"};
inline constexpr Setting kVersion{key::Service, L"Version", StringValue, L"", L"version of the service provider"};
inline constexpr Setting kPatchVersion{
    key::Setup, L"PatchVersion", StringValue, L"",
    L"patch, which follows the build"};
inline constexpr Setting kProductVersion[] = {kNewVersion, kNewBuild, kPatchVersion};
inline constexpr Setting kAppID{
    Key{Root::Common, L"SpSetting"}, L"AppID", StringValue, L"WQSpSetting",
    L"application ID of the settings program"};
inline constexpr Setting kOnlyOpenAppend{
    key::Below(L"ReSetTimeout"), L"OnlyOpenAppend", DwordValue, 1,
    L"commands with a time-out: 0 all that have one; nonzero only those whose name contains \"open\""};
inline constexpr Setting kReSetTimeout{
    key::Below(L"ReSetTimeout"), L"%s", DwordValues, 0,
    L"time-out of this command, the name of an execute or information command with its index behind it; 0 none"};
inline constexpr Setting kIdleInterval{key::IdleInterval, L"%s", DwordValues, 0, L"idle interval of this name in ms"};
inline constexpr Setting kCommandMaps[] = {
    {key::Below(L"ExeCmdMap"), L"%s", Map<&CRegInfo::m_mapExeCmd>, 0,
     L"execute command that this command code is mapped to", NotLogged},
    {key::Below(L"InfoCmdMap"), L"%s", Map<&CRegInfo::m_mapInfoCmd>, 0,
     L"information command that this command code is mapped to", NotLogged},
    {key::Below(L"ErrCodeMap"), L"%s", Map<&CRegInfo::m_mapErrCode>, 0,
     L"code that this error name is mapped to", NotLogged},
};
inline constexpr Setting kErrorCodeDescKey{
    key::Device, L"ErrorCodeDescKey", StringValue, L"ErrorCodeDescription",
    L"name under which the service provider publishes error-code descriptions"};
inline constexpr Setting kCapVendorDescKey{
    key::Device, L"CapVendorDescKey", StringValue, L"Vendor",
    L"name of the vendor entry in the extra data of the capabilities"};
inline constexpr Setting kCapVendorDescKeyValue{
    key::Device, L"CapVendorDescKeyValue", StringValue, L"TARNO",
    L"value of that vendor entry"};

inline constexpr OperationSettings kOperations[] = {
    {L"GetPhysicalName",          L"", Rows<kProvider>},
    {L"GetClassNameW",            L"", Rows<kClasses>},
    {L"GetType",                  L"", Rows<kType>},
    {L"GetDeviceClassName",       L"", Rows<kClassModule>},
    {L"GetDllPathName",           L"", Rows<kDllName>},
    {L"GetExePathName",           L"", Rows<kExecutable>},
    {L"GetVersion",               L"", Rows<kVersion>},
    {L"GetProductVersion",        L"", Rows<kProductVersion>},
    {L"GetSpSettingAppID",        L"", Rows<kAppID>},
    {L"GetOnlyOpenReSetTimeout",  L"", Rows<kOnlyOpenAppend>},
    {L"GetReSetTimeout",          L"", Rows<kReSetTimeout>},
    {L"GetIdleTimeInterval",      L"", Rows<kIdleInterval>},
    {L"GetCmdMap",                L"", Rows<kCommandMaps>},
    {L"GetErrorCodeDescKey",      L"", Rows<kErrorCodeDescKey>},
    {L"GetCapVendorDescKey",      L"", Rows<kCapVendorDescKey>},
    {L"GetCapVendorDescKeyValue", L"", Rows<kCapVendorDescKeyValue>},
};
// clang-format on

// The lines' order, which is not that of reading. The device-fault mapping has a line for each of its bytes.
inline constexpr const wchar_t* kPolicyLineNames[] = {
    L"DevBusy",
    L"DevError",
    L"DevErrAction",
    L"ForceHwSwErrEvtID",
    L"CancelOnClose",
    L"DelayWaitLock",
    L"SPExit",
    L"ResetLoadCfg",
    L"HandleArriveError",
    L"CanCancelOpen",
    L"HandleSyseDeviceStatusChanges",
    L"ExecuteOnlyIfOnLine",
    L"DLIRawMode",
    L"ErrorCodeKey",
    L"ErrorCodeValueType",
    L"DmpMode",
    L"VDMCoordinator",
    L"BindCPU",
    L"SetTaskBarAutoHide",
    L"SetDeskIconHide",
    L"ResponseOnQueryEndSession",
    L"ForceRetrunBeforComplete",
    L"PostHWEventWhenResetFail",
    L"RaiseShutdownPriority",
    L"RecordDeferReqCount",
};
inline constexpr auto kPolicyLines = [] {
    std::array<Place, std::size(kPolicyLineNames)> lines{};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        bool found = false;
        for (std::size_t row = 0; row < std::size(kPolicy); ++row) {
            const auto& policy = kPolicy[row];
            if ((policy.label != nullptr ? std::wstring_view(policy.label) : policy.name) == kPolicyLineNames[i]) {
                lines[i] = Place{}.Of(row);
                found = true;
            }
        }
        if (!found) {
            throw "no policy has this label";
        }
    }
    return lines;
}();
inline const Setting& DevError()
{
    return RowOf<kPolicy>(L"DevError");
}
inline const Setting& ResetLoadCfg()
{
    return RowOf<kPolicy>(L"ResetLoadCfg");
}
inline const Setting& MediaDetectLine()
{
    return RowOf<kPolicy>(L"Buff2OfCDMMediaDetectEvent");
}

// Everything in one table, for the reference.
inline constexpr Setting kSettings[] = {
    Group(Rows<kPolicy>),
    kFirstErrorInterval,
    kServer,
    kOtherSideServerName,
    kExtraSepCharacter,
    Group(Rows<kSetup>),
    kNewVersion,
    kNewBuild,
    kOldVersion,
    kOldBuild,
    Group(Rows<kSetupRest>),
    kCheckLevel,
    kCheckRules,
    kOpenCompleteTimeout,
    kExtBatFileName,
    kIdleNormal,
    kIsDeleteSensetiveInfo,
};

} // namespace wqspcfg::shared

#undef WQSPCFG_CONVERTED_STATES
#undef WQSPCFG_REPORTED_STATES
