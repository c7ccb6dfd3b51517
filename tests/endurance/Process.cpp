#include "endurance/Process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wqspcfg::endurance {

namespace {

[[noreturn]] void GiveUp(const char* what)
{
    std::perror(what);
    std::_Exit(EXIT_FAILURE);
}

bool IsReadable(int file, std::chrono::milliseconds wait)
{
    pollfd readable{file, POLLIN, 0};
    for (;;) {
        const auto count = poll(&readable, 1, static_cast<int>(std::max(wait.count(), std::int64_t{0})));
        if (count >= 0 || errno != EINTR) {
            return count > 0;
        }
    }
}

} // namespace

void Channel::Send(std::uint32_t number) const
{
    // So few bytes are written whole or not at all.
    if (write(m_file, &number, sizeof number) != sizeof number) {
        GiveUp("write");
    }
}

Child::Child(const Work& work)
{
    int numbers[2];
    int text[2];
    if (pipe(numbers) != 0 || pipe(text) != 0) {
        GiveUp("pipe");
    }
    std::fflush(nullptr);
    const auto parent = getpid();
    m_process = fork();
    if (m_process < 0) {
        GiveUp("fork");
    }
    if (m_process == 0) {
        if (prctl(PR_SET_PDEATHSIG, SIGKILL) != 0 || getppid() != parent) {
            std::_Exit(EXIT_FAILURE);
        }
        close(numbers[0]);
        close(text[0]);
        const auto failure = work(Channel(numbers[1]));
        const auto written = write(text[1], failure.data(), failure.size());
        std::_Exit(failure.empty() && written == 0 ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    close(numbers[1]);
    close(text[1]);
    m_numbers = numbers[0];
    m_text = text[0];
}

Child::~Child()
{
    if (m_process > 0) {
        int status = 0;
        (void)kill(m_process, SIGKILL);
        Reap(status);
    }
    close(m_numbers);
    close(m_text);
}

std::optional<std::uint32_t> Child::Receive(std::chrono::milliseconds wait)
{
    std::uint32_t number = 0;
    if (!IsReadable(m_numbers, wait) || read(m_numbers, &number, sizeof number) != sizeof number) {
        return std::nullopt;
    }
    return number;
}

std::vector<std::uint32_t> Child::Drain()
{
    std::vector<std::uint32_t> numbers;
    while (const auto number = Receive(std::chrono::milliseconds(0))) {
        numbers.push_back(*number);
    }
    return numbers;
}

void Child::Reap(int& status)
{
    while (waitpid(m_process, &status, 0) < 0 && errno == EINTR) {
    }
    m_process = -1;
}

std::string Child::Describe(int status)
{
    std::string text;
    std::array<char, 4096> buffer;
    for (;;) {
        const auto size = read(m_text, buffer.data(), buffer.size());
        if (size <= 0) {
            break;
        }
        text.append(buffer.data(), static_cast<std::size_t>(size));
    }
    if (WIFSIGNALED(status)) {
        return "process ended by signal " + std::to_string(WTERMSIG(status)) + " (" + strsignal(WTERMSIG(status)) + ')';
    }
    if (WEXITSTATUS(status) != 0 && text.empty()) {
        return "process ended with status " + std::to_string(WEXITSTATUS(status));
    }
    return text;
}

bool Child::Kill()
{
    int status = 0;
    (void)kill(m_process, SIGKILL);
    Reap(status);
    m_failure = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL ? std::string() : Describe(status);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

std::string Child::Wait(std::chrono::milliseconds limit)
{
    // Its end closes the pipe.
    int status = 0;
    if (!IsReadable(m_text, limit)) {
        (void)kill(m_process, SIGKILL);
        Reap(status);
        m_failure = "process did not end within " + std::to_string(limit.count()) + " ms";
        return m_failure;
    }
    Reap(status);
    m_failure = Describe(status);
    return m_failure;
}

std::string InChild(const std::function<std::string()>& work, std::chrono::milliseconds limit)
{
    Child child([&work](const Channel&) { return work(); });
    return child.Wait(limit);
}

} // namespace wqspcfg::endurance
