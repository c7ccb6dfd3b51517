#include "wqspcfg/platform/store/regfile/RegFileStore.h"

#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/platform/store/regfile/View32.h"

#include <utility>

namespace wqspcfg {

std::shared_ptr<RegFileStore> RegFileStore::Open(std::string address, const std::string& path,
                                                 const OpenOptions& options, Error& error)
{
    auto store = std::make_shared<RegFileStore>(std::move(address), path);
    auto content = store->m_content.Begin(Access::Write, error);
    ImportCounts counts;
    RegFileWriter writer(*content, counts);
    if (!ReadRegFile(path, options.codePage, writer, error)) {
        return nullptr;
    }
    KeyId key = 0;
    const bool has32 = content->OpenKey(Hive::LocalMachine, kXfsKey32, key) == Outcome::Found;
    const bool has64 = content->OpenKey(Hive::LocalMachine, kXfsKey, key) == Outcome::Found;
    if (content->Commit(false) == Outcome::Failed) {
        error = content->LastError();
        return nullptr;
    }
    if (has32 && !has64 && !options.view32) {
        error = {ErrorKind::BadArgument, path + Only32BitKeys("give --view32 to read them as SOFTWARE\\XFS")};
        return nullptr;
    }
    store->m_redirects = has32 && options.view32;
    return store;
}

std::unique_ptr<Transaction> RegFileStore::Begin(Access access, Error& error)
{
    if (access == Access::Write) {
        error = {ErrorKind::AccessDenied, Address() + " is a registry export and read-only"};
        return nullptr;
    }
    auto content = m_content.Begin(access, error);
    return m_redirects && content ? InView32(std::move(content)) : std::move(content);
}

} // namespace wqspcfg
