// What a Load does, written down so that others can do the same: the values that it asks for, found and missing, in
// order, and the lines that it writes.
#pragma once

#include "RecordingStore.h"

#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/core/Log.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

[[noreturn]] inline void Die(const std::string& message)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    std::exit(1);
}

// A log line as a format that a programmer would have written for it.
struct Line
{
    enum class Form : std::uint8_t
    {
        Number, // shows the number that was asked for
        Text,   // shows the text that was asked for
        Fixed,  // shows something else
        Whole,  // a line without a value
    };

    Form form = Form::Whole;
    std::wstring format;
    std::wstring label;
    DWORD number = 0; // what was shown
    std::wstring text;
};

struct Question
{
    std::wstring path; // as the class asks for it
    CString name;
    std::string flatPath; // in upper case, with its hive: what the other stores keep
    std::string flatName;
    bool found = false;
    bool isText = false;
    DWORD number = 0;
    std::wstring text;
    std::vector<Line> lines; // that follow it
};

struct Work
{
    std::vector<Question> questions;
    std::vector<std::wstring> log;
    std::size_t keys = 0; // that were opened
};

// The result of a Load by hand: members and log lines.
class Result
{
  public:
    void Number(const Question& question, DWORD value)
    {
        m_numbers.push_back(value);
        for (const auto& line : question.lines) {
            Print(line, value, line.text.c_str());
        }
    }
    // ASCII, as all text here.
    void Text(const Question& question, std::string_view value)
    {
        Text(question, std::wstring(value.begin(), value.end()));
    }
    void Text(const Question& question, std::wstring value)
    {
        m_texts.push_back(std::move(value));
        for (const auto& line : question.lines) {
            Print(line, line.number, m_texts.back().c_str());
        }
    }
    void Missing(const Question& question)
    {
        for (const auto& line : question.lines) {
            Print(line, line.number, line.text.c_str());
        }
    }
    void Print(const Line& line, DWORD number, const wchar_t* text)
    {
        wchar_t buffer[1024];
        int length = -1;
        switch (line.form) {
        case Line::Form::Number:
            length = std::swprintf(buffer, std::size(buffer), line.format.c_str(), line.label.c_str(), number);
            break;
        case Line::Form::Text:
            length = std::swprintf(buffer, std::size(buffer), line.format.c_str(), line.label.c_str(), text);
            break;
        case Line::Form::Fixed:
            length =
                std::swprintf(buffer, std::size(buffer), line.format.c_str(), line.label.c_str(), line.text.c_str());
            break;
        case Line::Form::Whole:
            length = std::swprintf(buffer, std::size(buffer), L"%ls", line.text.c_str());
            break;
        }
        if (length < 0) {
            Die("a line is too long for swprintf");
        }
        m_log.emplace_back(buffer, static_cast<std::size_t>(length));
    }
    const std::vector<std::wstring>& Log() const noexcept { return m_log; }

  private:
    std::vector<DWORD> m_numbers;
    std::vector<std::wstring> m_texts;
    std::vector<std::wstring> m_log;
};

// Takes a line "[CFG]  label : value[meaning]" apart. `question` was asked just before it.
inline Line ParseLine(const std::wstring& text, const Question& question)
{
    constexpr std::wstring_view kHead = L"[CFG] ";
    Line line;
    line.text = text;
    const auto label = text.find_first_not_of(L' ', kHead.size());
    const auto colon = text.find(L" : ", kHead.size());
    if (!text.starts_with(kHead) || label >= colon || colon == std::wstring::npos) {
        return line;
    }
    Line parsed;
    parsed.label = text.substr(label, colon - label);
    const auto value = colon + 3;
    const auto bracket = std::min(text.find(L'[', value), text.size());
    parsed.text = text.substr(value, bracket - value);
    parsed.number = static_cast<DWORD>(std::wcstoll(parsed.text.c_str(), nullptr, 10));
    const bool decimal = std::to_wstring(static_cast<int>(parsed.number)) == parsed.text;
    if (decimal && !question.isText && (!question.found || question.number == parsed.number)) {
        parsed.form = Line::Form::Number;
    } else if (question.isText && question.text == parsed.text) {
        parsed.form = Line::Form::Text;
    } else {
        parsed.form = Line::Form::Fixed;
    }
    parsed.format = parsed.form == Line::Form::Number ? L"[CFG] %40ls : %d" : L"[CFG] %40ls : %ls";
    for (const auto character : text.substr(bracket)) {
        parsed.format.append(character == L'%' ? 2 : 1, character);
    }
    Result check;
    check.Print(parsed, parsed.number, parsed.text.c_str());
    return check.Log()[0] == text ? parsed : line;
}

// ---- The device whose configuration is read ----

inline constexpr wchar_t kPhysicalName[] = L"WQSpDevice";

inline const wqspcfg::ClassEntry& ClassNamed(std::wstring_view className)
{
    const auto* entry = wqspcfg::FindClass(className);
    if (entry == nullptr) {
        Die("there is no such class");
    }
    return *entry;
}

inline std::string NameOf(const wqspcfg::ClassEntry& entry)
{
    const std::wstring_view name = entry.table().className;
    return {name.begin(), name.end()};
}

inline void NameDevice(const std::wstring& physicalName)
{
    CRegKeyEx::SetValue(CString(physicalName + L".exe"), L"ExeDllMother", L"%s%s", wqspcfg::kServiceRoot, physicalName);
}

// Stores every value of the class's settings in the current store.
inline void StoreDevice(const wqspcfg::ClassEntry& entry, const std::wstring& physicalName = kPhysicalName,
                        DWORD number = 1, const wchar_t* text = L"some text")
{
    using wqspcfg::Type;
    const wqspcfg::WriteScope scope;
    NameDevice(physicalName);
    const auto config = wqspcfg::Create(entry, CString(physicalName), true);
    config->Save(); // what loops write
    wqspcfg::Saving saving(*config);
    for (const auto* table : wqspcfg::Lineage(entry.table())) {
        for (const auto& setting : wqspcfg::Describe(*table)) {
            const wqspcfg::Key key{setting.root, setting.key.c_str()};
            if (setting.type == Type::String || setting.type == Type::Char) {
                saving.Put(key, CString(setting.name), CString(text));
            } else {
                saving.Put(key, CString(setting.name), number);
            }
        }
    }
    NameDevice(physicalName); // which is among the settings
    CRegKeyEx::SetValue(0, L"Count", L"%s%s\\NoteType", wqspcfg::kDeviceRoot, physicalName);
}

// The values of the rest of the terminal, twenty to a key.
inline void StoreOthers(std::size_t values)
{
    const wqspcfg::WriteScope scope;
    for (std::size_t i = 0; i < values; ++i) {
        CRegKeyEx::SetValue(static_cast<DWORD>(i), CString(L"Value" + std::to_wstring(i % 20)), L"%s%s\\Control",
                            wqspcfg::kDeviceRoot, L"Other" + std::to_wstring(i / 20));
    }
}

// Constructs an object and loads it. The settings that all objects of a process share are read by the first alone:
// there must be no other.
inline void Load(const wqspcfg::ClassEntry& entry, CLog& log)
{
    if (CRegInfo::m_lpsPolicyGroup != nullptr) {
        Die("another object is alive");
    }
    wqspcfg::Create(entry, kPhysicalName, true)->Load(&log);
}

// The calls of one Load on the store, which is the current one afterwards, and the lines.
inline std::vector<Call> RecordCalls(const wqspcfg::ClassEntry& entry, const std::shared_ptr<wqspcfg::Store>& store,
                                     wqspcfg::MemoryLog& log)
{
    const auto recording = std::make_shared<RecordingStore>(store, log);
    wqspcfg::SetCurrentStore(recording);
    Load(entry, log);
    wqspcfg::SetCurrentStore(store);
    return recording->Calls();
}

// What Load does on the store, which is the current one afterwards. First stores what it misses still: values that are
// no settings.
inline Work RecordLoad(const wqspcfg::ClassEntry& entry, const std::shared_ptr<wqspcfg::Store>& store)
{
    wqspcfg::SetCurrentStore(store);
    {
        wqspcfg::MemoryLog log;
        Load(entry, log); // some values are read once in a process
        wqspcfg::MemoryLog first;
        for (const auto& call : RecordCalls(entry, store, first)) {
            if (call.kind == Call::Kind::Query && !call.found) {
                CRegKeyEx::SetValue(CString(L"some text"), CString(call.name), L"%s", call.path);
            }
        }
    }
    wqspcfg::MemoryLog log;
    const auto calls = RecordCalls(entry, store, log);

    Work work;
    std::vector<std::size_t> firstLine;
    for (const auto& call : calls) {
        if (call.kind == Call::Kind::Set) {
            Die("a Load that writes is not what is to be measured");
        }
        if (call.kind == Call::Kind::Open) {
            ++work.keys;
            continue;
        }
        auto& question = work.questions.emplace_back();
        question.path = call.path;
        question.name = CString(call.name);
        wqspcfg::AppendFoldedPath(call.hive, call.path, question.flatPath);
        wqspcfg::AppendFolded(call.name, question.flatName);
        const wqspcfg::ValueView value{call.type, call.data};
        CString text;
        question.isText = call.found && ToValue(value, text);
        question.text = text.View();
        question.found = question.isText || (call.found && ToValue(value, question.number));
        firstLine.push_back(call.lines);
    }
    for (const auto& entryOfLog : log.Entries()) {
        work.log.push_back(entryOfLog.text);
    }
    for (std::size_t i = 0; i < work.questions.size(); ++i) {
        const auto first = i == 0 ? 0 : firstLine[i];
        const auto end = i + 1 < firstLine.size() ? firstLine[i + 1] : work.log.size();
        for (auto line = first; line < end; ++line) {
            work.questions[i].lines.push_back(ParseLine(work.log[line], work.questions[i]));
        }
    }
    return work;
}

// Ends the program unless the result is what Load itself wrote.
inline void CheckResult(const Work& work, const std::vector<std::wstring>& log, const std::string& who)
{
    for (std::size_t i = 0; i < std::max(log.size(), work.log.size()); ++i) {
        if (i >= log.size() || i >= work.log.size() || log[i] != work.log[i]) {
            const auto line = [i](const std::vector<std::wstring>& all) {
                return i < all.size() ? wqspcfg::Utf8ForMessage(all[i]) : "(none)";
            };
            Die(who + " does not write the lines of Load: \"" + line(log) + "\" for \"" + line(work.log) + '"');
        }
    }
}

} // namespace bench
