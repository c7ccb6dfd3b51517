#include "wqspcfg/platform/store/memory/MemoryStore.h"

#include "wqspcfg/platform/store/FlatTransaction.h"
#include "wqspcfg/platform/store/ForkSafe.h"

#include <algorithm>
#include <atomic>
#include <vector>

namespace wqspcfg {

namespace {

struct Entry
{
    std::string name;
    std::string record;
};

// Names in order, short enough to be copied for a single change.
struct Chunk
{
    static constexpr std::size_t kMost = 128;

    std::vector<std::shared_ptr<const Entry>> entries;
    const void* owner = nullptr; // the write transaction that may still change it
};

} // namespace

// One state of the store: the chunks in order, none of them empty. States share the chunks in which they do not differ.
struct MemoryState
{
    std::vector<std::shared_ptr<Chunk>> chunks;
};

// The registry's rules over one state.
class MemoryEngine
{
  public:
    static constexpr bool kChecked = false;

    MemoryEngine(MemoryStore& store, Access access, std::unique_lock<std::mutex> writerLock)
        : m_store(store), m_writerLock(std::move(writerLock)), m_shared(store.Current())
    {
        if (access == Access::Write) {
            m_own = std::make_shared<MemoryState>(*m_shared);
            m_store.m_writer = std::this_thread::get_id();
        }
    }

    ~MemoryEngine() { EndWriting(); }
    MemoryEngine(const MemoryEngine&) = delete;
    MemoryEngine& operator=(const MemoryEngine&) = delete;

    const std::string& Address() const { return m_store.Address(); }
    std::size_t NameRoom() const { return m_store.NameRoom(); }
    const Error& Failure() const { return m_failure; }
    bool CanWrite() const { return m_own != nullptr; }

    bool Usable()
    {
        if (m_over) {
            m_failure = {ErrorKind::BadArgument, Address() + ": the transaction is over"};
        }
        return !m_over;
    }

    Lookup Get(std::string_view name, Locality, std::string_view& record) const
    {
        const auto at = Find(name);
        if (!at.exact) {
            return Lookup::Absent;
        }
        record = At(at).record;
        return Lookup::Found;
    }

    bool ScanChecks() const { return true; } // there are none

    template <class Visit>
    Lookup Scan(std::string_view prefix, Visit visit) const
    {
        const auto& chunks = State().chunks;
        auto at = Find(prefix);
        for (; at.chunk < chunks.size(); ++at.chunk, at.entry = 0) {
            const auto& entries = chunks[at.chunk]->entries;
            for (; at.entry < entries.size(); ++at.entry) {
                const auto& entry = *entries[at.entry];
                if (!entry.name.starts_with(prefix) || !visit(std::string_view(entry.name), entry.record)) {
                    return Lookup::Found;
                }
            }
        }
        return Lookup::Found;
    }

    Lookup Put(std::string_view name, std::string_view record, bool)
    {
        auto entry = std::make_shared<const Entry>(Entry{std::string(name), std::string(record)});
        auto at = Find(name);
        auto& chunks = m_own->chunks;
        if (chunks.empty()) {
            chunks.push_back(std::make_shared<Chunk>());
            chunks.back()->owner = this;
        } else if (at.chunk == chunks.size()) {
            // Behind the last name: goes on in the last chunk.
            at.chunk = chunks.size() - 1;
            at.entry = chunks.back()->entries.size();
        }
        auto* chunk = &Writable(at.chunk);
        if (at.exact) {
            chunk->entries[at.entry] = std::move(entry);
            return Lookup::Found;
        }
        if (chunk->entries.size() >= Chunk::kMost) {
            const bool append = at.chunk + 1 == chunks.size() && at.entry == chunk->entries.size();
            const auto kept = append ? chunk->entries.size() : chunk->entries.size() / 2;
            auto second = std::make_shared<Chunk>();
            second->owner = this;
            const auto split = chunk->entries.begin() + static_cast<std::ptrdiff_t>(kept);
            second->entries.assign(split, chunk->entries.end());
            chunk->entries.erase(split, chunk->entries.end());
            if (at.entry > kept || append) {
                at.entry -= kept;
                chunk = second.get();
            }
            chunks.insert(chunks.begin() + static_cast<std::ptrdiff_t>(at.chunk) + 1, std::move(second));
        }
        chunk->entries.insert(chunk->entries.begin() + static_cast<std::ptrdiff_t>(at.entry), std::move(entry));
        return Lookup::Found;
    }

    Lookup Erase(std::string_view name)
    {
        const auto at = Find(name);
        if (!at.exact) {
            return Lookup::Absent;
        }
        EraseRange(at.chunk, at.entry, at.entry + 1);
        return Lookup::Found;
    }

    Lookup ErasePrefix(std::string_view prefix)
    {
        for (;;) {
            const auto at = Find(prefix);
            if (at.chunk == m_own->chunks.size()) {
                return Lookup::Found;
            }
            const auto& entries = m_own->chunks[at.chunk]->entries;
            auto end = at.entry;
            while (end < entries.size() && entries[end]->name.starts_with(prefix)) {
                ++end;
            }
            if (end == at.entry) {
                return Lookup::Found;
            }
            EraseRange(at.chunk, at.entry, end);
        }
    }

    Lookup Commit(bool)
    {
        // The owner's mark is an address that a later transaction may get again.
        for (const auto& chunk : m_own->chunks) {
            if (chunk->owner == this) {
                chunk->owner = nullptr;
            }
        }
        std::shared_ptr<const MemoryState> state = std::move(m_own); // the old one ends once the lock is free
        {
            const std::lock_guard lock(ForkSafeMutex(ForkSafe::MemoryStates));
            m_store.m_state.swap(state);
        }
        m_over = true;
        EndWriting();
        return Lookup::Found;
    }

  private:
    struct Position
    {
        std::size_t chunk;
        std::size_t entry;
        bool exact;
    };

    const MemoryState& State() const { return m_own ? *m_own : *m_shared; }
    const Entry& At(const Position& at) const { return *State().chunks[at.chunk]->entries[at.entry]; }

    // The first name that is not less.
    Position Find(std::string_view name) const
    {
        const auto& chunks = State().chunks;
        const auto chunk =
            std::lower_bound(chunks.begin(), chunks.end(), name, [](const auto& each, std::string_view wanted) {
                return each->entries.back()->name < wanted;
            });
        if (chunk == chunks.end()) {
            return {chunks.size(), 0, false};
        }
        const auto& entries = (*chunk)->entries;
        const auto entry =
            std::lower_bound(entries.begin(), entries.end(), name,
                             [](const auto& each, std::string_view wanted) { return each->name < wanted; });
        return {static_cast<std::size_t>(chunk - chunks.begin()), static_cast<std::size_t>(entry - entries.begin()),
                (*entry)->name == name};
    }

    Chunk& Writable(std::size_t index)
    {
        auto& chunk = m_own->chunks[index];
        if (chunk->owner != this) {
            auto copy = std::make_shared<Chunk>(*chunk);
            copy->owner = this;
            chunk = std::move(copy);
        }
        return *chunk;
    }

    void EraseRange(std::size_t index, std::size_t first, std::size_t last)
    {
        auto& chunks = m_own->chunks;
        if (last - first == chunks[index]->entries.size()) {
            chunks.erase(chunks.begin() + static_cast<std::ptrdiff_t>(index));
            return;
        }
        auto& entries = Writable(index).entries;
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(first),
                      entries.begin() + static_cast<std::ptrdiff_t>(last));
    }

    void EndWriting()
    {
        if (m_writerLock.owns_lock()) {
            m_store.m_writer = std::thread::id();
            m_writerLock.unlock();
        }
    }

    MemoryStore& m_store;
    std::unique_lock<std::mutex> m_writerLock;
    std::shared_ptr<const MemoryState> m_shared;
    std::shared_ptr<MemoryState> m_own;
    Error m_failure;
    bool m_over = false;
};

MemoryStore::MemoryStore(std::string address, std::size_t nameRoom)
    : m_address(std::move(address)), m_nameRoom(nameRoom), m_state(std::make_shared<const MemoryState>())
{}

MemoryStore::~MemoryStore() = default;

std::shared_ptr<const MemoryState> MemoryStore::Current() const
{
    const std::lock_guard lock(ForkSafeMutex(ForkSafe::MemoryStates));
    return m_state;
}

std::unique_ptr<Transaction> MemoryStore::Begin(Access access, Error& error)
{
    std::unique_lock<std::mutex> writerLock;
    if (access == Access::Write) {
        if (m_writer == std::this_thread::get_id()) {
            error = {ErrorKind::BadArgument, m_address + ": this thread is already writing to the store"};
            return nullptr;
        }
        writerLock = std::unique_lock(m_writerMutex);
    }
    return std::make_unique<FlatTransaction<MemoryEngine>>(*this, access, std::move(writerLock));
}

} // namespace wqspcfg
