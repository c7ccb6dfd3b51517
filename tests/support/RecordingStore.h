// A store that notes every query and write that passes through it, in order.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace wqspcfg::test {

struct Recorded
{
    enum class What
    {
        Open,
        Query,
        Enum,
        Set,
        Commit,
    };
    What what;
    std::wstring path; // as the caller wrote it
    std::wstring name;
};

class RecordingStore final : public Store
{
  public:
    explicit RecordingStore(std::shared_ptr<Store> inner) : m_inner(std::move(inner)) {}

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_inner->Address(); }

    void Clear()
    {
        const std::lock_guard lock(m_mutex);
        m_recorded.clear();
    }
    std::vector<Recorded> Take()
    {
        const std::lock_guard lock(m_mutex);
        return m_recorded;
    }
    void Note(Recorded recorded)
    {
        const std::lock_guard lock(m_mutex);
        m_recorded.push_back(std::move(recorded));
    }

  private:
    std::shared_ptr<Store> m_inner;
    std::mutex m_mutex;
    std::vector<Recorded> m_recorded;
};

} // namespace wqspcfg::test
