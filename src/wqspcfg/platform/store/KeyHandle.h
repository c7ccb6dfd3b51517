// An open registry key as a HKEY, for code that is handed one.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"
#include "wqspcfg/platform/store/Session.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg {

// Owns a HKEY that stands for an existing key of the current store. Where that is the Windows registry, it is a handle
// of the system, open for reading and writing, which other modules can be handed too. On any other store only KeyReader
// and KeyWriter know it. On every store, what these read through it within a Load comes from the state that the Load
// reads, and what they write within a Save joins that Save.
class WQSPCFG_API KeyHandle
{
  public:
    KeyHandle() = default;
    ~KeyHandle();
    KeyHandle(const KeyHandle&) = delete;
    KeyHandle& operator=(const KeyHandle&) = delete;

    // Closes the key it held. False, and closed, when the key does not exist; in the Windows registry also when it may
    // not be written.
    bool Open(std::wstring_view path);
    void Close() noexcept;
    // Null when closed. Valid until the handle is closed, in every thread.
    HKEY Get() const noexcept;

  private:
    std::unique_ptr<char> m_place; // its address is the handle where no system has one
    HKEY m_key = nullptr;
#if defined(_WIN32)
    bool m_native = false;
#endif
};

// Reads the values of an open key, or of a subkey of it. The key is one of a KeyHandle; on Windows it may as well be
// one of the Windows registry. A query that fails leaves its output untouched.
class WQSPCFG_API KeyReader
{
  public:
    explicit KeyReader(HKEY key, std::wstring_view subkey = {});
    ~KeyReader();
    KeyReader(const KeyReader&) = delete;
    KeyReader& operator=(const KeyReader&) = delete;

    bool Exists() const noexcept { return m_exists; }
    bool Query(std::wstring_view name, DWORD& value);
    bool Query(std::wstring_view name, CString& value);
    // A value of any type; `view` is valid until the next query.
    bool Find(std::wstring_view name, ValueView& view);

  private:
    std::optional<ReadScope> m_scope; // none for a key of the Windows registry
    Session::Key m_key = 0;
    bool m_exists = false;
#if defined(_WIN32)
    HKEY m_native = nullptr;
    std::vector<std::byte> m_data;
#endif
};

// Writes values of an open key, or of a subkey of it, which is created where it is missing.
class WQSPCFG_API KeyWriter
{
  public:
    explicit KeyWriter(HKEY key, std::wstring_view subkey = {});
    ~KeyWriter();
    KeyWriter(const KeyWriter&) = delete;
    KeyWriter& operator=(const KeyWriter&) = delete;

    bool Set(std::wstring_view name, DWORD value);
    bool Set(std::wstring_view name, const CString& value);
    // Calls back when what was written is committed, or when it is not to be.
    void AtEnd(const std::function<void(bool committed)>& call);
    // Ends the writing and tells whether all of it succeeded. Within a Save it becomes durable with that.
    bool Commit();

  private:
    std::optional<WriteScope> m_scope;
    Session::Key m_key = 0;
#if defined(_WIN32)
    HKEY m_native = nullptr;
#endif
    bool m_failed = false;
};

} // namespace wqspcfg
