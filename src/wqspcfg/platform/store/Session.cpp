#include "wqspcfg/platform/store/Session.h"

#include "wqspcfg/platform/store/ForkSafe.h"
#include "wqspcfg/platform/store/RegistryPath.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <iterator>
#include <mutex>
#include <utility>

namespace wqspcfg {

namespace {

std::mutex& StoreMutex()
{
    return ForkSafeMutex(ForkSafe::CurrentStore);
}

std::shared_ptr<Store>& StoreSlot()
{
    static std::shared_ptr<Store> store;
    return store;
}

thread_local Session* t_session = nullptr;
thread_local Error t_error;
thread_local ReadObserver* t_observer = nullptr;

bool IsUsersPath(std::wstring_view path)
{
    constexpr std::wstring_view kDefaultUser = L".DEFAULT";
    if (!path.starts_with(kDefaultUser.front())) {
        return false;
    }
    const auto first = path.substr(0, path.find(L'\\'));
    return first.size() == kDefaultUser.size() && CompareNoCase(first, kDefaultUser) == 0;
}

} // namespace

Hive HiveOf(std::wstring_view path)
{
    return IsUsersPath(path) ? Hive::Users : Hive::LocalMachine;
}

namespace {

std::wstring_view TakeComponent(std::wstring_view& path)
{
    path.remove_prefix(std::min(path.find_first_not_of(L'\\'), path.size()));
    const auto component = path.substr(0, path.find(L'\\'));
    path.remove_prefix(component.size());
    return component;
}

// Whether two paths name one key: backslashes at their ends and repeated ones do not count.
bool IsSameKey(std::wstring_view left, std::wstring_view right)
{
    if (HiveOf(left) != HiveOf(right)) {
        return false;
    }
    for (;;) {
        const auto component = TakeComponent(left);
        if (CompareNoCase(component, TakeComponent(right)) != 0) {
            return false;
        }
        if (component.empty()) {
            return true;
        }
    }
}

// The subkey of `key` that is on the way to the key `path`, or is that; empty when `path` does not lie below.
std::wstring_view ChildOn(std::wstring_view path, std::wstring_view key)
{
    if (HiveOf(path) != HiveOf(key)) {
        return {};
    }
    for (;;) {
        const auto component = TakeComponent(key);
        const auto other = TakeComponent(path);
        if (component.empty()) {
            return other;
        }
        if (CompareNoCase(component, other) != 0) {
            return {};
        }
    }
}

} // namespace

void SetCurrentStore(std::shared_ptr<Store> store)
{
    const std::lock_guard lock(StoreMutex());
    StoreSlot().swap(store); // the old one ends once the lock is free
}

std::shared_ptr<Store> CurrentStore(Error& error)
{
    const std::lock_guard lock(StoreMutex());
    auto& slot = StoreSlot();
    if (!slot) {
        slot = OpenStore(DefaultStoreAddress(), {}, error);
    }
    return slot;
}

const Error& LastStoreError() noexcept
{
    return t_error;
}

void ClearStoreError() noexcept
{
    t_error = {};
}

ReadObserver* ObserveReads(ReadObserver* observer) noexcept
{
    if (t_session != nullptr) {
        t_session->Observe(observer);
    }
    return std::exchange(t_observer, observer);
}

Session::Session(Access access) : m_observer(t_observer), m_access(access)
{
    Error error;
    m_store = CurrentStore(error);
    if (m_store) {
        m_transaction = m_store->Begin(access, error);
    }
    if (!m_transaction) {
        Fail(error);
    }
}

Session::~Session() = default;

Outcome Session::Fail(const Error& error)
{
    if (!m_failure) {
        m_failure = error;
    }
    if (!t_error) {
        t_error = error;
    }
    return Outcome::Failed;
}

Outcome Session::Checked(Outcome outcome)
{
    return outcome == Outcome::Failed ? Fail(m_transaction->LastError()) : outcome;
}

Session::Key Session::Open(std::wstring_view path)
{
    const auto hash = std::hash<std::wstring_view>{}(path);
    const auto known = m_byPath.find({hash, path});
    if (known != m_byPath.end()) {
        return known->second;
    }
    const Key key = m_keys.size();
    auto& opened = m_keys.emplace_back();
    opened.path = path;
    m_byPath.emplace(PathHash{hash, opened.path}, key);
    return key;
}

bool Session::Find(OpenedKey& opened)
{
    if (!m_transaction) {
        return false;
    }
    if (opened.state == State::Present || (opened.state == State::Missing && opened.created == m_created)) {
        return opened.state == State::Present;
    }
    if (opened.state == State::Named) {
        m_transaction->CloseKey(opened.id);
    }
    const auto found = Checked(m_transaction->OpenKey(HiveOf(opened.path), opened.path, opened.id));
    opened.state = found == Outcome::Found ? State::Present : State::Missing;
    opened.created = m_created;
    return found == Outcome::Found;
}

bool Session::Exists(Key key)
{
    auto& opened = m_keys[key];
    return Find(opened) || std::any_of(m_overlay.begin(), m_overlay.end(), [&](const WrittenValue& written) {
               return IsSameKey(written.path, opened.path);
           });
}

const Session::WrittenValue* Session::FindWritten(std::wstring_view path, std::wstring_view name) const
{
    // The last write wins.
    for (auto written = m_overlay.rbegin(); written != m_overlay.rend(); ++written) {
        if (CompareNoCase(written->name, name) == 0 && IsSameKey(written->path, path)) {
            return &*written;
        }
    }
    return nullptr;
}

[[gnu::always_inline]] inline Outcome Session::Ask(Key key, std::wstring_view name, ValueView& value)
{
    if (!m_overlay.empty()) {
        if (const auto* written = FindWritten(m_keys[key].path, name)) {
            value = {written->type, written->data};
            return Outcome::Found;
        }
    }
    auto& opened = m_keys[key];
    if (opened.state == State::New && m_transaction && m_transaction->HasPathQueries()) {
        const auto named = Checked(m_transaction->NameKey(HiveOf(opened.path), opened.path, opened.id));
        opened.state = named == Outcome::Found ? State::Named : State::Missing;
        opened.created = m_created;
    }
    if (opened.state == State::Named) {
        const auto outcome = Checked(m_transaction->Query(opened.id, name, value));
        if (outcome == Outcome::Found) {
            opened.state = State::Present;
        } else if (outcome == Outcome::Missing) {
            Find(opened); // a key that does not exist is not asked again
        }
        return outcome;
    }
    return Find(opened) ? Checked(m_transaction->Query(opened.id, name, value)) : Outcome::Missing;
}

Outcome Session::Query(Key key, std::wstring_view name, ValueView& value)
{
    const auto outcome = Ask(key, name, value);
    if (m_observer != nullptr) {
        m_observer->Asked(m_keys[key].path, name, outcome, value);
    }
    return outcome;
}

Outcome Session::QueryAt(std::wstring_view path, std::wstring_view name, ValueView& value)
{
    const auto outcome = AskAt(path, name, value);
    if (m_observer != nullptr) {
        m_observer->Asked(path, name, outcome, value);
    }
    return outcome;
}

Outcome Session::AskAt(std::wstring_view path, std::wstring_view name, ValueView& value)
{
    if (!m_overlay.empty()) {
        if (const auto* written = FindWritten(path, name)) {
            value = {written->type, written->data};
            return Outcome::Found;
        }
    }
    if (!m_transaction) {
        return Outcome::Failed;
    }
    if (!m_transaction->HasPathQueries()) {
        return Ask(Open(path), name, value);
    }
    return Checked(m_transaction->QueryAt(HiveOf(path), path, name, value));
}

namespace {

// Goes through names in order, those of the store and those that were written meanwhile, each once.
template <class Added, class NameOf, class Visit>
class Merged
{
  public:
    Merged(std::vector<Added> added, NameOf nameOf, Visit visit)
        : m_added(std::move(added)), m_nameOf(nameOf), m_visit(visit), m_next(m_added.begin())
    {
        const auto isLess = [&](const Added& left, const Added& right) {
            return CompareNoCase(m_nameOf(left), m_nameOf(right)) < 0;
        };
        std::stable_sort(m_added.begin(), m_added.end(), isLess);
        // The last write of a name stands.
        const auto last = std::unique(m_added.rbegin(), m_added.rend(), [&](const Added& left, const Added& right) {
                              return CompareNoCase(m_nameOf(left), m_nameOf(right)) == 0;
                          }).base();
        m_next = last;
    }

    // Those that were added and come before a name of the store, whose place `same` tells of. False to stop.
    bool Before(std::wstring_view name, const Added*& same)
    {
        same = nullptr;
        for (; m_next != m_added.end(); ++m_next) {
            const auto order = CompareNoCase(m_nameOf(*m_next), name);
            if (order > 0) {
                return true;
            }
            if (order == 0) {
                same = &*m_next++;
                return true;
            }
            if (!m_visit(*m_next)) {
                m_next = m_added.end();
                return false;
            }
        }
        return true;
    }
    void Stop() { m_next = m_added.end(); }
    void Rest()
    {
        while (m_next != m_added.end() && m_visit(*m_next)) {
            ++m_next;
        }
    }

  private:
    std::vector<Added> m_added;
    NameOf m_nameOf;
    Visit m_visit;
    typename std::vector<Added>::iterator m_next;
};

} // namespace

Outcome Session::EnumKeys(Key key, const KeyVisitor& visit)
{
    auto& opened = m_keys[key];
    if (m_observer != nullptr) {
        m_observer->AskedAll(opened.path, true);
    }
    const bool isThere = Find(opened);
    std::vector<std::wstring_view> added;
    for (const auto& written : m_overlay) {
        if (const auto child = ChildOn(written.path, opened.path); !child.empty()) {
            added.push_back(child);
        }
    }
    if (added.empty()) {
        return isThere ? Checked(m_transaction->EnumKeys(opened.id, visit)) : Outcome::Missing;
    }
    Merged merged(
        std::move(added), [](std::wstring_view name) { return name; }, visit);
    auto outcome = Outcome::Found;
    if (isThere) {
        outcome = Checked(m_transaction->EnumKeys(opened.id, [&](std::wstring_view name) {
            const std::wstring_view* same = nullptr;
            if (!merged.Before(name, same)) {
                return false;
            }
            const bool goesOn = visit(name);
            if (!goesOn) {
                merged.Stop();
            }
            return goesOn;
        }));
    }
    if (outcome == Outcome::Found) {
        merged.Rest();
    }
    return outcome;
}

Outcome Session::EnumValues(Key key, const ValueVisitor& visit)
{
    auto& opened = m_keys[key];
    if (m_observer != nullptr) {
        m_observer->AskedAll(opened.path, false);
    }
    const bool isThere = Find(opened);
    std::vector<const WrittenValue*> added;
    for (const auto& written : m_overlay) {
        if (IsSameKey(written.path, opened.path)) {
            added.push_back(&written);
        }
    }
    if (added.empty()) {
        return isThere ? Checked(m_transaction->EnumValues(opened.id, visit)) : Outcome::Missing;
    }
    Merged merged(
        std::move(added), [](const WrittenValue* written) { return std::wstring_view(written->name); },
        [&](const WrittenValue* written) {
            return visit(written->name, {written->type, written->data});
        });
    auto outcome = Outcome::Found;
    if (isThere) {
        outcome = Checked(m_transaction->EnumValues(opened.id, [&](std::wstring_view name, const ValueView& value) {
            const WrittenValue* const* same = nullptr;
            if (!merged.Before(name, same)) {
                return false;
            }
            const bool goesOn = visit(name, same != nullptr ? ValueView{(*same)->type, (*same)->data} : value);
            if (!goesOn) {
                merged.Stop();
            }
            return goesOn;
        }));
    }
    if (outcome == Outcome::Found) {
        merged.Rest();
    }
    return outcome;
}

Outcome Session::Set(Key key, std::wstring_view name, const ValueView& value)
{
    if (!m_transaction) {
        return Outcome::Failed;
    }
    auto& opened = m_keys[key];
    if (opened.state != State::Present) {
        const auto created = Checked(m_transaction->CreateKey(HiveOf(opened.path), opened.path, opened.id));
        if (created != Outcome::Found) {
            return created;
        }
        opened.state = State::Present;
        ++m_created;
    }
    const auto outcome = Checked(m_transaction->SetValue(opened.id, name, value));
    if (outcome == Outcome::Found && m_recordWrites) {
        m_written.push_back(
            {opened.path, std::wstring(name), value.type, std::vector(value.data.begin(), value.data.end())});
    }
    return outcome;
}

Outcome Session::Commit(bool flush)
{
    if (!m_transaction) {
        return Outcome::Failed;
    }
    const auto outcome = Checked(m_transaction->Commit(flush));
    m_transaction.reset();
    return outcome;
}

ReadScope::ReadScope() : m_session(t_session)
{
    if (!m_session) {
        m_session = &m_own.emplace(Access::Read);
        t_session = m_session;
    }
}

ReadScope::~ReadScope()
{
    if (m_own) {
        t_session = nullptr;
    }
}

WriteScope::WriteScope(ExceptionCount inFlight)
    : m_session(t_session), m_outer(t_session), m_inFlight(inFlight), m_exceptions(inFlight())
{
    if (!m_session || m_session->GetAccess() == Access::Read) {
        m_session = &m_own.emplace(Access::Write);
        m_session->m_recordWrites = m_outer != nullptr;
        t_session = m_session;
    }
}

WriteScope::~WriteScope()
{
    if (m_inFlight() > m_exceptions) {
        m_session->Refuse({ErrorKind::Io, "the write was abandoned"});
    }
    Commit();
}

void WriteScope::Flush() noexcept
{
    m_session->m_flush = true;
}

bool WriteScope::Commit()
{
    if (!m_own) {
        return !m_session->Failure();
    }
    if (!m_done) {
        m_done = true;
        t_session = m_outer;
        if (!m_own->Failure()) {
            m_own->Commit(m_own->m_flush);
        }
        for (const auto& call : m_own->m_atEnd) {
            call(!m_own->Failure());
        }
        if (m_outer) {
            if (m_own->Failure()) {
                m_outer->Fail(m_own->Failure());
            } else {
                auto& written = m_own->m_written;
                std::move(written.begin(), written.end(), std::back_inserter(m_outer->m_overlay));
            }
        }
    }
    return !m_own->Failure();
}

} // namespace wqspcfg
