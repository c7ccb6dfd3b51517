#include "wqspcfg/tools/hive/HiveImage.h"

#include "wqspcfg/platform/text/Utf.h"
#include "wqspcfg/tools/hive/HiveBytes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace wqspcfg {

namespace {

constexpr std::size_t kHeaderSize = 0x1000; // and the unit of what follows
constexpr std::size_t kCellHead = 4;        // its length, negative where the cell is in use
constexpr std::size_t kCellUnit = 8;
// Cell numbers with the highest bit set belong to what Windows keeps in memory only.
constexpr std::size_t kMaxContent = 0x80000000;
constexpr std::size_t kPiece = 0x40000; // copied at a time

// Fields of the header.
constexpr std::size_t kSequence1 = 4;
constexpr std::size_t kSequence2 = 8;
constexpr std::size_t kMajor = 20;
constexpr std::size_t kFileType = 28;
constexpr std::size_t kRootCell = 36;
constexpr std::size_t kContentSize = 40;
constexpr std::size_t kFileName = 48;
constexpr std::size_t kFileNameSize = 64;
constexpr std::size_t kCheckSum = 508;

// Where a cell holds a name, and the bit of its flags that says that a character is one byte.
struct NameField
{
    std::size_t length;
    std::size_t flags;
    std::uint16_t isLatin1;
    std::size_t text;
};

// Of a key ("nk").
constexpr NameField kKeyName{72, 2, 0x20, 76};
constexpr std::size_t kParent = 16;
constexpr std::size_t kSubkeyCount = 20;
constexpr std::size_t kSubkeyList = 28;
constexpr std::size_t kValueCount = 36;
constexpr std::size_t kValueList = 40;

// Of a list of subkeys ("lf", "lh", "li", "ri").
constexpr std::size_t kListCount = 2;
constexpr std::size_t kListItems = 4;

// Of a value ("vk").
constexpr NameField kValueName{2, 16, 1, 20};
constexpr std::size_t kDataLength = 4;
constexpr std::uint32_t kDataIsInline = 0x80000000;
constexpr std::size_t kDataCell = 8;

// Of data in segments ("db").
constexpr std::size_t kSegmentCount = 2;
constexpr std::size_t kSegmentList = 4;
constexpr std::size_t kSegmentSize = 16344;

std::size_t PositionOf(std::uint32_t cell)
{
    return std::size_t{cell} + kHeaderSize;
}

std::wstring Text(std::span<const std::byte> bytes, bool isLatin1)
{
    std::wstring text;
    if (isLatin1) {
        for (const auto byte : bytes) {
            text += std::to_integer<wchar_t>(byte);
        }
    } else {
        AppendWideFromUtf16Le(bytes, text);
    }
    return text;
}

bool IsLatin1(std::span<const std::byte> cell, const NameField& name)
{
    return (Number16(cell, name.flags) & name.isLatin1) != 0;
}

// Of a cell that is large enough for the fields before the name.
bool HasName(std::span<const std::byte> cell, const NameField& name)
{
    const auto length = Number16(cell, name.length);
    return length <= cell.size() - name.text && (IsLatin1(cell, name) || length % 2 == 0);
}

std::wstring NameIn(std::span<const std::byte> cell, const NameField& name)
{
    return Text(cell.subspan(name.text, Number16(cell, name.length)), IsLatin1(cell, name));
}

// What is wrong with the header of a file that has so many bytes, or null.
const char* HeaderFault(std::span<const std::byte> header, std::size_t fileSize)
{
    if (std::memcmp(header.data(), "regf", 4) != 0) {
        return "it is no registry hive";
    }
    if (Number32(header, kFileType) != 0) {
        return "it is the transaction log of a registry hive, not the hive";
    }
    std::uint32_t sum = 0;
    for (std::size_t at = 0; at < kCheckSum; at += 4) {
        sum ^= Number32(header, at);
    }
    if (sum != Number32(header, kCheckSum)) {
        return "the check sum of its header is wrong; Windows may have been interrupted while it wrote that";
    }
    if (Number32(header, kMajor) != 1) {
        return "it has a format that is not known";
    }
    const std::size_t content = Number32(header, kContentSize);
    if (content == 0 || content > kMaxContent || content % kHeaderSize != 0) {
        return "its header tells an impossible size";
    }
    return content > fileSize - kHeaderSize ? "it is shorter than its header tells" : nullptr;
}

} // namespace

HiveImage::~HiveImage()
{
    if (!m_bytes.empty()) {
        munmap(const_cast<std::byte*>(m_bytes.data()), m_bytes.size());
    }
}

bool HiveImage::Read(const FileDescriptor& file, const std::string& path, Error& error)
{
    struct stat status = {};
    if (fstat(file.Get(), &status) != 0) {
        error = SystemError("read", path, errno);
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        error = {ErrorKind::BadArgument, path + ": it is no regular file"};
        return false;
    }
    std::byte header[kHeaderSize];
    std::size_t have = 0;
    while (have < sizeof header) {
        const auto got = pread(file.Get(), header + have, sizeof header - have, static_cast<off_t>(have));
        if (got < 0) {
            error = SystemError("read", path, errno);
            return false;
        }
        if (got == 0) {
            error = {ErrorKind::Damaged, path + ": it is too short for a registry hive"};
            return false;
        }
        have += static_cast<std::size_t>(got);
    }
    const auto fileSize = static_cast<std::size_t>(status.st_size);
    if (const auto* fault = HeaderFault(header, std::max(fileSize, kHeaderSize))) {
        error = {ErrorKind::Damaged, path + ": " + fault};
        return false;
    }
    const auto size = kHeaderSize + Number32(header, kContentSize);
    m_copy = FileDescriptor(memfd_create("wqspcfg-hive", MFD_CLOEXEC));
    if (!m_copy) {
        error = SystemError("copy", path, errno);
        return false;
    }
    std::vector<std::byte> piece(kPiece);
    for (std::size_t at = 0; at < size;) {
        const auto got = pread(file.Get(), piece.data(), std::min(kPiece, size - at), static_cast<off_t>(at));
        if (got <= 0) {
            error = got < 0 ? SystemError("read", path, errno)
                            : Error{ErrorKind::Damaged, path + ": it became shorter while it was read"};
            return false;
        }
        if (write(m_copy.Get(), piece.data(), static_cast<std::size_t>(got)) != got) {
            error = {ErrorKind::NoSpace, "there is too little memory for " + path};
            return false;
        }
        at += static_cast<std::size_t>(got);
    }
    void* map = mmap(nullptr, size, PROT_READ, MAP_SHARED, m_copy.Get(), 0);
    if (map == MAP_FAILED) {
        error = SystemError("map", path, errno);
        return false;
    }
    m_bytes = {static_cast<const std::byte*>(map), size};
    // Once more, as copied: only this is looked at from here on.
    const auto* fault = HeaderFault(m_bytes.first(kHeaderSize), size);
    if (fault == nullptr && kHeaderSize + Number32(m_bytes, kContentSize) != size) {
        fault = "it changed while it was read";
    }
    if (fault == nullptr) {
        fault = KeyFault(Root());
    }
    if (fault != nullptr) {
        error = {ErrorKind::Damaged, path + ": " + fault};
    }
    return fault == nullptr;
}

bool HiveImage::IsDirty() const
{
    return Number32(m_bytes, kSequence1) != Sequence();
}

std::uint32_t HiveImage::Sequence() const
{
    return Number32(m_bytes, kSequence2);
}

std::wstring HiveImage::LoadedAs() const
{
    auto path = Text(m_bytes.subspan(kFileName, kFileNameSize), false);
    path.resize(std::min(path.find(L'\0'), path.size()));
    return path.substr(path.rfind(L'\\') + 1);
}

std::size_t HiveImage::Root() const
{
    return PositionOf(Number32(m_bytes, kRootCell));
}

// The content of a cell that is in use; empty where there is none.
HiveImage::Bytes HiveImage::Cell(std::size_t at) const
{
    if (at < kHeaderSize || at >= m_bytes.size() || at % kCellUnit != 0) {
        return {};
    }
    const auto length = std::size_t{0U - Number32(m_bytes, at)} & 0xFFFFFFFFU;
    const bool isFree = length >= kMaxContent; // what would be a length above 0
    return isFree || length <= kCellHead || length > m_bytes.size() - at
               ? Bytes{}
               : m_bytes.subspan(at + kCellHead, length - kCellHead);
}

HiveImage::Bytes HiveImage::CellOfId(std::size_t at, const char* id) const
{
    const auto cell = Cell(at);
    return cell.size() > kListItems && std::memcmp(cell.data(), id, 2) == 0 ? cell : Bytes{};
}

const char* HiveImage::KeyFault(std::size_t key) const
{
    const auto cell = CellOfId(key, "nk");
    if (cell.size() < kKeyName.text) {
        return "there is no key where one should be";
    }
    return HasName(cell, kKeyName) ? nullptr : "the name of a key has an impossible length";
}

const char* HiveImage::SubkeysFault(std::size_t key) const
{
    if (const auto* fault = KeyFault(key)) {
        return fault;
    }
    const auto cell = Cell(key);
    std::size_t left = Number32(cell, kSubkeyCount);
    const auto* fault = left == 0 ? nullptr : ListFault(PositionOf(Number32(cell, kSubkeyList)), key, left, true);
    return fault == nullptr && left != 0 ? "a list of subkeys has fewer than the key tells" : fault;
}

// Of a list, or of an index of lists, with `left` subkeys at most, from which it takes what it has.
const char* HiveImage::ListFault(std::size_t list, std::size_t key, std::size_t& left, bool mayBeIndex) const
{
    auto cell = Cell(list);
    if (cell.size() < kListItems) {
        return "there is no list of subkeys where one should be";
    }
    const auto is = [&cell](const char* id) { return std::memcmp(cell.data(), id, 2) == 0; };
    const bool isIndex = is("ri");
    const bool hasHashes = is("lf") || is("lh");
    if (!is("li") && !hasHashes && !(isIndex && mayBeIndex)) {
        return "there is no list of subkeys where one should be";
    }
    const std::size_t count = Number16(cell, kListCount);
    const std::size_t step = hasHashes ? 8 : 4;
    if (count > (cell.size() - kListItems) / step) {
        return "a list of subkeys is longer than its place";
    }
    for (std::size_t i = 0; i < count; ++i) {
        const auto at = PositionOf(Number32(cell, kListItems + i * step));
        if (isIndex) {
            if (const auto* fault = ListFault(at, key, left, false)) {
                return fault;
            }
            continue;
        }
        if (left == 0) {
            return "a list of subkeys has more than the key tells";
        }
        --left;
        if (const auto* fault = KeyFault(at)) {
            return fault;
        }
        // What holds for all keys makes a tree of them, which a walk comes to the end of.
        if (PositionOf(Number32(Cell(at), kParent)) != key || at == Root()) {
            return "a subkey belongs to another key";
        }
        const auto name = KeyName(at);
        if (name.empty() || name.find(L'\\') != std::wstring::npos) {
            return "a subkey has an impossible name";
        }
    }
    return nullptr;
}

const char* HiveImage::ValuesFault(std::size_t key) const
{
    if (const auto* fault = KeyFault(key)) {
        return fault;
    }
    const auto cell = Cell(key);
    const std::size_t count = Number32(cell, kValueCount);
    if (count == 0) {
        return nullptr;
    }
    const auto list = Cell(PositionOf(Number32(cell, kValueList)));
    if (count > list.size() / 4) {
        return "the list of its values is longer than its place";
    }
    for (std::size_t i = 0; i < count; ++i) {
        const auto value = CellOfId(PositionOf(Number32(list, i * 4)), "vk");
        if (value.size() < kValueName.text) {
            return "there is no value where one should be";
        }
        if (!HasName(value, kValueName)) {
            return "the name of a value has an impossible length";
        }
    }
    return nullptr;
}

const char* HiveImage::DataFault(std::size_t value) const
{
    const auto cell = Cell(value);
    const auto length = Number32(cell, kDataLength);
    if ((length & kDataIsInline) != 0) {
        return (length & ~kDataIsInline) > 4 ? "a value has an impossible length" : nullptr;
    }
    const auto at = PositionOf(Number32(cell, kDataCell));
    if (length <= Cell(at).size()) {
        return nullptr;
    }
    const auto big = CellOfId(at, "db");
    if (big.size() < kSegmentList + 4) {
        return "a value is longer than its place";
    }
    const std::size_t count = Number16(big, kSegmentCount);
    const auto list = Cell(PositionOf(Number32(big, kSegmentList)));
    if (count > list.size() / 4) {
        return "the segments of a value are not all there";
    }
    std::size_t room = 0;
    for (std::size_t i = 0; i < count; ++i) {
        room += std::min(Cell(PositionOf(Number32(list, i * 4))).size(), kSegmentSize);
    }
    return room < length ? "the segments of a value are not all there" : nullptr;
}

std::wstring HiveImage::KeyName(std::size_t key) const
{
    return NameIn(Cell(key), kKeyName);
}

std::wstring HiveImage::ValueName(std::size_t value) const
{
    return NameIn(Cell(value), kValueName);
}

} // namespace wqspcfg
