// A store in a directory of the file system, for several processes at once, on LMDB.
//
// Every commit is durable when it returns. Files: data.mdb holds the store, lock.mdb the locks and readers of the
// processes that use it.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <cstddef>
#include <memory>
#include <string>

namespace wqspcfg {

class LmdbEnvironment;

struct LmdbOptions
{
    bool readOnly = false;
    bool create = false;
    // Address space to begin with; it grows. 0 is the default, which no store of a terminal comes near.
    std::size_t mapSize = 0;
};

class LmdbStore final : public Store
{
  public:
    // Null with `error` filled when the store cannot be opened. Where this process may only read the store's files, the
    // store is opened and refuses write transactions.
    static std::shared_ptr<LmdbStore> Open(std::string address, const std::string& directory,
                                           const LmdbOptions& options, Error& error);

    LmdbStore(std::string address, const LmdbOptions& options, std::shared_ptr<LmdbEnvironment> environment);
    ~LmdbStore() override;

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_address; }
    std::string FilePath() const override;
    std::size_t NameRoom() const noexcept override { return kEmbeddedNameRoom; }

  private:
    std::string m_address;
    LmdbOptions m_options;
    const std::shared_ptr<LmdbEnvironment> m_environment;
    std::shared_ptr<LmdbEnvironment> m_forked; // in a process forked since; under ForkSafe::ForkedStores
};

} // namespace wqspcfg
