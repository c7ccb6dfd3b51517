// Writers and readers of several processes on one store. No Load mixes generations, no acknowledged Save is lost, and
// readers that are killed in the midst of a transaction do not make the store grow.
#include "endurance/Scenario.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <thread>

namespace wqspcfg::endurance {

namespace {

constexpr std::uint32_t kWriters = 4;
constexpr int kReaders = 4;
constexpr wchar_t kCounts[] = L"SOFTWARE\\Endurance";
constexpr wchar_t kTotal[] = L"Total";

// A generation tells who wrote it, and as the how-manieth of that writer.
std::uint32_t Generation(std::uint32_t writer, std::uint32_t count)
{
    return (writer << 24) | count;
}

std::wstring CountName(std::uint32_t writer)
{
    return L"Writer" + std::to_wstring(writer);
}

std::uint32_t Number(Session& session, const std::wstring& name)
{
    ValueView value;
    std::uint32_t number = 0;
    if (session.Query(session.Open(kCounts), name, value) == Outcome::Found && value.data.size() == sizeof number) {
        std::memcpy(&number, value.data.data(), sizeof number);
    }
    return number;
}

void SetNumber(Session& session, const std::wstring& name, std::uint32_t number)
{
    (void)session.Set(session.Open(kCounts), name, {ValueType::Dword, std::as_bytes(std::span(&number, 1))});
}

std::string Write(const std::string& directory, std::uint32_t writer, Clock::time_point end, const Channel& channel)
{
    if (const auto error = UseStore(directory)) {
        return error.message;
    }
    Dispenser config;
    for (std::uint32_t count = 1; Clock::now() < end; ++count) {
        ClearStoreError();
        {
            // Counting needs the value that is there: a Save that is lost would show in the total.
            WriteScope scope;
            SetNumber(*scope, kTotal, Number(*scope, kTotal) + 1);
            SetNumber(*scope, CountName(writer), count);
            config.SetGeneration(Generation(writer, count));
            config.Save();
            if (!scope.Commit()) {
                return LastStoreError().message;
            }
        }
        channel.Send(count);
    }
    return {};
}

// What one Load and the counts around it show, in one state.
struct State
{
    std::array<std::uint32_t, kWriters> counts{};
    std::uint32_t total = 0;
};

std::string ReadState(State& state)
{
    std::uint32_t generation = 0;
    ReadScope scope;
    if (auto why = ExpectGeneration(0, ~0U, &generation); !why.empty()) {
        return why;
    }
    state.total = Number(*scope, kTotal);
    std::uint32_t sum = 0;
    for (std::uint32_t writer = 0; writer < kWriters; ++writer) {
        state.counts[writer] = Number(*scope, CountName(writer));
        sum += state.counts[writer];
    }
    if (sum != state.total) {
        return "the writers count " + std::to_string(sum) + " Saves, the total is " + std::to_string(state.total);
    }
    const auto writer = generation >> 24;
    if (state.total != 0 && (writer >= kWriters || state.counts[writer] != (generation & 0xFFFFFF))) {
        return "the generation is not that of the last writer";
    }
    return {};
}

std::string Read(const std::string& directory, Clock::time_point end, const Channel& channel)
{
    if (const auto error = UseStore(directory)) {
        return error.message;
    }
    State last;
    std::uint32_t loads = 0;
    for (; Clock::now() < end; ++loads) {
        State state;
        if (auto why = ReadState(state); !why.empty()) {
            return why;
        }
        for (std::uint32_t writer = 0; writer < kWriters; ++writer) {
            if (state.counts[writer] < last.counts[writer]) {
                return "a Load went back in time";
            }
        }
        last = state;
    }
    channel.Send(loads);
    return {};
}

} // namespace

Result ProcessesScenario(const Plan& plan)
{
    const Scratch scratch;
    const auto directory = scratch / "store";
    const auto made = MakeStoreInChild(directory, 0);
    if (!made.empty()) {
        return Failed("the store was not made: " + made);
    }

    const auto end = plan.End();
    std::deque<Child> writers;
    std::deque<Child> readers;
    for (std::uint32_t writer = 0; writer < kWriters; ++writer) {
        writers.emplace_back([=](const Channel& channel) { return Write(directory, writer, end, channel); });
    }
    for (int reader = 0; reader < kReaders; ++reader) {
        readers.emplace_back([=](const Channel& channel) { return Read(directory, end, channel); });
    }

    const auto fileSize = [&] { return std::filesystem::file_size(directory + "/data.mdb"); };
    std::array<std::uint32_t, kWriters> acknowledged{};
    const auto receive = [&] {
        for (std::uint32_t writer = 0; writer < kWriters; ++writer) {
            for (const auto count : writers[writer].Drain()) {
                acknowledged[writer] = count;
            }
        }
    };
    if (const auto error = UseStore(directory)) {
        return Failed(error.message);
    }
    int killed = 0;
    std::uintmax_t largest = 0;
    while (Clock::now() < end) {
        Child holder([&directory](const Channel& channel) { return HoldState(directory, channel); });
        if (!holder.Receive(std::chrono::seconds(30)) || !holder.Kill()) {
            return Failed("a reader that was to be killed: " + holder.Wait(std::chrono::milliseconds(1)));
        }
        ++killed;
        receive();
        State state;
        if (auto why = ReadState(state); !why.empty()) {
            return Failed(why);
        }
        for (std::uint32_t writer = 0; writer < kWriters; ++writer) {
            if (state.counts[writer] < acknowledged[writer]) {
                return Failed("an acknowledged Save was lost: writer " + std::to_string(writer) + " had " +
                              std::to_string(acknowledged[writer]) + ", the store has " +
                              std::to_string(state.counts[writer]));
            }
        }
        largest = std::max(largest, fileSize());
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    std::uint64_t loads = 0;
    std::uint32_t sum = 0;
    for (auto& writer : writers) {
        if (const auto why = writer.Wait(std::chrono::seconds(30)); !why.empty()) {
            return Failed("a writer: " + why);
        }
    }
    receive();
    for (auto& reader : readers) {
        if (const auto why = reader.Wait(std::chrono::seconds(30)); !why.empty()) {
            return Failed("a reader: " + why);
        }
        loads += reader.Receive(std::chrono::milliseconds(0)).value_or(0);
    }
    State state;
    if (auto why = ReadState(state); !why.empty()) {
        return Failed(why);
    }
    if (state.counts != acknowledged) {
        return Failed("at the end the store does not hold what the writers had acknowledged");
    }
    sum = state.total;
    largest = std::max(largest, fileSize());
    // All readers are gone: what is written now takes free pages, unless one that was killed is still believed.
    constexpr std::size_t kLarge = 100000;
    constexpr int kWrites = 60;
    const auto grown = [&] {
        for (int i = 0; i < kWrites; ++i) {
            const std::vector<std::byte> data(kLarge, static_cast<std::byte>(i));
            WriteScope scope;
            scope->Set(scope->Open(L"SOFTWARE\\Large"), L"x", {ValueType::Binary, data});
        }
        return fileSize();
    };
    const auto before = fileSize();
    const auto after = grown();
    if (after > before + kLarge * kWrites / 2) {
        return Failed("the store grows without readers: from " + std::to_string(before / 1024) + " KiB to " +
                      std::to_string(after / 1024) + " KiB");
    }
    const auto sizes = "the file had at most " + std::to_string(largest / 1024) + " KiB beside readers";
    return {{},
            std::to_string(sum) + " Saves of " + std::to_string(kWriters) + " writers, " + std::to_string(loads) +
                " Loads of " + std::to_string(kReaders) + " readers, " + std::to_string(killed) +
                " readers killed in a transaction; " + sizes,
            {}};
}

} // namespace wqspcfg::endurance
