// What tests of stores share.
#pragma once

#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/platform/text/Utf.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg::test {

using Bytes = std::vector<std::byte>;

inline Bytes ToBytes(std::string_view bytes)
{
    const auto* data = reinterpret_cast<const std::byte*>(bytes.data());
    return {data, data + bytes.size()};
}

inline Bytes DwordBytes(std::uint32_t number)
{
    Bytes bytes(4);
    std::memcpy(bytes.data(), &number, 4);
    return bytes;
}

// As REG_SZ holds it.
inline Bytes SzBytes(std::wstring_view text)
{
    Bytes bytes;
    EXPECT_TRUE(AppendUtf16Le(text, bytes));
    bytes.resize(bytes.size() + 2);
    return bytes;
}

// A folder that goes with the object.
class TemporaryDirectory
{
  public:
    TemporaryDirectory() : TemporaryDirectory(std::filesystem::temp_directory_path()) {}
    explicit TemporaryDirectory(const std::filesystem::path& parent);
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    std::string File(std::string_view name) const { return (m_path / name).string(); }

  private:
    std::filesystem::path m_path;
};

std::shared_ptr<Store> Open(const std::string& address, const OpenOptions& options = {});
std::unique_ptr<Transaction> Begin(Store& store, Access access);

// One value in a transaction of its own.
void Put(Store& store, std::wstring_view path, std::wstring_view name, const Bytes& data,
         ValueType type = ValueType::Dword, Hive hive = Hive::LocalMachine);
// The value's bytes as text with its type in front ("4:01000000"), "missing" or the error's message.
std::string Get(Store& store, std::wstring_view path, std::wstring_view name, Hive hive = Hive::LocalMachine);

std::vector<std::wstring> Subkeys(Store& store, std::wstring_view path, Hive hive = Hive::LocalMachine);
std::vector<std::wstring> ValueNames(Store& store, std::wstring_view path, Hive hive = Hive::LocalMachine);

// All below a key, one line each, in the order in which the store gives it.
std::string Dump(Store& store, std::wstring_view path, Hive hive = Hive::LocalMachine);

std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, std::string_view content);

} // namespace wqspcfg::test
