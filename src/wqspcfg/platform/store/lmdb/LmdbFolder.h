// The directory of an embedded store, held open: its files are reached below it and never by their path, so that nobody
// can put another file in their place on the way.
//
// The directory must belong to this user or to the superuser, and nobody else may be able to write to it; else another
// user could plant links there and have this process write to whatever they lead to. The superuser also uses the store
// of another user: all its files are opened and made with that user's rights then, and belong to him. Where the
// environment variable WQSPCFG_TRUST_DIRECTORY is 1, every directory is taken as it is.
//
// Opening a directory is not yet using it: LMDB follows what stands in the store's files, pointers in the lock file
// among it, so that whoever may write them can take over the process. The superuser only reads a copy of such a store
// (WhoElseWrites), unless the environment variable WQSPCFG_TRUST_STORE is 1.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/PosixFile.h"

#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace wqspcfg {

constexpr char kDataName[] = "data.mdb";
constexpr char kLockName[] = "lock.mdb";
constexpr char kKeptSuffix[] = ".damaged"; // of the file that a restore has replaced

enum class StoreFile : unsigned char
{
    None,
    Lock,
    Data, // or a backup
};
// What file of an embedded store this is, by its beginning.
StoreFile KindOfStoreFile(const FileDescriptor& file);

class LmdbFolder
{
  public:
    // Makes the directory, with its parents, where it is missing and `create` is set: for this user alone.
    bool Open(const std::string& address, const std::string& path, bool create, Error& error);

    int Get() const noexcept { return m_directory.Get(); }
    const std::string& Path() const noexcept { return m_path; }
    std::string PathOf(const char* name) const { return m_path + '/' + name; }
    // The directory for code that opens by path.
    std::string OpenPath() const;
    // With what rights a new file is made: those of the group too where the administrator shares the directory by its
    // set-group-ID bit.
    mode_t NewFileMode() const noexcept
    {
        constexpr mode_t kShared = S_ISGID | S_IXGRP;
        return (m_status.st_mode & kShared) == kShared ? 0660 : 0600;
    }

    // For the superuser: who else may write the store, and what to do. Empty when nobody else may, when they are
    // trusted, and for all other users.
    std::string WhoElseWrites() const;
    // Whether the status of the directory or of a file says so.
    bool IsOfOthers(const struct stat& status) const noexcept
    {
        return m_isCareful && (status.st_uid != 0 || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0);
    }
    // That this process may make a store here.
    bool CheckMaking(const std::string& address, Error& error) const;

    // Opens a file of the store that is there. -1 with errno.
    FileDescriptor OpenFile(const char* name, int flags) const;
    // Why a file that is there cannot be opened with the rights that the store is used with: `status` in words, and
    // what to do about a file that belongs to somebody else than the directory does.
    std::string WhyRefused(const char* name, int status) const;
    // That an open file is an ordinary one, has no second name and belongs to someone who is trusted.
    bool CheckFile(const std::string& address, const char* name, const FileDescriptor& file, Error& error) const;

    // The owner, group and rights of the store's data file, sound or not. False with `status` ENOENT when there is
    // none, else when it is not one that another file may be given the rights of.
    bool GetModel(struct stat& model, int& status) const;

    // An empty file that is to become the data file, as MakeTemporary gives it. -1 with errno.
    FileDescriptor MakeFile(std::string& name) const;
    // Makes the file that MakeFile made the data file. Without `replace`, EEXIST when there is one. An errno value, or
    // 0.
    int Place(const FileDescriptor& file, std::string& name, bool replace) const;
    // An errno value, or 0.
    int Sync() const;

  private:
    friend class ActAsOwner;

    // Whether the second name of a file is that of one that a restore has kept.
    bool IsKept(const char* name, const struct stat& status) const;

    std::string m_path;
    FileDescriptor m_directory;
    struct stat m_status = {};
    bool m_isTrusted = false;
    bool m_isCareful = false; // the superuser, who does not trust others with his processes
};

// Gives this thread, while the object lives, the rights of the directory's owner when it has those of the superuser.
class ActAsOwner
{
  public:
    explicit ActAsOwner(const LmdbFolder& folder);
    ~ActAsOwner();
    ActAsOwner(const ActAsOwner&) = delete;
    ActAsOwner& operator=(const ActAsOwner&) = delete;

    // False when the system does not allow it.
    bool Check(const std::string& address, const LmdbFolder& folder, Error& error) const;
    // Gives an open file the owner and the group of `model`, which LmdbFolder::CheckFile found in order or GetModel
    // gave. The directory's owner need not be in that group: this takes the process's own rights. Under them the file
    // stays the directory's owner's. An errno value, or 0.
    int Give(const FileDescriptor& file, const struct stat& model) const;

  private:
    bool m_isNeeded = false;
    bool m_isDone = false;
    std::vector<gid_t> m_groups;
};

} // namespace wqspcfg
