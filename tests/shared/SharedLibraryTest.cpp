// What a service provider does with the shared library.
#include "EveryClass.h"
#include "support/ConfigTest.h"
#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/platform/framework/InvalidArgException.h"
#include "wqspcfg/platform/store/Session.h"

#include <type_traits>
#include <utility>

#if defined(WQSPCFG_STATIC)
#error "this program links the shared library"
#endif

namespace wqspcfg::test {

namespace {

int g_destroyed = 0;

// A service provider's own class.
template <class C>
class Provider final : public C
{
  public:
    using C::C;
    ~Provider() override { ++g_destroyed; }
};

class SharedLibraryTest : public ConfigTest
{
  protected:
    // The keys without which a Load returns false.
    static void AddRequiredKeys()
    {
        Set(Device(L"SNRData"), L"Present", 1U);
        Set(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent", L"CanpostKeyEvent", 0U);
        Set(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent\\KeyboardMapping", L"1", L"13");
    }

    // Of what is the same for every class, so that there is one copy of it.
    static void CheckEntry(const Table& table, const wchar_t* name)
    {
        EXPECT_STREQ(table.className, name);
        ASSERT_NE(FindClass(name), nullptr);
        EXPECT_EQ(&FindClass(name)->table(), &table);
    }

    void CheckLoad(bool loaded)
    {
        EXPECT_TRUE(loaded);
        EXPECT_FALSE(m_log.Entries().empty());
        m_log.Clear();
    }

    // By the virtual functions of the root; some models hide their own.
    void LoadAndSave(CRegInfo& object)
    {
        CheckLoad(object.Load(&m_log));
        object.Save();
    }

    static void CheckEnd()
    {
        EXPECT_TRUE(LastStoreError().message.empty()) << LastStoreError().message;
        EXPECT_EQ(std::exchange(g_destroyed, 0), 1);
    }

    template <class C>
    void Check(const wchar_t* name)
    {
        CheckEntry(C::Settings(), name);
        if constexpr (std::is_base_of_v<CRegInfo, C>) {
            {
                C object(L"Svc", false);
                LoadAndSave(object);
            }
            const std::unique_ptr<CRegInfo> provider(new Provider<C>(L"Svc", false));
            LoadAndSave(*provider);
            if (dynamic_cast<C*>(provider.get()) == nullptr) {
                FailCast();
            }
        } else {
            const CRegInfo owner(L"Svc", false);
            Provider<C> object(owner);
            CheckLoad(object.Load(&m_log));
            object.Save();
        }
        CheckEnd();
    }

    static void FailCast() { ADD_FAILURE() << "it is not of its own class"; }
};

} // namespace

TEST_F(SharedLibraryTest, EveryClassIsMadeLoadedSavedAndDestroyed)
{
    std::size_t count = 0;
#define CLASS(Class)                                                                                                   \
    {                                                                                                                  \
        SCOPED_TRACE(#Class);                                                                                          \
        ResetProcess();                                                                                                \
        AddRequiredKeys();                                                                                             \
        Check<Class>(L## #Class);                                                                                      \
        ++count;                                                                                                       \
    }
#include "wqspcfg/catalogue/all.inc"
#undef CLASS
    EXPECT_EQ(count, AllClasses().size());
}

TEST_F(SharedLibraryTest, ItsExceptionsAreCaughtByTheProgram)
{
    CString text(L"abc");
    EXPECT_THROW(text.SetAt(3, L'x'), CInvalidArgException);
    EXPECT_THROW(text.SetAt(-1, L'x'), std::exception);
}

} // namespace wqspcfg::test
