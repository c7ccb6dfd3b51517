#include "support/StoreTesting.h"

#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>

namespace wqspcfg::test {

TemporaryDirectory::TemporaryDirectory(const std::filesystem::path& parent)
{
    static std::atomic<unsigned> count{0};
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    do {
        m_path = parent / ("wqspcfg-" + std::to_string(now) + '-' + std::to_string(++count));
    } while (!std::filesystem::create_directory(m_path));
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::shared_ptr<Store> Open(const std::string& address, const OpenOptions& options)
{
    Error error;
    auto store = OpenStore(address, options, error);
    EXPECT_TRUE(store) << error.message;
    return store;
}

std::unique_ptr<Transaction> Begin(Store& store, Access access)
{
    Error error;
    auto transaction = store.Begin(access, error);
    EXPECT_TRUE(transaction) << error.message;
    return transaction;
}

void Put(Store& store, std::wstring_view path, std::wstring_view name, const Bytes& data, ValueType type, Hive hive)
{
    const auto transaction = Begin(store, Access::Write);
    ASSERT_TRUE(transaction);
    KeyId key = 0;
    ASSERT_EQ(transaction->CreateKey(hive, path, key), Outcome::Found) << transaction->LastError().message;
    ASSERT_EQ(transaction->SetValue(key, name, {type, data}), Outcome::Found) << transaction->LastError().message;
    ASSERT_EQ(transaction->Commit(false), Outcome::Found) << transaction->LastError().message;
}

namespace {

std::string Shown(const ValueView& value)
{
    auto text = std::to_string(static_cast<std::uint32_t>(value.type)) + ':';
    for (const auto byte : value.data) {
        text += "0123456789abcdef"[static_cast<unsigned>(byte) >> 4];
        text += "0123456789abcdef"[static_cast<unsigned>(byte) & 0xF];
    }
    return text;
}

void DumpKey(Transaction& transaction, Hive hive, const std::wstring& path, std::string& text)
{
    KeyId key = 0;
    ASSERT_EQ(transaction.OpenKey(hive, path, key), Outcome::Found) << transaction.LastError().message;
    std::string shown;
    ASSERT_TRUE(AppendGeneralizedUtf8(path, shown));
    text += '[' + shown + "]\n";
    EXPECT_EQ(transaction.EnumValues(key,
                                     [&text](std::wstring_view name, const ValueView& value) {
                                         EXPECT_TRUE(AppendGeneralizedUtf8(name, text));
                                         text += '=' + Shown(value) + '\n';
                                         return true;
                                     }),
              Outcome::Found)
        << transaction.LastError().message;
    std::vector<std::wstring> names;
    EXPECT_EQ(transaction.EnumKeys(key,
                                   [&names](std::wstring_view name) {
                                       names.emplace_back(name);
                                       return true;
                                   }),
              Outcome::Found)
        << transaction.LastError().message;
    transaction.CloseKey(key);
    for (const auto& name : names) {
        DumpKey(transaction, hive, path.empty() ? name : path + L'\\' + name, text);
    }
}

} // namespace

std::string Get(Store& store, std::wstring_view path, std::wstring_view name, Hive hive)
{
    const auto transaction = Begin(store, Access::Read);
    if (!transaction) {
        return "no transaction";
    }
    ValueView value;
    switch (transaction->QueryAt(hive, path, name, value)) {
    case Outcome::Found:
        return Shown(value);
    case Outcome::Missing:
        return "missing";
    default:
        return transaction->LastError().message;
    }
}

std::vector<std::wstring> Subkeys(Store& store, std::wstring_view path, Hive hive)
{
    std::vector<std::wstring> names;
    const auto transaction = Begin(store, Access::Read);
    KeyId key = 0;
    if (transaction && transaction->OpenKey(hive, path, key) == Outcome::Found) {
        EXPECT_EQ(transaction->EnumKeys(key,
                                        [&names](std::wstring_view name) {
                                            names.emplace_back(name);
                                            return true;
                                        }),
                  Outcome::Found)
            << transaction->LastError().message;
    }
    return names;
}

std::vector<std::wstring> ValueNames(Store& store, std::wstring_view path, Hive hive)
{
    std::vector<std::wstring> names;
    const auto transaction = Begin(store, Access::Read);
    KeyId key = 0;
    if (transaction && transaction->OpenKey(hive, path, key) == Outcome::Found) {
        EXPECT_EQ(transaction->EnumValues(key,
                                          [&names](std::wstring_view name, const ValueView&) {
                                              names.emplace_back(name);
                                              return true;
                                          }),
                  Outcome::Found)
            << transaction->LastError().message;
    }
    return names;
}

std::string Dump(Store& store, std::wstring_view path, Hive hive)
{
    std::string text;
    const auto transaction = Begin(store, Access::Read);
    if (transaction) {
        DumpKey(*transaction, hive, std::wstring(path), text);
    }
    return text;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const std::string& path, std::string_view content)
{
    std::ofstream file(path, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    EXPECT_TRUE(file.flush()) << path;
}

} // namespace wqspcfg::test
