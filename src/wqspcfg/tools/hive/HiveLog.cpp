#include "wqspcfg/tools/hive/HiveLog.h"

#include "wqspcfg/tools/hive/HiveBytes.h"

#include <array>
#include <cstring>
#include <unistd.h>

namespace wqspcfg {

namespace {

constexpr std::size_t kSector = 512; // the header has one, and so have entries at least

// Of the header and of an entry alike.
constexpr std::size_t kSequenceOfLog = 4;
constexpr std::size_t kEntrySize = 4;
constexpr std::size_t kSequenceOfEntry = 12;

using Head = std::array<std::byte, 16>;

bool ReadHead(const FileDescriptor& log, std::uint64_t at, Head& head)
{
    return pread(log.Get(), head.data(), head.size(), static_cast<off_t>(at)) == static_cast<ssize_t>(head.size());
}

bool Has(const Head& head, const char* mark)
{
    return std::memcmp(head.data(), mark, 4) == 0;
}

} // namespace

bool HasNewerChanges(const FileDescriptor& log, std::uint32_t sequence)
{
    Head header;
    Head entry;
    if (!ReadHead(log, 0, header) || !Has(header, "regf") || !ReadHead(log, kSector, entry)) {
        return false;
    }
    // Up to Windows 8, the whole log belongs to one write.
    if (Has(entry, "DIRT")) {
        return Number32(header, kSequenceOfLog) > sequence;
    }
    for (std::uint64_t at = kSector; ReadHead(log, at, entry) && Has(entry, "HvLE");) {
        if (Number32(entry, kSequenceOfEntry) > sequence) {
            return true;
        }
        const auto size = Number32(entry, kEntrySize);
        if (size < kSector) {
            break;
        }
        at += size;
    }
    return false;
}

} // namespace wqspcfg
