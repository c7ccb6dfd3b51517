// A store that reads from another one and keeps in memory what is written to it: the other one is never changed.
#pragma once

#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/platform/store/memory/MemoryStore.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <atomic>
#include <memory>

namespace wqspcfg::tools {

// What is written is seen by every transaction that begins later. Nothing can be deleted.
class ScratchStore final : public Store
{
  public:
    explicit ScratchStore(std::shared_ptr<Store> base)
        : m_base(std::move(base)), m_written(m_base->Address(), m_base->NameRoom())
    {}

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_base->Address(); }
    std::string FilePath() const override { return m_base->FilePath(); }
    std::vector<std::string> Files() const override { return m_base->Files(); }
    std::size_t NameRoom() const noexcept override { return m_base->NameRoom(); }

    // Tells what was written, key by key.
    bool Visit(RegFileVisitor& visitor, Error& error);

  private:
    std::shared_ptr<Store> m_base;
    MemoryStore m_written;
    std::atomic<bool> m_hasWrites = false;
};

} // namespace wqspcfg::tools
