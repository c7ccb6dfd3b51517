#include "wqspcfg/platform/store/KeyHandle.h"

#include "wqspcfg/platform/store/ForkSafe.h"
#include "wqspcfg/platform/store/RegistryPath.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#if defined(_WIN32)
#include "wqspcfg/platform/store/windows/WindowsStore.h"
#endif

#include <mutex>
#include <string>
#include <unordered_map>

namespace wqspcfg {

namespace {

// The handles that are open in this process.
struct OpenHandles
{
    std::mutex& mutex = ForkSafeMutex(ForkSafe::KeyHandles);
    std::unordered_map<HKEY, std::wstring> paths;
};

// Never destroyed: an object that ends with the process may hold a key.
OpenHandles& Handles()
{
    static auto& handles = *new OpenHandles;
    return handles;
}

// The path of the key, when it is one of a KeyHandle.
std::optional<std::wstring> PathOf(HKEY key, std::wstring_view subkey)
{
    auto& handles = Handles();
    const std::lock_guard lock(handles.mutex);
    const auto found = handles.paths.find(key);
    if (found == handles.paths.end()) {
        return std::nullopt;
    }
    auto whole = found->second;
    if (!subkey.empty()) {
        whole += L'\\';
        whole += subkey;
    }
    return whole;
}

#if defined(_WIN32)
// The access of a key of the Windows registry when that is the current store.
std::optional<REGSAM> AccessToRegistry()
{
    Error error;
    const auto store = CurrentStore(error);
    const auto* registry = dynamic_cast<const WindowsStore*>(store.get());
    return registry != nullptr ? std::optional(REGSAM{KEY_READ | KEY_WRITE} | registry->View()) : std::nullopt;
}
#endif

} // namespace

KeyHandle::~KeyHandle()
{
    Close();
}

bool KeyHandle::Open(std::wstring_view path)
{
    Close();
    ReadScope scope;
    if (!scope->Exists(scope->Open(path))) {
        return false;
    }
#if defined(_WIN32)
    if (const auto access = AccessToRegistry()) {
        const HKEY root = HiveOf(path) == Hive::Users ? HKEY_USERS : HKEY_LOCAL_MACHINE;
        if (RegOpenKeyExW(root, std::wstring(path).c_str(), 0, *access, &m_key) != ERROR_SUCCESS) {
            m_key = nullptr;
            return false;
        }
        m_native = true;
    }
#endif
    if (m_key == nullptr) { // the address of something that this handle owns
        m_place = std::make_unique<char>();
        m_key = reinterpret_cast<HKEY>(m_place.get());
    }
    auto& handles = Handles();
    const std::lock_guard lock(handles.mutex);
    handles.paths[m_key] = path;
    return true;
}

void KeyHandle::Close() noexcept
{
    if (m_key == nullptr) {
        return;
    }
    {
        auto& handles = Handles();
        const std::lock_guard lock(handles.mutex);
        handles.paths.erase(m_key);
    }
#if defined(_WIN32)
    if (std::exchange(m_native, false)) {
        RegCloseKey(m_key);
    }
#endif
    m_key = nullptr;
    m_place.reset();
}

HKEY KeyHandle::Get() const noexcept
{
    return m_key;
}

// ---- Reading ----

KeyReader::KeyReader(HKEY key, std::wstring_view subkey)
{
    if (const auto path = PathOf(key, subkey)) {
        m_scope.emplace();
        m_key = (*m_scope)->Open(*path);
        m_exists = (*m_scope)->Exists(m_key);
        return;
    }
#if defined(_WIN32)
    if (key != nullptr && RegOpenKeyExW(key, std::wstring(subkey).c_str(), 0, KEY_READ, &m_native) == ERROR_SUCCESS) {
        m_exists = true;
    }
#endif
}

KeyReader::~KeyReader() // NOLINT(modernize-use-equals-default): on Windows there is something to close
{
#if defined(_WIN32)
    if (m_native != nullptr) {
        RegCloseKey(m_native);
    }
#endif
}

bool KeyReader::Find(std::wstring_view name, ValueView& view)
{
    if (m_scope) {
        return (*m_scope)->Query(m_key, name, view) == Outcome::Found;
    }
#if defined(_WIN32)
    if (m_native != nullptr) {
        const std::wstring terminated(name);
        DWORD type = 0;
        DWORD size = 0;
        auto result = RegQueryValueExW(m_native, terminated.c_str(), nullptr, &type, nullptr, &size);
        // Another process may replace the value by a longer one in between.
        while (result == ERROR_SUCCESS || result == ERROR_MORE_DATA) {
            m_data.resize(size);
            result = RegQueryValueExW(m_native, terminated.c_str(), nullptr, &type,
                                      reinterpret_cast<BYTE*>(m_data.data()), &size);
            if (result == ERROR_SUCCESS) {
                view = {static_cast<ValueType>(type), std::span(m_data).first(size)};
                return true;
            }
        }
    }
#endif
    return false;
}

bool KeyReader::Query(std::wstring_view name, DWORD& value)
{
    ValueView view;
    return Find(name, view) && ToValue(view, value);
}

bool KeyReader::Query(std::wstring_view name, CString& value)
{
    ValueView view;
    return Find(name, view) && ToValue(view, value);
}

// ---- Writing ----

KeyWriter::KeyWriter(HKEY key, std::wstring_view subkey)
{
    if (const auto path = PathOf(key, subkey)) {
        m_scope.emplace();
        m_key = (*m_scope)->Open(*path);
        return;
    }
#if defined(_WIN32)
    if (key != nullptr && RegCreateKeyExW(key, std::wstring(subkey).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                                          &m_native, nullptr) == ERROR_SUCCESS) {
        return;
    }
    m_native = nullptr;
#endif
    m_failed = true;
}

KeyWriter::~KeyWriter() // NOLINT(modernize-use-equals-default): on Windows there is something to close
{
#if defined(_WIN32)
    if (m_native != nullptr) {
        RegCloseKey(m_native);
    }
#endif
}

bool KeyWriter::Set(std::wstring_view name, DWORD value)
{
    bool done = false;
    if (m_scope) {
        const DwordBytes bytes(value);
        done = (*m_scope)->Set(m_key, name, bytes.View()) == Outcome::Found;
    }
#if defined(_WIN32)
    if (m_native != nullptr) {
        done = RegSetValueExW(m_native, std::wstring(name).c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                              sizeof value) == ERROR_SUCCESS;
    }
#endif
    m_failed = m_failed || !done;
    return done;
}

bool KeyWriter::Set(std::wstring_view name, const CString& value)
{
    bool done = false;
    if (m_scope) {
        done = SetText(**m_scope, m_key, name, value.View()) == Outcome::Found;
    }
#if defined(_WIN32)
    if (m_native != nullptr) {
        const auto size = static_cast<DWORD>((value.View().size() + 1) * sizeof(wchar_t));
        done = RegSetValueExW(m_native, std::wstring(name).c_str(), 0, REG_SZ,
                              reinterpret_cast<const BYTE*>(value.GetString()), size) == ERROR_SUCCESS;
    }
#endif
    m_failed = m_failed || !done;
    return done;
}

void KeyWriter::AtEnd(const std::function<void(bool committed)>& call)
{
    if (m_scope) {
        (*m_scope)->AtEnd(call);
    } else { // the Windows registry, which commits nothing
        call(!m_failed);
    }
}

bool KeyWriter::Commit()
{
    if (m_scope && !m_scope->Commit()) {
        m_failed = true;
    }
    return !m_failed;
}

} // namespace wqspcfg
