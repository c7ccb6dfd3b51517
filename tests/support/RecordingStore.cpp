#include "support/RecordingStore.h"
#include "wqspcfg/platform/store/ForwardingTransaction.h"

#include <map>

namespace wqspcfg::test {

namespace {

class RecordingTransaction final : public ForwardingTransaction
{
  public:
    RecordingTransaction(RecordingStore& store, std::unique_ptr<Transaction> inner)
        : ForwardingTransaction(std::move(inner)), m_store(store)
    {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        m_store.Note({Recorded::What::Open, std::wstring(path), {}});
        const auto outcome = ForwardingTransaction::OpenKey(hive, path, key);
        if (outcome == Outcome::Found) {
            m_paths[key] = path;
        }
        return outcome;
    }
    // Every query is noted with the key that was opened for it.
    bool HasPathQueries() const noexcept override { return false; }
    Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
    {
        return Transaction::QueryAt(hive, path, name, value);
    }
    Outcome NameKey(Hive hive, std::wstring_view path, KeyId& key) override { return OpenKey(hive, path, key); }
    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        m_store.Note({Recorded::What::Query, m_paths[key], std::wstring(name)});
        return ForwardingTransaction::Query(key, name, value);
    }
    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override
    {
        m_store.Note({Recorded::What::Enum, m_paths[key], {}});
        return ForwardingTransaction::EnumKeys(key, visit);
    }
    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        m_store.Note({Recorded::What::Enum, m_paths[key], {}});
        return ForwardingTransaction::EnumValues(key, visit);
    }
    Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        const auto outcome = ForwardingTransaction::CreateKey(hive, path, key);
        m_paths[key] = path;
        return outcome;
    }
    Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
    {
        m_store.Note({Recorded::What::Set, m_paths[key], std::wstring(name)});
        return ForwardingTransaction::SetValue(key, name, value);
    }
    Outcome Commit(bool flush) override
    {
        m_store.Note({Recorded::What::Commit, {}, {}});
        return ForwardingTransaction::Commit(flush);
    }

  private:
    RecordingStore& m_store;
    std::map<KeyId, std::wstring> m_paths;
};

} // namespace

std::unique_ptr<Transaction> RecordingStore::Begin(Access access, Error& error)
{
    auto inner = m_inner->Begin(access, error);
    return inner ? std::make_unique<RecordingTransaction>(*this, std::move(inner)) : nullptr;
}

} // namespace wqspcfg::test
