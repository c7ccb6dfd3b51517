#include "endurance/Scenario.h"

#include "wqspcfg/platform/store/Store.h"
#include "wqspcfg/platform/text/NarrowText.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <thread>
#include <unistd.h>
#include <vector>

namespace wqspcfg::endurance {

namespace {

constexpr unsigned kUnits = 4;

std::wstring Name(int number)
{
    return L"CardDispenser" + std::to_wstring(number);
}

void SetText(std::wstring_view path, std::wstring_view name, std::wstring_view text)
{
    std::vector<std::byte> bytes;
    (void)AppendUtf16Le(text, bytes);
    bytes.insert(bytes.end(), 2, std::byte{0});
    WriteScope scope;
    (void)scope->Set(scope->Open(path), name, {ValueType::Sz, bytes});
}

// Mostly short, now and then more than a page holds.
std::string TextOf(std::uint32_t generation, unsigned which)
{
    const auto step = generation * 37 + which * 11;
    return std::to_string(generation) + std::string(step % 50 == 7 ? 3000 + step % 2000 : step % 120, 'x');
}

// The settings of one generation, each with the member that holds it.
template <class Config>
auto Numbers(Config& config)
{
    return std::array{&config.m_dwPort,         &config.m_dwBaudRate,      &config.m_dwDispenseBin1,
                      &config.m_dwDispenseBin2, &config.m_dwRetainBin,     &config.m_dwMaxSupplyCard,
                      &config.m_dwSupplyBinLow, &config.m_dwPowerOnOption, &config.m_dwCurNumber};
}

} // namespace

Scratch::Scratch(const std::filesystem::path& parent) : m_owner(getpid())
{
    auto pattern = (parent / "wqspcfg-endurance-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        std::perror(pattern.c_str());
        std::_Exit(EXIT_FAILURE);
    }
    m_path = pattern;
}

Scratch::~Scratch()
{
    if (m_owner == getpid()) {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
}

std::filesystem::path FastDirectory()
{
    return access("/dev/shm", W_OK) == 0 ? std::filesystem::path("/dev/shm") : std::filesystem::temp_directory_path();
}

std::string ReadWhole(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteWhole(const std::string& path, std::string_view content)
{
    std::ofstream file(path, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!file.flush()) {
        std::perror(path.c_str());
        std::_Exit(EXIT_FAILURE);
    }
}

Error UseStore(const std::string& directory, bool create)
{
    Error error;
    SetCurrentStore(OpenStore("lmdb:" + directory, {.create = create}, error));
    return error;
}

Dispenser::Dispenser(int number) : CSpCRDWQTYM1200RegInfo(Name(number).c_str(), false) {}

Dispenser::~Dispenser()
{
    DropHoppers();
}

void Dispenser::DropHoppers()
{
    for (auto& unit : m_arCardUnit) {
        unit.SetHopper(nullptr);
    }
}

Error Dispenser::Install(int number)
{
    ClearStoreError();
    const auto name = Name(number);
    SetText(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\" + name, L"Provider", name);
    SetText(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\" + name, L"Class", L"CRD");
    SetText(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\" + name, L"ExeDllMother", name + L".exe");
    return LastStoreError();
}

void Dispenser::SetGeneration(std::uint32_t generation)
{
    for (auto* number : Numbers(*this)) {
        *number = generation;
    }
    m_strBluetoothName = NarrowToWide(TextOf(generation, 0)).c_str();
    m_strLogicalNameOfIDCReader = NarrowToWide(TextOf(generation, 1)).c_str();
    if (m_arCardUnit.GetSize() != kUnits) {
        DropHoppers();
        m_arCardUnit.RemoveAll();
        for (unsigned i = 1; i <= kUnits; ++i) {
            tagCardUnitEx unit;
            unit.usNumber = static_cast<USHORT>(i);
            m_arCardUnit.Add(unit);
        }
    }
    for (unsigned i = 0; i < kUnits; ++i) {
        auto& unit = m_arCardUnit[static_cast<INT_PTR>(i)];
        unit.ulInitialCount = generation;
        unit.ulCount = generation;
        unit.ulMaxCount = generation;
        unit.SetCardName(TextOf(generation, 2 + i).c_str());
        unit.SetHopper(TextOf(generation, 6 + i).c_str());
    }
}

std::string Dispenser::CheckGeneration(std::uint32_t& generation)
{
    generation = m_dwCurNumber;
    const auto mixed = [generation](const std::string& what, const std::string& found) {
        return "generations are mixed: CurNumber is " + std::to_string(generation) + ", but " + what + " is " +
               found.substr(0, 40);
    };
    for (const auto* number : Numbers(*this)) {
        if (*number != generation) {
            return mixed("a number", std::to_string(*number));
        }
    }
    const std::string texts[] = {Utf8ForMessage(m_strBluetoothName.View()),
                                 Utf8ForMessage(m_strLogicalNameOfIDCReader.View())};
    for (unsigned i = 0; i < std::size(texts); ++i) {
        if (texts[i] != TextOf(generation, i)) {
            return mixed("a text", '"' + texts[i] + '"');
        }
    }
    if (m_arCardUnit.GetSize() != kUnits) {
        return mixed("the number of card units", std::to_string(m_arCardUnit.GetSize()));
    }
    for (unsigned i = 0; i < kUnits; ++i) {
        const auto& unit = m_arCardUnit[static_cast<INT_PTR>(i)];
        const auto text = [](const char* held) { return std::string(held != nullptr ? held : ""); };
        for (const auto number : {unit.ulInitialCount, unit.ulCount, unit.ulMaxCount}) {
            if (number != generation) {
                return mixed("a number of card unit " + std::to_string(i), std::to_string(number));
            }
        }
        for (const auto& [held, which] : {std::pair(+unit.lpszCardName, 2 + i), std::pair(+unit.lpszHopper, 6 + i)}) {
            if (text(held) != TextOf(generation, which)) {
                return mixed("a text of card unit " + std::to_string(i), '"' + text(held) + '"');
            }
        }
    }
    return {};
}

Error Save(Dispenser& config, std::uint32_t generation)
{
    ClearStoreError();
    config.SetGeneration(generation);
    config.Save();
    return LastStoreError();
}

Error Load(Dispenser& config, bool* isInLog)
{
    ClearStoreError();
    for (auto& unit : config.m_arCardUnit) {
        unit.SetHopper(nullptr); // Load drops the units
    }
    MemoryLog log;
    (void)config.Load(&log);
    if (isInLog != nullptr) {
        *isInLog = std::any_of(log.Entries().begin(), log.Entries().end(),
                               [](const auto& entry) { return entry.severity == Severity::Error; });
    }
    return LastStoreError();
}

std::string ExpectGeneration(std::uint32_t least, std::uint32_t most, std::uint32_t* found, int number)
{
    Dispenser config(number);
    if (const auto error = Load(config)) {
        return error.message;
    }
    std::uint32_t generation = 0;
    if (auto mixed = config.CheckGeneration(generation); !mixed.empty()) {
        return mixed;
    }
    if (generation < least || generation > most) {
        return "generation " + std::to_string(generation) + " was loaded, which is not from " + std::to_string(least) +
               " to " + std::to_string(most);
    }
    if (found != nullptr) {
        *found = generation;
    }
    return {};
}

std::string MakeStore(const std::string& directory, std::uint32_t generation)
{
    if (const auto error = UseStore(directory, true)) {
        return error.message;
    }
    Dispenser config;
    const auto installed = Dispenser::Install();
    return installed ? installed.message : Save(config, generation).message;
}

std::string MakeStoreInChild(const std::string& directory, std::uint32_t generation)
{
    return InChild([&] { return MakeStore(directory, generation); });
}

std::string HoldState(const std::string& directory, const Channel& channel)
{
    if (const auto error = UseStore(directory)) {
        return error.message;
    }
    ReadScope scope;
    if (auto why = ExpectGeneration(0, ~0U); !why.empty()) {
        return why;
    }
    channel.Send(0);
    std::this_thread::sleep_for(std::chrono::hours(1));
    return "was not killed";
}

} // namespace wqspcfg::endurance
