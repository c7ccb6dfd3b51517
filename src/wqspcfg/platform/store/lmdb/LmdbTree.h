// Reads one state of an LMDB data file and trusts nothing that stands in it.
//
// LMDB itself follows whatever offsets and page numbers it finds, so that a damaged file can crash it, send it into a
// wrong page or make values vanish. Here every page number, offset and length is checked before it is followed. A value
// that is found proves itself by its check sum. That a name is absent is believed only after the pages on the way to
// its place were found whole: no node lost, all names in order and within the bounds that the page above gives them,
// every record of the leaf with its check sum right.
#pragma once

#include "wqspcfg/platform/store/FlatTransaction.h"
#include "wqspcfg/platform/store/PosixFile.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg {

// A data file in memory, for reading.
class LmdbMap
{
  public:
    LmdbMap() = default;
    ~LmdbMap() { Close(); }
    LmdbMap(const LmdbMap&) = delete;
    LmdbMap& operator=(const LmdbMap&) = delete;

    // Maps the open file with room to grow. An errno value, or 0.
    int Open(int file, std::size_t room);
    // Reads the file into memory instead: what becomes of it later does not matter. An errno value, or 0.
    int Read(int file);
    void Close() noexcept;
    const char* Data() const noexcept { return m_data; }
    // How much of the map is backed by the file now; touching more of it would end the process.
    std::size_t Size() const noexcept;
    std::size_t Room() const noexcept { return m_room; }

  private:
    FileDescriptor m_file; // of a mapped one
    const char* m_data = nullptr;
    std::size_t m_room = 0;
};

class LmdbTree
{
  public:
    // The state that transaction number `transaction` left. False when the file does not hold that state (any more).
    // `size` is the file's, as it was before that transaction began or later.
    bool Open(const LmdbMap& map, std::size_t size, std::uint64_t transaction);
    // The same of a copy in memory, which it keeps.
    bool Open(std::shared_ptr<const LmdbMap> copy, std::uint64_t transaction);

    Lookup Get(std::string_view name, Locality locality, std::string_view& record);

    // All names with the prefix in order, until visit(name, record) is false.
    template <class Visit>
    Lookup Scan(std::string_view prefix, Visit visit)
    {
        for (auto found = Seek(prefix); found != Lookup::Absent; found = Next()) {
            std::string_view name;
            std::string_view record;
            if (found == Lookup::Failed || !Current(name, record)) {
                return Lookup::Failed;
            }
            if (!name.starts_with(prefix) || !visit(name, record)) {
                break;
            }
        }
        return Lookup::Found;
    }

    // Whether every page of the store is sound and in its place, and no page that is in use counts as free. What LMDB
    // needs to write without harm.
    bool VerifyStructure();

    // How many pages hold the content and the structure, and how many are free. False when the list is damaged.
    bool CountPages(std::uint64_t& used, std::uint64_t& free);
    std::size_t PageSize() const noexcept { return m_pageSize; }

    // What is damaged, after a call that failed.
    const std::string& Cause() const noexcept { return m_cause; }

  private:
    static constexpr std::size_t kMaxDepth = 32; // LMDB's own limit

    struct Page
    {
        const char* data;
        std::uint64_t number;
        std::size_t count; // nodes
        std::size_t upper; // where they begin
    };

    struct Level
    {
        Page page;
        std::size_t index;
    };

    // A page that was found whole, with the place above that leads to it and gives it its bounds.
    struct Verified
    {
        std::uint64_t number = 0;
        std::uint64_t above = 0;
        std::size_t index = 0;
        bool operator==(const Verified&) const = default;
    };

    struct Node
    {
        std::uint16_t low = 0;
        std::uint16_t high = 0;
        std::uint16_t flags = 0;
        std::string_view name;
        const char* data = nullptr; // behind the name
        std::size_t room = 0;       // from there to the page's end
        std::uint64_t Child() const noexcept;
        std::size_t Size() const noexcept;
    };

    // Names allowed on a page: not before `first`, and before `end` unless that is empty.
    struct Bounds
    {
        std::string_view first;
        std::string_view end;
    };

    // From the first name on a leaf to its last, and how many bytes those have in common.
    struct Range
    {
        std::uint64_t number = 0;
        std::string_view first;
        std::string_view last;
        std::size_t same = 0;
    };

    // How many bytes the nearest known names on either side of a place share with the name that is looked for.
    struct Common
    {
        std::size_t below = 0;
        std::size_t above = 0;
    };

    bool Damaged(std::string cause);
    bool DamagedPage(std::uint64_t number, std::string_view cause);
    const char* Locate(std::uint64_t number, std::uint64_t count);
    bool Load(std::uint64_t number, std::uint16_t kind, Page& page);
    bool ReadNode(const Page& page, std::size_t index, Node& node);
    bool ReadRecord(const Page& page, const Node& node, std::string_view& record, std::uint64_t* overflow = nullptr);
    bool Search(const Page& page, std::size_t from, std::string_view name, Common& common, std::size_t& index,
                bool& exact);
    bool Descend(std::string_view name, bool& exact);
    bool DescendToEdge(std::size_t level, bool toLast);
    bool BoundsOf(std::size_t level, Bounds& bounds);
    bool VerifyPage(const Page& page, bool isLeaf, const Bounds& bounds, bool checkSums);
    bool VerifyPath();
    Lookup ConfirmAbsent(std::string_view name);
    Lookup Seek(std::string_view name);
    Lookup Next();
    bool Current(std::string_view& name, std::string_view& record);

    struct Usage;
    bool VerifyBranch(const lmdb::Tree& tree, std::uint64_t number, std::size_t depth, const Bounds& bounds,
                      Usage& usage);

    const LmdbMap* m_map = nullptr;
    std::shared_ptr<const LmdbMap> m_copy;
    std::size_t m_size = 0; // of the file, when last looked at
    std::size_t m_pageSize = 0;
    lmdb::Meta m_meta{};
    std::size_t m_depth = 0;
    std::array<Level, kMaxDepth> m_levels; // as many as the tree is deep are set; see m_placed
    std::vector<Verified> m_verified;      // by the low bits of the page's number; empty until one is needed
    Range m_range;
    bool m_stays = false;  // the last two look-ups ended on one leaf
    bool m_placed = false; // m_levels lead to a leaf
    std::string m_cause;
};

} // namespace wqspcfg
