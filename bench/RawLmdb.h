// What the library is measured against: the same values in plain LMDB, without names' case, types or check sums.
#pragma once

#include <lmdb.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace bench {

inline void Check(int result, const char* what)
{
    if (result != MDB_SUCCESS) {
        std::fprintf(stderr, "%s: %s\n", what, mdb_strerror(result));
        std::exit(1);
    }
}

class RawLmdb
{
  public:
    explicit RawLmdb(const std::string& directory)
    {
        std::filesystem::create_directories(directory);
        Check(mdb_env_create(&m_env), "mdb_env_create");
        Check(mdb_env_set_mapsize(m_env, std::size_t{4} << 30), "mdb_env_set_mapsize");
        Check(mdb_env_open(m_env, directory.c_str(), MDB_NOTLS, 0644), "mdb_env_open");
        auto* txn = Begin(0);
        Check(mdb_dbi_open(txn, nullptr, 0, &m_dbi), "mdb_dbi_open");
        Check(mdb_txn_commit(txn), "mdb_txn_commit");
    }
    ~RawLmdb() { mdb_env_close(m_env); }
    RawLmdb(const RawLmdb&) = delete;
    RawLmdb& operator=(const RawLmdb&) = delete;

    MDB_txn* Begin(unsigned flags)
    {
        MDB_txn* txn = nullptr;
        Check(mdb_txn_begin(m_env, nullptr, flags, &txn), "mdb_txn_begin");
        return txn;
    }
    MDB_dbi Dbi() const { return m_dbi; }

    static MDB_val Val(const void* data, std::size_t size) { return {size, const_cast<void*>(data)}; }
    void Put(MDB_txn* txn, const std::string& key, const void* data, std::size_t size)
    {
        MDB_val k = Val(key.data(), key.size());
        MDB_val v = Val(data, size);
        Check(mdb_put(txn, m_dbi, &k, &v, 0), "mdb_put");
    }

  private:
    MDB_env* m_env = nullptr;
    MDB_dbi m_dbi = 0;
};

} // namespace bench
