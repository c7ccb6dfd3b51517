// Whole keys, lists and numbered subkeys of any length: ten times as much costs ten times the work of the store, and a
// hundred thousand are no harm.
#include "support/ConfigTest.h"
#include "support/Sanitizers.h"
#include "wqspcfg/classes/CRDRegInfo.h"
#include "wqspcfg/classes/CRMRegInfo.h"
#include "wqspcfg/classes/PINRegInfo.h"
#include "wqspcfg/classes/SIURegInfo.h"
#include "wqspcfg/classes/TTURegInfo.h"
#include "wqspcfg/models/ptr/SpPTRPrdFPCNormalRegInfo.h"
#include "wqspcfg/platform/store/ForwardingTransaction.h"
#include "wqspcfg/platform/store/Session.h"

#include <memory>
#include <string>
#include <utility>

namespace wqspcfg::test {

namespace {

constexpr DWORD kMany = kSanitized ? 10'000 : 100'000;
constexpr DWORD kFew = kMany / 10;

// Counts what passes through: queries, opened keys, visited names and writes.
class CountingStore final : public Store
{
  public:
    explicit CountingStore(std::shared_ptr<Store> inner) : m_inner(std::move(inner)) {}

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_inner->Address(); }

    std::size_t m_work = 0;

  private:
    std::shared_ptr<Store> m_inner;
};

class CountingTransaction final : public ForwardingTransaction
{
  public:
    CountingTransaction(std::unique_ptr<Transaction> inner, std::size_t& work)
        : ForwardingTransaction(std::move(inner)), m_work(work)
    {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return Counted(ForwardingTransaction::OpenKey(hive, path, key));
    }
    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        return Counted(ForwardingTransaction::Query(key, name, value));
    }
    Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
    {
        return Counted(ForwardingTransaction::QueryAt(hive, path, name, value));
    }
    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override
    {
        return Counted(ForwardingTransaction::EnumKeys(key, [&](std::wstring_view name) {
            ++m_work;
            return visit(name);
        }));
    }
    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        return Counted(ForwardingTransaction::EnumValues(key, [&](std::wstring_view name, const ValueView& value) {
            ++m_work;
            return visit(name, value);
        }));
    }
    Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return Counted(ForwardingTransaction::CreateKey(hive, path, key));
    }
    Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
    {
        return Counted(ForwardingTransaction::SetValue(key, name, value));
    }
    Outcome DeleteValue(KeyId key, std::wstring_view name) override
    {
        return Counted(ForwardingTransaction::DeleteValue(key, name));
    }
    Outcome DeleteKey(Hive hive, std::wstring_view path) override
    {
        return Counted(ForwardingTransaction::DeleteKey(hive, path));
    }
    Outcome Commit(bool flush) override { return Counted(ForwardingTransaction::Commit(flush)); }

  private:
    Outcome Counted(Outcome outcome)
    {
        ++m_work;
        return outcome;
    }

    std::size_t& m_work;
};

std::unique_ptr<Transaction> CountingStore::Begin(Access access, Error& error)
{
    auto inner = m_inner->Begin(access, error);
    return inner ? std::make_unique<CountingTransaction>(std::move(inner), m_work) : nullptr;
}

// Counts the lines and their length.
class LineCounter final : public CLog
{
  public:
    int Write(Severity, DWORD, std::wstring_view text) override
    {
        ++m_lines;
        m_characters += text.size();
        return 1;
    }
    std::size_t m_lines = 0;
    std::size_t m_characters = 0;
};

class CatalogueScaleTest : public ConfigTest
{
  protected:
    struct Work
    {
        std::size_t load = 0;
        std::size_t save = 0;
        std::size_t lines = 0;
    };

    // Loads and saves an object of class C over what `fill` puts into the registry.
    template <class C, class Fill, class Check>
    Work Measure(DWORD count, Fill fill, Check check)
    {
        ResetProcess();
        Error error;
        const auto store = std::make_shared<CountingStore>(OpenStore("memory:", {}, error));
        SetCurrentStore(store);
        Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
        Set(Service(), L"ExeDllMother", L"Dev.exe");
        {
            const WriteScope scope;
            fill(count);
        }
        Work work;
        LineCounter log;
        C config(L"Svc", false);
        store->m_work = 0;
        config.Load(&log);
        work.load = store->m_work;
        work.lines = log.m_lines;
        EXPECT_LT(log.m_characters, 1000U * (count + 1000U));
        check(config, count);
        store->m_work = 0;
        config.Save();
        work.save = store->m_work;
        EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
        return work;
    }

    template <class C, class Fill, class Check>
    void ExpectLinear(Fill fill, Check check)
    {
        const auto few = Measure<C>(kFew, fill, check);
        const auto many = Measure<C>(kMany, fill, check);
        // What does not grow is on the safe side.
        EXPECT_LE(many.load, few.load * 10);
        EXPECT_LE(many.save, few.save * 10);
        EXPECT_LE(many.lines, few.lines * 10);
        EXPECT_LE(many.load, std::size_t{kMany} * 16);
    }
};

std::wstring Numbered(const wchar_t* name, DWORD number)
{
    return name + std::to_wstring(number);
}

} // namespace

TEST_F(CatalogueScaleTest, CardUnits)
{
    ExpectLinear<CCRDRegInfo>(
        [](DWORD count) {
            for (DWORD i = 1; i <= count; ++i) {
                Set(Device(L"CardUnit\\" + Numbered(L"CardUnitInfo", i)), L"Number", i % 0xFFFF + 1);
            }
            Set(Device(L"CardUnit\\CardUnitInfo1"), L"CardName", std::wstring(10'000, L'n').c_str());
        },
        [](CCRDRegInfo& config, DWORD count) {
            EXPECT_EQ(config.m_arCardUnit.GetSize(), static_cast<INT_PTR>(count));
        });
}

TEST_F(CatalogueScaleTest, NoteTypesAndNameParts)
{
    ExpectLinear<CCRMRegInfo>(
        [](DWORD count) {
            for (DWORD i = 1; i <= count; ++i) {
                const auto type = Device(L"NoteType\\" + Numbered(L"NoteType", i));
                Set(type, L"NoteID", i);
                Set(type, L"CurrencyID", L"CNY");
                Set(type, L"Value", i);
                Set(type, L"Release", 1U);
                Set(type, L"Config", 1U);
            }
            for (DWORD i = 1; i <= count / 10; ++i) {
                Set(Device(L"SNRData\\FSNFolderParts\\" + Numbered(L"Data", i)), L"Type", 1U);
            }
            Set(Device(L"NoteType"), L"Count", count);
            std::wstring list(count, L',');
            Set(Device(), L"SupportCurrencyID", list.c_str());
            Set(Device(), L"SupportMixNumber", list.c_str());
        },
        [](CCRMRegInfo& config, DWORD count) {
            EXPECT_EQ(config.m_arNoteType.GetSize(), static_cast<INT_PTR>(count));
            EXPECT_EQ(config.m_sBillFSNRegInfo.FolderParts.GetSize(), static_cast<INT_PTR>(count / 10));
            EXPECT_EQ(config.m_arSupportCurrencyExponent.GetSize(), static_cast<INT_PTR>(count) + 1);
            EXPECT_EQ(config.m_arSupportMixNumber.GetSize(), static_cast<INT_PTR>(count) + 1);
            EXPECT_TRUE(config.IsValidNoteID(static_cast<WORD>(count)));
        });
}

TEST_F(CatalogueScaleTest, CommandMapsErrorCodesAndErrorRules)
{
    ExpectLinear<CRegInfo>(
        [](DWORD count) {
            for (DWORD i = 0; i < count; ++i) {
                Set(Device(L"ExeCmdMap"), std::to_wstring(i), i);
                Set(Device(L"ErrCodeMap"), Numbered(L"E", i), i);
                Set(Device(L"CheckErrorHandler"), Numbered(L"Request", i), L"a=1");
            }
            Set(Device(L"CheckErrorHandler"), L"CheckLevel", 2U);
            std::wstring rules;
            for (DWORD i = 0; i < count; ++i) {
                rules += Numbered(L"rule", i) + L"=0;";
            }
            Set(Device(L"CheckErrorHandler"), L"long", (rules + L"last=5").c_str());
            Set(Device(L"ShareInfo"), L"OtherSideServerName", std::wstring(count, L';').c_str());
        },
        [](CRegInfo& config, DWORD count) {
            EXPECT_EQ(config.m_mapExeCmd.GetCount(), static_cast<INT_PTR>(count));
            EXPECT_EQ(config.m_mapErrCode.GetCount(), static_cast<INT_PTR>(count));
            EXPECT_EQ(config.GetCheckErrorRuler(L"long", L"last"), 5U);
            EXPECT_EQ(CRegInfo::m_arOtherSideServerName.GetSize(), static_cast<INT_PTR>(count) + 1);
        });
}

TEST_F(CatalogueScaleTest, MappingKeys)
{
    ExpectLinear<CPINRegInfo>(
        [](DWORD count) {
            for (DWORD i = 0; i < count; ++i) {
                Set(Device(L"KeybordInfo\\KeyboardMapping"), std::to_wstring(i), L"ENTER");
            }
        },
        [](CPINRegInfo& config, DWORD count) {
            EXPECT_EQ(config.m_mapKeyboardMapping.GetCount(), static_cast<INT_PTR>(count));
        });
    ExpectLinear<CTTURegInfo>(
        [](DWORD count) {
            for (DWORD i = 0; i < count; ++i) {
                Set(Device(L"KeyboardInfo\\KeyboardMapping"), std::to_wstring(i), L"ENTER");
                Set(Device(L"KeyboardInfo\\KeyboardMapping\\" + Numbered(L"Key", i)), L"Unrelated", 1U);
            }
        },
        [](CTTURegInfo& config, DWORD count) {
            EXPECT_EQ(config.m_mapKeyboardMapping.GetCount(), static_cast<INT_PTR>(2 * count));
        });
    ExpectLinear<CSpPTRPrdFPCNormalRegInfo>(
        [](DWORD count) {
            for (DWORD i = 0; i < count; ++i) {
                Set(Device(L"ReadImageRule"), Numbered(L"Rule", i), L"x");
            }
        },
        [](CSpPTRPrdFPCNormalRegInfo& config, DWORD count) {
            EXPECT_TRUE(config.LoadReadImageRuleCfg(nullptr));
            EXPECT_EQ(config.m_mapReadImageRule.GetCount(), static_cast<INT_PTR>(count));
        });
}

TEST_F(CatalogueScaleTest, PortsThatAreEnabledAutomatically)
{
    ExpectLinear<CSIURegInfo>(
        [](DWORD count) {
            for (DWORD i = 0; i < count; ++i) {
                Set(Device(L"AutoEnable"), Numbered(L"Sensor_", i), L"1");
            }
        },
        [](CSIURegInfo& config, DWORD) {
            EXPECT_EQ(config.m_bySensorAutoEnable[1], 1);
            EXPECT_EQ(config.m_bySensorAutoEnable[31], 1);
        });
}

} // namespace wqspcfg::test
