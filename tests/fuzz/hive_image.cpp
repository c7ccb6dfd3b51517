// A registry hive with any damage, or any file in its place: it is refused, or all of it is read to an end, with an
// error that names what cannot be read.
#include "fuzz/Fuzzing.h"
#include "tools/hive/HiveTesting.h"
#include "wqspcfg/tools/hive/HiveStore.h"

#include <fcntl.h>
#include <unistd.h>

using namespace wqspcfg;
using namespace wqspcfg::test;

namespace {

// Lists of subkeys in both forms of names, an index of lists, every kind of data.
std::string Sample()
{
    const TemporaryDirectory directory{fuzz::FastDirectory()};
    const auto path = directory.File("SOFTWARE");
    HiveWriter writer(path);
    const auto xfs = writer.AddKey(writer.Root(), "XFS");
    writer.AddKey(writer.AddKey(writer.Root(), "WOW6432Node"), "XFS");
    const auto key = writer.AddKey(xfs, "\xe4\xb8\xad");
    writer.SetValues(key, {{"", ValueType::Sz, SzBytes(L"text")},
                           {"\xe4\xb8\xad", ValueType::Dword, DwordBytes(1)},
                           {"long", ValueType::Binary, ToBytes(std::string(300, 'x'))},
                           {"none", ValueType::None, {}}});
    const SegmentedValue big(writer, writer.AddKey(key, "Big"), std::string(16344 + 100, 'y'));
    for (int i = 0; i < 8; ++i) {
        writer.AddKey(key, "Key" + std::to_string(i));
    }
    const SubkeyIndex index(writer, writer.AddKey(xfs, "Spare"), 9);
    writer.Commit();
    auto image = ReadFile(path);
    big.Link(image);
    index.Link(image, key);
    return image;
}

void Read(Store& store)
{
    const auto transaction = Begin(store, Access::Read);
    std::vector<std::wstring> paths{L"SOFTWARE"};
    std::size_t keys = 0;
    while (!paths.empty()) {
        const auto path = paths.back();
        paths.pop_back();
        // Each key belongs to one parent, so that there are no more of them than there is room for.
        EXPECT_LT(++keys, 100000U);
        KeyId key = 0;
        auto outcome = transaction->OpenKey(Hive::LocalMachine, path, key);
        EXPECT_NE(outcome, Outcome::Missing);
        if (outcome == Outcome::Found) {
            std::size_t size = 0;
            outcome = transaction->EnumValues(key, [&size](std::wstring_view, const ValueView& value) {
                for (const auto byte : value.data) {
                    size += std::to_integer<std::size_t>(byte);
                }
                return true;
            });
            EXPECT_LT(size, std::size_t{1} << 40);
            EXPECT_TRUE(outcome == Outcome::Found || !transaction->LastError().message.empty());
            outcome = transaction->EnumKeys(key, [&](std::wstring_view name) {
                paths.push_back(path + L'\\' + std::wstring(name));
                return true;
            });
            transaction->CloseKey(key);
        }
        EXPECT_TRUE(outcome == Outcome::Found || !transaction->LastError().message.empty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryDirectory directory{fuzz::FastDirectory()};
    static const auto sample = Sample();
    static const auto path = directory.File("SOFTWARE");
    static const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);

    // Bytes at places of the sample, or the file as it is.
    fuzz::Input input(data, size);
    std::string image;
    if (input.Below(4) != 0) {
        image = sample;
        while (!input.IsEmpty()) {
            const auto at = (input.Byte() | static_cast<std::size_t>(input.Byte()) << 8 |
                             static_cast<std::size_t>(input.Byte() & 1) << 16) %
                            image.size();
            const auto bytes = input.Bytes(input.Below(8) + std::size_t{1});
            const auto count = std::min(bytes.size(), image.size() - at);
            image.replace(at, count, bytes, 0, count);
        }
    } else {
        image = input.Rest();
        image.resize(std::max(image.size(), 2 * hive::kHeaderSize));
        image.resize(image.size() / hive::kHeaderSize * hive::kHeaderSize);
    }
    SealHeader(image);
    EXPECT_EQ(ftruncate(file, static_cast<off_t>(image.size())), 0);
    EXPECT_EQ(pwrite(file, image.data(), image.size(), 0), static_cast<ssize_t>(image.size()));

    Error error;
    if (const auto store = HiveStore::Open("hive:" + path, path, false, error)) {
        Read(*store);
    } else {
        EXPECT_FALSE(error.message.empty());
    }
    return 0;
}
