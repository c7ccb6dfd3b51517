#include "wqspcfg/tools/Preview.h"

#include "wqspcfg/diagnosis/Difference.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/store/memory/MemoryStore.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/tools/ValueText.h"

#include <algorithm>
#include <vector>

namespace wqspcfg::tools {

namespace {

constexpr Hive kHives[] = {Hive::LocalMachine, Hive::Users, Hive::CurrentUser, Hive::ClassesRoot, Hive::CurrentConfig};

struct Value
{
    std::wstring name;
    ValueType type;
    std::vector<std::byte> data;
};

struct Content
{
    std::vector<std::wstring> subkeys;
    std::vector<Value> values;
};

// False on failure; a key that is missing has no content.
bool ReadKey(Transaction& transaction, Hive hive, const std::wstring& path, bool& exists, Content& content)
{
    KeyId key = 0;
    const auto opened = transaction.OpenKey(hive, path, key);
    exists = opened == Outcome::Found;
    if (!exists) {
        return opened == Outcome::Missing;
    }
    const bool read =
        transaction.EnumKeys(key,
                             [&](std::wstring_view name) {
                                 content.subkeys.emplace_back(name);
                                 return true;
                             }) == Outcome::Found &&
        transaction.EnumValues(key, [&](std::wstring_view name, const ValueView& value) {
            content.values.push_back({std::wstring(name), value.type, {value.data.begin(), value.data.end()}});
            return true;
        }) == Outcome::Found;
    transaction.CloseKey(key);
    return read;
}

// Copies what changes are about to touch: keys that are written with their values, keys that are deleted with all below
// them.
class TouchedCopier final : public RegFileVisitor
{
  public:
    TouchedCopier(Transaction& from, Transaction& to) : m_from(from), m_to(to) {}

    bool Key(Hive hive, std::wstring_view path, Error& error) override { return Copy(hive, path, false, error); }
    bool DeleteKey(Hive hive, std::wstring_view path, Error& error) override { return Copy(hive, path, true, error); }
    bool Value(std::wstring_view, const ValueView&, Error&) override { return true; }
    bool DeleteValue(std::wstring_view, Error&) override { return true; }

  private:
    bool Copy(Hive hive, std::wstring_view path, bool whole, Error& error)
    {
        bool exists = false;
        Content content;
        std::wstring text(path);
        // Of a key that is missing, the nearest that is there, so that only what is new shows as new.
        while (ReadKey(m_from, hive, text, exists, content) && !exists && !text.empty()) {
            const auto end = text.find_last_of(L'\\');
            text.resize(end == std::wstring::npos ? 0 : end);
        }
        if (!exists) {
            error = m_from.LastError();
            return !error;
        }
        KeyId key = 0;
        if (m_to.CreateKey(hive, text, key) == Outcome::Failed) {
            error = m_to.LastError();
            return false;
        }
        for (const auto& value : content.values) {
            if (m_to.SetValue(key, value.name, {value.type, value.data}) == Outcome::Failed) {
                error = m_to.LastError();
                return false;
            }
        }
        return !whole || text.size() != path.size() ||
               std::all_of(content.subkeys.begin(), content.subkeys.end(), [&](const std::wstring& subkey) {
                   return Copy(hive, text.empty() ? subkey : text + L'\\' + subkey, true, error);
               });
    }

    Transaction& m_from;
    Transaction& m_to;
};

class Comparison
{
  public:
    // `before` may be null.
    Comparison(Transaction* before, Transaction& after, bool showSecrets, const Console& console)
        : m_before(before), m_after(after), m_showSecrets(showSecrets), m_console(console)
    {}

    int Print()
    {
        for (const auto hive : kHives) {
            if (!Compare({hive, {}})) {
                return m_console.Fail(m_error);
            }
        }
        m_console.err << m_added << " to add, " << m_changed << " to change, " << m_deleted << " to delete\n";
        return kDone;
    }

  private:
    bool Compare(const FullKey& key)
    {
        Content before;
        Content after;
        bool was = false;
        bool is = false;
        if (m_before != nullptr && !ReadKey(*m_before, key.hive, key.path, was, before)) {
            m_error = m_before->LastError();
            return false;
        }
        if (!ReadKey(m_after, key.hive, key.path, is, after)) {
            m_error = m_after.LastError();
            return false;
        }
        if (was != is && !key.path.empty()) {
            Line(is ? '+' : '-', key, "\\");
        }
        CompareValues(key, before.values, after.values);
        auto subkeys = std::move(before.subkeys);
        std::move(after.subkeys.begin(), after.subkeys.end(), std::back_inserter(subkeys));
        std::stable_sort(subkeys.begin(), subkeys.end(),
                         [](const auto& left, const auto& right) { return CompareNoCase(left, right) < 0; });
        subkeys.erase(std::unique(subkeys.begin(), subkeys.end(),
                                  [](const auto& left, const auto& right) { return EqualNoCase(left, right); }),
                      subkeys.end());
        return std::all_of(subkeys.begin(), subkeys.end(), [&](const std::wstring& subkey) {
            return Compare({key.hive, key.path.empty() ? subkey : key.path + L'\\' + subkey});
        });
    }

    // Both are in the order of names.
    void CompareValues(const FullKey& key, const std::vector<Value>& before, const std::vector<Value>& after)
    {
        auto old = before.begin();
        auto now = after.begin();
        while (old != before.end() || now != after.end()) {
            const auto order = old == before.end() ? 1 : now == after.end() ? -1 : CompareNoCase(old->name, now->name);
            if (order < 0) {
                Line('-', key, '\t' + Shown(*old, true));
            } else if (order > 0) {
                Line('+', key, '\t' + Shown(*now, true));
            } else if (old->type != now->type || old->data != now->data) {
                Line('~', key, '\t' + Shown(*old, true) + " -> " + Shown(*now, false));
            }
            old += order <= 0 ? 1 : 0;
            now += order >= 0 ? 1 : 0;
        }
    }

    std::string Shown(const Value& value, bool withName) const
    {
        const auto name = value.name.empty() ? std::string("(default)") : DisplayText(value.name);
        const ValueView view{value.type, value.data};
        const bool isMasked = !m_showSecrets && diagnosis::IsSecretName(value.name);
        auto data = isMasked ? diagnosis::kMasked : DisplayText(DataText(view, L"; "));
        if (!isMasked && (value.type == ValueType::Sz || value.type == ValueType::ExpandSz)) {
            data = '"' + data + '"';
        }
        return (withName ? name + '\t' : std::string()) + TypeName(value.type) + ' ' + data;
    }

    void Line(char sign, const FullKey& key, const std::string& rest)
    {
        (sign == '+' ? m_added : sign == '~' ? m_changed : m_deleted) += 1;
        m_console.out << sign << ' ' << DisplayText(KeyText(key)) << rest << '\n';
    }

    Transaction* m_before;
    Transaction& m_after;
    bool m_showSecrets;
    const Console& m_console;
    std::size_t m_added = 0;
    std::size_t m_changed = 0;
    std::size_t m_deleted = 0;
    Error m_error;
};

} // namespace

int PreviewChanges(Store& store, const Changes& changes, bool showSecrets, const Console& console)
{
    Error error;
    MemoryStore copy(store.Address(), store.NameRoom());
    {
        const auto from = store.Begin(Access::Read, error);
        const auto to = copy.Begin(Access::Write, error);
        if (!from || !to) {
            return console.Fail(error);
        }
        TouchedCopier copier(*from, *to);
        if (!changes(copier, error)) {
            return console.Fail(error);
        }
        if (to->Commit(false) == Outcome::Failed) {
            return console.Fail(to->LastError());
        }
    }
    const auto before = copy.Begin(Access::Read, error);
    const auto writing = copy.Begin(Access::Write, error);
    ImportCounts counts;
    RegFileWriter writer(*writing, counts);
    if (!changes(writer, error)) {
        return console.Fail(error);
    }
    return Comparison(before.get(), *writing, showSecrets, console).Print();
}

int PreviewReplacement(Store* before, Store& after, bool showSecrets, const Console& console)
{
    Error error;
    const auto old = before != nullptr ? before->Begin(Access::Read, error) : nullptr;
    const auto now = after.Begin(Access::Read, error);
    if (!now || (before != nullptr && !old)) {
        return console.Fail(error);
    }
    return Comparison(old.get(), *now, showSecrets, console).Print();
}

} // namespace wqspcfg::tools
