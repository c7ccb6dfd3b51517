#include "wqspcfg/platform/store/regfile/View32.h"

#include "wqspcfg/platform/store/ForwardingTransaction.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <utility>

namespace wqspcfg {

namespace {

std::wstring_view TakeComponent(std::wstring_view& path)
{
    const auto start = std::min(path.find_first_not_of(L'\\'), path.size());
    const auto end = std::min(path.find(L'\\', start), path.size());
    const auto component = path.substr(start, end - start);
    path.remove_prefix(end);
    return component;
}

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

std::optional<std::wstring_view> RestBelow(std::wstring_view key, Hive hive, std::wstring_view path)
{
    if (hive != Hive::LocalMachine) {
        return std::nullopt;
    }
    while (!key.empty()) {
        if (!EqualNoCase(TakeComponent(key), TakeComponent(path))) {
            return std::nullopt;
        }
    }
    return path;
}

std::unique_ptr<Transaction> InView32(std::unique_ptr<Transaction> content)
{
    return std::make_unique<RedirectingTransaction>(std::move(content));
}

std::string Only32BitKeys(std::string_view advice)
{
    return ": the service providers of this terminal are 32-bit programs, whose keys stand under "
           "SOFTWARE\\WOW6432Node\\XFS; " +
           std::string(advice);
}

} // namespace wqspcfg
