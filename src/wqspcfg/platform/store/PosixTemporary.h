// Files that get their name when they are complete.
//
// Until then they have none, where the system has such files; else, and for the moment in which they replace another
// file, they have a name of their own, which a writer that is killed leaves behind. A writer locks its file while it
// works on it, so that the next one for the same target knows what was left.
#pragma once

#include "wqspcfg/platform/store/PosixFile.h"

#include <string>
#include <sys/types.h>

namespace wqspcfg {

// An empty file in the open directory for what is to become `target`, locked until the descriptor is closed. `name` is
// its own name, or empty. What writers of `target` that were killed have left is removed: regular files with such a
// name and no other, of the user with whose rights this thread uses files, that nobody works on. -1 with errno.
FileDescriptor MakeTemporary(int directory, const std::string& target, mode_t mode, std::string& name);

// Gives the file the name `target`. Without `replace`, EEXIST when there is one. `name` is what is left to remove, or
// empty. An errno value, or 0.
int PlaceTemporary(int directory, const FileDescriptor& file, std::string& name, const std::string& target,
                   bool replace);

} // namespace wqspcfg
