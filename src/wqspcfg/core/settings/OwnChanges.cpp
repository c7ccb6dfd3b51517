#include "wqspcfg/core/settings/OwnChanges.h"

#include "wqspcfg/core/SavePolicy.h"
#include "wqspcfg/platform/store/ForkSafe.h"

#include <atomic>
#include <cstdlib>
#include <mutex>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace wqspcfg {

namespace {

SavePolicy PolicyOfEnvironment() noexcept
{
    const char* text = std::getenv("WQSPCFG_SAVE_POLICY");
    auto policy = SavePolicy::All;
    (void)(text != nullptr && ParseSavePolicy(text, policy));
    return policy;
}

std::atomic<SavePolicy>& Policy() noexcept
{
    static std::atomic<SavePolicy> policy{PolicyOfEnvironment()};
    return policy;
}

struct LoadedObject
{
    CLog* log = nullptr;
    std::map<std::pair<const Setting*, unsigned>, LoadedContent> settings;
    std::map<std::pair<const Setting*, unsigned>, LoadedContent> written; // not committed yet
};

// Beside the objects, so that their layout is the same under both policies.
struct LoadedObjects
{
    std::mutex& mutex = ForkSafeMutex(ForkSafe::LoadedObjects);
    std::unordered_map<const CRegKeyEx*, LoadedObject> objects;
};

LoadedObjects& Objects()
{
    static auto* objects = new LoadedObjects; // never destroyed: objects may outlive the end of main
    return *objects;
}

LoadedObject* FindObject(const CRegKeyEx& object)
{
    auto& all = Objects();
    const std::lock_guard lock(all.mutex);
    const auto found = all.objects.find(&object);
    return found != all.objects.end() ? &found->second : nullptr; // elements of the map keep their place
}

LoadedObject& ObjectOf(const CRegKeyEx& object)
{
    if (auto* loaded = FindObject(object)) {
        return *loaded;
    }
    auto& all = Objects();
    const std::lock_guard lock(all.mutex);
    return all.objects[&object];
}

} // namespace

bool ParseSavePolicy(std::string_view text, SavePolicy& policy) noexcept
{
    if (text == "own-changes") {
        policy = SavePolicy::OwnChanges;
    } else if (text.empty() || text == "all") {
        policy = SavePolicy::All;
    } else {
        return false;
    }
    return true;
}

void SetSavePolicy(SavePolicy policy) noexcept
{
    Policy() = policy;
}

SavePolicy GetSavePolicy() noexcept
{
    return Policy();
}

void RememberLoaded(const CRegKeyEx& object, const Setting& row, unsigned index, LoadedContent content, CLog* log)
{
    auto& loaded = ObjectOf(object);
    if (log != nullptr) {
        loaded.log = log;
    }
    loaded.settings[{&row, index}] = std::move(content);
}

void RememberWritten(const CRegKeyEx& object, const Setting& row, unsigned index, LoadedContent content)
{
    ObjectOf(object).written[{&row, index}] = std::move(content);
}

void SettleWritten(const CRegKeyEx& object, bool committed)
{
    auto* loaded = FindObject(object); // null: the object is gone
    if (loaded == nullptr) {
        return;
    }
    auto written = std::exchange(loaded->written, {});
    if (committed) {
        written.merge(loaded->settings); // what is written counts
        loaded->settings = std::move(written);
    }
}

const LoadedContent* FindLoaded(const CRegKeyEx& object, const Setting& row, unsigned index)
{
    const auto* loaded = FindObject(object);
    if (loaded == nullptr) {
        return nullptr;
    }
    for (const auto* settings : {&loaded->written, &loaded->settings}) {
        if (const auto found = settings->find({&row, index}); found != settings->end()) {
            return &found->second;
        }
    }
    return nullptr;
}

CLog* LogOfLoad(const CRegKeyEx& object)
{
    const auto* loaded = FindObject(object);
    return loaded != nullptr ? loaded->log : nullptr;
}

void ForgetLoaded(const CRegKeyEx& object) noexcept
{
    if (GetSavePolicy() == SavePolicy::OwnChanges) {
        auto& all = Objects();
        const std::lock_guard lock(all.mutex);
        all.objects.erase(&object);
    }
}

} // namespace wqspcfg
