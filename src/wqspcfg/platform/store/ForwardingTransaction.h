// A transaction that passes everything on to another one; what is to be different is overridden.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <memory>
#include <utility>

namespace wqspcfg {

class ForwardingTransaction : public Transaction
{
  public:
    explicit ForwardingTransaction(std::unique_ptr<Transaction> inner) : m_inner(std::move(inner)) {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return Passed(m_inner->OpenKey(hive, path, key));
    }
    void CloseKey(KeyId key) noexcept override { m_inner->CloseKey(key); }
    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        return Passed(m_inner->Query(key, name, value));
    }
    Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
    {
        return Passed(m_inner->QueryAt(hive, path, name, value));
    }
    bool HasPathQueries() const noexcept override { return m_inner->HasPathQueries(); }
    Outcome NameKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return Passed(m_inner->NameKey(hive, path, key));
    }
    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override { return Passed(m_inner->EnumKeys(key, visit)); }
    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        return Passed(m_inner->EnumValues(key, visit));
    }
    Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        return Passed(m_inner->CreateKey(hive, path, key));
    }
    Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
    {
        return Passed(m_inner->SetValue(key, name, value));
    }
    Outcome DeleteValue(KeyId key, std::wstring_view name) override { return Passed(m_inner->DeleteValue(key, name)); }
    Outcome DeleteKey(Hive hive, std::wstring_view path) override { return Passed(m_inner->DeleteKey(hive, path)); }
    Outcome Commit(bool flush) override { return Passed(m_inner->Commit(flush)); }

  private:
    // A failure of the inner transaction is one of this.
    Outcome Passed(Outcome outcome)
    {
        if (outcome == Outcome::Failed) {
            const auto& error = m_inner->LastError();
            return Fail(error.kind, error.message);
        }
        return outcome;
    }

    std::unique_ptr<Transaction> m_inner;
};

} // namespace wqspcfg
