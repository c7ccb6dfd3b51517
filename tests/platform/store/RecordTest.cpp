#include "platform/store/Record.h"

#include <gtest/gtest.h>

#include <string>

namespace wqspcfg {

TEST(Record, EveryChangedByteBreaksTheSeal)
{
    for (std::size_t size = 0; size < 40; ++size) {
        const std::string data(size, 'd');
        std::string record;
        BuildRecord(1, "Name", std::as_bytes(std::span(data)), record);
        SealRecord(NameSum("path"), "NAME", record);
        ASSERT_TRUE(IsSealed(NameSum("path"), "NAME", record));
        for (std::size_t at = 0; at < record.size(); ++at) {
            for (const unsigned change : {0x01U, 0x10U, 0x80U, 0xFFU}) {
                auto changed = record;
                changed[at] = static_cast<char>(static_cast<unsigned char>(changed[at]) ^ change);
                EXPECT_FALSE(IsSealed(NameSum("path"), "NAME", changed)) << size << " bytes, changed at " << at;
            }
            EXPECT_FALSE(IsSealed(NameSum("path"), "NAME", record.substr(0, at))) << size << " bytes, cut at " << at;
        }
        EXPECT_FALSE(IsSealed(NameSum("path"), "NAMF", record));
        EXPECT_FALSE(IsSealed(NameSum("patg"), "NAME", record));
    }
}

} // namespace wqspcfg
