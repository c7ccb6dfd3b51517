#include "wqspcfg/tools/MaintenanceCommands.h"

#include "wqspcfg/platform/store/Maintenance.h"

#include <ctime>

namespace wqspcfg::tools {

namespace {

std::string Time(std::int64_t seconds)
{
    const auto time = static_cast<std::time_t>(seconds);
    char text[32];
    const auto* parts = std::gmtime(&time);
    return parts != nullptr && std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S UTC", parts) != 0 ? text : "unknown";
}

// A program's name is whatever its user likes.
std::string Printable(const std::string& text)
{
    std::string shown;
    for (const auto unit : text) {
        shown += unit < 0x20 || unit == 0x7F ? '?' : unit;
    }
    return shown;
}

} // namespace

int Compact(const StoreChoice& choice, const Console& console)
{
    Error error;
    CompactCounts counts;
    const auto address = choice.Address();
    if (!CompactStore(address, counts, error)) {
        return console.Fail(error);
    }
    console.err << address << ": " << counts.keys << " keys, " << counts.values << " values; " << counts.before
                << " bytes before, " << counts.after << " now\n";
    return kDone;
}

int ShowStatus(const StoreChoice& choice, bool verify, const Console& console)
{
    Error error;
    StoreStatus status;
    if (!GetStoreStatus(choice.Address(), verify, status, error)) {
        return console.Fail(error);
    }
    auto& out = console.out;
    const auto process = [&](const char* what, long number, const char* none) {
        out << what << '\t' << (number != 0 ? "process " + std::to_string(number) : none) << '\n';
    };
    out << "file\t" << status.path << '\n'
        << "size\t" << status.fileSize << " bytes\n"
        << "used\t" << status.usedSize << " bytes\n"
        << "free\t" << status.freeSize << " bytes\n"
        << "commits\t" << status.commits << '\n'
        << "last commit\t" << Time(status.lastCommit) << '\n';
    if (status.knowsUsers) {
        process("last writer", status.lastWriter, "unknown");
        process("writing now", status.writer, "nobody");
        out << "readers\t" << status.readers.size() << '\n';
        for (const auto& reader : status.readers) {
            out << "reader\tprocess " << reader.process
                << (reader.program.empty() ? "" : " (" + Printable(reader.program) + ')')
                << (reader.seconds < 0 ? "" : ", running for " + std::to_string(reader.seconds) + " s")
                << ", holds a state " << reader.behind << " commits old\n";
        }
    } else {
        out << "readers\tunknown without the right to the lock file\n";
    }
    if (!verify) {
        return kDone;
    }
    if (status.isSound) {
        out << "sound\tyes, " << status.counts.keys << " keys, " << status.counts.values << " values\n";
        return kDone;
    }
    out << "sound\tno: " << status.damage << '\n';
    return kNegative;
}

} // namespace wqspcfg::tools
