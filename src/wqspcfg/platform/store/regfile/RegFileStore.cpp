#include "wqspcfg/platform/store/regfile/RegFileStore.h"

#include "wqspcfg/platform/store/ForwardingTransaction.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <utility>

namespace wqspcfg {

namespace {

constexpr std::wstring_view kSoftware = L"SOFTWARE";
constexpr std::wstring_view kXfs = L"XFS";
constexpr std::wstring_view kRedirected = L"SOFTWARE\\WOW6432Node\\XFS";

std::wstring_view TakeComponent(std::wstring_view& path)
{
    const auto start = std::min(path.find_first_not_of(L'\\'), path.size());
    const auto end = std::min(path.find(L'\\', start), path.size());
    const auto component = path.substr(start, end - start);
    path.remove_prefix(end);
    return component;
}

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
        auto rest = path;
        if (hive != Hive::LocalMachine || !EqualNoCase(TakeComponent(rest), kSoftware) ||
            !EqualNoCase(TakeComponent(rest), kXfs)) {
            return path;
        }
        m_path = kRedirected;
        m_path += rest;
        return m_path;
    }

    std::wstring m_path;
};

} // namespace

std::shared_ptr<RegFileStore> RegFileStore::Open(std::string address, const std::string& path, bool view32,
                                                 Error& error)
{
    auto store = std::make_shared<RegFileStore>(std::move(address), path);
    ImportCounts counts;
    if (!ImportRegFile(store->m_content, path, counts, error)) {
        return nullptr;
    }
    if (view32) {
        KeyId key = 0;
        const auto content = store->m_content.Begin(Access::Read, error);
        store->m_redirects = content->OpenKey(Hive::LocalMachine, kRedirected, key) == Outcome::Found;
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
    return m_redirects && content ? std::make_unique<RedirectingTransaction>(std::move(content)) : std::move(content);
}

} // namespace wqspcfg
