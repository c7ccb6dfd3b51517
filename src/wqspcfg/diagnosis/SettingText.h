// Settings and their values as a person reads them. The texts are UTF-8 and hold stored text as it is: a program
// escapes them for a terminal or a page.
#pragma once

#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/diagnosis/Examination.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace wqspcfg::diagnosis {

// The key as a person would look for it: below the device key by its subkey, elsewhere by its root.
std::string KeyText(Root root, std::wstring_view subkey);

// "2 leave", "7", "\"COM1\"".
std::string ValueText(const DescribedSetting& setting, const DescribedValue& value);
// The word of a number ("leave"); empty where it has none.
std::string WordOf(const DescribedSetting& setting, DWORD number);
// "0 eject, 1 retain, 2 leave", "1 to 8"; empty where every value is allowed.
std::string AllowedText(const DescribedSetting& setting);
bool IsAllowed(const DescribedSetting& setting, DWORD number);
// "computed" where the class makes the default.
std::string DefaultText(const DescribedSetting& setting);

// "saved", "saved as NAME", "written by OPERATION" or "not saved"; `isSaved` is ClassSetting's.
std::string SavedText(const DescribedSetting& setting, bool isSaved);

// The registry type that is read: REG_DWORD or REG_SZ.
ValueType StoredType(const DescribedSetting& setting);
// "REG_SZ \"4\""; the text is cut when it is long.
std::string StoredText(ValueType type, std::span<const std::byte> data);
// What the key holds is of the type that is read.
bool IsRightType(const DescribedSetting& setting, const AskedKey& key);
// What it is instead: "REG_SZ \"4\"", or "a REG_DWORD of 2 bytes" where only its length is wrong; and what is read: "a
// REG_DWORD is read", "one of 4 bytes is read".
struct TypeFault
{
    std::string is;
    std::string read;
};
TypeFault TypeFaultOf(const DescribedSetting& setting, const AskedKey& key, bool isMasked);
// What stands in place of a secret.
inline constexpr char kMasked[] = "********";

// The value in effect is not the default, or a stored one is ignored or corrected.
bool IsChanged(const ExaminedSetting& setting);

// "device key", "common key", "default", ...: where the value in effect comes from.
std::string SourceText(const ExaminedSetting& setting);
// "corrected from 5", "made of the default 5": of a value that the class has replaced.
std::string CorrectionText(const ExaminedSetting& setting);
// The stable name of a source for other programs: "key", "fallback", "missing", "wrongType", "kept", "code", "notRead".
const char* NameOf(Source source) noexcept;
// What a person should know of the value in effect: that it is not allowed, corrected, or that a stored one is ignored.
// Empty where there is nothing. `place` gives "FILE:LINE" of a key that was asked, or nothing; a secret is not shown.
std::string NoteOn(const ExaminedSetting& setting, const std::function<std::string(const AskedKey&)>& place,
                   bool showSecrets);

// How a person may mean a setting by a text, the surest last.
enum class Naming : std::uint8_t
{
    None,
    Label,      // its label in the log
    Name,       // its name; of a whole key, the key
    KeyAndName, // its key below the root, and its name
    FullName,   // KeyText and its name, or its path and its name
};
// Case does not count.
Naming NamingOf(const ExaminedSetting& setting, std::wstring_view text);
// KeyText and its name: "Comm\Port".
std::string FullNameOf(const ExaminedSetting& setting);

// The name of the entry of a key that is read whole, which the text means: "Key\Name", or the name of one that is
// there.
std::optional<std::wstring> EntryNamedBy(const ExaminedSetting& setting, std::wstring_view text);
// What is told of that entry alone, also where it is missing.
ExaminedSetting OneEntry(const ExaminedSetting& setting, const std::wstring& name);

// The setting that was probably meant by a text that names none: "Port", or "Comm\Port" where the text has a key; empty
// where there is none.
std::string NearestSetting(const Examination& examination, std::wstring_view text);

// The same as the end of a message: "; did you mean "Comm\Port"?".
std::string DidYouMean(const Examination& examination, std::wstring_view text);

// A path as the messages show it, with its hive: "HKLM\SOFTWARE\XFS".
std::string FullPath(std::wstring_view path);

} // namespace wqspcfg::diagnosis
