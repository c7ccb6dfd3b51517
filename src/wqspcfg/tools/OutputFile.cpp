#include "wqspcfg/tools/OutputFile.h"

#include "wqspcfg/platform/store/AtomicFile.h"

#if defined(_WIN32)
#include <filesystem>
#include <fstream>
#else
#include "wqspcfg/platform/store/PosixTarget.h"
#endif

#include <streambuf>

namespace wqspcfg::tools {

namespace {

// A stream into a function that takes bytes and tells whether it could.
class SinkBuffer final : public std::streambuf
{
  public:
    explicit SinkBuffer(std::function<bool(std::string_view)> sink) : m_sink(std::move(sink)) {}

  protected:
    int_type overflow(int_type ch) override
    {
        const auto byte = traits_type::to_char_type(ch);
        return traits_type::eq_int_type(ch, traits_type::eof()) || m_sink({&byte, 1}) ? traits_type::not_eof(ch)
                                                                                      : traits_type::eof();
    }
    std::streamsize xsputn(const char* text, std::streamsize size) override
    {
        return m_sink({text, static_cast<std::size_t>(size)}) ? size : 0;
    }

  private:
    std::function<bool(std::string_view)> m_sink;
};

int WriteRegularFile(const std::string& file, const std::vector<std::string>& sources,
                     const std::function<int(std::ostream&)>& write, const Console& console)
{
    AtomicFile target;
    Error error;
    if (!target.Open(file, sources, error)) {
        return console.Fail(error);
    }
    SinkBuffer buffer([&](std::string_view bytes) { return target.Write(bytes, error); });
    std::ostream output(&buffer);
    const int status = write(output);
    return !error && (status != kDone || target.Commit(error)) ? status : console.Fail(error);
}

#if defined(_WIN32)

int WriteDevice(const std::string& file, const std::function<int(std::ostream&)>& write, const Console& console)
{
    std::ofstream output(std::filesystem::path(std::u8string(file.begin(), file.end())), std::ios::binary);
    const int status = output ? write(output) : kDone;
    return output.flush() ? status : console.Fail(kFailed, "cannot write " + file);
}

#else

int WriteDevice(const PosixTarget& target, const std::string& file, const std::function<int(std::ostream&)>& write,
                const Console& console)
{
    Error error;
    const auto device = target.OpenSpecial(file, error);
    if (!device) {
        return console.Fail(error);
    }
    int failure = 0;
    SinkBuffer buffer([&](std::string_view bytes) {
        failure = WriteAll(device, bytes);
        return failure == 0;
    });
    std::ostream output(&buffer);
    const int result = write(output);
    return result == kDone && failure != 0 ? console.Fail(SystemError("write", file, failure)) : result;
}

#endif

} // namespace

int WriteOutputFile(const std::string& file, const std::vector<std::string>& sources,
                    const std::function<int(std::ostream&)>& write, const Console& console)
{
#if defined(_WIN32)
    std::error_code code;
    const auto status = std::filesystem::status(std::filesystem::path(std::u8string(file.begin(), file.end())), code);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
        !std::filesystem::is_directory(status)) {
        return WriteDevice(file, write, console);
    }
#else
    PosixTarget target;
    Error error;
    if (!FindTarget(file, target, error)) {
        return console.Fail(error);
    }
    if (target.IsSpecial()) {
        return WriteDevice(target, file, write, console);
    }
#endif
    return WriteRegularFile(file, sources, write, console);
}

} // namespace wqspcfg::tools
