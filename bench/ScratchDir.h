#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace bench {

// A folder of this run's own, removed at its end.
class ScratchDir
{
  public:
    ScratchDir()
        : m_path(std::filesystem::temp_directory_path() / ("wqspcfg-bench-" + std::to_string(std::random_device{}())))
    {
        std::filesystem::create_directories(m_path);
    }
    ~ScratchDir()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;

    std::string operator/(const std::string& name) const { return (m_path / name).string(); }

  private:
    std::filesystem::path m_path;
};

inline const ScratchDir& Scratch()
{
    static const ScratchDir scratch;
    return scratch;
}

} // namespace bench
