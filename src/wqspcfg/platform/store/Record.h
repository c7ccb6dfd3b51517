// What the flat stores keep under a name (platform/store/FlatKey.h):
//
//   4 bytes  check sum over the name and all that follows
//   4 bytes  value type; 0 for a subkey
//   2 bytes  length of the name as it was written, 0 where that is the upper-cased name
//   n bytes  the name as it was written, in CESU-8
//   the rest the value's bytes
//
// Numbers are little-endian.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace wqspcfg {

static_assert(std::endian::native == std::endian::little, "records are little-endian");

constexpr std::size_t kRecordHeader = 10;

struct RecordView
{
    std::uint32_t type = 0;
    std::string_view writtenName;
    std::span<const std::byte> data;
};

constexpr std::uint64_t kSumFactor = 0x9E3779B97F4A7C15;

// Mixes bytes into a running sum, eight at a time and in two lanes, which do not wait for each other. Each step is a
// bijection of the word that it takes in, so that no change within a single word goes unseen in the sum's 64 bits.
inline std::uint64_t MixBytes(std::uint64_t sum, std::string_view bytes) noexcept
{
    const auto* data = bytes.data();
    auto left = bytes.size();
    const auto word = [](const char* from) {
        std::uint64_t value;
        std::memcpy(&value, from, 8);
        return value;
    };
    const auto mix = [](std::uint64_t& lane, std::uint64_t taken) {
        lane = (lane ^ taken) * kSumFactor;
        lane ^= lane >> 32;
    };
    std::uint64_t second = left;
    for (; left >= 16; data += 16, left -= 16) {
        mix(sum, word(data));
        mix(second, word(data + 8));
    }
    if (left >= 8) {
        mix(sum, word(data));
        data += 8;
        left -= 8;
    }
    if (left > 0) {
        std::uint64_t rest = 0;
        if (bytes.size() >= 8) {
            rest = word(data + left - 8) >> (64 - 8 * left);
        } else {
            for (std::size_t i = 0; i < left; ++i) {
                rest |= std::uint64_t{static_cast<unsigned char>(data[i])} << (8 * i);
            }
        }
        mix(second, rest);
    }
    return sum + second * kSumFactor;
}

// The name's sum, to be carried on by RecordSum. A name's prefix ending in its mark can be summed once for all names
// that begin with it.
inline std::uint64_t NameSum(std::string_view prefix) noexcept
{
    return MixBytes(0x5851F42D4C957F2D, prefix);
}

inline std::uint32_t RecordSum(std::uint64_t prefixSum, std::string_view name, std::string_view record) noexcept
{
    // The last word has been through one step only: without another, the upper half of it would not reach some bits.
    const auto sum = MixBytes(MixBytes(prefixSum, name), record.substr(4));
    return static_cast<std::uint32_t>((sum * kSumFactor) >> 32);
}

// Everything but the check sum.
inline void BuildRecord(std::uint32_t type, std::string_view writtenName, std::span<const std::byte> data,
                        std::string& record)
{
    const auto length = static_cast<std::uint16_t>(writtenName.size());
    record.resize(kRecordHeader + writtenName.size() + data.size());
    auto* out = record.data();
    std::memset(out, 0, 4);
    std::memcpy(out + 4, &type, 4);
    std::memcpy(out + 8, &length, 2);
    out += kRecordHeader;
    if (!writtenName.empty()) {
        std::memcpy(out, writtenName.data(), writtenName.size());
    }
    if (!data.empty()) {
        std::memcpy(out + writtenName.size(), data.data(), data.size());
    }
}

inline void SealRecord(std::uint64_t prefixSum, std::string_view name, std::string& record)
{
    const auto sum = RecordSum(prefixSum, name, record);
    std::memcpy(record.data(), &sum, 4);
}

inline bool IsSealed(std::uint64_t prefixSum, std::string_view name, std::string_view record) noexcept
{
    if (record.size() < kRecordHeader) {
        return false;
    }
    std::uint32_t sum;
    std::memcpy(&sum, record.data(), 4);
    return sum == RecordSum(prefixSum, name, record);
}

inline bool ParseRecord(std::string_view record, RecordView& view) noexcept
{
    if (record.size() < kRecordHeader) {
        return false;
    }
    std::uint16_t length;
    std::memcpy(&view.type, record.data() + 4, 4);
    std::memcpy(&length, record.data() + 8, 2);
    if (record.size() - kRecordHeader < length) {
        return false;
    }
    view.writtenName = record.substr(kRecordHeader, length);
    const auto data = record.substr(kRecordHeader + length);
    view.data = {reinterpret_cast<const std::byte*>(data.data()), data.size()};
    return true;
}

} // namespace wqspcfg
