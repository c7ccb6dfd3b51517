// A file that is written whole or not at all.
//
// The content goes into a file without a name in the target's directory, where the system has such files, and takes the
// target's place when it is complete and durable: whoever reads the target finds the old content or the new one, and a
// writer that fails or is killed leaves the old content and nothing else. (Killed between two system calls at the end
// while it replaces a file, or on a file system without nameless files, it leaves a file named `.TARGET.wqspcfg-` and
// random letters; the same user's next writer of TARGET removes it.)
//
// One object is used by one thread.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/base/Export.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg {

class WQSPCFG_API AtomicFile
{
  public:
    AtomicFile();
    // Gives up what was not committed.
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    enum class Replaces : unsigned char
    {
        Files,
        Backups, // of an embedded store, too
    };

    // Begins to write the file `path` (UTF-8). `sources` are the files that the content comes from; empty ones are
    // none.
    //
    // Nobody may read the new file who could not read every source, with the rights of its directory, and the file that
    // is replaced: it gets the rights that all of them grant, less the process's umask where there is no old file. It
    // keeps the old file's owner and group where this process may give it to them and they could read the sources. On
    // Windows it gets the access list of the old file, else that of the first source.
    //
    // A symbolic link is followed, and stays one, unless somebody else may have planted it (PosixTarget.h). Only a
    // regular file is replaced, and no source, whatever its name is here, and no file of an embedded store.
    // False with `error` filled; the object is as new then.
    bool Open(const std::string& path, const std::vector<std::string>& sources, Error& error,
              Replaces replaces = Replaces::Files);

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
    struct Source;
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace wqspcfg
