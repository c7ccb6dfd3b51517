// What the fuzz targets share. A failed expectation of GoogleTest, here or in the support code, ends the process, which
// is what the fuzzer takes for a finding.
#pragma once

#include "support/StoreTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

namespace wqspcfg::fuzz {

// Takes an input apart. What is read behind its end is 0.
class Input
{
  public:
    Input(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

    bool IsEmpty() const { return m_rest.empty(); }
    std::uint8_t Byte()
    {
        if (m_rest.empty()) {
            return 0;
        }
        const auto byte = static_cast<std::uint8_t>(m_rest.front());
        m_rest.remove_prefix(1);
        return byte;
    }
    unsigned Below(unsigned bound) { return Byte() % bound; }
    std::uint32_t Number()
    {
        std::uint32_t number = 0;
        for (int shift = 0; shift < 32; shift += 8) {
            number |= static_cast<std::uint32_t>(Byte()) << shift;
        }
        return number;
    }
    std::string_view Bytes(std::size_t count)
    {
        const auto bytes = m_rest.substr(0, count);
        m_rest.remove_prefix(bytes.size());
        return bytes;
    }
    // Up to the byte 0xFF, which no text needs.
    std::string_view Field()
    {
        const auto end = std::min(m_rest.find('\xFF'), m_rest.size());
        const auto field = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        return field;
    }
    std::string_view Rest() { return Bytes(m_rest.size()); }

  private:
    std::string_view m_rest;
};

// Wide text from one byte a character: ASCII stands for itself, and the others for what makes trouble.
inline std::wstring Text(std::string_view bytes)
{
    static constexpr std::array<std::uint32_t, 24> kTrouble = {
        0xE9,   0xC9,    0x131,   0x130,    0x3C3,    0x3C2,      0x3A3,      0x17F,
        0x212A, 0x4E2D,  0xFFFE,  0xFFFF,   0xD800,   0xDBFF,     0xDC00,     0xDFFF,
        0xDC80, 0x1F4B6, 0x10428, 0x10FFFF, 0x110000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    std::wstring text;
    for (const auto ch : bytes) {
        const auto byte = static_cast<std::uint8_t>(ch);
        if (byte < 0x80) {
            text += static_cast<wchar_t>(byte);
        } else if (byte < 0xF0) {
            text += static_cast<wchar_t>(kTrouble[byte % kTrouble.size()]);
        } else {
            // The last character again and again: names as long as a store may hold, or longer.
            text.append(std::size_t{1} << (byte & 7), text.empty() ? L'x' : text.back());
        }
    }
    return text;
}

// A folder in memory, where a durable commit costs little.
inline std::filesystem::path FastDirectory()
{
    const std::filesystem::path memory("/dev/shm");
    std::error_code ignored;
    return std::filesystem::is_directory(memory, ignored) ? memory : std::filesystem::temp_directory_path();
}

// Ends the process where an expectation failed, after the message.
class Stopper final : public ::testing::EmptyTestEventListener
{
    void OnTestPartResult(const ::testing::TestPartResult& result) override
    {
        if (result.failed()) {
            std::abort();
        }
    }
};

} // namespace wqspcfg::fuzz

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    ::testing::UnitTest::GetInstance()->listeners().Append(new wqspcfg::fuzz::Stopper);
    return 0;
}
