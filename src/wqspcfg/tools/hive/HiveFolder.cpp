#include "wqspcfg/tools/hive/HiveFolder.h"

#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"
#include "wqspcfg/tools/hive/HiveLog.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <initializer_list>
#include <optional>
#include <sys/stat.h>
#include <utility>

namespace wqspcfg {

namespace {

constexpr std::wstring_view kSoftware = L"SOFTWARE";
constexpr std::wstring_view kDefault = L"DEFAULT";
// From a directory to the one with the hives: it may be any of these, or the root of the disk.
constexpr std::array<std::wstring_view, 3> kWay = {L"Windows", L"System32", L"config"};
// No writer of devices or pipes is waited for; what is no file is refused after the open.
constexpr int kReadOnly = O_RDONLY | O_NONBLOCK | O_NOCTTY;

// A file or directory, and its path for messages.
struct Place
{
    FileDescriptor file;
    std::string path;
};

// The name in a directory that is `name` but for the case; the very name before others. False on failure. A directory
// of another system's disk may hold two.
bool FindName(const Place& directory, std::wstring_view name, std::optional<std::string>& found, Error& error)
{
    std::string other;
    const auto exact = Utf8ForMessage(name);
    // A descriptor of its own, from the beginning of the directory.
    auto copy = OpenAt(directory.file.Get(), ".", O_RDONLY | O_DIRECTORY);
    const auto status = !copy ? errno : VisitNames(std::move(copy), [&](const char* text) {
        const std::string each = text;
        std::wstring wide;
        if (each == exact) {
            found = each;
        } else if (AppendWideFromUtf8(each, wide) && EqualNoCase(wide, name)) {
            if (!other.empty()) {
                error = {ErrorKind::BadArgument,
                         directory.path + ": it has both " + other + " and " + each + "; give the one to be read"};
            }
            other = each;
        }
        return !found;
    });
    if (status != 0) {
        error = SystemError("read", directory.path, status);
        return false;
    }
    if (found) {
        error = {};
    } else if (!other.empty()) {
        found = other;
    }
    return !error;
}

// What the directory has under that name, in any case; nothing where there is no such name. False on failure.
bool OpenIn(const Place& directory, std::wstring_view name, std::optional<Place>& opened, Error& error)
{
    std::optional<std::string> found;
    if (!FindName(directory, name, found, error)) {
        return false;
    }
    if (!found) {
        return true;
    }
    Place place{OpenAt(directory.file.Get(), found->c_str(), kReadOnly | O_NOFOLLOW),
                directory.path + (directory.path.ends_with('/') ? "" : "/") + *found};
    if (!place.file) {
        error = errno == ELOOP ? Error{ErrorKind::BadArgument, place.path + ": it is a link, and links of another "
                                                                            "machine's disk are not followed"}
                               : SystemError("open", place.path, errno);
        return false;
    }
    opened = std::move(place);
    return true;
}

// Names the transaction logs of a hive that hold what it lacks. `file` is its name in the directory. All of its logs
// are added to `files`.
std::string NewerLogs(const Place& directory, const std::string& file, std::uint32_t sequence,
                      std::vector<std::string>& files, std::vector<std::string>& notes)
{
    std::string logs;
    std::wstring name;
    if (!directory.file || !AppendWideFromUtf8(file, name)) {
        notes.push_back(directory.path + ": it cannot be searched for the transaction logs of " + file);
        return logs;
    }
    for (const auto* extension : {L".LOG", L".LOG1", L".LOG2"}) {
        std::optional<Place> log;
        Error error;
        if (!OpenIn(directory, name + extension, log, error)) {
            notes.push_back(error.message + "; whether this log holds changes is not known");
        } else if (log) {
            files.push_back(log->path);
            if (HasNewerChanges(log->file, sequence)) {
                logs += (logs.empty() ? "" : " and ") + log->path;
            }
        }
    }
    return logs;
}

std::shared_ptr<const HiveFile> OpenHive(const Place& directory, const Place& place, std::vector<std::string>& files,
                                         std::vector<std::string>& notes, Error& error)
{
    std::shared_ptr<const HiveFile> hive = HiveFile::Open(place.file, place.path, error);
    if (!hive) {
        return nullptr;
    }
    const auto& image = hive->Image();
    files.push_back(place.path);
    const auto logs =
        NewerLogs(directory, place.path.substr(place.path.rfind('/') + 1), image.Sequence(), files, notes);
    if (image.IsDirty() || !logs.empty()) {
        notes.push_back(place.path + ": Windows did not finish writing to this hive. " +
                        (logs.empty() ? "Its last changes are in none of its transaction logs"
                                      : "Its last changes are in " + logs + " and are not merged here") +
                        "; values may differ from those that Windows has after its next start");
    }
    return hive;
}

bool OpenBoth(const Place& directory, HiveSet& hives, std::vector<std::string>& notes, Error& error)
{
    std::optional<Place> software;
    std::optional<Place> standard;
    if (!OpenIn(directory, kSoftware, software, error) || !OpenIn(directory, kDefault, standard, error)) {
        return false;
    }
    if (software) {
        hives.software = OpenHive(directory, *software, hives.files, notes, error);
    }
    if (standard && !error) {
        hives.standard = OpenHive(directory, *standard, hives.files, notes, error);
    }
    return !error;
}

// Finds the hives at the end of their way, some steps of which the directory may have behind it. All steps are tried
// first: the root of a disk may have a folder named Software.
bool OpenBelow(Place top, HiveSet& hives, std::vector<std::string>& notes, Error& error)
{
    for (std::size_t start = 0; start <= kWay.size(); ++start) {
        std::optional<Place> place(Place{OpenAt(top.file.Get(), ".", O_RDONLY | O_DIRECTORY), top.path});
        if (!place->file) {
            error = SystemError("read", top.path, errno);
            return false;
        }
        for (auto step = start; place && step < kWay.size(); ++step) {
            std::optional<Place> next;
            if (!OpenIn(*place, kWay[step], next, error)) {
                return false;
            }
            place = std::move(next);
        }
        if (place && !OpenBoth(*place, hives, notes, error)) {
            return false;
        }
        if (hives.software || hives.standard) {
            return true;
        }
    }
    error = {ErrorKind::NotFound, top.path + ": there is no registry hive SOFTWARE or DEFAULT here, nor in "
                                             "Windows/System32/config below"};
    return false;
}

enum class Which
{
    Unknown,
    Software,
    Default,
};

Which NamedLike(std::wstring_view name)
{
    const auto stem = name.substr(0, name.find(L'.'));
    return EqualNoCase(stem, kSoftware)  ? Which::Software
           : EqualNoCase(stem, kDefault) ? Which::Default
                                         : Which::Unknown;
}

// Whether the hive has one key of these below its key XFS.
bool HasXfsKey(const HiveFile& hive, std::initializer_list<std::wstring_view> names)
{
    HiveFile::Entries entries;
    std::string cause;
    const auto* xfs = hive.Subkeys(hive.Root(), entries, cause) ? HiveFile::Find(entries, L"XFS") : nullptr;
    HiveFile::Entries below;
    return xfs != nullptr && hive.Subkeys(xfs->at, below, cause) &&
           std::any_of(names.begin(), names.end(),
                       [&below](std::wstring_view name) { return HiveFile::Find(below, name) != nullptr; });
}

// Told by the file's name, by that under which Windows has had it loaded, or by its keys.
Which Tell(const HiveFile& hive)
{
    std::wstring name;
    AppendWideFromUtf8(hive.Path().substr(hive.Path().rfind('/') + 1), name);
    for (const auto which : {NamedLike(name), NamedLike(hive.Image().LoadedAs())}) {
        if (which != Which::Unknown) {
            return which;
        }
    }
    HiveFile::Entries entries;
    std::string cause;
    const bool has32 = hive.Subkeys(hive.Root(), entries, cause) && HiveFile::Find(entries, L"WOW6432Node") != nullptr;
    return has32 || HasXfsKey(hive, {L"PHYSICAL_SERVICES", L"SERVICE_PROVIDERS"}) ? Which::Software
           : HasXfsKey(hive, {L"LOGICAL_SERVICES"})                               ? Which::Default
                                                                                  : Which::Unknown;
}

// The path with each name of it that is not there as it is given replaced by the one that is there in another case.
std::string InOtherCase(const std::string& path)
{
    std::string found = path.starts_with('/') ? "/" : "";
    for (std::size_t begin = 0; begin < path.size();) {
        const auto end = std::min(path.find('/', begin), path.size());
        auto name = path.substr(begin, end - begin);
        begin = end + 1;
        if (name.empty()) {
            continue;
        }
        const auto parent = found.empty() ? "." : found;
        if (!OpenFile(found + name, kReadOnly) && errno == ENOENT) {
            const Place directory{OpenFile(parent, O_RDONLY | O_DIRECTORY), parent};
            std::wstring wide;
            std::optional<std::string> other;
            Error error;
            if (!directory.file || !AppendWideFromUtf8(name, wide) || !FindName(directory, wide, other, error) ||
                !other) {
                return path;
            }
            name = *other;
        }
        found += name + (end < path.size() ? "/" : "");
    }
    return found;
}

// As OpenHives.
bool FindHives(const std::string& path, HiveSet& hives, std::vector<std::string>& notes, Error& error)
{
    Place place{OpenFile(path, kReadOnly), path};
    struct stat file = {};
    if (const auto status = place.file && fstat(place.file.Get(), &file) == 0 ? 0 : errno; status != 0) {
        if (const auto other = status == ENOENT ? InOtherCase(path) : path; other != path) {
            return FindHives(other, hives, notes, error);
        }
        error = SystemError("open", path, status);
        return false;
    }
    if (S_ISDIR(file.st_mode)) {
        return OpenBelow(std::move(place), hives, notes, error);
    }
    const auto parent = path.substr(0, path.rfind('/') + 1);
    const Place directory{OpenFile(parent.empty() ? "." : parent, O_RDONLY | O_DIRECTORY),
                          parent.empty() ? "." : parent};
    auto hive = OpenHive(directory, place, hives.files, notes, error);
    if (!hive) {
        return false;
    }
    switch (Tell(*hive)) {
    case Which::Software:
        hives.software = std::move(hive);
        return true;
    case Which::Default:
        hives.standard = std::move(hive);
        return true;
    case Which::Unknown:
        break;
    }
    error = {ErrorKind::BadArgument,
             path + ": nothing tells whether this hive is SOFTWARE or DEFAULT; give it that name"};
    return false;
}

} // namespace

bool OpenHives(const std::string& path, HiveSet& hives, std::vector<std::string>& notes, Error& error)
{
    if (!FindHives(path, hives, notes, error)) {
        return false;
    }
    if (!hives.standard) {
        notes.push_back(path + ": only the hive SOFTWARE is read; HKEY_USERS is empty");
    } else if (!hives.software) {
        notes.push_back(path + ": only the hive DEFAULT is read; HKEY_LOCAL_MACHINE is empty");
    }
    return true;
}

} // namespace wqspcfg
