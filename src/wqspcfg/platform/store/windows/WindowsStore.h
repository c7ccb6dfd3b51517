// The registry of Windows.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/store/Store.h"

#include <memory>
#include <mutex>
#include <string>

namespace wqspcfg {

// Which of the two registries of a 64-bit Windows is seen.
enum class RegistryView : std::uint8_t
{
    OfProgram,
    Of32Bit,
    Of64Bit,
};

class WindowsStore final : public Store
{
  public:
    WindowsStore(std::string address, RegistryView view, bool readOnly);

    // A write transaction excludes the other writers of this object only. Its writes are visible at once; Commit makes
    // them durable where it is told to flush.
    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_address; }
    bool RollsBack() const noexcept override { return false; }

    // What a call that opens a key adds to its access rights, so that it sees what this store does.
    REGSAM View() const noexcept { return m_view; }

  private:
    std::string m_address;
    REGSAM m_view;
    bool m_readOnly;
    std::mutex m_writerMutex;
};

} // namespace wqspcfg
