#include "wqspcfg/core/SavePolicy.h"
#include "wqspcfg/classes/CRMRegInfo.h"

#include "support/ConfigTest.h"
#include "wqspcfg/classes/IDCRegInfo.h"
#include "wqspcfg/classes/PINRegInfo.h"
#include "wqspcfg/classes/SIURegInfo.h"
#include "wqspcfg/models/crd/SpCRDWQTYM1200RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRPrdFPCNormalRegInfo.h"
#include "wqspcfg/models/siu/SpSIUCABCRegInfo.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/xfs/XfsResult.h"

#include <algorithm>

namespace {

using namespace wqspcfg;

class SavePolicyTest : public test::ConfigTest
{
  protected:
    SavePolicyTest() { SetSavePolicy(SavePolicy::OwnChanges); }
    ~SavePolicyTest() override { SetSavePolicy(SavePolicy::All); }

    // Whether an error line has the text.
    bool HasError(const std::wstring& text) const
    {
        const auto& entries = m_log.Entries();
        return std::ranges::any_of(entries, [&](const auto& entry) {
            return entry.severity == Severity::Error && entry.text.find(text) != std::wstring::npos;
        });
    }

    const std::wstring m_comm = Device(L"Comm");
};

TEST_F(SavePolicyTest, AllUndoesWhatWasEditedSinceLoad)
{
    SetSavePolicy(SavePolicy::All);
    Set(m_comm, L"Port", 1);
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    config.Load(&m_log);
    Set(m_comm, L"Port", 4);
    config.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 1U);
}

TEST_F(SavePolicyTest, WhatOthersChangedStaysAndWhatTheObjectChangedIsWritten)
{
    Set(m_comm, L"Port", 1);
    Set(m_comm, L"BaudRate", 9600);
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    config.Load(&m_log);
    Set(m_comm, L"Port", 4);
    config.m_dwBaudRate = 115200;
    config.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 4U);
    EXPECT_EQ(Number(m_comm, L"BaudRate"), 115200U);

    // What it wrote is what it knows from then on.
    Set(m_comm, L"BaudRate", 19200);
    config.Save();
    EXPECT_EQ(Number(m_comm, L"BaudRate"), 19200U);
    EXPECT_FALSE(HasError({}));
}

TEST_F(SavePolicyTest, RecordsOfSerialNumbersKeepWhatOthersChanged)
{
    const auto key = Device(L"SNRData");
    Set(key, L"dwAPID", 2);
    CCRMRegInfo config(L"Svc", false);
    config.Load(&m_log);
    Set(key, L"dwAPID", 3);
    config.m_sBillSNRegInfo.dwIndexStrLen = 4;
    config.Save();
    EXPECT_EQ(Number(key, L"dwAPID"), 3U);
    EXPECT_EQ(Number(key, L"dwIndexStrLen"), 4U);
}

TEST_F(SavePolicyTest, TwoObjectsOnOneDeviceKeyKeepEachOthersChanges)
{
    CSpCRDWQTYM1200RegInfo first(L"Svc", false);
    CSpCRDWQTYM1200RegInfo second(L"Svc", false);
    first.Load(&m_log);
    second.Load(&m_log);
    first.m_dwPort = 7;
    first.Save();
    second.m_dwBaudRate = 38400;
    second.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 7U);
    EXPECT_EQ(Number(m_comm, L"BaudRate"), 38400U);
}

TEST_F(SavePolicyTest, ACardUnitsValuesStayToo)
{
    const auto unit = Device(L"CardUnit\\CardUnitInfo2");
    Set(unit, L"Number", 2);
    Set(unit, L"Count", 10);
    Set(unit, L"Threshold", 5);
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    config.Load(&m_log);
    Set(unit, L"Threshold", 8);
    config.m_arCardUnit[0].ulCount = 9;
    config.m_arCardUnit[0].SetCardName("gold");
    config.Save();
    EXPECT_EQ(Number(unit, L"Count"), 9U);
    EXPECT_EQ(Text(unit, L"CardName"), L"gold");
    EXPECT_EQ(Number(unit, L"Threshold"), 8U);
}

TEST_F(SavePolicyTest, AValueThatAnotherBaseSavesStaysToo)
{
    Set(Device(), L"ProtocolType", 1);
    CSpPTRPrdFPCNormalRegInfo config(L"Svc", false);
    config.Load(&m_log);
    Set(Device(), L"ProtocolType", 2);
    config.Save();
    EXPECT_EQ(Number(Device(), L"ProtocolType"), 2U);
    config.m_dwProtocolType = 0;
    Set(Device(), L"ProtocolType", 1);
    config.Save();
    EXPECT_EQ(Number(Device(), L"ProtocolType"), 0U);
}

TEST_F(SavePolicyTest, AConflictIsTheObjectsAndIsLogged)
{
    Set(m_comm, L"Port", 1);
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    config.Load(&m_log);
    Set(m_comm, L"Port", 4);
    config.m_dwPort = 9;
    config.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 9U);
    EXPECT_TRUE(HasError(L"Port was changed in the registry"));
}

TEST_F(SavePolicyTest, WhatTheRegistryLacksOrHoldsInAnotherTypeIsWritten)
{
    Set(m_comm, L"Port", L"4");
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    config.Load(&m_log);
    config.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 1U);
    EXPECT_EQ(Number(m_comm, L"BaudRate"), config.m_dwBaudRate);
}

TEST_F(SavePolicyTest, AnObjectThatHasNotLoadedWritesNothingOver)
{
    Set(m_comm, L"Port", 4);
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    config.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 4U);
    config.m_dwPort = 5;
    config.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 5U);
}

TEST_F(SavePolicyTest, WhatASwitchedOffModuleHasStaysStored)
{
    const auto control = Device(L"Control");
    Set(control, L"HaveRCM", 0);
    Set(Device(L"SlotInfo"), L"SlotInfoType", 3);
    CIDCRegInfo config(L"Svc", false);
    config.Load(&m_log);
    config.Save();
    EXPECT_EQ(Number(Device(L"SlotInfo"), L"SlotInfoType"), 3U);
}

TEST_F(SavePolicyTest, EntriesOfAWholeKeyAreComparedOneByOne)
{
    const auto mapping = Device(L"KeybordInfo\\KeyboardMapping");
    Set(mapping, L"1", L"F1");
    Set(mapping, L"2", L"F2");
    CPINRegInfo config(L"Svc", false);
    config.Load(&m_log);
    Set(mapping, L"1", L"ENTER");
    config.m_mapKeyboardMapping.SetAt(L"2", L"CANCEL");
    config.Save();
    EXPECT_EQ(Text(mapping, L"1"), L"ENTER");
    EXPECT_EQ(Text(mapping, L"2"), L"CANCEL");
}

TEST_F(SavePolicyTest, WhatASaveCouldNotWriteIsWrittenByTheNext)
{
    const auto records = Device(L"SNRData");
    const auto agent = CString(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent\\KeyboardMapping").Std();
    Set(m_comm, L"Port", 1);
    Set(records, L"dwAPID", 2);
    Set(agent, L"1", L"A");
    CSpCRDWQTYM1200RegInfo dispenser(L"Svc", false);
    CCRMRegInfo cash(L"Svc", false);
    CSIURegInfo sensors(L"Svc", false);
    CSpSIUCABCRegInfo board(L"Svc", false);
    Set(Device(L"Control"), L"XFSIndesOfLight_6", L"3");
    dispenser.Load(&m_log);
    cash.Load(&m_log);
    sensors.Load(&m_log);
    board.Load(&m_log);
    for (INT_PTR i = 0; i < board.m_arLightMap.GetSize(); ++i) {
        if (board.m_arLightMap[i].wPhyLight == 6) {
            board.m_arLightMap[i].wXFSIndex = 8;
        }
    }
    dispenser.m_dwPort = 44;
    cash.m_sBillSNRegInfo.dwAPID = 7;
    sensors.m_mapKeyboardMapping.SetAt(L"1", L"B");
    const auto save = [&] {
        dispenser.Save();
        cash.Save();
        sensors.Save();
        board.Save();
    };
    {
        WriteScope scope;
        save();
        scope->Refuse({ErrorKind::Io, "the disk is full"});
    }
    EXPECT_EQ(Number(m_comm, L"Port"), 1U);
    save();
    EXPECT_EQ(Number(m_comm, L"Port"), 44U);
    EXPECT_EQ(Number(records, L"dwAPID"), 7U);
    EXPECT_EQ(Text(agent, L"1"), L"B");
    EXPECT_EQ(Text(Device(L"Control"), L"XFSIndesOfLight_6"), L"8");
}

TEST_F(SavePolicyTest, WhatItWroteWhereThereWasNothingIsNoChangeOfTheObjectLater)
{
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    Set(m_comm, L"BaudRate", L"x");
    config.Load(&m_log);
    config.m_dwPort = 9;
    config.m_dwBaudRate = 38400;
    config.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 9U);
    EXPECT_EQ(Number(m_comm, L"BaudRate"), 38400U);
    Set(m_comm, L"Port", 4);
    Set(m_comm, L"BaudRate", 9600);
    config.Save();
    EXPECT_EQ(Number(m_comm, L"Port"), 4U);
    EXPECT_EQ(Number(m_comm, L"BaudRate"), 9600U);
    EXPECT_FALSE(HasError({}));
}

TEST_F(SavePolicyTest, ABackwardChangeBeforeTheCommitIsWritten)
{
    Set(m_comm, L"Port", 1);
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    config.Load(&m_log);
    {
        const WriteScope scope;
        config.m_dwPort = 44;
        config.Save();
        config.m_dwPort = 1;
        config.Save();
    }
    EXPECT_EQ(Number(m_comm, L"Port"), 1U);
}

TEST_F(SavePolicyTest, WhatWasNeverLoadedStays)
{
    const auto records = Device(L"SNRData");
    const auto note = Device(L"NoteType");
    Set(note, L"Count", 1);
    Set(Device(L"NoteType\\NoteType1"), L"CurrencyID", L"CN"); // ends the Load before the records
    Set(records, L"dwAPID", 7);
    Set(records, L"dwPhotoSaveMonth", 5);
    Set(records, L"FSNFilePath", L"D:\\fsn");
    CCRMRegInfo early(L"Svc", false);
    EXPECT_FALSE(early.Load(&m_log));
    early.Save();
    CCRMRegInfo never(L"Svc", false);
    never.Save();
    EXPECT_EQ(Number(records, L"dwAPID"), 7U);
    EXPECT_EQ(Number(records, L"dwPhotoSaveMonth"), 5U);
    EXPECT_EQ(Text(records, L"FSNFilePath"), L"D:\\fsn");
}

TEST_F(SavePolicyTest, CapabilitiesAndNoteTypesKeepWhatOthersChanged)
{
    const auto capabilities = Device(L"CAPABILITIES");
    const auto light = Device(L"CAPABILITIES\\fwGuidLights\\CARDUNIT");
    const auto door = Device(L"CAPABILITIES\\fwDoors\\CABINET");
    Set(capabilities, L"WFS_SIU_GUIDLIGHTS", 1);
    Set(capabilities, L"WFS_SIU_DOORS", 1);
    Set(light, L"WFS_SIU_AVAILABLE", 1);
    Set(door, L"WFS_SIU_NOT_AVAILABLE", 0);
    Set(door, L"WFS_SIU_OPEN", 1);
    CSIURegInfo sensors(L"Svc", false);
    sensors.Load(&m_log);
    ASSERT_EQ(sensors.m_stSiuCaps.fwGuidLights[WFS_SIU_CARDUNIT], WFS_SIU_AVAILABLE);
    Set(light, L"WFS_SIU_AVAILABLE", 0);
    sensors.m_stSiuCaps.fwDoors[WFS_SIU_CABINET] = 0;
    sensors.Save();
    EXPECT_EQ(Number(light, L"WFS_SIU_AVAILABLE"), 0U);
    EXPECT_EQ(Number(door, L"WFS_SIU_OPEN"), 0U);
    EXPECT_EQ(Number(capabilities, L"WFS_SIU_GUIDLIGHTS"), 1U);

    Set(Device(L"NoteType"), L"Count", 2);
    for (const auto* number : {L"1", L"2"}) {
        const auto type = Device((std::wstring(L"NoteType\\NoteType") + number).c_str());
        Set(type, L"NoteID", number[0] - L'0');
        Set(type, L"CurrencyID", L"CNY");
        Set(type, L"Value", 100);
        Set(type, L"Release", 0);
        Set(type, L"Config", 1);
    }
    Set(Device(L"SNRData"), L"dwAPID", 1); // a key that Load needs
    CCRMRegInfo cash(L"Svc", false);
    ASSERT_TRUE(cash.Load(&m_log));
    Set(Device(L"NoteType\\NoteType1"), L"Config", 0);
    cash.m_arNoteType[1].bConfigured = FALSE;
    cash.Save();
    EXPECT_EQ(Number(Device(L"NoteType\\NoteType1"), L"Config"), 0U);
    EXPECT_EQ(Number(Device(L"NoteType\\NoteType2"), L"Config"), 0U);

    // What the member shows after a Save is known, and not a change of the object's.
    Set(Device(L"NoteType\\NoteType1"), L"Config", 1);
    cash.Save();
    EXPECT_EQ(Number(Device(L"NoteType\\NoteType1"), L"Config"), 1U);

    // An operation writes what it is told to, whoever has changed it; a Save on another state does not undo that.
    auto types = cash.m_arNoteType;
    types[0].bConfigured = FALSE;
    EXPECT_EQ(cash.ConfigureNoteTypes(types), WFS_SUCCESS);
    EXPECT_EQ(Number(Device(L"NoteType\\NoteType1"), L"Config"), 0U);
    Set(Device(L"NoteType\\NoteType1"), L"Config", 1);
    cash.Save();
    EXPECT_EQ(Number(Device(L"NoteType\\NoteType1"), L"Config"), 1U);

    Set(Device(L"NoteType\\NoteType2"), L"Config", 7);
    cash.m_arNoteType[1].bConfigured = TRUE;
    {
        WriteScope scope;
        cash.Save();
        scope->Refuse({ErrorKind::Io, "the disk is full"});
    }
    EXPECT_TRUE(HasError(L"Config was changed in the registry"));
    EXPECT_EQ(Number(Device(L"NoteType\\NoteType2"), L"Config"), 7U);
}

TEST_F(SavePolicyTest, OneValueSetByBothIsNoConflict)
{
    Set(m_comm, L"Port", 1);
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    config.Load(&m_log);
    Set(m_comm, L"Port", 4);
    config.m_dwPort = 4;
    config.Save();
    EXPECT_FALSE(HasError({}));
}

TEST_F(SavePolicyTest, AServiceWithoutAProviderSavesNothing)
{
    for (const auto policy : {SavePolicy::All, SavePolicy::OwnChanges}) {
        SetSavePolicy(policy);
        CSpCRDWQTYM1200RegInfo config(L"Ghost", false);
        ClearRecord();
        ClearStoreError();
        config.Save();
        EXPECT_EQ(Commits(), 0U);
        EXPECT_FALSE(Number(L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Comm", L"Port"));
        EXPECT_NE(LastStoreError().message.find("Ghost"), std::string::npos) << LastStoreError().message;
    }
}

} // namespace
