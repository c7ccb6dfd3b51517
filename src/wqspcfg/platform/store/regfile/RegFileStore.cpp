#include "wqspcfg/platform/store/regfile/RegFileStore.h"

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

// Opens the keys of 32-bit programs in place of those of 64-bit ones.
class RedirectingTransaction final : public Transaction
{
  public:
    explicit RedirectingTransaction(std::unique_ptr<Transaction> content) : m_content(std::move(content)) {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return Passed(m_content->OpenKey(hive, Redirected(hive, path), key));
    }
    void CloseKey(KeyId key) noexcept override { m_content->CloseKey(key); }
    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        return Passed(m_content->Query(key, name, value));
    }
    Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
    {
        return Passed(m_content->QueryAt(hive, Redirected(hive, path), name, value));
    }
    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override { return Passed(m_content->EnumKeys(key, visit)); }
    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        return Passed(m_content->EnumValues(key, visit));
    }
    // The content's transaction is one for reading and refuses these.
    Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return Passed(m_content->CreateKey(hive, path, key));
    }
    Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
    {
        return Passed(m_content->SetValue(key, name, value));
    }
    Outcome DeleteValue(KeyId key, std::wstring_view name) override
    {
        return Passed(m_content->DeleteValue(key, name));
    }
    Outcome DeleteKey(Hive hive, std::wstring_view path) override { return Passed(m_content->DeleteKey(hive, path)); }
    Outcome Commit(bool flush) override { return Passed(m_content->Commit(flush)); }

  private:
    Outcome Passed(Outcome outcome)
    {
        if (outcome == Outcome::Failed) {
            const auto& error = m_content->LastError();
            return Fail(error.kind, error.message);
        }
        return outcome;
    }

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

    std::unique_ptr<Transaction> m_content;
    std::wstring m_path;
};

} // namespace

std::shared_ptr<RegFileStore> RegFileStore::Open(std::string address, const std::string& path, bool view32,
                                                 Error& error)
{
    auto store = std::make_shared<RegFileStore>(std::move(address));
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
