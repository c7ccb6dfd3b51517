// A store in this process's memory. Readers keep the state that they began with while a writer goes on.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace wqspcfg {

struct MemoryState;

class MemoryStore final : public Store
{
  public:
    explicit MemoryStore(std::string address = "memory:");
    ~MemoryStore() override;

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_address; }

  private:
    friend class MemoryEngine;

    std::shared_ptr<const MemoryState> Current() const;

    std::string m_address;
    mutable std::mutex m_stateMutex;
    std::shared_ptr<const MemoryState> m_state;
    std::mutex m_writerMutex;
    std::atomic<std::thread::id> m_writer{};
};

} // namespace wqspcfg
