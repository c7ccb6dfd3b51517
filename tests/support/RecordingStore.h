// A store that passes everything on to another one and records it in order.
#pragma once

#include "platform/store/Store.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace wqspcfg::test {

struct RecordedCall
{
    enum class Kind
    {
        BeginRead,
        BeginWrite,
        OpenKey,
        Query,
        EnumKeys,
        EnumValues,
        CreateKey,
        SetValue,
        DeleteValue,
        DeleteKey,
        Commit,
        Flush // a commit that was told to flush
    };

    Kind kind;
    Hive hive = Hive::LocalMachine;
    std::wstring path; // as the caller wrote it
    std::wstring name;
    ValueType type = ValueType::None; // of the value set or found
    std::vector<std::byte> data;
    Outcome outcome = Outcome::Found;
};

class RecordingStore final : public Store
{
  public:
    explicit RecordingStore(std::shared_ptr<Store> store) : m_store(std::move(store)) {}

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override
    {
        auto transaction = m_store->Begin(access, error);
        if (!transaction) {
            return nullptr;
        }
        Record({.kind = access == Access::Read ? RecordedCall::Kind::BeginRead : RecordedCall::Kind::BeginWrite});
        return std::make_unique<Recorder>(*this, std::move(transaction));
    }
    const std::string& Address() const noexcept override { return m_store->Address(); }
    bool RollsBack() const noexcept override { return m_store->RollsBack(); }

    std::vector<RecordedCall> Calls() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls;
    }

    std::vector<RecordedCall> Calls(RecordedCall::Kind kind) const
    {
        auto calls = Calls();
        std::erase_if(calls, [kind](const RecordedCall& call) { return call.kind != kind; });
        return calls;
    }

    void Clear()
    {
        const std::lock_guard lock(m_mutex);
        m_calls.clear();
    }

  private:
    using Kind = RecordedCall::Kind;

    class Recorder final : public Transaction
    {
      public:
        Recorder(RecordingStore& store, std::unique_ptr<Transaction> transaction)
            : m_store(store), m_transaction(std::move(transaction))
        {}

        Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
        {
            const auto outcome = m_transaction->OpenKey(hive, path, key);
            if (outcome == Outcome::Found) {
                m_keys[key] = {hive, std::wstring(path)};
            }
            return Done(outcome, {.kind = Kind::OpenKey, .hive = hive, .path = std::wstring(path)});
        }
        void CloseKey(KeyId key) noexcept override { m_transaction->CloseKey(key); }
        Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
        {
            const auto outcome = m_transaction->Query(key, name, value);
            return Done(outcome, WithValue(Call(Kind::Query, key, name), outcome, value));
        }
        Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
        {
            const auto outcome = m_transaction->QueryAt(hive, path, name, value);
            RecordedCall call{
                .kind = Kind::Query, .hive = hive, .path = std::wstring(path), .name = std::wstring(name)};
            return Done(outcome, WithValue(std::move(call), outcome, value));
        }
        Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override
        {
            return Done(m_transaction->EnumKeys(key, visit), Call(Kind::EnumKeys, key, {}));
        }
        Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
        {
            return Done(m_transaction->EnumValues(key, visit), Call(Kind::EnumValues, key, {}));
        }
        Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
        {
            const auto outcome = m_transaction->CreateKey(hive, path, key);
            if (outcome == Outcome::Found) {
                m_keys[key] = {hive, std::wstring(path)};
            }
            return Done(outcome, {.kind = Kind::CreateKey, .hive = hive, .path = std::wstring(path)});
        }
        Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
        {
            const auto outcome = m_transaction->SetValue(key, name, value);
            return Done(outcome, WithValue(Call(Kind::SetValue, key, name), Outcome::Found, value));
        }
        Outcome DeleteValue(KeyId key, std::wstring_view name) override
        {
            return Done(m_transaction->DeleteValue(key, name), Call(Kind::DeleteValue, key, name));
        }
        Outcome DeleteKey(Hive hive, std::wstring_view path) override
        {
            return Done(m_transaction->DeleteKey(hive, path),
                        {.kind = Kind::DeleteKey, .hive = hive, .path = std::wstring(path)});
        }
        Outcome Commit(bool flush) override
        {
            return Done(m_transaction->Commit(flush), {.kind = flush ? Kind::Flush : Kind::Commit});
        }

      private:
        RecordedCall Call(Kind kind, KeyId key, std::wstring_view name) const
        {
            const auto& [hive, path] = m_keys.at(key);
            return {.kind = kind, .hive = hive, .path = path, .name = std::wstring(name)};
        }

        static RecordedCall WithValue(RecordedCall call, Outcome outcome, const ValueView& value)
        {
            if (outcome == Outcome::Found) {
                call.type = value.type;
                call.data.assign(value.data.begin(), value.data.end());
            }
            return call;
        }

        Outcome Done(Outcome outcome, RecordedCall call)
        {
            call.outcome = outcome;
            m_store.Record(std::move(call));
            if (outcome == Outcome::Failed) {
                const auto& error = m_transaction->LastError();
                return Fail(error.kind, error.message);
            }
            return outcome;
        }

        RecordingStore& m_store;
        std::unique_ptr<Transaction> m_transaction;
        std::map<KeyId, std::pair<Hive, std::wstring>> m_keys;
    };

    void Record(RecordedCall call)
    {
        const std::lock_guard lock(m_mutex);
        m_calls.push_back(std::move(call));
    }

    std::shared_ptr<Store> m_store;
    mutable std::mutex m_mutex;
    std::vector<RecordedCall> m_calls;
};

} // namespace wqspcfg::test
