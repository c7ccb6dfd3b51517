// What the commands of the program have in common.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/platform/text/Utf.h"

#include <istream>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>

namespace wqspcfg::tools {

enum Status : int
{
    kDone = 0,
    kNegative = 1, // Load returned false, there is no such value
    kUsage = 2,
    kFailed = 3, // the store or a file failed
};

// Data goes to `out`, everything else to `err`; text is UTF-8.
struct Console
{
    std::istream& in;
    std::ostream& out;
    std::ostream& err;

    int Fail(int status, const std::string& message) const
    {
        err << "wqspcfg: " << message << '\n';
        return status;
    }
    int Fail(const Error& error) const { return Fail(kFailed, error.message); }
};

// Arguments that mean nothing: exit status 2.
class UsageError : public std::runtime_error
{
  public:
    using std::runtime_error::runtime_error;
};

// Which store the commands work on.
struct StoreChoice
{
    std::string address; // empty: the default
    bool view32 = false;

    std::string Address() const { return address.empty() ? DefaultStoreAddress() : address; }

    std::shared_ptr<Store> Open(Access access, bool create, Error& error) const
    {
        const OpenOptions options{.readOnly = access == Access::Read, .create = create, .view32 = view32};
        return OpenStore(Address(), options, error);
    }
};

inline std::string Utf8(std::wstring_view text)
{
    return Utf8ForMessage(text);
}

inline std::wstring Wide(const std::string& utf8)
{
    std::wstring text;
    if (!AppendWideFromUtf8(utf8, text)) {
        throw UsageError("an argument is not well-formed UTF-8");
    }
    return text;
}

} // namespace wqspcfg::tools
