#include "wqspcfg/classes/CRDRegInfo.h"

#include "wqspcfg/classes/CardUnitFields.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/platform/text/NarrowText.h"
#include "wqspcfg/platform/utility/InfoTableDecorator.h"

#include <array>

using namespace wqspcfg;
using C = CCRDRegInfo;

namespace {

constexpr Key kCardUnits = key::Below(L"CardUnit");

// clang-format off
constexpr Setting kControl[] = {
    {key::Control, L"UseLogicCountOfSupplyBinStatus", &C::m_bUseLogicCountOfSupplyBinStatus, 1,
     L"the status of the supply bins is judged from the logical counts: 0 no; nonzero yes", Saved},
    {key::Control, L"UseLogicCountOfRetainBinStatus", &C::m_bUseLogicCountOfRetainBinStatus, 1,
     L"the status of the retain bins is judged from the logical counts: 0 no; nonzero yes", Saved},
    {key::Control, L"WaitCardReMoveBeforeComplete", &C::m_bWaitCardReMoveBeforeComplete, 0,
     L"the eject command completes only after the card has been taken: 0 do not wait; nonzero wait", Constructed(1)},
    {key::Control, L"DispenseErrorRetain", &C::m_bDispenseErrorRetain, 1,
     L"a dispensed card that entered the transport but could not be delivered is retained: 0 no; nonzero yes", LogHeld},
    {key::Control, L"DispenseAfterRetainBinFull", &C::m_dwDispenseAfterRetainBinFull, 0,
     meaning::crd::kDispenseAfterRetainBinFull, SavedAsSwitch, NotLogged},
    {key::Control, L"SendCardUnitEvntAfterExeComplete", &C::m_strSendCardUnitEvntAfterExeComplete, L"",
     L"the XFS commands (such as WFS_CMD_CRD_DISPENSE_CARD) during which the card-unit information-changed and "
     L"threshold events are held back until the application has received the command's completion"},
    {key::Control, L"TemporaryRetainBin", &C::m_dwTemporaryRetainBin, 0,
     L"number of the retain bin that receives a temporarily held card when it is retained",
     Saved, Line(L"[CFG] %40s : %d[%s")},
};
constexpr Setting kCurNumber{kCardUnits, L"CurNumber", &C::m_dwCurNumber, 0,
                             L"number of the current card unit", NotLogged, Saved, RefersTo(Reference::CardUnit)};
constexpr Setting kSettings[] = {
    Group(Rows<kControl>),
    kCurNumber,
};
// clang-format on

constexpr auto kCardUnitRows = [] {
    std::array<Setting, std::size(kCardUnitFields)> rows{};
    std::size_t n = 0;
    ForEachStoredField([&](const CardUnitField& field) { rows[n++] = field.row; });
    return rows;
}();
constexpr OperationSettings kOperations[] = {{L"Load", L"FlushCardUnit", Rows<kCardUnitRows>}};

// What a fatal entry of LogCardUnitInfo names as its line, whatever this file's lines are.
constexpr int kFatalLine = 459;

CString WideText(const char* text)
{
    return CString(NarrowToWide(text != nullptr ? text : ""));
}

} // namespace

const Table& CCRDRegInfo::Settings() noexcept
{
    static const Table table{L"CCRDRegInfo", &CRegInfo::Settings, L"CRD", Rows<kSettings>, {}, kOperations};
    return table;
}

CCRDRegInfo::CCRDRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName)
{
    Construct(*this, Rows<kSettings>);
}

CCRDRegInfo::~CCRDRegInfo() = default;

bool CCRDRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CRegInfo::Load(pLog);
    loading.Read(Settings(), Rows<kControl>);
    if (LoadCardUnits(loading)) {
        LogCardUnitInfo(pLog, L"initialise card-unit information", false);
    }
    return bResult;
}

bool CCRDRegInfo::LoadCardUnits(Loading& loading)
{
    CSingleLock lock(&m_arCardUnit.m_lock, TRUE);
    m_arCardUnit.RemoveAll();
    loading.Read(Settings(), kCurNumber);
    CStringArray arNames;
    if (!EnumSubKeyName(arNames, L"%s%s\\%s", kDeviceRoot, GetExeDllMother(1, nullptr), kCardUnits.subkey)) {
        return false;
    }
    Iteration iteration; // its index is the unit's number, under which the unit is saved
    for (const auto& strName : arNames) {
        iteration.name = strName;
        iteration.index = 0;
        tagCardUnitEx unit;
        // NOLINTBEGIN(clang-analyzer-core.*): it does not see that the constructor clears the unit
        ForEachStoredField([&](const CardUnitField& field) {
            if (&field != kCardUnitFields && unit.usNumber == 0) {
                return; // a unit without a number is not read further
            }
            DWORD dwValue = 0;
            CString strText;
            if (!field.IsText()) {
                loading.Query(field.row, iteration, dwValue);
                field.setNumber(unit, dwValue);
            } else if (loading.Query(field.row, iteration, strText)) {
                (unit.*field.setText)(WideToNarrow(strText.View()).c_str());
            }
            iteration.index = unit.usNumber;
        });
        if (unit.usNumber != 0) {
            m_arCardUnit.Add(unit);
            unit.SetHopper(nullptr); // the array has its own copy, and the destructor would leave this one
        }
        // NOLINTEND(clang-analyzer-core.*)
    }
    return true;
}

void CCRDRegInfo::Save()
{
    Saving saving(*this);
    CRegInfo::Save();
    saving.Write(Rows<kControl>);
    FlushCardUnit();
}

void CCRDRegInfo::FlushCardUnit()
{
    Saving saving(*this);
    saving.Write(kCurNumber);
    const auto nCount = m_arCardUnit.GetSize();
    for (INT_PTR i = 0; i < nCount; ++i) {
        const tagCardUnitEx& unit = m_arCardUnit[i];
        const auto name = FormatString(L"CardUnitInfo%d", +unit.usNumber);
        const Iteration iteration{name.c_str(), unit.usNumber, unit.usNumber};
        const auto put = [&](const CardUnitField& field) {
            if (field.IsText()) {
                saving.Put(field.row, iteration, WideText(field.text(unit)));
            } else {
                saving.Put(field.row, iteration, field.number(unit));
            }
        };
        const CardUnitField* again = nullptr;
        ForEachStoredField([&](const CardUnitField& field) {
            put(field);
            if (again != nullptr) {
                put(*again);
            }
            again = field.writtenAgain ? &field : nullptr;
        });
    }
}

void CCRDRegInfo::LogCardUnitInfo(CLog* pLog, const CString& strTitle, bool bFatal)
{
    if (pLog == nullptr) {
        return;
    }
    CInfoTableDecorator table(L" ", 0);
    int nColumn = 0;
    for (const auto& field : kCardUnitFields) {
        table.InsertColumn(nColumn++, field.column);
    }
    {
        CSingleLock lock(&m_arCardUnit.m_lock, TRUE);
        const int nCount = static_cast<int>(m_arCardUnit.GetSize());
        for (int i = 0; i < nCount; ++i) {
            const tagCardUnitEx& unit = m_arCardUnit[i];
            table.InsertItem(i, L"");
            nColumn = 0;
            for (const auto& field : kCardUnitFields) {
                table.SetItemText(i, nColumn++,
                                  field.IsText() ? WideText(field.text(unit)).GetString()
                                                 : FormatString(L"%d", field.number(unit)).c_str());
            }
        }
    }
    const CString strTable = table.Format(-1, ' ', ' ');
    if (bFatal) {
        pLog->Fatal(kLogCategory, L"<%s(%d) : %s> [CST]%s\r\n%s", L"CRDRegInfo", kFatalLine,
                    L"CCRDRegInfo::LogCardUnitInfo", strTitle, strTable);
    } else {
        pLog->Info(kLogCategory, L"[CST]%s\r\n%s", strTitle, strTable);
    }
}

WQSPCFG_CATALOGUE_ENTRY(CCRDRegInfo)
