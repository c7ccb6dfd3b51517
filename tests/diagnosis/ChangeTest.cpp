#include "wqspcfg/diagnosis/Change.h"

#include "catalogue/CatalogueTesting.h"
#include "support/StoreTesting.h"
#include "wqspcfg/diagnosis/SettingText.h"

#include <algorithm>
#include <set>

namespace wqspcfg::diagnosis {

namespace {

using namespace wqspcfg::test;

class ChangeTest : public CatalogueTest
{
  protected:
    static Examination ExamineAs(const ClassEntry& entry)
    {
        ServiceIdentity service;
        service.logicalName = L"Svc";
        service.physicalName = L"Phys";
        service.deviceKey = L"Dev";
        return Examine(service, entry);
    }

    void Carry(ChangePlan& plan, bool write = true)
    {
        Error error;
        const auto transaction = m_store->Begin(Access::Write, error);
        ASSERT_TRUE(transaction) << error.message;
        ASSERT_TRUE(Apply(plan, *transaction, write, error)) << error.message;
        ASSERT_NE(transaction->Commit(false), Outcome::Failed);
        ResetProcess();
    }

    static std::string Refusals(const ChangePlan& plan)
    {
        std::string text;
        for (const auto& refusal : plan.refusals) {
            text += refusal.message + (refusal.isUnknown ? " (unknown)\n" : "\n");
        }
        return text;
    }

    // What a person may write for the setting: its default, each allowed value, in figures and by its word.
    static std::vector<std::wstring> Spellings(const DescribedSetting& setting)
    {
        if (test::IsText(setting.type)) {
            return {setting.defaultValue.text, L"x"};
        }
        std::vector<std::wstring> all{std::to_wstring(setting.defaultValue.number)};
        for (const auto& choice : setting.allowed) {
            all.push_back(std::to_wstring(choice.value));
            const auto same =
                std::count_if(setting.allowed.begin(), setting.allowed.end(),
                              [&](const DescribedChoice& other) { return EqualNoCase(other.word, choice.word); });
            if (!choice.word.empty() && same == 1) {
                all.emplace_back(choice.word);
            }
        }
        if (setting.range) {
            all.push_back(std::to_wstring(setting.range->low));
            all.push_back(std::to_wstring(setting.range->high));
        }
        if (setting.type == Type::Flag && setting.allowed.empty()) {
            all.insert(all.end(), {L"yes", L"FALSE", L"0x1"});
        }
        return all;
    }

    // Each in turn, so that a transaction changes all settings of a class.
    struct Round
    {
        std::vector<WantedChange> wanted;
        std::size_t spellings = 0;
    };
    static Round RoundOf(const Examination& examination, std::size_t number)
    {
        Round round;
        std::set<std::wstring> places;
        for (const auto& each : examination.settings) {
            const auto& setting = each.Setting();
            if (setting.wholeKey || setting.computed || setting.root == Root::Logical || each.name == L"ExeDllMother" ||
                (setting.readBy.empty() && !setting.writtenBy.empty()) ||
                !places.insert(UpCase(each.path + L'|' + each.name)).second) {
                continue;
            }
            const auto spellings = Spellings(setting);
            std::wstring name;
            AppendWideFromUtf8(FullNameOf(each), name);
            round.wanted.push_back({name, spellings[number % spellings.size()]});
            round.spellings = std::max(round.spellings, spellings.size());
        }
        return round;
    }

    // With its values deleted, the service runs as before.
    void ExpectUndone(Examination before, Round round, const ClassEntry& entry)
    {
        for (auto& each : round.wanted) {
            each.value.reset();
        }
        auto plan = PlanChanges(before, round.wanted);
        ASSERT_NO_FATAL_FAILURE(Carry(plan));
        ASSERT_EQ(Refusals(plan), "");
        std::vector<Examination> left;
        left.push_back(std::move(before));
        std::vector<Examination> right;
        right.push_back(ExamineAs(entry));
        for (const auto& difference : Compare(left, right, true)) {
            ADD_FAILURE() << Narrow(difference.key + L'\\' + difference.name) << ' ' << difference.left.value << " -> "
                          << difference.right.value;
        }
    }
};

} // namespace

// For every class and setting: the default and each allowed value are taken, and are what the next Load reads; deleted,
// they leave nothing behind.
TEST_F(ChangeTest, EverySettingTakesItsDefaultAndEachAllowedValue)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        std::size_t rounds = 2;
        for (std::size_t number = 0; number < rounds; ++number) {
            Wipe();
            AddRequiredKeys();
            auto before = ExamineAs(*entry);
            auto round = RoundOf(before, number);
            rounds = std::max(rounds, round.spellings);
            auto plan = PlanChanges(before, round.wanted);
            ASSERT_EQ(Refusals(plan), "");
            ASSERT_EQ(plan.changes.size(), round.wanted.size());
            ASSERT_NO_FATAL_FAILURE(Carry(plan));
            const auto after = ExamineAs(*entry);
            std::size_t read = 0;
            // One value of a unit's capabilities may switch off nearly all others.
            const auto ports = static_cast<std::size_t>(
                std::count_if(plan.changes.begin(), plan.changes.end(),
                              [](const PlannedChange& change) { return change.setting->heldAs != nullptr; }));
            for (const auto& change : plan.changes) {
                const auto found =
                    std::find_if(after.settings.begin(), after.settings.end(), [&](const ExaminedSetting& each) {
                        return EqualNoCase(each.path, change.path) && EqualNoCase(each.name, change.name);
                    });
                if (found == after.settings.end() || found->source == Source::NotRead ||
                    found->source == Source::Code) {
                    continue; // switched off by another setting of this round
                }
                ++read;
                EXPECT_EQ(found->source, Source::Key) << FullNameOf(*found);
                EXPECT_EQ(found->read, change.value) << FullNameOf(*found);
            }
            EXPECT_GT(read, (plan.changes.size() - ports) / 2);
            if (number == 1) {
                ExpectUndone(std::move(before), std::move(round), *entry);
            }
        }
    }
}

TEST_F(ChangeTest, WhatCannotBeSetIsRefusedWithTheReason)
{
    Set(Device(L"CardUnit\\CardUnitInfo1"), L"Number", 1U);
    Set(Device(L"CardUnit\\CardUnitInfo2"), L"Number", 2U);
    const auto dispenser = ExamineAs(*FindClass(L"CSpCRDWQTYM1200RegInfo"));
    const auto reader = ExamineAs(*FindClass(L"CIDCRegInfo"));
    const auto refusal = [](const Examination& examination, const wchar_t* name, const wchar_t* value) {
        const auto plan = PlanChanges(examination, {{name, value}});
        EXPECT_TRUE(plan.changes.empty());
        return Refusals(plan);
    };
    EXPECT_EQ(refusal(dispenser, L"CloseOption", L"77"),
              "Control\\CloseOption cannot be \"77\"; allowed: 0 eject, 1 retain, 2 leave\n");
    EXPECT_EQ(refusal(dispenser, L"CloseOption", L"leavee"),
              "Control\\CloseOption cannot be \"leavee\"; allowed: 0 eject, 1 retain, 2 leave\n");
    EXPECT_EQ(refusal(dispenser, L"Port", L"4294967296"),
              "Comm\\Port cannot be \"4294967296\"; it is a number from 0 to 4294967295\n");
    EXPECT_EQ(refusal(dispenser, L"BuadRate", L"9600"),
              "CSpCRDWQTYM1200RegInfo has no setting \"BuadRate\"; did you mean \"BaudRate\"? (unknown)\n");
    EXPECT_EQ(refusal(dispenser, L"Com\\Port", L"1"),
              "CSpCRDWQTYM1200RegInfo has no setting \"Com\\Port\"; did you mean \"Comm\\Port\"? (unknown)\n");
    EXPECT_EQ(refusal(dispenser, L"Count", L"1"),
              "there are several settings \"Count\"; name one of: CardUnit\\CardUnitInfo1\\Count, "
              "CardUnit\\CardUnitInfo2\\Count\n");
    EXPECT_EQ(refusal(dispenser, L"CardUnit\\A\\B\\Count", L"1").find("CSpCRDWQTYM1200RegInfo has no setting"), 0U);
    const auto printer = ExamineAs(*FindClass(L"CSpPTRRID100RegInfo"));
    EXPECT_EQ(refusal(printer, L"PaperCounts\\PaperCount", L"1"),
              "PaperCounts\\PaperCount cannot be set: only SaveSetPaperCount writes it, and nothing reads it\n");
    EXPECT_EQ(refusal(reader, L"OffsetSec", L"1"),
              "Control\\OffsetSec cannot be set: it is made by CIDCRegInfo and never read from the registry\n");

    auto plan = PlanChanges(dispenser, {{L"Port", L"1"}, {L"Comm\\port", L"2"}});
    EXPECT_EQ(Refusals(plan), "Comm\\Port is given twice\n");
    plan = PlanChanges(dispenser, {{L"CardUnit\\CardUnitInfo7\\Count", L"5"}});
    EXPECT_EQ(Refusals(plan), "") << "a card unit that is not there yet";
    ASSERT_EQ(plan.changes.size(), 1U);
    EXPECT_EQ(plan.changes[0].path, Device(L"CardUnit\\CardUnitInfo7"));
    EXPECT_EQ(plan.changes[0].notes, std::vector<std::string>{"its key is none that the service has now"});

    auto homeless = ExamineAs(*FindClass(L"CSpCRDWQTYM1200RegInfo"));
    homeless.service.deviceKey.clear();
    EXPECT_EQ(refusal(homeless, L"Port", L"1"), "Comm\\Port cannot be set: the service has no device key\n");
}

TEST_F(ChangeTest, EntriesOfAWholeKeyAreSetByTheirFullNames)
{
    AddRequiredKeys();
    const auto& entry = *FindClass(L"CSIURegInfo");
    const auto before = ExamineAs(entry);
    const auto whole = std::find_if(before.settings.begin(), before.settings.end(), [](const ExaminedSetting& each) {
        return each.Setting().wholeKey && EqualNoCase(each.path.substr(each.path.size() - 15), L"KeyboardMapping");
    });
    ASSERT_NE(whole, before.settings.end());
    std::wstring key;
    AppendWideFromUtf8(KeyText(whole->Setting().root, whole->Setting().key), key);
    EXPECT_NE(Refusals(PlanChanges(before, {{key, L"1"}})).find("it is a whole key; name one of its values"),
              std::string::npos);
    auto plan = PlanChanges(before, {{key + L"\\F1", L"112"}, {key + L"\\1", std::nullopt}});
    ASSERT_EQ(Refusals(plan), "");
    ASSERT_NO_FATAL_FAILURE(Carry(plan));
    EXPECT_EQ(TextOf(plan.changes[0], plan.changes[0].before, false), "missing");
    EXPECT_EQ(TextOf(plan.changes[1], plan.changes[1].before, false), "\"13\"");
    const auto after = ExamineAs(entry);
    const auto& entries = after.settings[static_cast<std::size_t>(whole - before.settings.begin())].entries;
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].first, L"F1");
    EXPECT_EQ(entries[0].second, L"112");
}

// Nothing of a plan is written where a part of it cannot be.
TEST_F(ChangeTest, AValueThatIsNotThereToBeDeletedLeavesAllAsItWas)
{
    Set(Device(L"Comm"), L"Port", L"4");
    const auto examination = ExamineAs(*FindClass(L"CSpCRDWQTYM1200RegInfo"));
    auto plan = PlanChanges(examination, {{L"Port", L"4"}, {L"CloseOption", std::nullopt}});
    const auto before = Snapshot();
    ASSERT_NO_FATAL_FAILURE(Carry(plan));
    EXPECT_EQ(Refusals(plan), "Control\\CloseOption is not stored: there is nothing to delete (unknown)\n");
    EXPECT_EQ(Snapshot(), before);

    plan = PlanChanges(examination, {{L"Port", L"0x4"}});
    ASSERT_NO_FATAL_FAILURE(Carry(plan, false));
    EXPECT_EQ(Snapshot(), before);
    EXPECT_EQ(TextOf(plan.changes[0], plan.changes[0].before, false), "REG_SZ \"4\"");
    EXPECT_FALSE(plan.changes[0].IsNone()) << "the text is no number";
    ASSERT_NO_FATAL_FAILURE(Carry(plan));
    EXPECT_EQ(Number(Device(L"Comm"), L"Port"), 4U);
    ASSERT_NO_FATAL_FAILURE(Carry(plan));
    EXPECT_TRUE(plan.changes[0].IsNone());
}

} // namespace wqspcfg::diagnosis
