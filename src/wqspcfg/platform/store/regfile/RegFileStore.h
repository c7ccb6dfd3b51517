// A registry export read in place, as a store that cannot be written.
#pragma once

#include "wqspcfg/platform/store/memory/MemoryStore.h"
#include "wqspcfg/platform/store/regfile/View32.h"

#include <memory>
#include <string>

namespace wqspcfg {

class RegFileStore final : public Store
{
  public:
    // With `view32`, a key is what 32-bit programs find under its path (View32). Without it, a file that has no other
    // keys of service providers than theirs is refused: all their settings would read as missing.
    static std::shared_ptr<RegFileStore> Open(std::string address, const std::string& path, const OpenOptions& options,
                                              Error& error);

    RegFileStore(std::string address, std::string path) : m_content(std::move(address)), m_path(std::move(path)) {}

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_content.Address(); }
    std::string FilePath() const override { return m_path; }
    // RegFileParser::IsTakenAsUtf8 of the file.
    bool IsTakenAsUtf8() const noexcept { return m_isTakenAsUtf8; }

  private:
    MemoryStore m_content;
    std::string m_path;
    bool m_isTakenAsUtf8 = false;
    View32 m_view32; // no keys where all is read as it stands
};

} // namespace wqspcfg
