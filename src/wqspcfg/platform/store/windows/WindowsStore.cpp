#include "wqspcfg/platform/store/windows/WindowsStore.h"

#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <limits>
#include <thread>
#include <utility>
#include <vector>

namespace wqspcfg {

namespace {

HKEY RootOf(Hive hive)
{
    switch (hive) {
    case Hive::Users:
        return HKEY_USERS;
    case Hive::CurrentUser:
        return HKEY_CURRENT_USER;
    case Hive::ClassesRoot:
        return HKEY_CLASSES_ROOT;
    case Hive::CurrentConfig:
        return HKEY_CURRENT_CONFIG;
    case Hive::LocalMachine:
        break;
    }
    return HKEY_LOCAL_MACHINE;
}

ErrorKind KindOf(LSTATUS status)
{
    switch (status) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_KEY_DELETED:
        return ErrorKind::NotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return ErrorKind::AccessDenied;
    case ERROR_DISK_FULL:
    case ERROR_NO_SYSTEM_RESOURCES:
    case ERROR_NO_LOG_SPACE:
        return ErrorKind::NoSpace;
    case ERROR_BADDB:
    case ERROR_REGISTRY_CORRUPT:
        return ErrorKind::Damaged;
    case ERROR_FILENAME_EXCED_RANGE:
        return ErrorKind::TooLong;
    case ERROR_INVALID_PARAMETER:
        return ErrorKind::BadArgument;
    default:
        return ErrorKind::Io;
    }
}

std::string Words(LSTATUS status)
{
    wchar_t text[512];
    auto length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                 static_cast<DWORD>(status), 0, text, 512, nullptr);
    while (length > 0 && (text[length - 1] <= L' ' || text[length - 1] == L'.')) {
        --length;
    }
    return Utf8ForMessage({text, length}) + " (" + std::to_string(status) + ')';
}

bool IsMissing(LSTATUS status)
{
    return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND || status == ERROR_KEY_DELETED;
}

class RegistryKey
{
  public:
    explicit RegistryKey(HKEY handle = nullptr) : m_handle(handle) {}
    ~RegistryKey() { Close(); }
    RegistryKey(RegistryKey&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    RegistryKey& operator=(RegistryKey&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }

    HKEY Get() const noexcept { return m_handle; }
    void Close() noexcept
    {
        if (m_handle != nullptr) {
            RegCloseKey(m_handle);
            m_handle = nullptr;
        }
    }

  private:
    HKEY m_handle;
};

class WindowsTransaction final : public Transaction
{
  public:
    WindowsTransaction(const std::string& address, REGSAM view, std::unique_lock<std::mutex> writerLock)
        : m_address(address), m_view(view), m_writerLock(std::move(writerLock)), m_write(m_writerLock.owns_lock())
    {}

    Outcome OpenKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        if (!SetPath(hive, path)) {
            return Outcome::Failed;
        }
        HKEY handle = nullptr;
        const auto status = RegOpenKeyExW(RootOf(hive), m_path.c_str(), 0, KEY_READ | m_view, &handle);
        if (status != ERROR_SUCCESS) {
            return Result(status, "open", hive, m_path);
        }
        key = Add(hive, handle, false, false);
        return Outcome::Found;
    }

    void CloseKey(KeyId key) noexcept override
    {
        auto& opened = m_keys[key];
        if (!opened.written) {
            opened.handle.Close();
            m_closed.push_back(key);
        }
    }

    Outcome Query(KeyId key, std::wstring_view name, ValueView& value) override
    {
        const auto& opened = m_keys[key];
        if (!SetName(name)) {
            return Outcome::Failed;
        }
        for (;;) {
            DWORD type = 0;
            auto size = static_cast<DWORD>(m_data.size());
            const auto status = RegQueryValueExW(opened.handle.Get(), m_name.c_str(), nullptr, &type,
                                                 reinterpret_cast<BYTE*>(m_data.data()), &size);
            if (status == ERROR_MORE_DATA) {
                // Another program may make it longer in between.
                m_data.resize(std::max<std::size_t>(size, m_data.size() * 2));
                continue;
            }
            if (status != ERROR_SUCCESS) {
                return Result(status, "read the value \"" + Utf8ForMessage(name) + "\" of", opened.hive, opened.path);
            }
            value = {static_cast<ValueType>(type), std::span(m_data).first(size)};
            return Outcome::Found;
        }
    }

    Outcome EnumKeys(KeyId key, const KeyVisitor& visit) override
    {
        const auto& opened = m_keys[key];
        std::vector<std::wstring> names;
        std::wstring name(kMaxKeyName + 1, L'\0');
        for (DWORD index = 0;; ++index) {
            auto length = static_cast<DWORD>(name.size());
            const auto status =
                RegEnumKeyExW(opened.handle.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
            if (status == ERROR_NO_MORE_ITEMS) {
                break;
            }
            if (status != ERROR_SUCCESS) {
                return Result(status, "list the keys of", opened.hive, opened.path);
            }
            names.emplace_back(name, 0, length);
        }
        std::sort(names.begin(), names.end(), LessNoCase{});
        for (const auto& each : names) {
            if (!visit(each)) {
                break;
            }
        }
        return Outcome::Found;
    }

    Outcome EnumValues(KeyId key, const ValueVisitor& visit) override
    {
        std::vector<std::wstring> names;
        {
            const auto& opened = m_keys[key];
            std::wstring name(kMaxValueName + 1, L'\0');
            for (DWORD index = 0;; ++index) {
                auto length = static_cast<DWORD>(name.size());
                const auto status =
                    RegEnumValueW(opened.handle.Get(), index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
                if (status == ERROR_NO_MORE_ITEMS) {
                    break;
                }
                if (status != ERROR_SUCCESS) {
                    return Result(status, "list the values of", opened.hive, opened.path);
                }
                names.emplace_back(name, 0, length);
            }
        }
        std::sort(names.begin(), names.end(), LessNoCase{});
        for (const auto& name : names) {
            ValueView value;
            const auto outcome = Query(key, name, value);
            if (outcome == Outcome::Failed) {
                return outcome;
            }
            if (outcome == Outcome::Found && !visit(name, value)) {
                break;
            }
        }
        return Outcome::Found;
    }

    Outcome CreateKey(Hive hive, std::wstring_view path, KeyId& key) override
    {
        if (!MayWrite() || !SetPath(hive, path)) {
            return Outcome::Failed;
        }
        HKEY handle = nullptr;
        DWORD disposition = REG_OPENED_EXISTING_KEY;
        if (HasControlCharacter(m_path)) {
            if (RegOpenKeyExW(RootOf(hive), m_path.c_str(), 0, KEY_READ | m_view, &handle) != ERROR_SUCCESS) {
                return Fail(ErrorKind::BadText, m_address + ": the key path " + DescribeKey(hive, m_path) +
                                                    " holds a line break or another control character");
            }
            RegCloseKey(handle);
        }
        // A hive's root cannot be created, only opened.
        const auto status = m_path.empty()
                                ? RegOpenKeyExW(RootOf(hive), nullptr, 0, KEY_READ | KEY_WRITE | m_view, &handle)
                                : RegCreateKeyExW(RootOf(hive), m_path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                                  KEY_READ | KEY_WRITE | m_view, nullptr, &handle, &disposition);
        if (status != ERROR_SUCCESS) {
            return Failure(status, "create", hive, m_path);
        }
        key = Add(hive, handle, true, disposition == REG_CREATED_NEW_KEY);
        return Outcome::Found;
    }

    Outcome SetValue(KeyId key, std::wstring_view name, const ValueView& value) override
    {
        if (!MayWrite() || !SetName(name)) {
            return Outcome::Failed;
        }
        auto& opened = m_keys[key];
        const auto what = "write the value \"" + Utf8ForMessage(name.substr(0, 80)) + "\" of";
        if (name.size() > kMaxValueName || value.data.size() > std::numeric_limits<DWORD>::max()) {
            return Failure(ERROR_FILENAME_EXCED_RANGE, what, opened.hive, opened.path);
        }
        if (!opened.writable) {
            HKEY handle = nullptr;
            const auto status = RegOpenKeyExW(opened.handle.Get(), nullptr, 0, KEY_READ | KEY_WRITE | m_view, &handle);
            if (status != ERROR_SUCCESS) {
                return Failure(status, what, opened.hive, opened.path);
            }
            opened.handle = RegistryKey(handle);
            opened.writable = true;
        }
        // The registry adds a terminator to a text without one when a NUL happens to follow it in memory.
        m_text.assign(value.data.begin(), value.data.end());
        m_text.insert(m_text.end(), 2, std::byte{1});
        const auto status =
            RegSetValueExW(opened.handle.Get(), m_name.c_str(), 0, static_cast<DWORD>(value.type),
                           reinterpret_cast<const BYTE*>(m_text.data()), static_cast<DWORD>(value.data.size()));
        if (status != ERROR_SUCCESS) {
            return Failure(status, what, opened.hive, opened.path);
        }
        opened.written = true;
        return Outcome::Found;
    }

    Outcome DeleteValue(KeyId key, std::wstring_view name) override
    {
        if (!MayWrite() || !SetName(name)) {
            return Outcome::Failed;
        }
        auto& opened = m_keys[key];
        const auto what = "delete the value \"" + Utf8ForMessage(name.substr(0, 80)) + "\" of";
        HKEY handle = nullptr;
        auto status = RegOpenKeyExW(opened.handle.Get(), nullptr, 0, KEY_SET_VALUE | m_view, &handle);
        if (status == ERROR_SUCCESS) {
            status = RegDeleteValueW(handle, m_name.c_str());
            RegCloseKey(handle);
        }
        if (status == ERROR_SUCCESS) {
            opened.written = true;
            return Outcome::Found;
        }
        return Result(status, what, opened.hive, opened.path);
    }

    Outcome DeleteKey(Hive hive, std::wstring_view path) override
    {
        if (!MayWrite() || !SetPath(hive, path)) {
            return Outcome::Failed;
        }
        if (m_path.empty()) {
            return Fail(ErrorKind::BadArgument,
                        m_address + ": " + DescribeKey(hive, {}) + " is a hive and cannot be deleted");
        }
        const auto slash = m_path.rfind(L'\\');
        const auto parentPath = slash == std::wstring::npos ? std::wstring() : m_path.substr(0, slash);
        const auto name = slash == std::wstring::npos ? m_path : m_path.substr(slash + 1);
        HKEY parent = nullptr;
        auto status = RegOpenKeyExW(RootOf(hive), parentPath.c_str(), 0, KEY_READ | m_view, &parent);
        if (status == ERROR_SUCCESS) {
            const RegistryKey closing(parent);
            status = DeleteTree(parent, name);
        }
        return status == ERROR_SUCCESS ? Outcome::Found : Result(status, "delete", hive, m_path);
    }

    Outcome Commit(bool flush) override
    {
        if (!MayWrite()) {
            return Outcome::Failed;
        }
        auto outcome = Outcome::Found;
        for (const auto& opened : m_keys) {
            if (flush && opened.written) {
                const auto status = RegFlushKey(opened.handle.Get());
                if (status != ERROR_SUCCESS && status != ERROR_KEY_DELETED) {
                    outcome = Failure(status, "flush", opened.hive, opened.path);
                }
            }
        }
        m_keys.clear();
        m_over = true;
        m_writerLock.unlock();
        return outcome;
    }

  private:
    struct OpenedKey
    {
        Hive hive = Hive::LocalMachine;
        std::wstring path;
        RegistryKey handle;
        bool writable = false;
        bool written = false;
    };

    KeyId Add(Hive hive, HKEY handle, bool writable, bool written)
    {
        OpenedKey opened{hive, m_path, RegistryKey(handle), writable, written};
        if (m_closed.empty()) {
            m_keys.push_back(std::move(opened));
            return static_cast<KeyId>(m_keys.size() - 1);
        }
        const auto key = m_closed.back();
        m_closed.pop_back();
        m_keys[key] = std::move(opened);
        return key;
    }

    Outcome Failure(LSTATUS status, const std::string& action, Hive hive, std::wstring_view path)
    {
        return Fail(KindOf(status),
                    m_address + ": cannot " + action + ' ' + DescribeKey(hive, path) + ": " + Words(status));
    }

    Outcome Result(LSTATUS status, const std::string& action, Hive hive, std::wstring_view path)
    {
        return IsMissing(status) ? Outcome::Missing : Failure(status, action, hive, path);
    }

    bool MayWrite()
    {
        if (m_over) {
            Fail(ErrorKind::BadArgument, m_address + ": the transaction is over");
        } else if (!m_write) {
            Fail(ErrorKind::BadArgument, m_address + ": a read transaction cannot write");
        }
        return m_write && !m_over;
    }

    // Without empty components, which the registry would refuse.
    bool SetPath(Hive hive, std::wstring_view path)
    {
        if (m_over || path.find(L'\0') != std::wstring_view::npos) {
            if (m_over) {
                Fail(ErrorKind::BadArgument, m_address + ": the transaction is over");
            } else {
                Fail(ErrorKind::BadText, m_address + ": the key path " + DescribeKey(hive, path) + " holds a NUL");
            }
            return false;
        }
        m_path.clear();
        for (std::size_t pos = 0; pos < path.size();) {
            const auto end = std::min(path.find(L'\\', pos), path.size());
            if (end - pos > kMaxKeyName) {
                Fail(ErrorKind::TooLong,
                     m_address + ": the key path " + DescribeKey(hive, path) + " has a name that is too long");
                return false;
            }
            if (end > pos) {
                if (!m_path.empty()) {
                    m_path.push_back(L'\\');
                }
                m_path.append(path, pos, end - pos);
            }
            pos = end + 1;
        }
        return true;
    }

    bool SetName(std::wstring_view name)
    {
        if (m_over) {
            Fail(ErrorKind::BadArgument, m_address + ": the transaction is over");
            return false;
        }
        if (name.find(L'\0') != std::wstring_view::npos) {
            Fail(ErrorKind::BadText, m_address + ": the value name \"" + Utf8ForMessage(name) + "\" holds a NUL");
            return false;
        }
        m_name.assign(name);
        return true;
    }

    // RegDeleteTreeW knows no view.
    LSTATUS DeleteTree(HKEY parent, const std::wstring& name)
    {
        HKEY key = nullptr;
        auto status = RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ | m_view, &key);
        if (status != ERROR_SUCCESS) {
            return status;
        }
        const RegistryKey closing(key);
        std::wstring child(kMaxKeyName + 1, L'\0');
        for (;;) {
            auto length = static_cast<DWORD>(child.size());
            status = RegEnumKeyExW(key, 0, child.data(), &length, nullptr, nullptr, nullptr, nullptr);
            if (status == ERROR_NO_MORE_ITEMS) {
                break;
            }
            if (status == ERROR_SUCCESS) {
                status = DeleteTree(key, child.substr(0, length));
            }
            if (status != ERROR_SUCCESS) {
                return status;
            }
        }
        return RegDeleteKeyExW(parent, name.c_str(), m_view, 0);
    }

    const std::string& m_address;
    const REGSAM m_view;
    std::unique_lock<std::mutex> m_writerLock;
    const bool m_write;
    bool m_over = false;
    std::vector<OpenedKey> m_keys;
    std::vector<KeyId> m_closed;
    std::vector<std::byte> m_data = std::vector<std::byte>(256);
    std::vector<std::byte> m_text;
    std::wstring m_path;
    std::wstring m_name;
};

REGSAM ViewFlag(RegistryView view)
{
    switch (view) {
    case RegistryView::Of32Bit:
        return KEY_WOW64_32KEY;
    case RegistryView::Of64Bit:
        return KEY_WOW64_64KEY;
    case RegistryView::OfProgram:
        break;
    }
    return 0;
}

} // namespace

WindowsStore::WindowsStore(std::string address, RegistryView view, bool readOnly)
    : m_address(std::move(address)), m_view(ViewFlag(view)), m_readOnly(readOnly)
{}

std::unique_ptr<Transaction> WindowsStore::Begin(Access access, Error& error)
{
    std::unique_lock<std::mutex> writerLock;
    if (access == Access::Write) {
        if (m_readOnly) {
            error = {ErrorKind::AccessDenied, m_address + ": the store was opened for reading only"};
            return nullptr;
        }
        writerLock = std::unique_lock(m_writerMutex);
    }
    return std::make_unique<WindowsTransaction>(m_address, m_view, std::move(writerLock));
}

} // namespace wqspcfg
