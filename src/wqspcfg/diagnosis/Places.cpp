#include "wqspcfg/diagnosis/Places.h"

#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/store/RegistryPath.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/platform/store/regfile/View32.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <unordered_map>
#include <utility>

namespace wqspcfg::diagnosis {

class Places::Lines final : public RegFileVisitor
{
  public:
    explicit Lines(const StoreSource& source)
        : m_parser(source.file, *this, source.codePage != 0 ? CodePage::Open(source.codePage) : nullptr)
    {
        const std::filesystem::path path(std::u8string(source.file.begin(), source.file.end()));
        std::error_code code;
        if (!std::filesystem::is_regular_file(path, code)) {
            return; // a pipe cannot be read twice
        }
        std::ifstream file(path, std::ios::binary);
        std::array<char, 1 << 16> piece{};
        Error error;
        bool isGood = static_cast<bool>(file);
        while (isGood && file) {
            file.read(piece.data(), piece.size());
            isGood = m_parser.Feed({piece.data(), static_cast<std::size_t>(file.gcount())}, error);
        }
        if (!isGood || !m_parser.Finish(error)) {
            m_lines.clear();
        }
    }

    bool Key(Hive hive, std::wstring_view path, Error&) override
    {
        m_view.Add(hive, path);
        m_key = KeyOf(hive, path);
        m_lines.try_emplace(m_key, m_parser.Line());
        for (auto end = m_key.rfind(L'\\'); end != std::wstring::npos && end > 0; end = m_key.rfind(L'\\', end - 1)) {
            if (!m_above.try_emplace(m_key.substr(0, end), m_parser.Line()).second) {
                break;
            }
        }
        return true;
    }
    bool DeleteKey(Hive, std::wstring_view, Error&) override { return true; }
    bool Value(std::wstring_view name, const ValueView&, Error&) override
    {
        m_lines[ValueOf(m_key, name)] = m_parser.Line();
        return true;
    }
    bool DeleteValue(std::wstring_view, Error&) override { return true; }

    View32& View() noexcept { return m_view; }
    // 0 where the file does not have it.
    std::size_t Find(Hive hive, std::wstring_view path, const std::wstring* name) const
    {
        auto place = KeyOf(hive, path);
        if (name != nullptr) {
            place = ValueOf(place, *name);
        }
        if (const auto found = m_lines.find(place); found != m_lines.end()) {
            return found->second;
        }
        const auto below = name == nullptr ? m_above.find(place) : m_above.end();
        return below != m_above.end() ? below->second : 0;
    }

  private:
    static std::wstring KeyOf(Hive hive, std::wstring_view path)
    {
        return static_cast<wchar_t>(L'0' + static_cast<int>(hive)) + UpCase(path);
    }
    // No name of a key holds a NUL.
    static std::wstring ValueOf(const std::wstring& key, std::wstring_view name) { return key + L'\0' + UpCase(name); }

    RegFileParser m_parser;
    View32 m_view;
    std::wstring m_key;
    std::unordered_map<std::wstring, std::size_t> m_lines;
    std::unordered_map<std::wstring, std::size_t> m_above; // keys by the first one below them
};

Places::Places(StoreSource source) : m_source(std::move(source)) {}

Places::~Places() = default;

std::string Places::Of(std::wstring_view path, const std::wstring* name)
{
    if (m_source.file.empty()) {
        return {};
    }
    if (m_lines == nullptr) {
        m_lines = std::make_unique<Lines>(m_source);
    }
    const auto hive = HiveOf(path);
    const auto line = m_lines->Find(hive, m_source.view32 ? m_lines->View().ToStored(hive, path) : path, name);
    return line != 0 ? m_source.file + ':' + std::to_string(line) : std::string();
}

} // namespace wqspcfg::diagnosis
