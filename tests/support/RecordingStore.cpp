#include "support/RecordingStore.h"

#include <map>

namespace wqspcfg::test {

namespace {

class RecordingTransaction final : public Transaction
{
  public:
    RecordingTransaction(RecordingStore& store, std::unique_ptr<Transaction> inner)
        : m_store(store), m_inner(std::move(inner))
    {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        m_store.Note({Recorded::What::Open, std::wstring(path), {}});
        const auto outcome = Passed(m_inner->OpenKey(hive, path, key));
        if (outcome == Outcome::Found) {
            m_paths[key] = path;
        }
        return outcome;
    }
    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        m_store.Note({Recorded::What::Query, m_paths[key], std::wstring(name)});
        return Passed(m_inner->Query(key, name, value));
    }
    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override
    {
        m_store.Note({Recorded::What::Enum, m_paths[key], {}});
        return Passed(m_inner->EnumKeys(key, visit));
    }
    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        m_store.Note({Recorded::What::Enum, m_paths[key], {}});
        return Passed(m_inner->EnumValues(key, visit));
    }
    Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        const auto outcome = Passed(m_inner->CreateKey(hive, path, key));
        m_paths[key] = path;
        return outcome;
    }
    Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
    {
        m_store.Note({Recorded::What::Set, m_paths[key], std::wstring(name)});
        return Passed(m_inner->SetValue(key, name, value));
    }
    Outcome DeleteValue(KeyId key, std::wstring_view name) override { return Passed(m_inner->DeleteValue(key, name)); }
    Outcome DeleteKey(Hive hive, std::wstring_view path) override { return Passed(m_inner->DeleteKey(hive, path)); }
    Outcome Commit(bool flush) override
    {
        m_store.Note({Recorded::What::Commit, {}, {}});
        return Passed(m_inner->Commit(flush));
    }

  private:
    Outcome Passed(Outcome outcome)
    {
        return outcome == Outcome::Failed ? Fail(m_inner->LastError().kind, m_inner->LastError().message) : outcome;
    }

    RecordingStore& m_store;
    std::unique_ptr<Transaction> m_inner;
    std::map<KeyId, std::wstring> m_paths;
};

} // namespace

std::unique_ptr<Transaction> RecordingStore::Begin(Access access, Error& error)
{
    auto inner = m_inner->Begin(access, error);
    return inner ? std::make_unique<RecordingTransaction>(*this, std::move(inner)) : nullptr;
}

} // namespace wqspcfg::test
