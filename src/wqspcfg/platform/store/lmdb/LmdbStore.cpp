#include "wqspcfg/platform/store/lmdb/LmdbStore.h"

#include "wqspcfg/platform/store/FlatTransaction.h"
#include "wqspcfg/platform/store/ForkSafe.h"
#include "wqspcfg/platform/store/lmdb/LmdbEnvironment.h"

#include <mutex>
#include <unistd.h>
#include <utility>

namespace wqspcfg {

namespace {

MDB_val ToValue(std::string_view bytes)
{
    return {bytes.size(), const_cast<char*>(bytes.data())};
}

std::string_view ToView(const MDB_val& value)
{
    return {static_cast<const char*>(value.mv_data), value.mv_size};
}

// The registry's rules over one LMDB transaction.
class LmdbEngine
{
  public:
    static constexpr bool kChecked = true;

    LmdbEngine(const LmdbStore& store, std::shared_ptr<LmdbEnvironment> environment, Access access)
        : m_store(store), m_environment(std::move(environment)), m_write(access == Access::Write)
    {}

    bool Begin(Error& error)
    {
        m_txn = m_write ? m_environment->BeginWrite(Address(), error) : nullptr;
        m_isOpen = m_write ? m_txn != nullptr : m_environment->BeginRead(Address(), m_txn, m_tree, error);
        return m_isOpen;
    }

    ~LmdbEngine()
    {
        if (!m_environment->IsOurs() || !m_isOpen) {
            return;
        }
        CloseCursor();
        if (m_write) {
            mdb_txn_abort(m_txn);
            m_environment->EndWrite(m_status, false);
        } else {
            m_environment->EndRead(m_txn);
        }
    }
    LmdbEngine(const LmdbEngine&) = delete;
    LmdbEngine& operator=(const LmdbEngine&) = delete;

    const std::string& Address() const { return m_store.Address(); }
    static constexpr std::size_t NameRoom() { return kEmbeddedNameRoom; }
    const Error& Failure() const { return m_failure; }
    bool CanWrite() const { return m_write; }

    bool Usable()
    {
        if (m_isOpen && m_status == 0 && m_environment->IsOurs()) {
            return true;
        }
        if (!m_isOpen) {
            m_failure = {ErrorKind::BadArgument, Address() + ": the transaction is over"};
        } else if (!m_environment->IsOurs()) {
            m_failure = {ErrorKind::BadArgument,
                         Address() + ": the transaction belongs to the process before its fork"};
        }
        return false;
    }

    Lookup Get(std::string_view name, Locality locality, std::string_view& record)
    {
        if (!m_write) {
            return Checked(m_tree.Get(name, locality, record));
        }
        if (const auto opened = OpenCursor(); opened != Lookup::Found) {
            return opened;
        }
        auto key = ToValue(name);
        MDB_val value{};
        const auto result = mdb_cursor_get(m_cursor, &key, &value, MDB_SET_KEY);
        record = ToView(value);
        return Result(result, "read");
    }

    template <class Visit>
    Lookup Scan(std::string_view prefix, Visit visit)
    {
        if (!m_write) {
            return Checked(m_tree.Scan(prefix, visit));
        }
        if (const auto opened = OpenCursor(); opened != Lookup::Found) {
            return opened;
        }
        auto key = ToValue(prefix);
        MDB_val value{};
        auto result = mdb_cursor_get(m_cursor, &key, &value, MDB_SET_RANGE);
        while (result == 0 && ToView(key).starts_with(prefix) && visit(ToView(key), ToView(value))) {
            result = mdb_cursor_get(m_cursor, &key, &value, MDB_NEXT);
        }
        return result == MDB_NOTFOUND ? Lookup::Found : Result(result, "read");
    }

    bool ScanChecks() const { return !m_write; }

    Lookup Put(std::string_view name, std::string_view record, bool isThere)
    {
        if (const auto opened = OpenCursor(); opened != Lookup::Found) {
            return opened;
        }
        auto key = ToValue(name);
        auto value = ToValue(record);
        m_changed = true;
        return Result(mdb_cursor_put(m_cursor, &key, &value, isThere ? MDB_CURRENT : 0), "write");
    }

    Lookup Erase(std::string_view name)
    {
        auto key = ToValue(name);
        m_changed = true;
        return Result(mdb_del(m_txn, m_environment->Dbi(), &key, nullptr), "write");
    }

    Lookup ErasePrefix(std::string_view prefix)
    {
        if (const auto opened = OpenCursor(); opened != Lookup::Found) {
            return opened;
        }
        m_changed = true;
        for (;;) {
            auto key = ToValue(prefix);
            MDB_val value{};
            auto result = mdb_cursor_get(m_cursor, &key, &value, MDB_SET_RANGE);
            if (result == MDB_NOTFOUND || (result == 0 && !ToView(key).starts_with(prefix))) {
                return Lookup::Found;
            }
            if (result == 0) {
                result = mdb_cursor_del(m_cursor, 0);
            }
            if (result != 0) {
                return Result(result, "write");
            }
        }
    }

    Lookup Commit(bool)
    {
        CloseCursor();
        if (m_changed) {
            m_status = LmdbEnvironment::PutState(m_txn, m_environment->Dbi());
        }
        if (m_status != 0) {
            mdb_txn_abort(m_txn);
        } else {
            m_status = m_changed ? 0 : m_environment->MakeDurable();
            if (const auto committed = mdb_txn_commit(m_txn); m_status == 0) {
                m_status = committed;
            }
        }
        m_isOpen = false;
        m_environment->EndWrite(m_status, m_changed);
        return Result(m_status, "write");
    }

  private:
    Lookup Checked(Lookup lookup)
    {
        if (lookup == Lookup::Failed) {
            m_failure = m_environment->DescribeDamage(Address(), m_tree.Cause());
        }
        return lookup;
    }

    Lookup OpenCursor()
    {
        return m_cursor != nullptr ? Lookup::Found
                                   : Result(mdb_cursor_open(m_txn, m_environment->Dbi(), &m_cursor), "read");
    }

    void CloseCursor()
    {
        if (m_cursor != nullptr) {
            mdb_cursor_close(m_cursor);
            m_cursor = nullptr;
        }
    }

    Lookup Result(int result, std::string_view action)
    {
        if (result == 0) {
            return Lookup::Found;
        }
        if (result == MDB_NOTFOUND) {
            return Lookup::Absent;
        }
        if (m_write) {
            m_status = result; // what was written may be incomplete now: nothing of it can be committed
        }
        m_failure = m_environment->Describe(Address(), action, result);
        return Lookup::Failed;
    }

    const LmdbStore& m_store;
    std::shared_ptr<LmdbEnvironment> m_environment;
    MDB_txn* m_txn = nullptr; // none for one that reads a copy
    LmdbTree m_tree;          // of a read transaction
    MDB_cursor* m_cursor = nullptr;
    Error m_failure;
    int m_status = 0;
    bool m_write;
    bool m_isOpen = false;
    bool m_changed = false;
};

} // namespace

std::shared_ptr<LmdbStore> LmdbStore::Open(std::string address, const std::string& directory,
                                           const LmdbOptions& options, Error& error)
{
    auto environment = LmdbEnvironment::Open(address, directory, options.create, options.mapSize, error);
    return environment ? std::make_shared<LmdbStore>(std::move(address), options, std::move(environment)) : nullptr;
}

LmdbStore::LmdbStore(std::string address, const LmdbOptions& options, std::shared_ptr<LmdbEnvironment> environment)
    : m_address(std::move(address)), m_options(options), m_environment(std::move(environment))
{}

LmdbStore::~LmdbStore() = default;

std::string LmdbStore::FilePath() const
{
    return m_environment->DataPath();
}

std::unique_ptr<Transaction> LmdbStore::Begin(Access access, Error& error)
{
    auto environment = m_environment;
    if (!environment->IsOurs()) {
        // This process was forked since: it needs an environment of its own.
        const std::lock_guard lock(ForkSafeMutex(ForkSafe::ForkedStores));
        if (!m_forked || !m_forked->IsOurs()) {
            m_forked = LmdbEnvironment::Open(m_address, m_environment->Directory(), false, m_options.mapSize, error);
        }
        environment = m_forked;
        if (!environment) {
            return nullptr;
        }
    }
    if (access == Access::Write && m_options.readOnly) {
        error = {ErrorKind::AccessDenied, m_address + ": the store was opened for reading only"};
        return nullptr;
    }
    auto transaction = std::make_unique<FlatTransaction<LmdbEngine>>(*this, std::move(environment), access);
    return transaction->GetEngine().Begin(error) ? std::move(transaction) : nullptr;
}

} // namespace wqspcfg
