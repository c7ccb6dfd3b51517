#include "wqspcfg/tools/Preview.h"

#include "wqspcfg/diagnosis/Difference.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/store/RegistryPath.h"
#include "wqspcfg/platform/store/memory/MemoryStore.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/tools/JsonText.h"
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
    Comparison(Transaction* before, Transaction& after, const PreviewOptions& options, const Console& console)
        : m_before(before), m_after(after), m_options(options), m_places(options.source), m_console(console)
    {}

    int Print()
    {
        for (const auto hive : kHives) {
            if (!Compare({hive, {}})) {
                return m_console.Fail(m_error);
            }
        }
        if (m_options.json) {
            ordered_json out;
            out["added"] = m_added;
            out["changed"] = m_changed;
            out["deleted"] = m_deleted;
            out["changes"] = std::move(m_json);
            PrintJson(out, m_console.out);
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
            Tell(is ? '+' : '-', key, nullptr, nullptr);
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
                Tell('-', key, &*old, nullptr);
            } else if (order > 0) {
                Tell('+', key, nullptr, &*now);
            } else if (old->type != now->type || old->data != now->data) {
                Tell('~', key, &*old, &*now);
            }
            old += order <= 0 ? 1 : 0;
            now += order >= 0 ? 1 : 0;
        }
    }

    bool IsMasked(const Value& value) const { return !m_options.showSecrets && diagnosis::IsSecretName(value.name); }

    std::string Shown(const Value& value) const
    {
        const bool isMasked = IsMasked(value);
        auto data = isMasked ? diagnosis::kMasked : DisplayText(DataText({value.type, value.data}, L"; "));
        if (!isMasked && (value.type == ValueType::Sz || value.type == ValueType::ExpandSz)) {
            data = '"' + data + '"';
        }
        return TypeName(value.type) + ' ' + data;
    }

    // Of the key itself where there is no value.
    void Tell(char sign, const FullKey& key, const Value* before, const Value* after)
    {
        (sign == '+' ? m_added : sign == '~' ? m_changed : m_deleted) += 1;
        const auto* value = before != nullptr ? before : after;
        const bool isPlaced = sign != '+' && key.hive == HiveOf(key.path);
        const auto place = isPlaced ? m_places.Of(key.path, value != nullptr ? &value->name : nullptr) : std::string();
        if (m_options.json) {
            TellJson(sign, key, before, after, place);
            return;
        }
        auto& out = m_console.out;
        out << sign << ' ' << DisplayText(KeyText(key));
        if (value == nullptr) {
            out << '\\';
        } else {
            out << '\t' << (value->name.empty() ? std::string("(default)") : DisplayText(value->name)) << '\t'
                << Shown(*value) << (sign == '~' ? " -> " + Shown(*after) : std::string());
        }
        out << (place.empty() ? std::string() : "   " + DisplayText(place)) << '\n';
    }

    void TellJson(char sign, const FullKey& key, const Value* before, const Value* after, const std::string& place)
    {
        const auto* value = before != nullptr ? before : after;
        ordered_json out;
        out["change"] = sign == '+' ? "add" : sign == '~' ? "change" : "delete";
        out["path"] = Utf8(KeyText(key));
        out["name"] = value != nullptr ? ordered_json(Utf8(value->name)) : ordered_json(nullptr);
        if (value != nullptr) {
            const auto put = [&](const Value* each) {
                return each != nullptr ? StoredJson({each->type, each->data}, IsMasked(*each)) : ordered_json(nullptr);
            };
            out["before"] = put(before);
            out["after"] = put(after);
        }
        if (!place.empty()) {
            out["place"] = place;
        }
        m_json.push_back(std::move(out));
    }

    Transaction* m_before;
    Transaction& m_after;
    const PreviewOptions& m_options;
    diagnosis::Places m_places;
    const Console& m_console;
    ordered_json m_json = ordered_json::array();
    std::size_t m_added = 0;
    std::size_t m_changed = 0;
    std::size_t m_deleted = 0;
    Error m_error;
};

} // namespace

int PreviewChanges(Store& store, const Changes& changes, const PreviewOptions& options, const Console& console)
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
    return Comparison(before.get(), *writing, options, console).Print();
}

int PreviewReplacement(Store* before, Store& after, const PreviewOptions& options, const Console& console)
{
    Error error;
    const auto old = before != nullptr ? before->Begin(Access::Read, error) : nullptr;
    const auto now = after.Begin(Access::Read, error);
    if (!now || (before != nullptr && !old)) {
        return console.Fail(error);
    }
    return Comparison(old.get(), *now, options, console).Print();
}

} // namespace wqspcfg::tools
