#include "wqspcfg/tools/ScratchStore.h"

#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <map>
#include <optional>
#include <set>
#include <vector>

namespace wqspcfg::tools {

namespace {

class ScratchTransaction final : public Transaction
{
  public:
    ScratchTransaction(std::unique_ptr<Transaction> base, std::unique_ptr<Transaction> written)
        : m_base(std::move(base)), m_written(std::move(written))
    {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        if (!CanExist(path)) {
            return Outcome::Missing;
        }
        OpenedKey opened{hive, std::wstring(path), {}, {}};
        if (!Open(*m_base, opened, opened.base) || !Open(*m_written, opened, opened.written)) {
            return Outcome::Failed;
        }
        if (!opened.base && !opened.written) {
            return Outcome::Missing;
        }
        return Keep(std::move(opened), key);
    }

    Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        OpenedKey opened{hive, std::wstring(path), {}, {}};
        if ((CanExist(path) && !Open(*m_base, opened, opened.base)) || !Create(opened)) {
            return Outcome::Failed;
        }
        return Keep(std::move(opened), key);
    }

    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        const auto& opened = m_keys[key];
        auto outcome = Outcome::Missing;
        if (opened.written) {
            outcome = From(*m_written, m_written->Query(*opened.written, name, value));
        }
        if (outcome == Outcome::Missing && opened.base) {
            outcome = From(*m_base, m_base->Query(*opened.base, name, value));
        }
        return outcome;
    }

    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override
    {
        std::set<std::wstring, LessNoCase> names;
        const auto collect = [&names](std::wstring_view name) {
            names.emplace(name);
            return true;
        };
        const auto& opened = m_keys[key];
        if ((opened.base && From(*m_base, m_base->EnumKeys(*opened.base, collect)) == Outcome::Failed) ||
            (opened.written && From(*m_written, m_written->EnumKeys(*opened.written, collect)) == Outcome::Failed)) {
            return Outcome::Failed;
        }
        for (const auto& name : names) {
            if (!visit(name)) {
                break;
            }
        }
        return Outcome::Found;
    }

    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        struct Copy
        {
            ValueType type;
            std::vector<std::byte> data;
        };
        std::map<std::wstring, Copy, LessNoCase> values;
        const auto collect = [&values](std::wstring_view name, const ValueView& value) {
            values.try_emplace(std::wstring(name), Copy{value.type, {value.data.begin(), value.data.end()}});
            return true;
        };
        const auto& opened = m_keys[key];
        // The first of a name stays.
        if ((opened.written && From(*m_written, m_written->EnumValues(*opened.written, collect)) == Outcome::Failed) ||
            (opened.base && From(*m_base, m_base->EnumValues(*opened.base, collect)) == Outcome::Failed)) {
            return Outcome::Failed;
        }
        for (const auto& [name, value] : values) {
            if (!visit(name, {value.type, value.data})) {
                break;
            }
        }
        return Outcome::Found;
    }

    Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
    {
        auto& opened = m_keys[key];
        if (!opened.written && !Create(opened)) {
            return Outcome::Failed;
        }
        return From(*m_written, m_written->SetValue(*opened.written, name, value));
    }

    Outcome DeleteValue(KeyId, std::wstring_view) override { return Refuse(); }
    Outcome DeleteKey(Hive, std::wstring_view) override { return Refuse(); }
    Outcome Commit(bool flush) override { return From(*m_written, m_written->Commit(flush)); }

  private:
    struct OpenedKey
    {
        Hive hive;
        std::wstring path;
        std::optional<KeyId> base;
        std::optional<KeyId> written;
    };

    struct LessNoCase
    {
        bool operator()(const std::wstring& left, const std::wstring& right) const
        {
            return CompareNoCase(left, right) < 0;
        }
    };

    Outcome From(const Transaction& transaction, Outcome outcome)
    {
        return outcome == Outcome::Failed ? Fail(transaction.LastError().kind, transaction.LastError().message)
                                          : outcome;
    }

    Outcome Refuse() { return Fail(ErrorKind::Unsupported, "a scratch store cannot delete"); }

    bool Open(Transaction& transaction, const OpenedKey& opened, std::optional<KeyId>& key)
    {
        KeyId id = 0;
        const auto outcome = From(transaction, transaction.OpenKey(opened.hive, opened.path, id));
        if (outcome == Outcome::Found) {
            key = id;
        }
        return outcome != Outcome::Failed;
    }

    bool Create(OpenedKey& opened)
    {
        KeyId id = 0;
        if (From(*m_written, m_written->CreateKey(opened.hive, opened.path, id)) == Outcome::Failed) {
            return false;
        }
        opened.written = id;
        return true;
    }

    Outcome Keep(OpenedKey opened, KeyId& key)
    {
        key = static_cast<KeyId>(m_keys.size());
        m_keys.push_back(std::move(opened));
        return Outcome::Found;
    }

    std::unique_ptr<Transaction> m_base;
    std::unique_ptr<Transaction> m_written;
    std::vector<OpenedKey> m_keys;
};

bool VisitKey(Transaction& transaction, Hive hive, const std::wstring& path, RegFileVisitor& visitor, Error& error)
{
    KeyId key = 0;
    std::vector<std::wstring> subkeys;
    bool taken =
        transaction.OpenKey(hive, path, key) == Outcome::Found && (path.empty() || visitor.Key(hive, path, error));
    if (taken) {
        transaction.EnumValues(key, [&](std::wstring_view name, const ValueView& value) {
            return taken = visitor.Value(name, value, error);
        });
        transaction.EnumKeys(key, [&](std::wstring_view name) {
            subkeys.emplace_back(name);
            return true;
        });
    }
    for (auto subkey = subkeys.begin(); taken && subkey != subkeys.end(); ++subkey) {
        taken = VisitKey(transaction, hive, path.empty() ? *subkey : path + L'\\' + *subkey, visitor, error);
    }
    return taken;
}

} // namespace

std::unique_ptr<Transaction> ScratchStore::Begin(Access access, Error& error)
{
    auto base = m_base->Begin(Access::Read, error);
    if (access == Access::Write) {
        m_hasWrites = true;
    }
    if (!base || !m_hasWrites) {
        return base;
    }
    auto written = m_written.Begin(access, error);
    return written ? std::make_unique<ScratchTransaction>(std::move(base), std::move(written)) : nullptr;
}

bool ScratchStore::Visit(RegFileVisitor& visitor, Error& error)
{
    const auto written = m_written.Begin(Access::Read, error);
    return written && VisitKey(*written, Hive::LocalMachine, {}, visitor, error) &&
           VisitKey(*written, Hive::Users, {}, visitor, error);
}

} // namespace wqspcfg::tools
