#include "wqspcfg/platform/store/regfile/RegFileStore.h"

#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <utility>

namespace wqspcfg {

std::shared_ptr<RegFileStore> RegFileStore::Open(std::string address, const std::string& path,
                                                 const OpenOptions& options, Error& error)
{
    auto store = std::make_shared<RegFileStore>(std::move(address), path);
    auto content = store->m_content.Begin(Access::Write, error);
    ImportCounts counts;
    RegFileWriter writer(*content, counts);
    if (!ReadRegFile(path, options.codePage, writer, store->m_isTakenAsUtf8, error)) {
        return nullptr;
    }
    KeyId key = 0;
    const bool has32 = content->OpenKey(Hive::LocalMachine, kXfsKey32, key) == Outcome::Found;
    const bool has64 = content->OpenKey(Hive::LocalMachine, kXfsKey, key) == Outcome::Found;
    if ((options.view32 && !FindKeys32(*content, store->m_view32)) || content->Commit(false) == Outcome::Failed) {
        error = content->LastError();
        return nullptr;
    }
    if (has32 && !has64 && !options.view32) {
        error = {ErrorKind::BadArgument, path + Only32BitKeys("give --view32 to read them as SOFTWARE\\XFS")};
        return nullptr;
    }
    return store;
}

std::unique_ptr<Transaction> RegFileStore::Begin(Access access, Error& error)
{
    if (access == Access::Write) {
        error = {ErrorKind::AccessDenied, Address() + " is a registry export and read-only"};
        return nullptr;
    }
    auto content = m_content.Begin(access, error);
    return m_view32.HasAny() && content ? InView32(std::move(content), m_view32) : std::move(content);
}

} // namespace wqspcfg
