#include "wqspcfg/platform/store/Record.h"

#include <gtest/gtest.h>

namespace wqspcfg::test {

TEST(RecordTest, TheCheckSumSeesEveryBit)
{
    const std::string name = "MSOFTWARE\\XFS\\DEVICE";
    std::string record;
    for (std::size_t size = 0; size < 40; ++size) {
        const std::string data(size, 'x');
        BuildRecord(1, {}, std::as_bytes(std::span(data)), record);
        SealRecord(NameSum(name), "VALUE", record);
        ASSERT_TRUE(IsSealed(NameSum(name), "VALUE", record));
        EXPECT_FALSE(IsSealed(NameSum(name), "VALUF", record));
        EXPECT_FALSE(IsSealed(NameSum(name + '\\'), "VALUE", record));
        for (std::size_t bit = 0; bit < record.size() * 8; ++bit) {
            for (std::size_t other = bit; other < record.size() * 8; ++other) {
                auto changed = record;
                changed[bit / 8] = static_cast<char>(changed[bit / 8] ^ (1 << (bit % 8)));
                if (other != bit) {
                    changed[other / 8] = static_cast<char>(changed[other / 8] ^ (1 << (other % 8)));
                }
                ASSERT_FALSE(IsSealed(NameSum(name), "VALUE", changed)) << size << ": bits " << bit << ", " << other;
            }
        }
        EXPECT_FALSE(IsSealed(NameSum(name), "VALUE", std::string(record) + std::string(1, 0)));
        EXPECT_FALSE(IsSealed(NameSum(name), "VALUE", std::string_view(record).substr(0, record.size() - 1)));
    }
}

} // namespace wqspcfg::test
