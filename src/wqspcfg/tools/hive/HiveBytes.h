// Numbers in the files of a registry.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace wqspcfg {

inline std::uint16_t Number16(std::span<const std::byte> bytes, std::size_t at)
{
    return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[at]) | std::to_integer<unsigned>(bytes[at + 1])
                                                                                 << 8);
}

inline std::uint32_t Number32(std::span<const std::byte> bytes, std::size_t at)
{
    return Number16(bytes, at) | static_cast<std::uint32_t>(Number16(bytes, at + 2)) << 16;
}

} // namespace wqspcfg
