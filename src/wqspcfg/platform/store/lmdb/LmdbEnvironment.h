// The one LMDB environment of a directory in this process, shared by every store that is open on it.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/lmdb/LmdbTree.h"

#include <lmdb.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
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

    // The transaction keeps the state from being overwritten; it is read through `tree`.
    MDB_txn* BeginRead(const std::string& address, LmdbTree& tree, Error& error);
    void EndRead(MDB_txn* txn) noexcept;
    MDB_txn* BeginWrite(const std::string& address, Error& error);
    // After the transaction was committed or aborted with `status`.
    void EndWrite(int status) noexcept;
    // Puts the record that ties the transaction's content to its number. Part of every commit that changes anything.
    static int PutState(MDB_txn* txn, MDB_dbi dbi);
    // That `tree` shows a whole store of a known format, as transaction number `last` left it. `path` names the file.
    static bool CheckState(const std::string& address, const std::string& path, LmdbTree& tree, std::uint64_t last,
                           Error& error);

    // Puts the data file `fresh`, on the same file system, in the place of the directory's, which may be damaged or
    // missing. Refused while any process has the store open. `kept` is where a file that was there is now, or empty.
    static bool Replace(const std::string& address, const std::string& directory, const std::string& fresh,
                        std::string& kept, Error& error);

    MDB_dbi Dbi() const noexcept { return m_dbi; }
    const std::string& DataPath() const noexcept { return m_dataPath; }
    // An LMDB or system error in words.
    Error Describe(const std::string& address, std::string_view action, int status) const;
    Error DescribeDamage(const std::string& address, std::string_view cause) const;

  private:
    LmdbEnvironment(std::string directory, std::size_t mapSize);

    bool OpenFiles(const std::string& address, Error& error);
    void CloseFiles() noexcept;
    // These four with m_mutex held.
    bool Prepare(const std::string& address, Access access, Error& error);
    int Renew(MDB_txn*& txn);
    int Grow(std::size_t size);
    int BeginRenewed(MDB_txn*& txn);
    void Release(int status) noexcept;

    const std::string m_directory;
    const std::string m_dataPath;
    const unsigned m_forks;
    std::size_t m_mapSize;
    MDB_env* m_env = nullptr;
    MDB_dbi m_dbi = 0;
    LmdbMap m_map;
    dev_t m_device = 0;
    ino_t m_inode = 0;
    std::size_t m_fileSize = 0; // when last looked at
    std::int64_t m_nextLook = 0;
    std::string m_whyReadOnly; // empty when it can be written

    std::mutex m_mutex;
    std::vector<MDB_txn*> m_idle; // read transactions at rest, which keep their reader slots
    std::size_t m_active = 0;
    bool m_full = false;                 // a write found the map full
    bool m_broken = false;               // LMDB gave the environment up
    std::atomic<bool> m_verified{false}; // the structure was found sound before the first write
    std::atomic<std::thread::id> m_writer{};
};

} // namespace wqspcfg
