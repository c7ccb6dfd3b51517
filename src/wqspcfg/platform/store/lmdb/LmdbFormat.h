// The pages of an LMDB data file, data version 1, 64 bit. What stands in a file may be anything: read fields only
// within the page's bounds.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace wqspcfg::lmdb {

static_assert(sizeof(void*) == 8 && std::endian::native == std::endian::little, "the layout is the 64-bit one");

constexpr std::uint32_t kMagic = 0xBEEFC0DE;
constexpr std::uint32_t kDataVersion = 1;
constexpr std::size_t kMinPageSize = 512;
constexpr std::size_t kMaxPageSize = 65536;
constexpr std::uint64_t kNoPage = ~std::uint64_t{0};

enum PageFlags : std::uint16_t
{
    kBranchPage = 0x01,
    kLeafPage = 0x02,
    kOverflowPage = 0x04,
    kMetaPage = 0x08,
};

enum NodeFlags : std::uint16_t
{
    kBigData = 0x01, // the data is a page number; the value stands on overflow pages
};

enum TreeFlags : std::uint16_t
{
    kIntegerNames = 0x08, // of the free list
    kTreeFlags = 0xFF,    // the bits above are the environment's own
};

struct PageHeader
{
    std::uint64_t number;
    std::uint16_t pad;
    std::uint16_t flags;
    std::uint16_t lower; // end of the node offsets; on overflow pages both fields are the number of pages
    std::uint16_t upper; // start of the nodes
};
static_assert(sizeof(PageHeader) == 16);

struct NodeHeader
{
    std::uint16_t low; // of the data size, or of the child's page number with `flags` as its upper 16 bits
    std::uint16_t high;
    std::uint16_t flags;
    std::uint16_t keySize;
};
static_assert(sizeof(NodeHeader) == 8);

struct Tree
{
    std::uint32_t pad; // of the free list: the page size
    std::uint16_t flags;
    std::uint16_t depth;
    std::uint64_t branchPages;
    std::uint64_t leafPages;
    std::uint64_t overflowPages;
    std::uint64_t entries;
    std::uint64_t root;
};
static_assert(sizeof(Tree) == 48);

struct Meta
{
    std::uint32_t magic;
    std::uint32_t version;
    std::uint64_t address;
    std::uint64_t mapSize;
    Tree freeList;
    Tree main;
    std::uint64_t lastPage;
    std::uint64_t transaction;
};
static_assert(sizeof(Meta) == 136);

// How many pages a file of that many may count. Pages that a transaction took and gave back are never written, so that
// the file can be shorter than its head says.
constexpr std::uint64_t MostPages(std::uint64_t filePages)
{
    return 4 * filePages + 65536;
}

} // namespace wqspcfg::lmdb
