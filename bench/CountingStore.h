#pragma once

#include "platform/store/Store.h"

#include <memory>

namespace bench {

// Counts the look-ups: values that are asked for, and keys that are opened.
class CountingStore final : public wqspcfg::Store
{
  public:
    explicit CountingStore(std::shared_ptr<wqspcfg::Store> inner) : m_inner(std::move(inner)) {}

    std::unique_ptr<wqspcfg::Transaction> Begin(wqspcfg::Access access, wqspcfg::Error& error) override
    {
        auto inner = m_inner->Begin(access, error);
        return inner ? std::make_unique<Counted>(*this, std::move(inner)) : nullptr;
    }
    const std::string& Address() const noexcept override { return m_inner->Address(); }
    std::size_t Queries() const noexcept { return m_queries; }

  private:
    using Outcome = wqspcfg::Outcome;
    using KeyId = wqspcfg::KeyId;

    class Counted final : public wqspcfg::Transaction
    {
      public:
        Counted(CountingStore& store, std::unique_ptr<wqspcfg::Transaction> inner)
            : m_store(store), m_inner(std::move(inner))
        {}
        Outcome OpenKey(wqspcfg::Hive hive, std::wstring_view path, KeyId& key) override
        {
            ++m_store.m_queries;
            return m_inner->OpenKey(hive, path, key);
        }
        Outcome QueryAt(wqspcfg::Hive hive, std::wstring_view path, std::wstring_view name,
                        wqspcfg::ValueView& value) override
        {
            ++m_store.m_queries;
            return m_inner->QueryAt(hive, path, name, value);
        }
        bool HasPathQueries() const noexcept override { return m_inner->HasPathQueries(); }
        Outcome Query(KeyId key, std::wstring_view name, wqspcfg::ValueView& value) override
        {
            ++m_store.m_queries;
            return m_inner->Query(key, name, value);
        }
        Outcome EnumKeys(KeyId key, const wqspcfg::KeyVisitor& visit) override { return m_inner->EnumKeys(key, visit); }
        Outcome EnumValues(KeyId key, const wqspcfg::ValueVisitor& visit) override
        {
            return m_inner->EnumValues(key, visit);
        }
        Outcome CreateKey(wqspcfg::Hive hive, std::wstring_view path, KeyId& key) override
        {
            return m_inner->CreateKey(hive, path, key);
        }
        Outcome SetValue(KeyId key, std::wstring_view name, const wqspcfg::ValueView& value) override
        {
            return m_inner->SetValue(key, name, value);
        }
        Outcome DeleteValue(KeyId key, std::wstring_view name) override { return m_inner->DeleteValue(key, name); }
        Outcome DeleteKey(wqspcfg::Hive hive, std::wstring_view path) override
        {
            return m_inner->DeleteKey(hive, path);
        }
        Outcome Commit(bool flush) override { return m_inner->Commit(flush); }

      private:
        CountingStore& m_store;
        std::unique_ptr<wqspcfg::Transaction> m_inner;
    };

    std::shared_ptr<wqspcfg::Store> m_inner;
    std::size_t m_queries = 0;
};

} // namespace bench
