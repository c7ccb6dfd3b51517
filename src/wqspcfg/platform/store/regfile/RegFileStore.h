// A registry export read in place, as a store that cannot be written.
#pragma once

#include "wqspcfg/platform/store/memory/MemoryStore.h"

#include <memory>
#include <string>

namespace wqspcfg {

class RegFileStore final : public Store
{
  public:
    // With `view32`, HKEY_LOCAL_MACHINE\SOFTWARE\XFS is what the file holds under SOFTWARE\WOW6432Node\XFS, where a
    // 64-bit Windows keeps the keys of 32-bit programs; a file without that key is read as it stands. Without it, a
    // file that has no other keys of service providers is refused: all their settings would read as missing.
    static std::shared_ptr<RegFileStore> Open(std::string address, const std::string& path, const OpenOptions& options,
                                              Error& error);

    RegFileStore(std::string address, std::string path) : m_content(std::move(address)), m_path(std::move(path)) {}

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_content.Address(); }
    std::string FilePath() const override { return m_path; }

  private:
    MemoryStore m_content;
    std::string m_path;
    bool m_redirects = false;
};

} // namespace wqspcfg
