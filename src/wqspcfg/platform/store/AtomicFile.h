// A file that is written whole or not at all.
//
// The content goes into a file without a name in the target's directory, where the system has such files, and takes the
// target's place when it is complete and durable: whoever reads the target finds the old content or the new one, and a
// writer that fails or is killed leaves the old content and nothing else. (Killed between two system calls at the end,
// or on a file system without nameless files, it leaves a file named `.TARGET.` and random letters.)
//
// One object is used by one thread.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/base/Export.h"

#include <memory>
#include <string>
#include <string_view>

namespace wqspcfg {

class WQSPCFG_API AtomicFile
{
  public:
    AtomicFile();
    // Gives up what was not committed.
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    // Begins to write the file `path` (UTF-8). `source`, where it is not empty, is the file that the content comes from
    // or that holds the secrets in it.
    //
    // Nobody may read the new file who could not read the source, or the file that it replaces: it gets the rights that
    // both grant, less the process's umask where there is no old file. It keeps the old file's owner and group where
    // this process may give it to them and they could read the source.
    //
    // A symbolic link is followed, and stays one, unless somebody else may have planted it: it belongs to neither this
    // user nor the superuser, in a directory that others can write. Only a regular file is replaced.
    // False with `error` filled; the object is as new then.
    bool Open(const std::string& path, const std::string& source, Error& error);

    // Puts more behind what was written. False with `error` filled; the file cannot be committed then.
    bool Write(std::string_view bytes, Error& error);

    // Makes the content durable and puts it in its place. False with `error` filled when the old content stands, or
    // when it is not known whether the new one is durable. The object is as new after it.
    bool Commit(Error& error);

#if !defined(_WIN32)
    // The open file, for writers that need it; they go on from what was written with Write. -1 when nothing is open.
    int Descriptor() const noexcept;
#endif

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace wqspcfg
