// The data file of an embedded store with any damage: a read gives what was stored or an error. Where whole records are
// forged, check sum included, all that can be asked is that the reader stays within the file and comes to an end.
#include "fuzz/Fuzzing.h"
#include "wqspcfg/platform/store/lmdb/LmdbTree.h"

#include <fcntl.h>
#include <map>
#include <unistd.h>

using namespace wqspcfg;
using namespace wqspcfg::test;
using namespace std::string_view_literals;

namespace {

constexpr std::size_t kPage = 4096;
constexpr std::uint64_t kTransaction = 2; // the first writes the store's own record
constexpr std::string_view kState = "\0state"sv;
constexpr int kStride = 8; // so many runs look at all names

using Records = std::map<std::string, std::string, std::less<>>;

// Whether the record is the one that was written under that name, as far as its check sum tells.
bool IsIntact(std::string_view name, std::string_view record)
{
    const auto mark = name.find('\0');
    const auto prefix = mark == 0 ? name.size() : std::min(mark + 2, name.size());
    return IsSealed(NameSum(name.substr(0, prefix)), name.substr(prefix), record);
}

bool AllIntact(const Records& records)
{
    return std::all_of(records.begin(), records.end(), [](const auto& each) {
        return each.first.find('\0') != std::string::npos && IsIntact(each.first, each.second);
    });
}

Records ReadAll(LmdbTree& tree, bool& whole)
{
    Records records;
    whole = tree.Scan({}, [&](std::string_view name, std::string_view record) {
        records.emplace(name, record);
        return true;
    }) == Lookup::Found;
    return records;
}

// A sound store and what it holds: several leaves under a branch, values on pages of their own, long names.
struct Sample
{
    std::string image;
    Records records;

    Sample()
    {
        const TemporaryDirectory directory{fuzz::FastDirectory()};
        const auto path = directory.File("store");
        {
            const auto store = Open("lmdb:" + path, {.create = true});
            const auto transaction = Begin(*store, Access::Write);
            for (int k = 0; k < 12; ++k) {
                KeyId key = 0;
                transaction->CreateKey(Hive::LocalMachine, L"SOFTWARE\\XFS\\Key" + std::to_wstring(k), key);
                for (int v = 0; v < 40; ++v) {
                    const auto data = DwordBytes(static_cast<std::uint32_t>(v * k));
                    transaction->SetValue(key, L"Value" + std::to_wstring(v), {ValueType::Dword, data});
                }
                const auto big = ToBytes(std::string(static_cast<std::size_t>(k) * 900, static_cast<char>('a' + k)));
                transaction->SetValue(key, L"Big", {ValueType::Binary, big});
                transaction->SetValue(key, std::wstring(300, L'n'), {ValueType::None, {}});
            }
            EXPECT_EQ(transaction->Commit(true), Outcome::Found);
        }
        image = ReadFile((std::filesystem::path(path) / "data.mdb").string());
        EXPECT_EQ(image.size() % kPage, 0U);
        records = Read(image);
        // Pages that are not in use may hold an older state of one that is, which is beyond what a reader can tell.
        for (std::size_t at = 2 * kPage; at < image.size(); at += kPage) {
            auto without = image;
            without.replace(at, kPage, kPage, '\0');
            if (Read(without) == records) {
                image = without;
            }
        }
        EXPECT_GT(records.size(), 500U);
    }

    static Records Read(const std::string& content)
    {
        const TemporaryDirectory directory{fuzz::FastDirectory()};
        WriteFile(directory.File("data"), content);
        LmdbMap map;
        LmdbTree tree;
        bool whole = false;
        const int file = open(directory.File("data").c_str(), O_RDONLY | O_CLOEXEC);
        EXPECT_EQ(map.Open(file, content.size()), 0);
        close(file); // the map stays
        return tree.Open(map, content.size(), kTransaction) ? ReadAll(tree, whole) : Records{};
    }
};

// Up to three changed bytes, zeroed, exchanged or random pages, and a cut: what no check sum survives by chance.
void Damage(fuzz::Input& input, std::string& image)
{
    for (int edits = 0; edits < 3 && !input.IsEmpty(); ++edits) {
        const auto pages = static_cast<unsigned>(image.size() / kPage);
        if (pages == 0) {
            return;
        }
        switch (input.Below(8)) {
        case 0:
            image.replace(input.Below(pages) * kPage, kPage, kPage, '\0');
            break;
        case 1: {
            const auto from = input.Below(pages) * kPage;
            const auto to = input.Below(pages) * kPage;
            const auto page = image.substr(from, kPage);
            image.replace(from, kPage, image, to, kPage);
            image.replace(to, kPage, page);
            break;
        }
        case 2: {
            auto* page = image.data() + input.Below(pages) * kPage;
            auto state = input.Number();
            for (std::size_t i = 0; i < kPage; ++i) {
                state = state * 1664525U + 1013904223U;
                page[i] = static_cast<char>(state >> 24);
            }
            break;
        }
        case 3:
            image.resize(input.Number() % image.size());
            break;
        default: {
            const auto page = input.Below(pages) * kPage;
            const auto at = page + (input.Number() & 0xFFFF) % kPage;
            image[at] = static_cast<char>(input.Byte());
        }
        }
    }
}

void Forge(fuzz::Input& input, std::string& image)
{
    while (!input.IsEmpty() && !image.empty()) {
        const auto at = input.Number() % image.size();
        const auto bytes = input.Bytes(input.Byte() + std::size_t{1});
        const auto count = std::min(bytes.size(), image.size() - at);
        image.replace(at, count, bytes, 0, count);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryDirectory directory{fuzz::FastDirectory()};
    static const Sample sample;
    static const auto path = directory.File("data");
    static const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);

    fuzz::Input input(data, size);
    const bool forged = input.Below(2) == 1;
    auto image = sample.image;
    if (forged) {
        Forge(input, image);
    } else {
        Damage(input, image);
    }
    EXPECT_EQ(ftruncate(file, static_cast<off_t>(image.size())), 0);
    EXPECT_EQ(pwrite(file, image.data(), image.size(), 0), static_cast<ssize_t>(image.size()));

    LmdbMap map;
    EXPECT_EQ(map.Open(file, std::max(sample.image.size(), kPage)), 0);
    LmdbTree tree;
    if (!tree.Open(map, image.size(), kTransaction)) {
        EXPECT_FALSE(tree.Cause().empty());
        return 0;
    }
    // As a store does before it believes anything.
    std::string_view state;
    if (!forged && (tree.Get(kState, Locality::Far, state) != Lookup::Found || !IsIntact(kState, state))) {
        return 0;
    }
    auto skipped = input.Byte() % kStride;
    for (const auto& [name, record] : sample.records) {
        if (skipped++ % kStride != 0) {
            continue;
        }
        std::string_view found;
        switch (tree.Get(name, Locality::Far, found)) {
        case Lookup::Found:
            EXPECT_TRUE(forged || found == record || !IsIntact(name, found));
            break;
        case Lookup::Absent:
            EXPECT_TRUE(forged) << "a stored name counts as missing";
            break;
        case Lookup::Failed:
            EXPECT_FALSE(tree.Cause().empty());
            break;
        }
    }
    for (const auto name : {"M"sv, "MSOFTWARE\\XFS\\KEY5\0vVALUE3!"sv, "Z"sv}) {
        std::string_view found;
        const auto looked = tree.Get(name, Locality::Near, found);
        EXPECT_TRUE(forged || looked != Lookup::Found || !IsIntact(name, found));
    }
    bool whole = false;
    const auto records = ReadAll(tree, whole);
    if (whole && !forged) {
        EXPECT_TRUE(records == sample.records || !AllIntact(records));
    }
    const bool sound = tree.VerifyStructure();
    EXPECT_TRUE(sound || !tree.Cause().empty());
    return 0;
}
