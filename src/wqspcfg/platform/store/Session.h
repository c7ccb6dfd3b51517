// The process's current store, and the scopes within which a thread reads one consistent state or writes as one.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace wqspcfg {

// Replaces the store that every registry operation of this process uses from now on. Scopes that are open keep the
// store they began with.
WQSPCFG_API void SetCurrentStore(std::shared_ptr<Store> store);

// The current store, opened at DefaultStoreAddress when none was set. Null with `error` filled when it cannot be
// opened; the next call tries again.
WQSPCFG_API std::shared_ptr<Store> CurrentStore(Error& error);

// The first failure of a registry operation of this thread since ClearStoreError; reading a missing value is none.
WQSPCFG_API const Error& LastStoreError() noexcept;
WQSPCFG_API void ClearStoreError() noexcept;

// Told of what the sessions of one thread read. The arguments are valid during the call, which must not use the
// session.
class ReadObserver
{
  public:
    // `value` counts where the outcome is Found.
    virtual void Asked(std::wstring_view path, std::wstring_view name, Outcome outcome, const ValueView& value) = 0;
    // All values of a key, or the names of its subkeys, were asked for.
    virtual void AskedAll(std::wstring_view path, bool subkeys) = 0;

  protected:
    ~ReadObserver() = default;
};

// Tells `observer`, or nobody when it is null, of what the sessions of this thread read from now on. Gives the one
// before.
WQSPCFG_API ReadObserver* ObserveReads(ReadObserver* observer) noexcept;

// One transaction of this thread with the keys it has opened. Reached through a scope.
class WQSPCFG_API Session
{
  public:
    // A key of this session; it stays valid until the session ends, whether the key exists or not. The store is asked
    // when the key is first used.
    using Key = std::size_t;

    explicit Session(Access access);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // `path` is relative to the hive that its first component names: ".DEFAULT" is in HKEY_USERS, all else in
    // HKEY_LOCAL_MACHINE.
    Key Open(std::wstring_view path);
    bool Exists(Key key);
    Outcome Query(Key key, std::wstring_view name, ValueView& value);
    // One value without opening its key, where that is looked at once only.
    Outcome QueryAt(std::wstring_view path, std::wstring_view name, ValueView& value);
    Outcome EnumKeys(Key key, const KeyVisitor& visit);
    Outcome EnumValues(Key key, const ValueVisitor& visit);
    Outcome Set(Key key, std::wstring_view name, const ValueView& value);
    Outcome Commit(bool flush);
    // Counts as a failure of this session: a write that no store could keep.
    Outcome Refuse(const Error& error) { return Fail(error); }

    // Calls back when the session ends, and tells whether what it wrote was committed.
    void AtEnd(std::function<void(bool committed)> call) { m_atEnd.push_back(std::move(call)); }
    // Who is told of what this session reads from now on; null: nobody.
    void Observe(ReadObserver* observer) noexcept { m_observer = observer; }
    Access GetAccess() const noexcept { return m_access; }
    // The first failure of this session.
    const Error& Failure() const noexcept { return m_failure; }

  private:
    friend class ReadScope;
    friend class WriteScope;
    enum class State : std::uint8_t
    {
        New,
        Named, // by NameKey: it may exist
        Missing,
        Present,
    };
    struct OpenedKey
    {
        std::wstring path;
        KeyId id = 0;
        State state = State::New;
        std::size_t created = 0; // m_created when it was last looked for
    };
    struct PathHash // of a path whose hash is known
    {
        std::size_t hash;
        std::wstring_view path;
        bool operator==(const PathHash& other) const noexcept { return path == other.path; }
    };
    struct TakeHash
    {
        std::size_t operator()(const PathHash& path) const noexcept { return path.hash; }
    };
    struct WrittenValue
    {
        std::wstring path;
        std::wstring name;
        ValueType type;
        std::vector<std::byte> data;
    };

    Outcome Ask(Key key, std::wstring_view name, ValueView& value);
    Outcome AskAt(std::wstring_view path, std::wstring_view name, ValueView& value);
    Outcome Fail(const Error& error);
    Outcome Checked(Outcome outcome);
    // Whether the key exists. Looks again for a missing one once another was created: that may be its subkey, or the
    // same in another spelling.
    bool Find(OpenedKey& opened);
    const WrittenValue* FindWritten(std::wstring_view path, std::wstring_view name) const;

    ReadObserver* m_observer;
    std::shared_ptr<Store> m_store;
    std::unique_ptr<Transaction> m_transaction;
    std::deque<OpenedKey> m_keys; // a deque: m_byPath holds views of the paths
    std::unordered_map<PathHash, Key, TakeHash> m_byPath;
    // What this thread has committed while this read session was open: a Load sees what it wrote itself.
    std::vector<WrittenValue> m_overlay;
    std::vector<WrittenValue> m_written; // for the overlay of the read session around this write session
    Error m_failure;
    Access m_access;
    std::size_t m_created = 0; // how many keys this session has created
    std::vector<std::function<void(bool)>> m_atEnd;
    bool m_recordWrites = false;
    bool m_flush = false;
};

// Everything that this thread reads while the scope lives comes from one state of the store. Joins an enclosing scope.
class WQSPCFG_API ReadScope
{
  public:
    ReadScope();
    ~ReadScope();
    ReadScope(const ReadScope&) = delete;
    ReadScope& operator=(const ReadScope&) = delete;

    Session& operator*() const noexcept { return *m_session; }
    Session* operator->() const noexcept { return m_session; }

  private:
    std::optional<Session> m_own;
    Session* m_session;
};

// The exceptions in flight, as the module that compiles this counts them: a DLL with a C++ runtime of its own has a
// count of its own. A scope asks the module that opened it.
inline int ExceptionsInFlight() noexcept
{
    return std::uncaught_exceptions();
}
using ExceptionCount = int (*)() noexcept;

// Everything that this thread writes while the scope lives becomes visible and durable together when the outermost
// write scope ends; reads inside it see the writes. When any of the writes failed, or an exception ends the scope, none
// is kept. A failure counts for a read scope around it, too.
class WQSPCFG_API WriteScope
{
  public:
    explicit WriteScope(ExceptionCount inFlight = ExceptionsInFlight);
    ~WriteScope();
    WriteScope(const WriteScope&) = delete;
    WriteScope& operator=(const WriteScope&) = delete;

    Session& operator*() const noexcept { return *m_session; }
    Session* operator->() const noexcept { return m_session; }
    // Makes the writes of the whole outermost scope so far durable on every store, the Windows registry included.
    void Flush() noexcept;
    // Ends the scope early and tells whether it was written. A joined scope commits with its outermost one.
    bool Commit();

  private:
    std::optional<Session> m_own;
    Session* m_session;
    Session* m_outer;
    ExceptionCount m_inFlight;
    int m_exceptions; // in flight when the scope began
    bool m_done = false;
};

} // namespace wqspcfg
