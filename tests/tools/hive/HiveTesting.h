// Registry hives for tests, made with libhivex.
#pragma once

#include "support/StoreTesting.h"

#include <hivex.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg::test {

// The positions of numbers in a hive file: in the header, and from the beginning of the cell of a key, a value or a
// list.
namespace hive {
constexpr std::size_t kHeaderSize = 0x1000;
constexpr std::size_t kSequence1 = 4;
constexpr std::size_t kSequence2 = 8;
constexpr std::size_t kRootCell = 36;
constexpr std::size_t kContentSize = 40;
constexpr std::size_t kFileName = 48;
constexpr std::size_t kCheckSum = 508;
constexpr std::size_t kKeyParent = 20;
constexpr std::size_t kKeySubkeyCount = 24;
constexpr std::size_t kKeySubkeyList = 32;
constexpr std::size_t kKeyValueCount = 40;
constexpr std::size_t kKeyValueList = 44;
constexpr std::size_t kKeyNameLength = 76;
constexpr std::size_t kKeyName = 80;
constexpr std::size_t kValueDataLength = 8;
constexpr std::size_t kValueData = 12;
constexpr std::size_t kListCount = 6;
constexpr std::size_t kListItems = 8;
} // namespace hive

inline void Put32(std::string& bytes, std::size_t at, std::uint32_t number)
{
    std::memcpy(bytes.data() + at, &number, sizeof number);
}

inline std::uint32_t Get32(const std::string& bytes, std::size_t at)
{
    std::uint32_t number = 0;
    std::memcpy(&number, bytes.data() + at, sizeof number);
    return number;
}

// The header's check sum, after a change.
inline void SealHeader(std::string& image)
{
    std::uint32_t sum = 0;
    for (std::size_t at = 0; at < hive::kCheckSum; at += 4) {
        sum ^= Get32(image, at);
    }
    Put32(image, hive::kCheckSum, sum);
}

// A hive that has a root key and no more: what libhivex needs to begin with.
inline std::string MinimalHive()
{
    constexpr std::uint32_t kRoot = 32; // behind the head of the first bin
    constexpr std::uint32_t kRootSize = 96;
    constexpr std::uint32_t kSecurity = kRoot + kRootSize;
    constexpr std::uint32_t kSecuritySize = 32;
    constexpr std::uint32_t kRest = kSecurity + kSecuritySize;
    constexpr std::uint32_t kNone = 0xFFFFFFFF;
    std::string image(2 * hive::kHeaderSize, '\0');
    image.replace(0, 4, "regf");
    Put32(image, hive::kSequence1, 1);
    Put32(image, hive::kSequence2, 1);
    Put32(image, 20, 1); // the version: 1.5
    Put32(image, 24, 5);
    Put32(image, 32, 1);
    Put32(image, hive::kRootCell, kRoot);
    Put32(image, hive::kContentSize, hive::kHeaderSize);
    Put32(image, 44, 1);
    SealHeader(image);
    const auto bin = hive::kHeaderSize;
    image.replace(bin, 4, "hbin");
    Put32(image, bin + 8, hive::kHeaderSize);
    const auto root = bin + kRoot;
    Put32(image, root, 0U - kRootSize);
    image.replace(root + 4, 2, "nk");
    image[root + 6] = 0x2C; // a root, never deleted, its name one byte a character
    Put32(image, root + hive::kKeySubkeyList, kNone);
    Put32(image, root + 36, kNone);
    Put32(image, root + hive::kKeyValueList, kNone);
    Put32(image, root + 48, kSecurity);
    Put32(image, root + 52, kNone);
    image[root + hive::kKeyNameLength] = 4;
    image.replace(root + hive::kKeyName, 4, "ROOT");
    const auto security = bin + kSecurity;
    Put32(image, security, 0U - kSecuritySize);
    image.replace(security + 4, 2, "sk");
    Put32(image, security + 8, kSecurity);
    Put32(image, security + 12, kSecurity);
    Put32(image, security + 16, 1);
    Put32(image, bin + kRest, hive::kHeaderSize - kRest);
    return image;
}

struct HiveValue
{
    std::string name;
    ValueType type;
    Bytes data;
};

// Makes a hive in a file, key by key.
class HiveWriter
{
  public:
    explicit HiveWriter(std::string path) : m_path(std::move(path))
    {
        WriteFile(m_path, MinimalHive());
        m_hive = hivex_open(m_path.c_str(), HIVEX_OPEN_WRITE);
        EXPECT_NE(m_hive, nullptr);
    }
    ~HiveWriter() { hivex_close(m_hive); }
    HiveWriter(const HiveWriter&) = delete;
    HiveWriter& operator=(const HiveWriter&) = delete;

    hive_node_h Root() const { return hivex_root(m_hive); }
    // Both give positions in the file.
    hive_node_h AddKey(hive_node_h parent, const std::string& name)
    {
        const auto key = hivex_node_add_child(m_hive, parent, name.c_str());
        EXPECT_NE(key, 0U) << name;
        return key;
    }
    std::vector<hive_value_h> SetValues(hive_node_h key, const std::vector<HiveValue>& values)
    {
        std::vector<hive_set_value> list;
        for (const auto& value : values) {
            auto& each = list.emplace_back();
            each.key = const_cast<char*>(value.name.c_str());
            each.len = value.data.size();
            each.value = const_cast<char*>(reinterpret_cast<const char*>(value.data.data()));
            std::memcpy(&each.t, &value.type, sizeof each.t);
        }
        EXPECT_EQ(hivex_node_set_values(m_hive, key, list.size(), list.data(), 0), 0);
        std::vector<hive_value_h> places;
        for (const auto& value : values) {
            places.push_back(hivex_node_get_value(m_hive, key, value.name.c_str()));
        }
        return places;
    }
    // The cell of the value's data.
    hive_value_h DataCell(hive_value_h value)
    {
        std::size_t length = 0;
        return hivex_value_data_cell_offset(m_hive, value, &length);
    }
    // All below a key of a store.
    void Copy(Transaction& from, Hive hive, const std::wstring& path, hive_node_h to)
    {
        KeyId key = 0;
        ASSERT_EQ(from.OpenKey(hive, path, key), Outcome::Found) << Utf8ForMessage(path);
        std::vector<HiveValue> values;
        EXPECT_EQ(
            from.EnumValues(
                key,
                [&values](std::wstring_view name, const ValueView& value) {
                    values.push_back({Utf8ForMessage(name), value.type, Bytes(value.data.begin(), value.data.end())});
                    return true;
                }),
            Outcome::Found);
        if (!values.empty()) {
            SetValues(to, values);
        }
        std::vector<std::wstring> names;
        EXPECT_EQ(from.EnumKeys(key,
                                [&names](std::wstring_view name) {
                                    names.emplace_back(name);
                                    return true;
                                }),
                  Outcome::Found);
        from.CloseKey(key);
        for (const auto& name : names) {
            Copy(from, hive, path + L'\\' + name, AddKey(to, Utf8ForMessage(name)));
        }
    }
    void Commit() { EXPECT_EQ(hivex_commit(m_hive, m_path.c_str(), 0), 0); }

  private:
    std::string m_path;
    hive_h* m_hive = nullptr;
};

// The two hives of a store's content, in an existing directory. `add` adds to SOFTWARE what the store does not have.
inline void WriteHives(Store& store, const std::filesystem::path& directory, void (*add)(HiveWriter&) = nullptr)
{
    const auto transaction = Begin(store, Access::Read);
    HiveWriter software((directory / "SOFTWARE").string());
    software.Copy(*transaction, Hive::LocalMachine, L"SOFTWARE", software.Root());
    if (add != nullptr) {
        add(software);
    }
    software.Commit();
    HiveWriter standard((directory / "DEFAULT").string());
    standard.Copy(*transaction, Hive::Users, L".DEFAULT", standard.Root());
    standard.Commit();
}

// A value whose data is in segments, as Windows keeps what is longer than 16344 bytes, in a key of the hive that a
// writer has just made.
class SegmentedValue
{
  public:
    SegmentedValue(HiveWriter& writer, hive_node_h key, std::string_view data)
    {
        constexpr std::size_t kSegment = 16344;
        std::vector<HiveValue> parts;
        for (std::size_t at = 0; at < data.size(); at += kSegment) {
            parts.push_back(
                {"part" + std::to_string(at / kSegment), ValueType::Binary, ToBytes(data.substr(at, kSegment))});
        }
        m_segments = parts.size();
        m_size = static_cast<std::uint32_t>(data.size());
        parts.push_back({"list", ValueType::Binary, Bytes(std::max(m_segments * 4, std::size_t{8}))});
        parts.push_back({"db", ValueType::Binary, Bytes(8)});
        parts.push_back({"big", ValueType::Binary, Bytes(8)});
        for (const auto value : writer.SetValues(key, parts)) {
            m_values.push_back(value);
            m_cells.push_back(writer.DataCell(value));
        }
    }

    std::size_t ListCell() const { return m_cells[m_segments]; }
    std::size_t HeadCell() const { return m_cells[m_segments + 1]; }

    // Makes "big" of it in the file's bytes.
    void Link(std::string& image) const
    {
        const auto number = [](std::size_t cell) { return static_cast<std::uint32_t>(cell - hive::kHeaderSize); };
        for (std::size_t i = 0; i < m_segments; ++i) {
            Put32(image, ListCell() + 4 + i * 4, number(m_cells[i]));
        }
        image.replace(HeadCell() + 4, 2, "db");
        image[HeadCell() + 6] = static_cast<char>(m_segments);
        Put32(image, HeadCell() + 8, number(ListCell()));
        Put32(image, m_values.back() + hive::kValueDataLength, m_size);
        Put32(image, m_values.back() + hive::kValueData, number(HeadCell()));
    }

  private:
    std::size_t m_segments = 0;
    std::uint32_t m_size = 0;
    std::vector<hive_value_h> m_values;
    std::vector<hive_value_h> m_cells;
};

// An index of two lists of subkeys, as Windows keeps many of them, in place of the one list that libhivex writes.
class SubkeyIndex
{
  public:
    // `spare` is a key whose values make room for the lists; `count` tells how many subkeys there are.
    SubkeyIndex(HiveWriter& writer, hive_node_h spare, std::size_t count)
    {
        for (const auto value : writer.SetValues(spare, {{"index", ValueType::Binary, Bytes(4 + 2 * 4)},
                                                         {"li", ValueType::Binary, Bytes(4 + 4 * count)},
                                                         {"lf", ValueType::Binary, Bytes(4 + 8 * count)}})) {
            m_cells.push_back(writer.DataCell(value));
        }
    }

    std::size_t IndexCell() const { return m_cells[0]; }
    std::size_t PlainCell() const { return m_cells[1]; }

    // Gives these lists to a key in the file's bytes.
    void Link(std::string& image, hive_node_h key) const
    {
        const auto number = [](std::size_t cell) { return static_cast<std::uint32_t>(cell - hive::kHeaderSize); };
        const auto old = Get32(image, key + hive::kKeySubkeyList) + hive::kHeaderSize;
        const auto count = static_cast<std::uint32_t>(Get32(image, key + hive::kKeySubkeyCount));
        const auto half = count / 2;
        const auto head = [&image](std::size_t cell, const char* id, std::uint32_t items) {
            image.replace(cell + 4, 2, id);
            image[cell + hive::kListCount] = static_cast<char>(items);
        };
        head(m_cells[0], "ri", 2);
        head(m_cells[1], "li", half);
        head(m_cells[2], "lf", count - half);
        for (std::uint32_t i = 0; i < 2; ++i) {
            Put32(image, m_cells[0] + hive::kListItems + i * 4, number(m_cells[1 + i]));
        }
        for (std::uint32_t i = 0; i < count; ++i) {
            Put32(image,
                  i < half ? m_cells[1] + hive::kListItems + i * 4 : m_cells[2] + hive::kListItems + (i - half) * 8,
                  Get32(image, old + hive::kListItems + i * 8));
        }
        Put32(image, key + hive::kKeySubkeyList, number(m_cells[0]));
    }

  private:
    std::vector<hive_value_h> m_cells;
};

} // namespace wqspcfg::test
