// Any sequence of operations on keys and values: the memory store, the embedded one and a plain model of the registry
// agree on every outcome and on what there is in the end.
#include "fuzz/Fuzzing.h"
#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <map>
#include <memory>
#include <vector>

using namespace wqspcfg;
using namespace wqspcfg::test;

namespace {

constexpr std::size_t kLongestEntry = 511; // of the embedded store

struct Value
{
    std::wstring name;
    ValueType type = ValueType::None;
    Bytes data;
};

struct Node
{
    std::wstring name;
    std::map<std::wstring, Node, LessNoCase> keys;
    std::map<std::wstring, Value, LessNoCase> values;
};

using Hives = std::map<Hive, Node>;
using Path = std::vector<std::wstring>;

bool IsName(std::wstring_view text)
{
    std::u16string units;
    return AppendUtf16(text, units) && units.find(u'\0') == std::u16string::npos;
}

std::size_t Length(std::wstring_view text)
{
    std::u16string units;
    AppendUtf16(text, units);
    return units.size();
}

Path Split(std::wstring_view path)
{
    Path components;
    std::wstring component;
    for (const auto ch : std::wstring(path) + L'\\') {
        if (ch != L'\\') {
            component += ch;
        } else if (!component.empty()) {
            components.push_back(std::move(component));
            component.clear();
        }
    }
    return components;
}

Node* Find(Hives& hives, Hive hive, const Path& path)
{
    auto* node = &hives[hive];
    for (const auto& name : path) {
        const auto found = node->keys.find(name);
        if (found == node->keys.end()) {
            return nullptr;
        }
        node = &found->second;
    }
    return node;
}

bool IsWithin(const Path& path, const Path& top)
{
    return path.size() >= top.size() && std::equal(top.begin(), top.end(), path.begin(),
                                                   [](const auto& a, const auto& b) { return EqualNoCase(a, b); });
}

// Whether the embedded store has room for a name of that path.
bool HasRoom(Hive hive, const Path& path, std::wstring_view name)
{
    std::string flat(1, HiveLetter(hive));
    for (const auto& component : path) {
        AppendFolded(component, flat);
        flat += '\\';
    }
    AppendFolded(name, flat);
    // A backslash stands behind each component but the last, and a mark before the name.
    return flat.size() - (path.empty() ? 0 : 1) + 2 <= kLongestEntry;
}

bool HasRoom(Hive hive, const Path& path)
{
    for (std::size_t depth = 0; depth < path.size(); ++depth) {
        if (!HasRoom(hive, Path(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(depth)), path[depth])) {
            return false;
        }
    }
    return true;
}

std::wstring Shown(std::wstring_view name, const Value& value)
{
    std::wstring text(name);
    text += L'=' + std::to_wstring(static_cast<std::uint32_t>(value.type)) + L':';
    for (const auto byte : value.data) {
        text += static_cast<wchar_t>(std::to_integer<int>(byte));
    }
    return text;
}

class Run
{
  public:
    Run(std::shared_ptr<Store> memory, std::shared_ptr<Store> embedded)
        : m_stores{std::move(memory), std::move(embedded)}
    {
        for (const auto& store : m_stores) {
            const auto transaction = test::Begin(*store, Access::Write);
            for (const auto hive : {Hive::LocalMachine, Hive::Users}) {
                for (const auto& name : Subkeys(*store, {}, hive)) {
                    EXPECT_EQ(transaction->DeleteKey(hive, name), Outcome::Found);
                }
                KeyId root = 0;
                EXPECT_EQ(transaction->OpenKey(hive, {}, root), Outcome::Found);
                for (const auto& name : ValueNames(*store, {}, hive)) {
                    EXPECT_EQ(transaction->DeleteValue(root, name), Outcome::Found);
                }
            }
            EXPECT_EQ(transaction->Commit(false), Outcome::Found);
        }
    }

    void Work(fuzz::Input& input)
    {
        Begin(Access::Write);
        for (int step = 0; step < 200 && !input.IsEmpty(); ++step) {
            Step(input);
        }
        End(true);
        Compare();
    }

  private:
    struct Handle
    {
        KeyId ids[2] = {};
        Hive hive{};
        Path path;
        bool gone = false;
    };

    void Begin(Access access)
    {
        m_writes = access == Access::Write;
        for (std::size_t i = 0; i < 2; ++i) {
            m_transactions[i] = test::Begin(*m_stores[i], access);
        }
        m_work = m_committed;
    }

    void End(bool commit)
    {
        for (auto& transaction : m_transactions) {
            if (commit && m_writes) {
                EXPECT_EQ(transaction->Commit(false), Outcome::Found) << transaction->LastError().message;
            }
            transaction.reset();
        }
        if (commit && m_writes) {
            m_committed = m_work;
        }
        m_handles.clear();
    }

    void Expect(Outcome memory, Outcome embedded, Outcome expected)
    {
        EXPECT_EQ(memory, expected) << m_transactions[0]->LastError().message;
        EXPECT_EQ(embedded, expected) << m_transactions[1]->LastError().message;
    }

    // One call on both stores.
    template <class Call>
    void Both(Outcome expected, Call call)
    {
        const auto memory = call(*m_transactions[0], 0);
        const auto embedded = call(*m_transactions[1], 1);
        Expect(memory, embedded, expected);
        if (expected == Outcome::Failed) {
            EXPECT_EQ(m_transactions[0]->LastError().kind, m_transactions[1]->LastError().kind);
        }
    }

    void Step(fuzz::Input& input)
    {
        const auto operation = input.Below(16);
        const auto hive = input.Below(8) == 0 ? Hive::Users : Hive::LocalMachine;
        switch (operation) {
        case 0:
        case 1:
        case 2:
            return Create(hive, fuzz::Text(input.Field()));
        case 3:
        case 4:
            return OpenKey(hive, fuzz::Text(input.Field()));
        case 5:
            return DeleteKey(hive, fuzz::Text(input.Field()));
        case 6: {
            const auto path = fuzz::Text(input.Field());
            return QueryAt(hive, path, fuzz::Text(input.Field()));
        }
        case 7: {
            const auto how = input.Below(4);
            End(how != 0);
            if (how == 1) {
                Compare();
            }
            return Begin(input.Below(4) == 0 ? Access::Read : Access::Write);
        }
        default:
            break;
        }
        if (m_handles.empty()) {
            return;
        }
        const auto index = input.Below(static_cast<unsigned>(m_handles.size()));
        auto& handle = m_handles[index];
        switch (operation) {
        case 8:
        case 9:
        case 10:
        case 11: {
            const auto name = fuzz::Text(input.Field());
            const auto type = static_cast<ValueType>(input.Byte());
            // Now and then a value that an LMDB page does not hold.
            const auto data = std::string(input.Field());
            return Set(handle, name, type, input.Below(32) == 0 ? data + std::string(5000, 'x') : data);
        }
        case 12:
            return DeleteValue(handle, fuzz::Text(input.Field()));
        case 13:
            return Query(handle, fuzz::Text(input.Field()));
        case 14:
            return Enumerate(handle);
        default:
            m_transactions[0]->CloseKey(handle.ids[0]);
            m_transactions[1]->CloseKey(handle.ids[1]);
            m_handles.erase(m_handles.begin() + index);
        }
    }

    void OpenKey(Hive hive, const std::wstring& path)
    {
        const auto components = Split(path);
        auto expected = Find(m_work, hive, components) != nullptr ? Outcome::Found : Outcome::Missing;
        for (const auto& component : components) {
            expected = IsName(component) ? expected : Outcome::Failed;
        }
        Handle handle{{}, hive, components, false};
        Both(expected,
             [&](Transaction& transaction, std::size_t i) { return transaction.OpenKey(hive, path, handle.ids[i]); });
        if (expected == Outcome::Found) {
            m_handles.push_back(std::move(handle));
        }
    }

    void Create(Hive hive, const std::wstring& path)
    {
        const auto components = Split(path);
        bool possible = m_writes;
        bool tooLong = false;
        bool hasControl = false;
        for (const auto& component : components) {
            possible = possible && IsName(component);
            tooLong = tooLong || Length(component) > kMaxKeyName;
            hasControl = hasControl || HasControlCharacter(component);
        }
        Handle handle{{}, hive, components, false};
        if (possible && !tooLong && !HasRoom(hive, components)) {
            EXPECT_EQ(m_transactions[1]->CreateKey(hive, path, handle.ids[1]), Outcome::Failed);
            EXPECT_TRUE(hasControl || m_transactions[1]->LastError().kind == ErrorKind::TooLong);
            return;
        }
        if (possible && tooLong && hasControl) { // either may be told first
            for (std::size_t i = 0; i < 2; ++i) {
                EXPECT_EQ(m_transactions[i]->CreateKey(hive, path, handle.ids[i]), Outcome::Failed);
            }
            return;
        }
        possible = possible && !tooLong && !hasControl;
        Both(possible ? Outcome::Found : Outcome::Failed,
             [&](Transaction& transaction, std::size_t i) { return transaction.CreateKey(hive, path, handle.ids[i]); });
        if (possible) {
            auto* node = &m_work[hive];
            for (const auto& name : components) {
                node = &node->keys.try_emplace(name, Node{name, {}, {}}).first->second;
            }
            m_handles.push_back(std::move(handle));
        }
    }

    void DeleteKey(Hive hive, const std::wstring& path)
    {
        const auto components = Split(path);
        auto expected = Find(m_work, hive, components) != nullptr ? Outcome::Found : Outcome::Missing;
        if (components.empty() || !m_writes) {
            expected = Outcome::Failed;
        }
        for (const auto& component : components) {
            expected = IsName(component) ? expected : Outcome::Failed;
        }
        Both(expected, [&](Transaction& transaction, std::size_t) { return transaction.DeleteKey(hive, path); });
        if (expected != Outcome::Found) {
            return;
        }
        auto parent = components;
        parent.pop_back();
        Find(m_work, hive, parent)->keys.erase(components.back());
        for (auto& handle : m_handles) {
            handle.gone = handle.gone || (handle.hive == hive && IsWithin(handle.path, components));
        }
    }

    const Value* FindValue(Hive hive, const Path& path, const std::wstring& name)
    {
        const auto* node = Find(m_work, hive, path);
        if (node == nullptr) {
            return nullptr;
        }
        const auto found = node->values.find(name);
        return found != node->values.end() ? &found->second : nullptr;
    }

    template <class Call>
    void ExpectValue(Outcome expected, const Value* value, Call call)
    {
        Both(expected, [&](Transaction& transaction, std::size_t i) {
            ValueView view;
            const auto outcome = call(transaction, i, view);
            if (outcome == Outcome::Found && value != nullptr) {
                EXPECT_EQ(view.type, value->type);
                EXPECT_EQ(Bytes(view.data.begin(), view.data.end()), value->data);
            }
            return outcome;
        });
    }

    void QueryAt(Hive hive, const std::wstring& path, const std::wstring& name)
    {
        const auto components = Split(path);
        const auto* value = FindValue(hive, components, name);
        auto expected = value != nullptr ? Outcome::Found : Outcome::Missing;
        for (const auto& component : components) {
            expected = IsName(component) ? expected : Outcome::Failed;
        }
        expected = IsName(name) ? expected : Outcome::Failed;
        ExpectValue(expected, value, [&](Transaction& transaction, std::size_t, ValueView& view) {
            return transaction.QueryAt(hive, path, name, view);
        });
    }

    void Query(const Handle& handle, const std::wstring& name)
    {
        const auto* value = handle.gone ? nullptr : FindValue(handle.hive, handle.path, name);
        auto expected = value != nullptr ? Outcome::Found : Outcome::Missing;
        expected = IsName(name) || handle.gone ? expected : Outcome::Failed;
        ExpectValue(expected, value, [&](Transaction& transaction, std::size_t i, ValueView& view) {
            return transaction.Query(handle.ids[i], name, view);
        });
    }

    void Set(const Handle& handle, const std::wstring& name, ValueType type, const std::string& data)
    {
        const auto bytes = ToBytes(data);
        const bool possible = m_writes && !handle.gone && IsName(name);
        if (possible && Length(name) <= kMaxValueName && !HasRoom(handle.hive, handle.path, name)) {
            EXPECT_EQ(m_transactions[1]->SetValue(handle.ids[1], name, {type, bytes}), Outcome::Failed);
            EXPECT_EQ(m_transactions[1]->LastError().kind, ErrorKind::TooLong);
            return;
        }
        const auto expected = possible && Length(name) <= kMaxValueName ? Outcome::Found : Outcome::Failed;
        Both(expected, [&](Transaction& transaction, std::size_t i) {
            return transaction.SetValue(handle.ids[i], name, {type, bytes});
        });
        if (expected == Outcome::Found) {
            auto& value =
                Find(m_work, handle.hive, handle.path)->values.try_emplace(name, Value{name, {}, {}}).first->second;
            value.type = type;
            value.data = bytes;
        }
    }

    void DeleteValue(const Handle& handle, const std::wstring& name)
    {
        const auto* value = handle.gone ? nullptr : FindValue(handle.hive, handle.path, name);
        auto expected = value != nullptr ? Outcome::Found : Outcome::Missing;
        expected = IsName(name) || handle.gone ? expected : Outcome::Failed;
        expected = m_writes ? expected : Outcome::Failed;
        Both(expected,
             [&](Transaction& transaction, std::size_t i) { return transaction.DeleteValue(handle.ids[i], name); });
        if (expected == Outcome::Found) {
            Find(m_work, handle.hive, handle.path)->values.erase(name);
        }
    }

    void Enumerate(const Handle& handle)
    {
        std::vector<std::wstring> keys;
        std::vector<std::wstring> values;
        if (!handle.gone) {
            const auto* node = Find(m_work, handle.hive, handle.path);
            for (const auto& [name, key] : node->keys) {
                keys.push_back(key.name);
            }
            for (const auto& [name, value] : node->values) {
                values.push_back(Shown(value.name, value));
            }
        }
        const auto expected = handle.gone ? Outcome::Missing : Outcome::Found;
        Both(expected, [&](Transaction& transaction, std::size_t i) {
            std::vector<std::wstring> found;
            const auto outcome = transaction.EnumKeys(handle.ids[i], [&](std::wstring_view name) {
                found.emplace_back(name);
                return true;
            });
            EXPECT_EQ(found, keys);
            return outcome;
        });
        Both(expected, [&](Transaction& transaction, std::size_t i) {
            std::vector<std::wstring> found;
            const auto outcome =
                transaction.EnumValues(handle.ids[i], [&](std::wstring_view name, const ValueView& view) {
                    found.push_back(Shown(name, {{}, view.type, Bytes(view.data.begin(), view.data.end())}));
                    return true;
                });
            EXPECT_EQ(found, values);
            return outcome;
        });
    }

    // All that was committed, read anew.
    void Compare()
    {
        Begin(Access::Read);
        for (const auto hive : {Hive::LocalMachine, Hive::Users}) {
            CompareBelow(hive, {}, m_committed[hive]);
        }
        End(false);
    }

    void CompareBelow(Hive hive, const std::wstring& path, const Node& node)
    {
        Handle handle{{}, hive, Split(path), false};
        Both(Outcome::Found,
             [&](Transaction& transaction, std::size_t i) { return transaction.OpenKey(hive, path, handle.ids[i]); });
        Enumerate(handle);
        for (const auto& [name, key] : node.keys) {
            CompareBelow(hive, path.empty() ? key.name : path + L'\\' + key.name, key);
        }
    }

    std::shared_ptr<Store> m_stores[2]; // memory, embedded
    std::unique_ptr<Transaction> m_transactions[2];
    bool m_writes = true;
    std::vector<Handle> m_handles;
    Hives m_committed;
    Hives m_work;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryDirectory directory{fuzz::FastDirectory()};
    static const auto embedded = Open("lmdb:" + directory.File("store"), {.create = true});
    static const auto memory = Open("memory:");
    fuzz::Input input(data, size);
    Run(memory, embedded).Work(input);
    return 0;
}
