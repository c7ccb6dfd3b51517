#pragma once

#include "wqspcfg/core/Log.h"
#include "wqspcfg/platform/store/Store.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// One call of a transaction.
struct Call
{
    enum class Kind : std::uint8_t
    {
        Open,
        Query, // one value that was asked for, or that an enumeration gave
        Set,
    };

    Kind kind;
    wqspcfg::Hive hive;
    std::wstring path;
    std::wstring name;
    bool found;
    wqspcfg::ValueType type;
    std::vector<std::byte> data;
    std::size_t lines; // that the log had then
};

// Passes everything on to a store, and records what it is asked for, in order.
class RecordingStore final : public wqspcfg::Store
{
  public:
    RecordingStore(std::shared_ptr<wqspcfg::Store> inner, const wqspcfg::MemoryLog& log)
        : m_inner(std::move(inner)), m_log(log)
    {}

    std::unique_ptr<wqspcfg::Transaction> Begin(wqspcfg::Access access, wqspcfg::Error& error) override
    {
        auto inner = m_inner->Begin(access, error);
        return inner ? std::make_unique<Recorded>(*this, std::move(inner)) : nullptr;
    }
    const std::string& Address() const noexcept override { return m_inner->Address(); }
    bool RollsBack() const noexcept override { return m_inner->RollsBack(); }
    const std::vector<Call>& Calls() const noexcept { return m_calls; }

  private:
    using Outcome = wqspcfg::Outcome;
    using KeyId = wqspcfg::KeyId;
    using Hive = wqspcfg::Hive;
    using ValueView = wqspcfg::ValueView;

    class Recorded final : public wqspcfg::Transaction
    {
      public:
        Recorded(RecordingStore& store, std::unique_ptr<wqspcfg::Transaction> inner)
            : m_store(store), m_inner(std::move(inner))
        {}
        Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
        {
            const auto outcome = m_inner->OpenKey(hive, path, key);
            return Opened(outcome, hive, path, key);
        }
        Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value) override
        {
            const auto outcome = m_inner->QueryAt(hive, path, name, value);
            return Note(outcome, Call::Kind::Query, hive, path, name, value);
        }
        bool HasPathQueries() const noexcept override { return m_inner->HasPathQueries(); }
        Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
        {
            const auto outcome = m_inner->Query(key, name, value);
            return Note(outcome, Call::Kind::Query, key, name, value);
        }
        Outcome EnumKeys(KeyId key, const wqspcfg::KeyVisitor& visit) override { return m_inner->EnumKeys(key, visit); }
        Outcome EnumValues(KeyId key, const wqspcfg::ValueVisitor& visit) override
        {
            return m_inner->EnumValues(key, [&](std::wstring_view name, const ValueView& value) {
                Note(Outcome::Found, Call::Kind::Query, key, name, value);
                return visit(name, value);
            });
        }
        Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
        {
            const auto outcome = m_inner->CreateKey(hive, path, key);
            return Opened(outcome, hive, path, key);
        }
        Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
        {
            return Note(m_inner->SetValue(key, name, value), Call::Kind::Set, key, name, value);
        }
        Outcome DeleteValue(KeyId key, std::wstring_view name) override { return m_inner->DeleteValue(key, name); }
        Outcome DeleteKey(Hive hive, std::wstring_view path) override { return m_inner->DeleteKey(hive, path); }
        Outcome Commit(bool flush) override { return m_inner->Commit(flush); }

      private:
        Outcome Opened(Outcome outcome, Hive hive, std::wstring_view path, KeyId key)
        {
            if (outcome == Outcome::Found) {
                m_paths[key] = {hive, std::wstring(path)};
            }
            return Note(outcome, Call::Kind::Open, hive, path, {}, {});
        }
        Outcome Note(Outcome outcome, Call::Kind kind, KeyId key, std::wstring_view name, const ValueView& value)
        {
            const auto& [hive, path] = m_paths[key];
            return Note(outcome, kind, hive, path, name, value);
        }
        Outcome Note(Outcome outcome, Call::Kind kind, Hive hive, std::wstring_view path, std::wstring_view name,
                     const ValueView& value)
        {
            const bool found = outcome == Outcome::Found;
            auto& call = m_store.m_calls.emplace_back();
            call = {kind, hive, std::wstring(path), std::wstring(name), found, {}, {}, m_store.m_log.Entries().size()};
            if (found) {
                call.type = value.type;
                call.data.assign(value.data.begin(), value.data.end());
            }
            return outcome;
        }

        RecordingStore& m_store;
        std::unique_ptr<wqspcfg::Transaction> m_inner;
        std::map<KeyId, std::pair<Hive, std::wstring>> m_paths;
    };

    std::shared_ptr<wqspcfg::Store> m_inner;
    const wqspcfg::MemoryLog& m_log;
    std::vector<Call> m_calls;
};

} // namespace bench
