// A registry hive as its file holds it, and what must hold of its structures before libhivex follows them.
//
// The file is copied first: the disk of a broken terminal may fail in the middle of a read, and whoever else has the
// file open may cut it. Positions are bytes from its beginning, as libhivex's handles are.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/PosixFile.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace wqspcfg {

class HiveImage
{
  public:
    HiveImage() = default;
    ~HiveImage();
    HiveImage(const HiveImage&) = delete;
    HiveImage& operator=(const HiveImage&) = delete;

    // Copies the hive in an open file, which `path` names in messages.
    bool Read(const FileDescriptor& file, const std::string& path, Error& error);

    // Under which libhivex opens the copy.
    std::string CopyPath() const { return m_copy.Path(); }
    // Whether Windows has begun to write to the hive and not ended.
    bool IsDirty() const;
    // Of the last write that was ended.
    std::uint32_t Sequence() const;
    // The name of the file in which Windows has had the hive loaded; empty where it is not told.
    std::wstring LoadedAs() const;
    std::size_t Root() const;

    // What is wrong with a key's subkeys, a key's values or the data of a value; null where nothing is.
    const char* SubkeysFault(std::size_t key) const;
    const char* ValuesFault(std::size_t key) const;
    const char* DataFault(std::size_t value) const;
    // Of a key or value in which no fault was found.
    std::wstring KeyName(std::size_t key) const;
    std::wstring ValueName(std::size_t value) const;

  private:
    using Bytes = std::span<const std::byte>;

    Bytes Cell(std::size_t at) const;
    Bytes CellOfId(std::size_t at, const char* id) const;
    const char* KeyFault(std::size_t key) const;
    const char* ListFault(std::size_t list, std::size_t key, std::size_t& left, bool mayBeIndex) const;

    FileDescriptor m_copy;
    Bytes m_bytes;
};

} // namespace wqspcfg
