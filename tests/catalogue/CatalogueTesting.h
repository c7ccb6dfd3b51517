// What tests over the whole catalogue share: the settings of a class with those it inherits, what an object holds for
// each, and a fixture whose registry can be wiped.
#pragma once

#include "support/ConfigTest.h"
#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg {

inline void PrintTo(const DescribedValue& value, std::ostream* out)
{
    *out << value.number << " \"" << Utf8ForMessage(value.text) << '"';
}

} // namespace wqspcfg

namespace wqspcfg::test {

inline std::string Narrow(std::wstring_view text)
{
    return Utf8ForMessage(text);
}

inline std::string NameOfClass(const ClassEntry& entry)
{
    return Narrow(entry.table().className);
}

// Every class that can be made.
inline std::vector<const ClassEntry*> Concrete()
{
    std::vector<const ClassEntry*> entries;
    for (const auto* entry : AllClasses()) {
        if (entry->create != nullptr) {
            entries.push_back(entry);
        }
    }
    return entries;
}

inline bool Is(const ClassEntry& entry, std::wstring_view name)
{
    const auto tables = Lineage(entry.table());
    return std::any_of(tables.begin(), tables.end(), [&](const Table* table) { return table->className == name; });
}

// Has a member that holds one value.
inline bool IsHeld(const DescribedSetting& setting)
{
    return setting.row->bound && !setting.wholeKey;
}

inline const void* MemberOf(const DescribedSetting& setting, CRegKeyEx& owner)
{
    auto& object = setting.part != nullptr ? setting.part(owner) : owner;
    const auto& row = *setting.row;
    if (row.locate != nullptr) {
        return row.locate(object, setting.iteration);
    }
    switch (row.type) {
    case Type::Dword:
        return &(object.*row.member.dword);
    case Type::Flag:
        return &(object.*row.member.flag);
    case Type::String:
        return &(object.*row.member.string);
    case Type::Char:
    case Type::None:
        break;
    }
    return &(object.*row.member.character);
}

// Whether the class's Save writes what `owner`, the class or one of its bases, saves.
inline bool Saves(const ClassEntry& entry, const Table& owner)
{
    for (const auto* table = &entry.table(); table != &owner; table = &table->base()) {
        if (!table->savesBase) {
            return false;
        }
    }
    return true;
}

inline bool IsText(Type type)
{
    return type == Type::String || type == Type::Char;
}

// Nothing but the query and its default says what the member holds.
inline bool IsPlain(const DescribedSetting& setting)
{
    const auto& row = *setting.row;
    // A switch without a polarity, which is read later, becomes 0.
    const bool decidedLater = setting.key == L"Switches\\Index";
    return IsHeld(setting) && !row.Has(Flags::Preloaded) && row.step == nullptr && row.normalize == nullptr &&
           row.normalizeText == nullptr && !setting.conditional && !decidedLater;
}

// A setting of one class, and which.
struct Owned
{
    const Table* table;
    DescribedSetting setting;
    std::string Name() const { return Narrow(table->className) + ": " + Narrow(setting.key + L"\\" + setting.name); }
};

// The settings of a class and its bases in the order of loading.
inline std::vector<Owned> WithInherited(const ClassEntry& entry)
{
    std::vector<Owned> all;
    auto tables = Lineage(entry.table());
    std::reverse(tables.begin(), tables.end());
    for (const auto* table : tables) {
        for (auto& setting : Describe(*table)) {
            all.push_back({table, std::move(setting)});
        }
    }
    return all;
}

class CatalogueTest : public ConfigTest
{
  protected:
    // The keys without which a Load returns false.
    void AddRequiredKeys()
    {
        Set(Device(L"SNRData"), L"Present", 1U);
        Set(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent", L"CanpostKeyEvent", 0U);
        Set(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent\\KeyboardMapping", L"1", L"13");
    }

    void Wipe()
    {
        Error error;
        const auto transaction = m_store->Begin(Access::Write, error);
        ASSERT_TRUE(transaction) << error.message;
        transaction->DeleteKey(Hive::LocalMachine, L"SOFTWARE");
        transaction->DeleteKey(Hive::Users, L".DEFAULT");
        ASSERT_NE(transaction->Commit(false), Outcome::Failed);
        Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
        Set(Service(), L"ExeDllMother", L"Dev.exe");
        ResetProcess();
        ClearStoreError();
        m_log.Clear();
    }

    static std::wstring PathOfSetting(const DescribedSetting& setting)
    {
        switch (setting.root) {
        case Root::Device:
            return Device(setting.key);
        case Root::Service:
            return Service(setting.key);
        case Root::Logical:
            return setting.key.empty() ? L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc"
                                       : L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc\\" + setting.key;
        case Root::Common:
            return Common(setting.key);
        case Root::Absolute:
            break;
        }
        return setting.key;
    }

    // Everything below the three service roots and the drivers' root, as "path|name" and data.
    std::map<std::wstring, std::wstring> Snapshot()
    {
        std::map<std::wstring, std::wstring> values;
        Error error;
        const auto transaction = m_store->Begin(Access::Read, error);
        const auto visit = [&](auto&& self, const std::wstring& path) -> void {
            KeyId key = 0;
            if (transaction->OpenKey(Hive::LocalMachine, path, key) != Outcome::Found) {
                return;
            }
            transaction->EnumValues(key, [&](std::wstring_view name, const ValueView& value) {
                std::wstring data = std::to_wstring(static_cast<unsigned>(value.type)) + L":";
                for (const auto byte : value.data) {
                    data += static_cast<wchar_t>(std::to_integer<unsigned>(byte));
                }
                values[UpCase(path + L"|" + std::wstring(name))] = data;
                return true;
            });
            std::vector<std::wstring> subkeys;
            transaction->EnumKeys(key, [&](std::wstring_view name) {
                subkeys.emplace_back(name);
                return true;
            });
            for (const auto& subkey : subkeys) {
                self(self, path + L"\\" + subkey);
            }
        };
        visit(visit, L"SOFTWARE");
        return values;
    }

    std::unique_ptr<CRegInfo> Make(const ClassEntry& entry) { return Create(entry, CString(L"Svc"), false); }

    // Loads the class and saves it into a store that holds nothing of it.
    std::map<std::wstring, std::wstring> LoadAndSave(const ClassEntry& entry, bool& loaded)
    {
        const auto object = Make(entry);
        loaded = object->Load(&m_log);
        Wipe();
        // A cash module's Save ends early without its serial-number key.
        if (Is(entry, L"CCRMRegInfo")) {
            Set(Device(L"SNRData"), L"Present", 1U);
        }
        object->Save();
        return Snapshot();
    }
};

} // namespace wqspcfg::test
