#include "wqspcfg/tools/MaintenanceCommands.h"

#include "wqspcfg/platform/store/Maintenance.h"
#include "wqspcfg/tools/JsonText.h"

#include <ctime>

namespace wqspcfg::tools {

namespace {

// Empty where it cannot be told.
std::string Time(std::int64_t seconds, const char* format)
{
    const auto time = static_cast<std::time_t>(seconds);
    char text[32];
    const auto* parts = std::gmtime(&time);
    return parts != nullptr && std::strftime(text, sizeof text, format, parts) != 0 ? text : "";
}

ordered_json ToJson(const StoreStatus& status, bool verify)
{
    const auto process = [](long number) { return number != 0 ? ordered_json(number) : ordered_json(nullptr); };
    ordered_json out;
    out["file"] = status.path;
    out["size"] = status.fileSize;
    out["used"] = status.usedSize;
    out["free"] = status.freeSize;
    out["commits"] = status.commits;
    out["lastCommit"] = Time(status.lastCommit, "%Y-%m-%dT%H:%M:%SZ");
    out["lastWriter"] = process(status.lastWriter);
    out["writer"] = process(status.writer);
    out["readers"] = nullptr;
    if (status.knowsUsers) {
        out["readers"] = ordered_json::array();
        for (const auto& each : status.readers) {
            ordered_json reader;
            reader["process"] = each.process;
            reader["program"] = each.program;
            reader["seconds"] = each.seconds < 0 ? ordered_json(nullptr) : ordered_json(each.seconds);
            reader["behind"] = each.behind;
            out["readers"].push_back(std::move(reader));
        }
    }
    if (verify) {
        out["sound"] = status.isSound;
        if (status.isSound) {
            out["keys"] = status.counts.keys;
            out["values"] = status.counts.values;
        } else {
            out["damage"] = status.damage;
        }
    }
    return out;
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
    choice.Check(false);
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

int ShowStatus(const StoreChoice& choice, const StatusOptions& options, const Console& console)
{
    choice.Check(false);
    Error error;
    StoreStatus status;
    if (!GetStoreStatus(choice.Address(), options.verify, status, error)) {
        return console.Fail(error);
    }
    if (options.json) {
        PrintJson(ToJson(status, options.verify), console.out);
        return options.verify && !status.isSound ? kNegative : kDone;
    }
    auto& out = console.out;
    const auto time = Time(status.lastCommit, "%Y-%m-%d %H:%M:%S UTC");
    const auto process = [&](const char* what, long number, const char* none) {
        out << what << '\t' << (number != 0 ? "process " + std::to_string(number) : none) << '\n';
    };
    out << "file\t" << status.path << '\n'
        << "size\t" << status.fileSize << " bytes\n"
        << "used\t" << status.usedSize << " bytes\n"
        << "free\t" << status.freeSize << " bytes\n"
        << "commits\t" << status.commits << '\n'
        << "last commit\t" << (time.empty() ? "unknown" : time) << '\n';
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
        out << "readers\tunknown without use of the lock file\n";
    }
    if (!options.verify) {
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
