#include "wqspcfg/platform/store/regfile/View32.h"

#include "wqspcfg/platform/store/ForwardingTransaction.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <iterator>
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

namespace {

constexpr std::wstring_view kSoftware = L"SOFTWARE";
constexpr const wchar_t* kOfServiceProviders[] = {L"XFS", L"TARNO"};

class RedirectingTransaction final : public ForwardingTransaction
{
  public:
    RedirectingTransaction(std::unique_ptr<Transaction> inner, View32 view)
        : ForwardingTransaction(std::move(inner)), m_view(std::move(view))
    {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return ForwardingTransaction::OpenKey(hive, m_view.ToStored(hive, path), key);
    }
    Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
    {
        return ForwardingTransaction::QueryAt(hive, m_view.ToStored(hive, path), name, value);
    }
    Outcome NameKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return ForwardingTransaction::NameKey(hive, m_view.ToStored(hive, path), key);
    }

  private:
    View32 m_view;
};

} // namespace

void View32::Add(Hive hive, std::wstring_view path)
{
    auto rest = RestBelow(kSoftware32, hive, path);
    if (!rest) {
        return;
    }
    const auto name = UpCase(TakeComponent(*rest));
    if (name.empty()) {
        return;
    }
    m_keys.insert(name);
    if (std::find(std::begin(kOfServiceProviders), std::end(kOfServiceProviders), name) !=
        std::end(kOfServiceProviders)) {
        m_keys.insert(std::begin(kOfServiceProviders), std::end(kOfServiceProviders));
    }
}

bool View32::Has(std::wstring_view rest) const
{
    return m_keys.contains(UpCase(TakeComponent(rest)));
}

std::wstring_view View32::ToStored(Hive hive, std::wstring_view path)
{
    const auto rest = RestBelow(kSoftware, hive, path);
    if (!rest || !Has(*rest)) {
        return path;
    }
    m_path = kSoftware32;
    m_path += *rest;
    return m_path;
}

std::optional<std::wstring_view> View32::FromStored(Hive hive, std::wstring_view path)
{
    if (const auto rest = RestBelow(kSoftware32, hive, path)) {
        m_path = kSoftware;
        m_path += *rest;
        return m_path;
    }
    const auto rest = RestBelow(kSoftware, hive, path);
    if (rest && Has(*rest)) {
        return std::nullopt;
    }
    return path;
}

bool FindKeys32(Transaction& content, View32& view)
{
    const std::wstring parent(kSoftware32);
    KeyId key = 0;
    auto outcome = content.OpenKey(Hive::LocalMachine, parent, key);
    if (outcome == Outcome::Found) {
        outcome = content.EnumKeys(key, [&](std::wstring_view name) {
            view.Add(Hive::LocalMachine, parent + L'\\' + std::wstring(name));
            return true;
        });
        content.CloseKey(key);
    }
    return outcome != Outcome::Failed;
}

std::unique_ptr<Transaction> InView32(std::unique_ptr<Transaction> content, View32 view)
{
    return std::make_unique<RedirectingTransaction>(std::move(content), std::move(view));
}

std::string Only32BitKeys(std::string_view advice)
{
    return ": the service providers of this terminal are 32-bit programs, whose keys stand under "
           "SOFTWARE\\WOW6432Node\\XFS; " +
           std::string(advice);
}

} // namespace wqspcfg
