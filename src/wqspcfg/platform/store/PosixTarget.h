// What a path that is to be written leads to, found link by link.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/PosixFile.h"

#include <optional>
#include <string>
#include <sys/stat.h>

namespace wqspcfg {

struct PosixTarget
{
    FileDescriptor directory;          // O_PATH
    std::string name;                  // in it
    std::optional<struct stat> status; // nothing where there is no such file yet

    bool isOwnDescriptor = false; // a link of /proc to an open file of this process, which has no other path

    // Anything but a regular file and a directory, such as a device or a pipe.
    bool IsSpecial() const;
    // Opens a special file to write to it. -1 with `error`, which names it `path`.
    FileDescriptor OpenSpecial(const std::string& path, Error& error) const;
};

// Nobody may lead a process to a file of his choice: a symbolic link, at any place of the path, is followed only when
// it and its directory belong to this user or to the superuser. Nobody may read along: a special file and its directory
// must belong to one of the two as well. A terminal, /dev/null, a pipe of this user and what this process has open
// already are taken wherever they are.
bool FindTarget(const std::string& path, PosixTarget& target, Error& error);

} // namespace wqspcfg
