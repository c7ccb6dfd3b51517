// The policies that all service providers of a process share.
#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

#include <memory>

// Each field is named after its registry value; CRegInfo's reference tells their meanings. All are zero after
// construction except ErrorCodeKey. Assignment copies the text of ErrorCodeKey, so two records never own one string.
struct WQSPCFG_API tagRegPolicyGroup
{
    DWORD DevBusy = 0;
    DWORD DevError = 0;
    DWORD ForceHwSwErrEvtID = 0;
    DWORD DevErrAction = 0;
    DWORD CancelOnClose = 0;
    DWORD DelayWaitLock = 0;
    DWORD HandleArriveError = 0;
    DWORD HandleSyseDeviceStatusChanges = 0;
    DWORD CanCancelOpen = 0;
    DWORD SPExit = 0;
    DWORD ResetLoadCfg = 0;
    DWORD ExecuteOnlyIfOnLine = 0;
    DWORD DLIRawMode = 0;
    CString* ErrorCodeKey; // never null; owned
    DWORD ErrorCodeValueType = 0;
    DWORD DmpMode = 0;
    DWORD VDMCoordinator = 0;
    DWORD BindCPU = 0;
    DWORD SetTaskBarAutoHide = 0;
    DWORD SetDeskIconHide = 0;
    DWORD Buff2OfCDMMediaDetectEvent = 0;
    DWORD ResponseOnQueryEndSession = 0;
    DWORD ForceRetrunBeforComplete = 0;
    DWORD PostHWEventWhenResetFail = 0;
    DWORD RaiseShutdownPriority = 0;
    DWORD RecordDeferReqCount = 0;

    tagRegPolicyGroup();
    ~tagRegPolicyGroup();
    tagRegPolicyGroup(const tagRegPolicyGroup& other);
    tagRegPolicyGroup& operator=(const tagRegPolicyGroup& other);
};
