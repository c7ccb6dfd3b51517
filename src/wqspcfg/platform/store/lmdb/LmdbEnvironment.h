// The one LMDB environment of a directory in this process, shared by every store that is open on it.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"
#include "wqspcfg/platform/store/lmdb/LmdbFolder.h"
#include "wqspcfg/platform/store/lmdb/LmdbTree.h"

#include <lmdb.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>
#include <thread>
#include <vector>

namespace wqspcfg {

// The format that this library writes. A store of a higher number is refused.
constexpr std::uint32_t kStoreFormat = 1;

class LmdbEnvironment
{
  public:
    // Opens the directory's environment or joins the one that is open. Errors name `address`.
    static std::shared_ptr<LmdbEnvironment> Open(const std::string& address, const std::string& directory, bool create,
                                                 std::size_t mapSize, Error& error);
    ~LmdbEnvironment();
    LmdbEnvironment(const LmdbEnvironment&) = delete;
    LmdbEnvironment& operator=(const LmdbEnvironment&) = delete;

    // False in a process forked after the environment was opened: LMDB allows no use of it there.
    bool IsOurs() const noexcept;

    // The state is read through `tree`. `txn` keeps it from being overwritten; null where the state is a copy.
    // `isFull`: it failed because others have all the readers' places.
    bool BeginRead(const std::string& address, MDB_txn*& txn, LmdbTree& tree, Error& error, bool* isFull = nullptr);
    void EndRead(MDB_txn* txn) noexcept;
    // Shows the last state, and where all the readers' places are taken a copy of it in memory.
    using LookAtState = std::function<void(LmdbTree& tree, std::uint64_t transaction)>;
    bool LookAt(const std::string& address, const LookAtState& look, Error& error);
    MDB_txn* BeginWrite(const std::string& address, Error& error);
    // Makes the state that BeginWrite has found durable, which a writer that was killed may not have done.
    int MakeDurable() noexcept;
    // After the transaction ended with `status`; `isCommitted`: it wrote something.
    void EndWrite(int status, bool isCommitted) noexcept;
    // Puts the record that ties the transaction's content to its number. Part of every commit that changes anything.
    static int PutState(MDB_txn* txn, MDB_dbi dbi, std::uint64_t number);
    static int PutState(MDB_txn* txn, MDB_dbi dbi) { return PutState(txn, dbi, mdb_txn_id(txn)); }
    // That `tree` shows a whole store of a known format, as transaction number `last` left it. `path` names the file.
    static bool CheckState(const std::string& address, const std::string& path, LmdbTree& tree, std::uint64_t last,
                           Error& error);

    // Puts the data file `fresh`, which LmdbFolder::MakeFile made with the name `name`, in the place of the folder's,
    // which may be damaged or missing. Refused while any process has the store open. `kept` is where a file that was
    // there is now, or empty.
    static bool Replace(const std::string& address, const LmdbFolder& folder, const ActAsOwner& owner,
                        const FileDescriptor& fresh, std::string& name, std::string& kept, Error& error);

    // Removes the files of a store that holds what CreateStore put there and that no process has open.
    static bool RemoveNew(const std::string& address, const std::string& directory);

    // Puts a data file with the state that `txn`, from BeginWrite and with nothing written, has found in the place of
    // this one. Whoever reads goes on with the old file; the next one to look takes the new one.
    bool Exchange(const std::string& address, MDB_txn* txn, const FileDescriptor& fresh, std::string& name,
                  Error& error);
    const LmdbFolder& Folder() const noexcept { return m_folder; }
    const LmdbMap& Map() const noexcept { return m_map; }
    // Between BeginWrite and EndWrite: the number of the state before.
    static std::uint64_t StateBefore(MDB_txn* txn) noexcept { return mdb_txn_id(txn) - 1; }

    struct Reader
    {
        long process = 0;
        std::uint64_t transaction = 0; // whose state it holds
    };
    struct Condition
    {
        std::uint64_t fileSize = 0;
        std::uint64_t usedPages = 0;
        std::uint64_t freePages = 0;
        std::uint64_t pageSize = 0;
        std::uint64_t transaction = 0; // the last one
        std::int64_t modified = 0;     // when it was, in seconds since 1970
        long lastWriter = 0;           // process numbers; 0: not known, or none
        long writer = 0;
        std::vector<Reader> readers;
        bool hasLock = true; // else nothing is known of readers and writers
    };
    bool Describe(const std::string& address, Condition& condition, Error& error);

    MDB_dbi Dbi() const noexcept { return m_dbi; }
    // Absolute, whatever this process's working directory becomes.
    const std::string& Directory() const noexcept { return m_directory; }
    const std::string& DataPath() const noexcept { return m_dataPath; }
    // An LMDB or system error in words.
    Error Describe(const std::string& address, std::string_view action, int status) const;
    Error DescribeDamage(const std::string& address, std::string_view cause) const;

  private:
    LmdbEnvironment(std::string directory, std::size_t mapSize);

    bool OpenFiles(const std::string& address, Error& error);
    bool OpenFilesOnce(const std::string& address, bool& isMoved, Error& error);
    bool OpenMaps(const std::string& address, unsigned flags, std::size_t needed, int& status, bool& isMoved,
                  Error& error);
    Error BeingExchanged(const std::string& address) const;
    bool Announce(const std::string& address, Error& error);
    bool AwaitOtherCopy(const std::string& address, Error& error);
    Error OtherCopy(const std::string& address) const;
    void Unmark() noexcept;
    // Whether what kept this process from writing is mended; opening the files again finds out all else.
    bool MayWriteNow() const;
    bool IsWhereItWas(const std::string& address, bool& isLockGone, Error& error);
    void CloseFiles() noexcept;
    // These with m_mutex held.
    bool Prepare(const std::string& address, Access access, std::unique_lock<std::mutex>& lock, Error& error);
    int Renew(MDB_txn*& txn);
    int Grow(std::size_t size);
    int BeginRenewed(MDB_txn*& txn);
    bool OpenCopy(LmdbTree& tree, std::string& cause);
    void Rest(MDB_txn* txn) noexcept;

    bool PrepareWrite(const std::string& address, int before, Error& error);
    bool TakeTurn(const std::string& address, std::chrono::steady_clock::time_point deadline, Error& error);
    void EndTurn() noexcept;
    bool IsAsWritten(std::uint64_t last) const;
    void Release(int status) noexcept;
    // The process that writes; 0 when it is not known.
    long FindWriter() const;
    static void BeforeFork();
    static void AfterForkInParent();
    static void AfterForkInChild();

    friend struct EnvironmentRegistry;

    const std::string m_directory;
    const std::string m_dataPath;
    const unsigned m_forks;
    std::size_t m_mapSize;
    LmdbFolder m_folder;
    FileDescriptor m_dataFile;
    FileDescriptor m_lockFile; // carries this library's own locks; closed after the environment: closing it drops the
                               // environment's locks
    MDB_env* m_env = nullptr;
    MDB_dbi m_dbi = 0;
    LmdbMap m_map;
    struct stat m_data = {}; // when opened
    struct stat m_lock = {};
    std::size_t m_fileSize = 0; // when last looked at
    std::int64_t m_nextLook = 0;
    std::string m_whyReadOnly; // empty when it can be written
    // Without the right to the lock file, or the will to trust who may write it, no state can be held and LMDB is not
    // used: each is copied, and shared while it is the last one.
    bool m_isCopied = false;
    std::shared_ptr<const LmdbMap> m_copy;
    std::uint64_t m_copyNumber = 0;

    std::mutex m_mutex;
    std::condition_variable m_ended; // a transaction
    std::vector<MDB_txn*> m_idle;    // read transactions at rest, which keep their reader slots
    std::size_t m_active = 0;
    bool m_full = false;   // a write found the map full
    bool m_broken = false; // LMDB gave the environment up
    std::atomic<std::thread::id> m_writer{};
    LmdbMark m_ownMark;       // after this process's last write
    bool m_isDurable = false; // what the writer has found, or has committed

    std::mutex m_turnMutex;
    std::condition_variable m_turnEnded;
    bool m_isTurnTaken = false; // by a thread of this process that writes or is about to
};

} // namespace wqspcfg
