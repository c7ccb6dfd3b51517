// Processes of the endurance program.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace wqspcfg::endurance {

using Clock = std::chrono::steady_clock;

// What a child tells its parent while it runs.
class Channel
{
  public:
    explicit Channel(int file) : m_file(file) {}
    // Returns once the parent can read it, whatever becomes of this process.
    void Send(std::uint32_t number) const;

  private:
    int m_file;
};

// A forked process. It is killed with the object, and when its parent ends.
class Child
{
  public:
    // Why it failed; empty when it did not.
    using Work = std::function<std::string(const Channel&)>;

    explicit Child(const Work& work);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    // The next number that it has sent; none when it has ended, or after the time.
    std::optional<std::uint32_t> Receive(std::chrono::milliseconds wait);
    // All that it has sent and that was not received yet.
    std::vector<std::uint32_t> Drain();

    // With SIGKILL. False, with the cause in Failure, when it had ended by itself.
    bool Kill();
    // Empty when its work was done in this time.
    std::string Wait(std::chrono::milliseconds limit);
    const std::string& Failure() const { return m_failure; }

  private:
    void Reap(int& status);
    std::string Describe(int status);

    pid_t m_process = -1;
    int m_numbers = -1;
    int m_text = -1;
    std::string m_failure;
};

// Runs `work` in a process of its own to its end.
std::string InChild(const std::function<std::string()>& work,
                    std::chrono::milliseconds limit = std::chrono::seconds(60));

} // namespace wqspcfg::endurance
