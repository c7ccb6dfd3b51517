// What the commands of the program have in common.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/platform/text/DisplayText.h"
#include "wqspcfg/platform/text/Utf.h"

#include <functional>
#include <istream>
#include <memory>
#include <optional>
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

// Data goes to `out`, everything else to `err`; text is UTF-8. What comes from a store, a file or the command line is
// escaped for terminals in every message.
struct Console
{
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool outIsTerminal = false;

    void Note(const std::string& message) const { err << "wqspcfg: " << DisplayText(message) << '\n'; }
    int Fail(int status, const std::string& message) const
    {
        Note(message);
        return status;
    }
    int Fail(const Error& error) const { return Fail(kFailed, error.message); }
};

// A command line that cannot be carried out: exit status 2.
class UsageError : public std::runtime_error
{
  public:
    using std::runtime_error::runtime_error;
};

// Which store the commands work on, and how it is read.
struct StoreChoice
{
    std::optional<std::string> address; // none: the default
    bool view32 = false;
    unsigned codePage = 0;
    bool secrets = false; // show keys and passwords
    // Takes what is to be said of a store or a registry export that was opened.
    std::function<void(const std::string&)> note;

    // Throws UsageError for an empty address.
    std::string Address() const;
    // How another store is read, whose address `option` gives: with those of --view32 and --codepage that apply to it.
    // Throws UsageError for an empty address.
    StoreChoice At(const std::string& other, const std::string& option) const;
    // Throws UsageError where --view32 or --codepage cannot apply. `isImport`: they may concern the imported file.
    void Check(bool isImport) const;
    // As OpenStore, and `hive:DIRECTORY` or `hive:FILE`: the registry on the disk of a terminal that does not run.
    std::shared_ptr<Store> Open(Access access, Error& error, bool isImport = false) const;
    // Creates an embedded store that does not exist, and names it on standard error.
    std::shared_ptr<Store> OpenOrCreate(const Console& console, Error& error, bool isImport = false) const;
    // Whether an embedded store is there to be opened. True for other stores.
    bool Exists() const;
    void NoteCreated(const Console& console) const;
    void NoteTakenAsUtf8(const std::string& file) const;

  private:
    std::shared_ptr<Store> OpenAddress(const OpenOptions& options, Error& error) const;
};

inline std::string Utf8(std::wstring_view text)
{
    return Utf8ForMessage(text);
}

// Throws UsageError for ill-formed text.
std::wstring Wide(const std::string& utf8);

// "1 key", "2 keys".
std::string Counted(std::size_t count, const std::string& thing);

} // namespace wqspcfg::tools
