#include "wqspcfg/platform/store/lmdb/LmdbTree.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wqspcfg {

namespace {

template <class T>
T ReadAt(const char* from)
{
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

constexpr std::size_t kPageHeader = sizeof(lmdb::PageHeader);
constexpr std::size_t kNodeHeader = sizeof(lmdb::NodeHeader);
constexpr std::size_t kFirstPage = 2; // behind the two heads

// Compares two names that begin with the same `same` bytes, and leaves in it how many they do have in common.
[[gnu::always_inline]] inline int CompareFrom(std::string_view left, std::string_view right, std::size_t& same)
{
    const auto size = std::min(left.size(), right.size());
    auto at = std::min(same, size);
    if (size < 8) {
        while (at < size && left[at] == right[at]) {
            ++at;
        }
        if (at < size) {
            same = at;
            return static_cast<unsigned char>(left[at]) < static_cast<unsigned char>(right[at]) ? -1 : 1;
        }
    }
    while (at < size) {
        const auto from = std::min(at, size - 8); // the last word begins within what is equal
        const auto a = ReadAt<std::uint64_t>(left.data() + from);
        const auto b = ReadAt<std::uint64_t>(right.data() + from);
        if (a != b) {
            same = from + static_cast<std::size_t>(std::countr_zero(a ^ b)) / 8;
            return __builtin_bswap64(a) < __builtin_bswap64(b) ? -1 : 1;
        }
        at = from + 8;
    }
    same = size;
    return left.size() == right.size() ? 0 : (left.size() < right.size() ? -1 : 1);
}

std::size_t Even(std::size_t size)
{
    return (size + 1) & ~std::size_t{1};
}

// Checks the sums of records whose names come in order: most share what their sums begin with, the key's path.
class SumChecker
{
  public:
    bool IsSealed(std::string_view name, std::string_view record)
    {
        if (m_prefix.empty() || !name.starts_with(m_prefix)) {
            const auto mark = name.find('\0');
            if (mark == 0 || mark == std::string_view::npos) {
                return wqspcfg::IsSealed(NameSum(name), {}, record); // no value or key
            }
            m_prefix = name.substr(0, mark + 2);
            m_sum = NameSum(m_prefix);
        }
        return wqspcfg::IsSealed(m_sum, name.substr(m_prefix.size()), record);
    }

  private:
    std::string_view m_prefix;
    std::uint64_t m_sum = 0;
};

} // namespace

int LmdbMap::Open(int file, std::size_t room)
{
    m_file = FileDescriptor(fcntl(file, F_DUPFD_CLOEXEC, kLeastDescriptor));
    auto* data = m_file ? mmap(nullptr, room, PROT_READ, MAP_SHARED, file, 0) : MAP_FAILED;
    if (data == MAP_FAILED) {
        const auto status = errno;
        m_file.Close();
        return status;
    }
    m_data = static_cast<const char*>(data);
    m_room = room;
    return 0;
}

int LmdbMap::Read(int file)
{
    struct stat status = {};
    if (fstat(file, &status) != 0) {
        return errno;
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    auto* data = mmap(nullptr, std::max(size, std::size_t{1}), PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (data == MAP_FAILED) {
        return errno;
    }
    m_data = static_cast<const char*>(data);
    m_room = std::max(size, std::size_t{1});
    for (std::size_t at = 0; at < size;) {
        const auto got = pread(file, static_cast<char*>(data) + at, size - at, static_cast<off_t>(at));
        if (got == 0 || (got < 0 && errno != EINTR)) {
            return got == 0 ? EIO : errno;
        }
        at += got < 0 ? 0 : static_cast<std::size_t>(got);
    }
    return 0;
}

void LmdbMap::Close() noexcept
{
    if (m_data != nullptr) {
        munmap(const_cast<char*>(m_data), m_room);
        m_data = nullptr;
    }
    m_file.Close();
}

std::size_t LmdbMap::Size() const noexcept
{
    struct stat status = {};
    if (!m_file) {
        return m_room; // in memory
    }
    return fstat(m_file.Get(), &status) == 0 ? std::min(static_cast<std::size_t>(status.st_size), m_room) : 0;
}

std::uint64_t LmdbTree::Node::Child() const noexcept
{
    return low | (std::uint64_t{high} << 16) | (std::uint64_t{flags} << 32);
}

std::size_t LmdbTree::Node::Size() const noexcept
{
    return low | (std::size_t{high} << 16);
}

bool LmdbTree::Damaged(std::string cause)
{
    m_cause = std::move(cause);
    m_placed = false;
    return false;
}

bool LmdbTree::DamagedPage(std::uint64_t number, std::string_view cause)
{
    return Damaged("page " + std::to_string(number) + ' ' + std::string(cause));
}

bool LmdbTree::Open(const LmdbMap& map, std::size_t size, std::uint64_t transaction)
{
    m_map = &map;
    m_size = std::min(size, map.Room());
    m_placed = false;
    m_verified.clear();
    m_range = {};
    if (m_size < kPageHeader + sizeof m_meta) {
        return Damaged("it is cut short");
    }
    m_pageSize = ReadAt<lmdb::Meta>(map.Data() + kPageHeader).freeList.pad;
    if (m_pageSize < lmdb::kMinPageSize || m_pageSize > lmdb::kMaxPageSize || m_size < 2 * m_pageSize) {
        return Damaged("its first head is damaged");
    }
    // A later writer may be replacing this head right now.
    const auto* head = map.Data() + (transaction & 1) * m_pageSize + kPageHeader;
    const auto number = [head] {
        const auto* at = reinterpret_cast<const std::uint64_t*>(head + offsetof(lmdb::Meta, transaction));
        return __atomic_load_n(at, __ATOMIC_ACQUIRE);
    };
    const auto before = number();
    m_meta = ReadAt<lmdb::Meta>(head);
    __atomic_thread_fence(__ATOMIC_ACQUIRE);
    if (before != transaction || number() != transaction) {
        return Damaged("its head is of another transaction");
    }
    if (m_meta.lastPage > lmdb::MostPages(m_size / m_pageSize)) {
        return Damaged("its head gives an impossible length");
    }
    m_depth = m_meta.main.root == lmdb::kNoPage ? 0 : m_meta.main.depth;
    if (m_depth >= kMaxDepth || (m_depth == 0) != (m_meta.main.root == lmdb::kNoPage)) {
        return Damaged("its head gives an impossible depth");
    }
    return true;
}

bool LmdbTree::Open(std::shared_ptr<const LmdbMap> copy, std::uint64_t transaction)
{
    m_copy = std::move(copy);
    return Open(*m_copy, m_copy->Room(), transaction);
}

// The start of `count` pages, or null when they do not all lie within the file.
const char* LmdbTree::Locate(std::uint64_t number, std::uint64_t count)
{
    const auto last = m_meta.lastPage;
    if (number < kFirstPage || count == 0 || number > last || count - 1 > last - number ||
        last > ~std::uint64_t{0} / m_pageSize - 1) {
        return nullptr;
    }
    const auto end = (number + count) * m_pageSize;
    if (end > m_size) {
        m_size = m_map->Size();
        if (end > m_size) {
            return nullptr;
        }
    }
    return m_map->Data() + number * m_pageSize;
}

bool LmdbTree::Load(std::uint64_t number, std::uint16_t kind, Page& page)
{
    const auto* data = Locate(number, 1);
    if (data == nullptr) {
        return DamagedPage(number, "lies outside the file");
    }
    const auto header = ReadAt<lmdb::PageHeader>(data);
    if (header.number != number || header.flags != kind) {
        return DamagedPage(number, "is not the page that should be there");
    }
    const std::size_t lower = header.lower;
    const std::size_t upper = header.upper;
    if (lower < kPageHeader + 2 || lower % 2 != 0 || lower > upper || upper > m_pageSize) {
        return DamagedPage(number, "has impossible bounds");
    }
    page = {data, number, (lower - kPageHeader) / 2, upper};
    return true;
}

inline bool LmdbTree::ReadNode(const Page& page, std::size_t index, Node& node)
{
    const std::size_t offset = ReadAt<std::uint16_t>(page.data + kPageHeader + index * 2);
    if (offset < page.upper || offset + kNodeHeader > m_pageSize) {
        return DamagedPage(page.number, "has a node outside of it");
    }
    const auto header = ReadAt<lmdb::NodeHeader>(page.data + offset);
    const auto behind = offset + kNodeHeader + header.keySize;
    if (behind > m_pageSize) {
        return DamagedPage(page.number, "has a name that runs out of it");
    }
    node = {header.low,         header.high,        header.flags, {page.data + offset + kNodeHeader, header.keySize},
            page.data + behind, m_pageSize - behind};
    return true;
}

bool LmdbTree::ReadRecord(const Page& page, const Node& node, std::string_view& record, std::uint64_t* overflow)
{
    const auto size = node.Size();
    if (node.flags == 0) {
        if (size > node.room) {
            return DamagedPage(page.number, "has a value that runs out of it");
        }
        record = {node.data, size};
        return true;
    }
    if (node.flags != lmdb::kBigData || node.room < sizeof(std::uint64_t)) {
        return DamagedPage(page.number, "has a node of an unknown kind");
    }
    const auto number = ReadAt<std::uint64_t>(node.data);
    const auto* data = Locate(number, 1);
    if (data == nullptr) {
        return DamagedPage(number, "lies outside the file");
    }
    const auto header = ReadAt<lmdb::PageHeader>(data);
    const auto pages = header.lower | (std::uint64_t{header.upper} << 16);
    if (header.number != number || header.flags != lmdb::kOverflowPage || Locate(number, pages) == nullptr ||
        size > pages * m_pageSize - kPageHeader) {
        return DamagedPage(number, "is not the page that should be there");
    }
    if (overflow != nullptr) {
        overflow[0] = number;
        overflow[1] = pages;
    }
    record = {data + kPageHeader, size};
    return true;
}

// The first node from `from` on whose name is not less. What the names on both sides of a place have in common with the
// one that is looked for, every name between them has too, and it is not compared again. (On a damaged page that may be
// wrong; the record's check sum is over the name that is looked for.)
bool LmdbTree::Search(const Page& page, std::size_t from, std::string_view name, Common& common, std::size_t& index,
                      bool& exact)
{
    auto low = from;
    auto high = page.count;
    exact = false;
    while (low < high) {
        const auto middle = (low + high) / 2;
        Node node;
        if (!ReadNode(page, middle, node)) {
            return false;
        }
        auto same = std::min(common.below, common.above);
        const auto order = CompareFrom(node.name, name, same);
        if (order < 0) {
            low = middle + 1;
            common.below = same;
        } else {
            high = middle;
            exact = order == 0;
            if (exact) {
                common.below = same;
                break;
            }
            common.above = same;
        }
    }
    index = high;
    return true;
}

// Leads m_levels to the place of `name`; its leaf index may be the page's count.
bool LmdbTree::Descend(std::string_view name, bool& exact)
{
    m_placed = false;
    auto number = m_meta.main.root;
    Common common;
    for (std::size_t depth = 0;; ++depth) {
        auto& level = m_levels[depth];
        const bool isLeaf = depth + 1 == m_depth;
        if (!Load(number, isLeaf ? lmdb::kLeafPage : lmdb::kBranchPage, level.page) ||
            !Search(level.page, isLeaf ? 0 : 1, name, common, level.index, exact)) {
            return false;
        }
        if (isLeaf) {
            m_placed = true;
            return true;
        }
        // A branch's node leads to the names from its own on; the first one's counts as the least.
        if (!exact) {
            --level.index;
        }
        Node node;
        if (!ReadNode(level.page, level.index, node)) {
            return false;
        }
        number = node.Child();
    }
}

// From the node at `level` down to the first or the last name below it.
bool LmdbTree::DescendToEdge(std::size_t level, bool toLast)
{
    m_placed = false;
    for (; level + 1 < m_depth; ++level) {
        Node node;
        if (!ReadNode(m_levels[level].page, m_levels[level].index, node)) {
            return false;
        }
        auto& below = m_levels[level + 1];
        if (!Load(node.Child(), level + 2 == m_depth ? lmdb::kLeafPage : lmdb::kBranchPage, below.page)) {
            return false;
        }
        below.index = toLast ? below.page.count - 1 : 0;
    }
    m_placed = true;
    return true;
}

// What the pages above allow on the page at `level`.
bool LmdbTree::BoundsOf(std::size_t level, Bounds& bounds)
{
    bounds = {};
    for (std::size_t above = 0; above < level; ++above) {
        const auto& parent = m_levels[above];
        Node node;
        if (parent.index > 0) {
            if (!ReadNode(parent.page, parent.index, node)) {
                return false;
            }
            bounds.first = node.name;
        }
        if (parent.index + 1 < parent.page.count) {
            if (!ReadNode(parent.page, parent.index + 1, node)) {
                return false;
            }
            bounds.end = node.name;
        }
    }
    return true;
}

bool LmdbTree::VerifyPage(const Page& page, bool isLeaf, const Bounds& bounds, bool checkSums)
{
    const std::size_t first = isLeaf ? 0 : 1; // a branch's first name does not count
    std::size_t used = 0;
    std::string_view previous;
    SumChecker sums;
    for (std::size_t i = 0; i < page.count; ++i) {
        Node node;
        if (!ReadNode(page, i, node)) {
            return false;
        }
        std::string_view record;
        if (isLeaf && !ReadRecord(page, node, record)) {
            return false;
        }
        const auto dataSize = isLeaf ? (node.flags == 0 ? record.size() : sizeof(std::uint64_t)) : 0;
        used += Even(kNodeHeader + node.name.size() + dataSize);
        if (i >= first) {
            if (i > first ? node.name <= previous : node.name < bounds.first) {
                return DamagedPage(page.number, "has names out of order");
            }
            previous = node.name;
        }
        if (checkSums && isLeaf && !sums.IsSealed(node.name, record)) {
            return DamagedPage(page.number, "has a record whose check sum is wrong");
        }
    }
    if (!bounds.end.empty() && page.count > first && previous >= bounds.end) {
        return DamagedPage(page.number, "has names out of order");
    }
    return used == m_pageSize - page.upper || DamagedPage(page.number, "has lost or gained nodes");
}

// The pages from the root to the current leaf. A page does not change while this state is read: it is looked through
// once, as long as its place in the list of those that were is not taken by another. Below a page that is looked
// through all are, since a damaged page above may lead to it from two places, which give those below it other bounds.
bool LmdbTree::VerifyPath()
{
    constexpr std::size_t kRemembered = 64;
    m_verified.resize(kRemembered);
    Verified path;
    bool isKnown = true;
    for (std::size_t level = 0; level < m_depth; ++level) {
        const auto& page = m_levels[level].page;
        path.number = page.number;
        auto& known = m_verified[page.number % m_verified.size()];
        isKnown = isKnown && known == path;
        if (!isKnown) {
            Bounds bounds;
            if (!BoundsOf(level, bounds) || !VerifyPage(page, level + 1 == m_depth, bounds, true)) {
                m_verified.clear();
                return false;
            }
            known = path;
        }
        path.above = page.number;
        path.index = m_levels[level].index;
    }
    return true;
}

// The leaf in which the name should stand does not have it, and it is the right leaf: the page above says so (its
// bounds hold), and the name lies between two of the leaf's own or towards a neighbour that begins beyond it.
Lookup LmdbTree::ConfirmAbsent(std::string_view name)
{
    if (!VerifyPath()) {
        return Lookup::Failed;
    }
    const auto& leaf = m_levels[m_depth - 1];
    if (leaf.index > 0 && leaf.index < leaf.page.count) {
        return Lookup::Absent;
    }
    Bounds bounds;
    if (!BoundsOf(m_depth - 1, bounds)) {
        return Lookup::Failed;
    }
    if (name < bounds.first || (!bounds.end.empty() && name >= bounds.end)) {
        Damaged("a name lies outside the page that it belongs to");
        return Lookup::Failed;
    }
    // A page above that has a wrong name would send the search next door.
    const bool toRight = leaf.index != 0;
    const auto levels = m_levels;
    auto level = m_depth - 1;
    bool exists = false;
    while (level > 0 && !exists) {
        --level;
        exists = toRight ? m_levels[level].index + 1 < m_levels[level].page.count : m_levels[level].index > 0;
    }
    bool good = true;
    if (exists) {
        m_levels[level].index += toRight ? 1U : ~std::size_t{0};
        Node node;
        good =
            DescendToEdge(level, !toRight) && ReadNode(m_levels[m_depth - 1].page, m_levels[m_depth - 1].index, node);
        if (good && (toRight ? node.name <= name : node.name >= name)) {
            good = Damaged("a name lies outside the page that it belongs to");
        }
    }
    m_levels = levels;
    m_placed = good;
    return good ? Lookup::Absent : Lookup::Failed;
}

Lookup LmdbTree::Get(std::string_view name, Locality locality, std::string_view& record)
{
    if (m_depth == 0) {
        return Lookup::Absent;
    }
    bool exact = false;
    bool isHere = false;
    const auto last = m_placed ? m_levels[m_depth - 1].page.number : 0;
    if (m_placed && (locality == Locality::Near || m_stays)) {
        // Values that are read one after the other mostly stand on one page.
        auto& leaf = m_levels[m_depth - 1];
        if (m_range.number != leaf.page.number) {
            Node first;
            Node end;
            if (!ReadNode(leaf.page, 0, first) || !ReadNode(leaf.page, leaf.page.count - 1, end)) {
                return Lookup::Failed;
            }
            m_range = {leaf.page.number, first.name, end.name, 0};
            CompareFrom(first.name, end.name, m_range.same);
        }
        Common common{m_range.same, m_range.same};
        if (name.starts_with(m_range.first.substr(0, m_range.same)) &&
            CompareFrom(m_range.first, name, common.below) <= 0 && CompareFrom(m_range.last, name, common.above) >= 0) {
            isHere = true;
            if (!Search(leaf.page, 0, name, common, leaf.index, exact)) {
                return Lookup::Failed;
            }
        }
    }
    if (!isHere && !Descend(name, exact)) {
        return Lookup::Failed;
    }
    m_stays = m_levels[m_depth - 1].page.number == last;
    if (!exact) {
        return ConfirmAbsent(name);
    }
    const auto& leaf = m_levels[m_depth - 1];
    Node node;
    return ReadNode(leaf.page, leaf.index, node) && ReadRecord(leaf.page, node, record) ? Lookup::Found
                                                                                        : Lookup::Failed;
}

// Moves to the first name that is not less.
Lookup LmdbTree::Seek(std::string_view name)
{
    if (m_depth == 0) {
        return Lookup::Absent;
    }
    bool exact = false;
    if (!Descend(name, exact) || (!exact && ConfirmAbsent(name) == Lookup::Failed)) {
        return Lookup::Failed;
    }
    if (!VerifyPath()) {
        return Lookup::Failed;
    }
    const auto& leaf = m_levels[m_depth - 1];
    return leaf.index < leaf.page.count ? Lookup::Found : Next();
}

Lookup LmdbTree::Next()
{
    auto level = m_depth - 1;
    auto& leaf = m_levels[level];
    if (leaf.index + 1 < leaf.page.count) {
        ++leaf.index;
        return Lookup::Found;
    }
    for (;;) {
        if (level == 0) {
            m_placed = false;
            return Lookup::Absent;
        }
        auto& above = m_levels[--level];
        if (above.index + 1 < above.page.count) {
            ++above.index;
            break;
        }
    }
    return DescendToEdge(level, false) && VerifyPath() ? Lookup::Found : Lookup::Failed;
}

bool LmdbTree::Current(std::string_view& name, std::string_view& record)
{
    const auto& leaf = m_levels[m_depth - 1];
    Node node;
    if (!ReadNode(leaf.page, leaf.index, node) || !ReadRecord(leaf.page, node, record)) {
        return false;
    }
    name = node.name;
    return true;
}

// --- The whole file --------------------------------------------------------------------------------------------------

struct LmdbTree::Usage
{
    std::vector<bool> inUse;
    std::vector<std::uint64_t> free;
    bool isFreeList = false;

    bool Take(std::uint64_t number, std::uint64_t count)
    {
        for (auto page = number; page < number + count; ++page) {
            if (inUse[page]) {
                return false;
            }
            inUse[page] = true;
        }
        return true;
    }
};

bool LmdbTree::VerifyBranch(const lmdb::Tree& tree, std::uint64_t number, std::size_t depth, const Bounds& bounds,
                            Usage& usage)
{
    const bool isLeaf = depth == tree.depth;
    Page page;
    if (!Load(number, isLeaf ? lmdb::kLeafPage : lmdb::kBranchPage, page)) {
        return false;
    }
    if (!usage.Take(number, 1)) {
        return DamagedPage(number, "is used twice");
    }
    // The free list's names are numbers in the machine's order.
    if (!usage.isFreeList && !VerifyPage(page, isLeaf, bounds, false)) {
        return false;
    }
    for (std::size_t i = 0; i < page.count; ++i) {
        Node node;
        if (!ReadNode(page, i, node)) {
            return false;
        }
        if (!isLeaf) {
            Bounds below = bounds;
            if (i > 0) {
                below.first = node.name;
            }
            Node next;
            if (i + 1 < page.count) {
                if (!ReadNode(page, i + 1, next)) {
                    return false;
                }
                below.end = next.name;
            }
            if (!VerifyBranch(tree, node.Child(), depth + 1, below, usage)) {
                return false;
            }
            continue;
        }
        std::string_view record;
        std::uint64_t overflow[2] = {0, 0};
        if (!ReadRecord(page, node, record, overflow)) {
            return false;
        }
        if (overflow[1] != 0 && !usage.Take(overflow[0], overflow[1])) {
            return DamagedPage(overflow[0], "is used twice");
        }
        if (usage.isFreeList) {
            const auto count = record.size() < 8 ? 0 : ReadAt<std::uint64_t>(record.data());
            if (node.name.size() != 8 || record.size() < 8 || count > record.size() / 8 - 1) {
                return DamagedPage(number, "has a damaged list of free pages");
            }
            for (std::uint64_t entry = 1; entry <= count; ++entry) {
                usage.free.push_back(ReadAt<std::uint64_t>(record.data() + entry * 8));
            }
        }
    }
    return true;
}

bool LmdbTree::VerifyStructure()
{
    m_cause.clear();
    // They tell LMDB in which order to look for names, and other things that a store does not have.
    if (m_meta.main.flags != 0 || (m_meta.freeList.flags & lmdb::kTreeFlags) != lmdb::kIntegerNames) {
        return Damaged("its head gives an impossible kind of tree");
    }
    Usage usage;
    usage.inUse.resize(m_meta.lastPage + 1);
    for (const auto* tree : {&m_meta.main, &m_meta.freeList}) {
        usage.isFreeList = tree == &m_meta.freeList;
        if (tree->root == lmdb::kNoPage) {
            continue;
        }
        if (tree->depth == 0 || tree->depth >= kMaxDepth || !VerifyBranch(*tree, tree->root, 1, {}, usage)) {
            return m_cause.empty() ? Damaged("its head gives an impossible depth") : false;
        }
    }
    for (const auto page : usage.free) {
        if (page < kFirstPage || page > m_meta.lastPage || !usage.Take(page, 1)) {
            return DamagedPage(page, "counts as free but is not");
        }
    }
    return true;
}

bool LmdbTree::CountPages(std::uint64_t& used, std::uint64_t& free)
{
    Usage usage;
    usage.inUse.resize(m_meta.lastPage + 1);
    usage.isFreeList = true;
    const auto& list = m_meta.freeList;
    if (list.root != lmdb::kNoPage &&
        (list.depth == 0 || list.depth >= kMaxDepth || !VerifyBranch(list, list.root, 1, {}, usage))) {
        return m_cause.empty() ? Damaged("its head gives an impossible depth") : false;
    }
    free = usage.free.size();
    if (free > m_meta.lastPage + 1) {
        return Damaged("it has more free pages than pages");
    }
    used = m_meta.lastPage + 1 - free;
    return true;
}

} // namespace wqspcfg
