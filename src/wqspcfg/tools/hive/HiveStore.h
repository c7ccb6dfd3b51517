// The registry of a Windows that does not run, read from the files on its disk, as a store that cannot be written.
#pragma once

#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/platform/store/regfile/View32.h"
#include "wqspcfg/tools/hive/HiveFile.h"

#include <memory>
#include <string>
#include <vector>

namespace wqspcfg {

// The files of a registry that matter here.
struct HiveSet
{
    std::shared_ptr<const HiveFile> software; // HKEY_LOCAL_MACHINE\SOFTWARE
    std::shared_ptr<const HiveFile> standard; // HKEY_USERS\.DEFAULT
    std::vector<std::string> files;           // the paths of both and of their transaction logs
};

class HiveStore final : public Store
{
  public:
    // `path` is one hive, SOFTWARE or DEFAULT; or the directory that holds them, System32\config; or one above it, up
    // to the root of the disk. `view32` is that of RegFileStore.
    static std::shared_ptr<HiveStore> Open(std::string address, const std::string& path, bool view32, Error& error);

    // What the user should know of what was opened: a hive that is missing, or that Windows was writing to.
    const std::vector<std::string>& Notes() const noexcept { return m_notes; }

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override;
    const std::string& Address() const noexcept override { return m_address; }
    std::vector<std::string> Files() const override { return m_hives.files; }
    std::string FilePath() const override { return (m_hives.software ? m_hives.software : m_hives.standard)->Path(); }

  private:
    explicit HiveStore(std::string address) : m_address(std::move(address)) {}

    std::string m_address;
    HiveSet m_hives;
    std::vector<std::string> m_notes;
    View32 m_view32; // no keys where all is read as it stands
};

} // namespace wqspcfg
