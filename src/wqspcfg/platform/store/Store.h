// A registry store: keys with subkeys and typed values, with the semantics of the Windows registry.
//
// Names of keys and values compare without regard to case and keep the case they were created with. Key paths are
// separated by backslashes; empty components (a trailing or doubled backslash) do not count. Nothing here throws;
// memory exhaustion ends the process.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/base/Export.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wqspcfg {

enum class Hive : std::uint8_t
{
    LocalMachine,
    Users,
    CurrentUser,
    ClassesRoot,
    CurrentConfig,
};

// The registry's value types by their Windows numbers. A type without a name here is kept as its number.
enum class ValueType : std::uint32_t
{
    None = 0,
    Sz = 1, // UTF-16LE, normally with a terminator
    ExpandSz = 2,
    Binary = 3,
    Dword = 4, // 4 bytes, little-endian
    DwordBigEndian = 5,
    Link = 6,
    MultiSz = 7,
    Qword = 11,
};

// A value as the registry holds it. The bytes belong to the transaction that gave them and stay valid until its next
// call.
struct ValueView
{
    ValueType type = ValueType::None;
    std::span<const std::byte> data;
};

enum class Outcome : std::uint8_t
{
    Found,   // done
    Missing, // there is no such key or value
    Failed,  // the store could not do it; Transaction::LastError tells why
};

// An open key within one transaction.
using KeyId = std::uint32_t;

using KeyVisitor = std::function<bool(std::wstring_view name)>;
using ValueVisitor = std::function<bool(std::wstring_view name, const ValueView& value)>;

// One consistent view of a store, used by one thread. A write transaction sees its own writes; destroyed without
// Commit it is rolled back where the store can do that (embedded and memory stores; the Windows registry writes at
// once).
class Transaction
{
  public:
    virtual ~Transaction() = default;
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // Opens an existing key. The empty path is the hive's root, which always exists.
    virtual Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) = 0;
    // Gives up a key that is no longer needed; its number may be used again.
    virtual void CloseKey([[maybe_unused]] KeyId key) noexcept {}
    // The empty name is the key's default value.
    virtual Outcome Query(KeyId key, std::wstring_view name, ValueView& value) = 0;
    // One value by its full path, where that costs less than OpenKey and Query (HasPathQueries).
    virtual Outcome QueryAt(Hive hive, std::wstring_view path, std::wstring_view name, ValueView& value)
    {
        KeyId key = 0;
        const auto opened = OpenKey(hive, path, key);
        return opened == Outcome::Found ? Query(key, name, value) : opened;
    }
    virtual bool HasPathQueries() const noexcept { return false; }
    // A key for Query alone, which may not exist: with HasPathQueries, without a look at the store.
    virtual Outcome NameKey(Hive hive, std::wstring_view path, KeyId& key) { return OpenKey(hive, path, key); }
    // Direct subkeys in case-insensitive order of name. The visitor returns false to stop; it does not call this
    // transaction.
    virtual Outcome EnumKeys(KeyId key, const KeyVisitor& visit) = 0;
    // The key's values in case-insensitive order of name, the default value first.
    virtual Outcome EnumValues(KeyId key, const ValueVisitor& visit) = 0;

    // The rest needs a write transaction.
    // Opens a key and creates it, with its parents, where it is missing.
    virtual Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) = 0;
    virtual Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) = 0;
    virtual Outcome DeleteValue(KeyId key, std::wstring_view name) = 0;
    // Deletes a key and all below it. Keys below it that are open become invalid.
    virtual Outcome DeleteKey(Hive hive, std::wstring_view path) = 0;
    // Makes the writes visible to others, all at once, and durable where `flush` is set or the store always is.
    // The transaction is over, whatever the result.
    virtual Outcome Commit(bool flush) = 0;

    // Why the last call returned Failed.
    const Error& LastError() const noexcept { return m_error; }

  protected:
    Transaction() = default;
    Outcome Fail(ErrorKind kind, std::string message)
    {
        m_error = {kind, std::move(message)};
        return Outcome::Failed;
    }

  private:
    Error m_error;
};

// NameRoom of embedded stores.
constexpr std::size_t kEmbeddedNameRoom = 511;

enum class Access : std::uint8_t
{
    Read,
    Write,
};

// A store may be used by several threads at once, each with its own transaction.
class Store
{
  public:
    virtual ~Store() = default;
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    // Null with `error` filled when it cannot begin. A write transaction excludes other writers; a thread that has one
    // is refused a second. A transaction ends before its store.
    virtual std::unique_ptr<Transaction> Begin(Access access, Error& error) = 0;
    // The address that OpenStore was given, for messages.
    virtual const std::string& Address() const noexcept = 0;
    // The file that holds the content, whose rights tell who may see it; empty where there is none.
    virtual std::string FilePath() const { return {}; }
    // That file and all others which are part of the content.
    virtual std::vector<std::string> Files() const
    {
        auto path = FilePath();
        return path.empty() ? std::vector<std::string>() : std::vector{std::move(path)};
    }
    // How many bytes the name of a key or value may have together with the path to it, as the store keeps them.
    virtual std::size_t NameRoom() const noexcept { return static_cast<std::size_t>(-1); }
    // Whether a write transaction that is not committed leaves no trace.
    virtual bool RollsBack() const noexcept { return true; }

  protected:
    Store() = default;
};

struct OpenOptions
{
    bool readOnly = false;
    // Create an embedded store that does not exist yet; without it, a missing store is an error.
    bool create = false;
    // `reg:` stores: read SOFTWARE\WOW6432Node as SOFTWARE. `windows:` stores: the 32-bit view.
    bool view32 = false;
    // `reg:` stores: the code page of a REGEDIT4 file's text (936, 1252); 0: it is ASCII or UTF-8.
    unsigned codePage = 0;
};

// Opens a store by its address: `windows:`, `windows:32`, `windows:64`, `lmdb:DIRECTORY`, `memory:` or `reg:FILE`
// (UTF-8). Each `memory:` is a new, empty store. Null with `error` filled when that fails; the message names the path
// and the cause.
WQSPCFG_API std::shared_ptr<Store> OpenStore(std::string_view address, const OpenOptions& options, Error& error);

// The environment variable WQSPCFG_STORE, else `windows:` on Windows. Elsewhere the embedded store in /var/lib/wqspcfg,
// where this user can write that directory or read a store in it, else in $XDG_DATA_HOME/wqspcfg
// (~/.local/share/wqspcfg).
WQSPCFG_API std::string DefaultStoreAddress();

} // namespace wqspcfg
