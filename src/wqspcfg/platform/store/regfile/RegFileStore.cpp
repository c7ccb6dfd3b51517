#include "wqspcfg/platform/store/regfile/RegFileStore.h"

#include "wqspcfg/platform/store/ForwardingTransaction.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/platform/store/regfile/View32.h"

#include <utility>

namespace wqspcfg {

namespace {

// Opens the keys of 32-bit programs in place of those of 64-bit ones. The content's transaction is one for reading.
class RedirectingTransaction final : public ForwardingTransaction
{
  public:
    using ForwardingTransaction::ForwardingTransaction;

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return ForwardingTransaction::OpenKey(hive, Redirected(hive, path), key);
    }
    Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
    {
        return ForwardingTransaction::QueryAt(hive, Redirected(hive, path), name, value);
    }
    Outcome NameKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return ForwardingTransaction::NameKey(hive, Redirected(hive, path), key);
    }

  private:
    std::wstring_view Redirected(Hive hive, std::wstring_view path)
    {
        const auto rest = RestBelow(kXfsKey, hive, path);
        if (!rest) {
            return path;
        }
        m_path = kXfsKey32;
        m_path += *rest;
        return m_path;
    }

    std::wstring m_path;
};

} // namespace

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
        error = {ErrorKind::BadArgument,
                 path + ": the service providers of this terminal are 32-bit programs, whose keys stand under "
                        "SOFTWARE\\WOW6432Node\\XFS; give --view32 to read them as SOFTWARE\\XFS"};
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
    return m_redirects && content ? std::make_unique<RedirectingTransaction>(std::move(content)) : std::move(content);
}

} // namespace wqspcfg
