#include "wqspcfg/classes/CRDRegInfo.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/platform/text/NarrowText.h"
#include "wqspcfg/platform/utility/InfoTableDecorator.h"

#include <string>

using namespace wqspcfg;
using C = CCRDRegInfo;

namespace {

constexpr Key kCardUnit = key::Below(L"CardUnit");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"UseLogicCountOfSupplyBinStatus",   &C::m_bUseLogicCountOfSupplyBinStatus,     1,   L"the status of the supply bins is judged from the logical counts: 0 no; nonzero yes", Saved},
    {key::Control, L"UseLogicCountOfRetainBinStatus",   &C::m_bUseLogicCountOfRetainBinStatus,     1,   L"the status of the retain bins is judged from the logical counts: 0 no; nonzero yes", Saved},
    {key::Control, L"WaitCardReMoveBeforeComplete",     &C::m_bWaitCardReMoveBeforeComplete,       0,   L"the eject command completes only after the card has been taken: 0 do not wait; nonzero wait", Constructed(1)},
    {key::Control, L"DispenseErrorRetain",              &C::m_bDispenseErrorRetain,                1,   L"a dispensed card that entered the transport but could not be delivered is retained: 0 no; nonzero yes", LogHeld},
    {key::Control, L"DispenseAfterRetainBinFull",       &C::m_dwDispenseAfterRetainBinFull,        0,   L"dispensing continues while the retain bin is full: 0 no; nonzero yes", SavedAsSwitch, NotLogged},
    {key::Control, L"SendCardUnitEvntAfterExeComplete", &C::m_strSendCardUnitEvntAfterExeComplete, L"", L"the XFS commands (such as WFS_CMD_CRD_DISPENSE_CARD) during which the card-unit information-changed and threshold events are held back until the application has received the command's completion"},
    {key::Control, L"TemporaryRetainBin",               &C::m_dwTemporaryRetainBin,                0,   L"number of the retain bin that receives a temporarily held card when it is retained", Saved, Line(L"[CFG] %40s : %d[%s")},
    {kCardUnit,    L"CurNumber",                        &C::m_dwCurNumber,                         0,   L"number of the current card unit", Documented, NotLogged, Saved},
};

constexpr const wchar_t* kSavedControls[] = {L"UseLogicCountOfSupplyBinStatus", L"UseLogicCountOfRetainBinStatus", L"DispenseAfterRetainBinFull", L"TemporaryRetainBin"};
// clang-format on
constexpr auto kControlOrder = SaveOrder(kSettings, kSavedControls, false); // FlushCardUnit writes the rest

constexpr wchar_t kCardUnitFormat[] = L"%s%s\\CardUnit";
constexpr wchar_t kSubkeyFormat[] = L"%s%s\\CardUnit\\%s";

} // namespace

const Table& CCRDRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CCRDRegInfo", &CRegInfo::Settings, L"CRD", kSettings, kControlOrder};
    return kTable;
}

CCRDRegInfo::CCRDRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName)
{
    Construct(*this, kSettings);
}

bool CCRDRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CRegInfo::Load(pLog);
    loading.Read(Settings());
    LoadCardUnits(pLog);
    return bResult;
}

void CCRDRegInfo::LoadCardUnits(CLog* pLog)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    {
        CSingleLock lock(&m_arCardUnit.m_lock, TRUE);
        m_arCardUnit.RemoveAll();
        m_dwCurNumber = 0;
        QueryValue(m_dwCurNumber, L"CurNumber", kCardUnitFormat, kDeviceRoot, strDevice);
        CStringArray arNames;
        if (!EnumSubKeyName(arNames, kCardUnitFormat, kDeviceRoot, strDevice)) {
            return;
        }
        for (const auto& strName : arNames) {
            const auto number = [&](LPCWSTR lpszValue) {
                DWORD dwValue = 0;
                QueryValue(dwValue, lpszValue, kSubkeyFormat, kDeviceRoot, strDevice, strName);
                return dwValue;
            };
            const auto text = [&](LPCWSTR lpszValue, std::string& narrow) {
                CString strValue;
                if (!QueryValue(strValue, lpszValue, kSubkeyFormat, kDeviceRoot, strDevice, strName)) {
                    return static_cast<const char*>(nullptr);
                }
                narrow = WideToNarrow(strValue.View());
                return narrow.c_str();
            };
            tagCardUnitEx unit;
            unit.usNumber = LOWORD(number(L"Number"));
            if (unit.usNumber == 0) {
                continue;
            }
            unit.usType = LOWORD(number(L"Type"));
            unit.ulInitialCount = number(L"InitialCount");
            unit.ulCount = number(L"Count");
            unit.ulRetainCount = number(L"RetainCount");
            unit.ulThreshold = number(L"Threshold");
            unit.usStatus = LOWORD(number(L"Status"));
            unit.bHardwareSensor = static_cast<BOOL>(number(L"HardwareSensor"));
            unit.ulMaxCount = number(L"MaxCount");
            unit.ulMinCount = number(L"MinCount");
            std::string narrow;
            unit.SetCardName(text(L"CardName", narrow));
            unit.SetHopper(text(L"Hopper", narrow));
            m_arCardUnit.Add(unit);
            unit.SetHopper(nullptr); // the array has its own copy, and the destructor would leave this one
        }
    }
    LogCardUnitInfo(pLog, L"initialise card-unit information", false);
}

void CCRDRegInfo::Save()
{
    Saving saving(*this);
    CRegInfo::Save();
    saving.Write(Settings());
    FlushCardUnit();
}

void CCRDRegInfo::FlushCardUnit()
{
    WriteScope scope;
    const CString strDevice = GetExeDllMother(1, nullptr);
    SetValue(m_dwCurNumber, L"CurNumber", kCardUnitFormat, kDeviceRoot, strDevice);
    const auto nCount = m_arCardUnit.GetSize();
    for (INT_PTR i = 0; i < nCount; ++i) {
        const tagCardUnitEx& unit = m_arCardUnit[i];
        const auto number = [&](DWORD dwValue, LPCWSTR lpszValue) {
            SetValue(dwValue, lpszValue, L"%s%s\\CardUnit\\CardUnitInfo%d", kDeviceRoot, strDevice, +unit.usNumber);
        };
        const auto text = [&](const char* lpszText, LPCWSTR lpszValue) {
            const CString strText(NarrowToWide(lpszText != nullptr ? lpszText : ""));
            SetValue(strText, lpszValue, L"%s%s\\CardUnit\\CardUnitInfo%d", kDeviceRoot, strDevice, +unit.usNumber);
        };
        number(unit.usNumber, L"Number");
        number(unit.usType, L"Type");
        number(unit.ulInitialCount, L"InitialCount");
        number(unit.ulCount, L"Count");
        number(unit.ulRetainCount, L"RetainCount");
        number(unit.ulThreshold, L"Threshold");
        number(unit.usStatus, L"Status");
        number(static_cast<DWORD>(unit.bHardwareSensor), L"HardwareSensor");
        number(unit.usStatus, L"Status");
        number(unit.ulMaxCount, L"MaxCount");
        number(unit.ulMinCount, L"MinCount");
        text(unit.lpszCardName, L"CardName");
        text(unit.lpszHopper, L"Hopper");
    }
}

void CCRDRegInfo::LogCardUnitInfo(CLog* pLog, const CString& strTitle, bool bFatal)
{
    if (pLog == nullptr) {
        return;
    }
    static constexpr LPCWSTR kHeadings[] = {L"Number",         L"Name",        L"Type",      L"InitialCount",
                                            L"Count",          L"RetainCount", L"Threshold", L"Status",
                                            L"HardwareSensor", L"MaxCount",    L"MinCount",  L"Hopper"};
    CInfoTableDecorator table(L" ", 0);
    int nColumn = 0;
    for (const auto* lpszHeading : kHeadings) {
        table.InsertColumn(nColumn++, lpszHeading);
    }
    {
        CSingleLock lock(&m_arCardUnit.m_lock, TRUE);
        const int nCount = static_cast<int>(m_arCardUnit.GetSize());
        for (int i = 0; i < nCount; ++i) {
            const tagCardUnitEx& unit = m_arCardUnit[i];
            const auto narrow = [](const char* lpszText) { return NarrowToWide(lpszText != nullptr ? lpszText : ""); };
            table.InsertItem(i, FormatString(L"%d", +unit.usNumber).c_str());
            table.SetItemText(i, 1, narrow(unit.lpszCardName).c_str());
            const DWORD dwNumbers[] = {unit.usType,
                                       unit.ulInitialCount,
                                       unit.ulCount,
                                       unit.ulRetainCount,
                                       unit.ulThreshold,
                                       unit.usStatus,
                                       static_cast<DWORD>(unit.bHardwareSensor),
                                       unit.ulMaxCount,
                                       unit.ulMinCount};
            int nCell = 2;
            for (const DWORD dwNumber : dwNumbers) {
                table.SetItemText(i, nCell++, FormatString(L"%d", dwNumber).c_str());
            }
            table.SetItemText(i, 11, narrow(unit.lpszHopper).c_str());
        }
    }
    const CString strTable = table.Format(-1, ' ', ' ');
    if (bFatal) {
        pLog->Fatal(kLogCategory, L"<%s(%d) : %s> [CST]%s\r\n%s", L"CRDRegInfo", 459, L"CCRDRegInfo::LogCardUnitInfo",
                    strTitle, strTable);
    } else {
        pLog->Info(kLogCategory, L"[CST]%s\r\n%s", strTitle, strTable);
    }
}

WQSPCFG_CATALOGUE_ENTRY(CCRDRegInfo)
