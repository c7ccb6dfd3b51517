// A store in this process's memory. Readers keep the state that they began with while a writer goes on.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace wqspcfg {

struct MemoryState;

class MemoryStore final : public Store
{
  public:
    // `nameRoom` is that of the store which this one stands for.
    explicit MemoryStore(std::string address = "memory:", std::size_t nameRoom = static_cast<std::size_t>(-1));
    ~MemoryStore() override;

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_address; }
    std::size_t NameRoom() const noexcept override { return m_nameRoom; }

  private:
    friend class MemoryEngine;

    std::shared_ptr<const MemoryState> Current() const;

    std::string m_address;
    std::size_t m_nameRoom;
    std::shared_ptr<const MemoryState> m_state; // under ForkSafe::MemoryStates
    std::mutex m_writerMutex;
    std::atomic<std::thread::id> m_writer{};
};

} // namespace wqspcfg
