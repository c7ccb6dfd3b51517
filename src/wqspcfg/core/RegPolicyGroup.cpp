#include "wqspcfg/core/RegPolicyGroup.h"

tagRegPolicyGroup::tagRegPolicyGroup() : ErrorCodeKey(new CString(L"LastErrorCode")) {}

tagRegPolicyGroup::~tagRegPolicyGroup()
{
    delete ErrorCodeKey;
}

tagRegPolicyGroup::tagRegPolicyGroup(const tagRegPolicyGroup& other) : ErrorCodeKey(new CString)
{
    *this = other;
}

tagRegPolicyGroup& tagRegPolicyGroup::operator=(const tagRegPolicyGroup& other)
{
    if (this == &other) {
        return *this;
    }
    DevBusy = other.DevBusy;
    DevError = other.DevError;
    ForceHwSwErrEvtID = other.ForceHwSwErrEvtID;
    DevErrAction = other.DevErrAction;
    CancelOnClose = other.CancelOnClose;
    DelayWaitLock = other.DelayWaitLock;
    HandleArriveError = other.HandleArriveError;
    HandleSyseDeviceStatusChanges = other.HandleSyseDeviceStatusChanges;
    CanCancelOpen = other.CanCancelOpen;
    SPExit = other.SPExit;
    ResetLoadCfg = other.ResetLoadCfg;
    ExecuteOnlyIfOnLine = other.ExecuteOnlyIfOnLine;
    DLIRawMode = other.DLIRawMode;
    *ErrorCodeKey = *other.ErrorCodeKey;
    ErrorCodeValueType = other.ErrorCodeValueType;
    DmpMode = other.DmpMode;
    VDMCoordinator = other.VDMCoordinator;
    BindCPU = other.BindCPU;
    SetTaskBarAutoHide = other.SetTaskBarAutoHide;
    SetDeskIconHide = other.SetDeskIconHide;
    Buff2OfCDMMediaDetectEvent = other.Buff2OfCDMMediaDetectEvent;
    ResponseOnQueryEndSession = other.ResponseOnQueryEndSession;
    ForceRetrunBeforComplete = other.ForceRetrunBeforComplete;
    PostHWEventWhenResetFail = other.PostHWEventWhenResetFail;
    RaiseShutdownPriority = other.RaiseShutdownPriority;
    RecordDeferReqCount = other.RecordDeferReqCount;
    return *this;
}
