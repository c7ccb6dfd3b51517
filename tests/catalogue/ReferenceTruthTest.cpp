// For every class, Load reads and Save writes exactly what the reference lists, with every key present and with none.
#include "CatalogueTesting.h"
#include "wqspcfg/core/RegistryRoots.h"

#include <regex>

namespace {

using namespace wqspcfg;
using namespace wqspcfg::test;

class ReadRecorder final : public LoadObserver
{
  public:
    void Begin(const Setting&, const Iteration*) override {}
    void Loaded(const LoadedSetting&) override {}
    void Asked(std::wstring_view path, std::wstring_view name, Outcome, const ValueView&) override
    {
        Add(path, std::wstring(name));
    }
    void AskedAll(std::wstring_view path, bool) override { Add(path, L"*"); }

    std::set<std::wstring> places; // "PATH|NAME" in capitals; the name of a whole key is "*"

  private:
    void Add(std::wstring_view path, const std::wstring& name)
    {
        std::wstring key(path);
        while (key.ends_with(L'\\')) {
            key.pop_back();
        }
        places.insert(UpCase(key + L'|' + name));
    }
};

// A place of the reference; "%s" and "%d" stand for any text.
struct Place
{
    std::wstring text;
    bool certain; // read by every Load, or written by every Save

    bool Matches(const std::wstring& place) const
    {
        if (text.find(L'%') == std::wstring::npos) {
            return text == place;
        }
        static const std::wregex kSpecial(LR"([\\|.(){}\[\]^$*+?])");
        const auto escaped = std::regex_replace(text, kSpecial, LR"(\$&)");
        return std::regex_match(place, std::wregex(std::regex_replace(escaped, std::wregex(L"%[SDC]"), L".*")));
    }
};

class ReferenceTruthTest : public CatalogueTest
{
  protected:
    static std::wstring At(Root root, const std::wstring& key, const std::wstring& name)
    {
        DescribedSetting place;
        place.root = root;
        place.key = key;
        return UpCase(PathOfSetting(place) + L'|' + name);
    }

    static std::vector<const Table*> Tables(const ClassEntry& entry)
    {
        std::vector<const Table*> tables;
        for (const auto* table : Lineage(entry.table())) {
            tables.push_back(table);
            if (table->mixin != nullptr) {
                tables.push_back(&table->mixin());
            }
        }
        return tables;
    }

    static std::vector<Place> ReadPlaces(const ClassEntry& entry)
    {
        std::vector<Place> places;
        for (const auto* table : Tables(entry)) {
            for (const auto& setting : Describe(*table)) {
                if (setting.computed) {
                    continue;
                }
                const auto name = setting.wholeKey ? L"*" : setting.readAs.empty() ? setting.name : setting.readAs;
                places.push_back({At(setting.root, setting.key, name), !setting.conditional && !setting.part});
                AddParents(setting, places);
                if (setting.fallback) {
                    places.push_back(
                        {At(setting.fallback->root, setting.fallback->key, setting.fallback->name), false});
                }
            }
            for (const auto& setting : DescribeOperations(*table)) {
                if (!setting.readBy.empty()) {
                    AddParents(setting, places);
                    const auto name = setting.wholeKey ? L"*" : setting.name;
                    places.push_back({At(setting.root, setting.key, name), false});
                    places.push_back({At(setting.root, setting.key, L"*"), false}); // its names may be enumerated
                }
            }
        }
        return places;
    }

    // Where a key's name may be any, the names are enumerated.
    static void AddParents(const DescribedSetting& setting, std::vector<Place>& places)
    {
        if (const auto at = setting.key.find(L"\\%"); at != std::wstring::npos) {
            places.push_back({At(setting.root, setting.key.substr(0, at), L"*"), false});
        }
    }

    static std::vector<Place> WrittenPlaces(const ClassEntry& entry)
    {
        std::vector<Place> places;
        for (const auto* table : Tables(entry)) {
            for (const auto& setting : Describe(*table)) {
                const bool isMixin = entry.table().mixin != nullptr && table == &entry.table().mixin();
                if (setting.saved && (isMixin ? entry.table().savesBase : Saves(entry, *table))) {
                    const auto& name = setting.savedName.empty() ? setting.name : setting.savedName;
                    // A record writes only what differs, and some members decide for themselves.
                    const bool certain =
                        !setting.conditional && !setting.wholeKey && !setting.part && setting.row->savedIf == nullptr;
                    places.push_back({At(setting.root, setting.key, name), certain});
                }
            }
        }
        return places;
    }

    // Gives every setting of the class a value, or only the keys that a Load cannot do without.
    void Fill(const ClassEntry& entry, bool all)
    {
        Wipe();
        AddRequiredKeys();
        for (const auto* table : all ? Tables(entry) : std::vector<const Table*>{}) {
            for (const auto& setting : Describe(*table)) {
                auto path = PathOfSetting(setting);
                auto name = setting.wholeKey && setting.name == L"%s" ? L"1" : setting.name;
                for (auto* text : {&path, &name}) {
                    *text = std::regex_replace(*text, std::wregex(L"%[sdc]"), L"1");
                }
                if (setting.name == L"ExeDllMother") {
                    continue;
                }
                if (IsText(setting.type)) {
                    Set(path, name, L"1");
                } else {
                    // A port that is there: its states are read.
                    Set(path, name, name == L"WFS_SIU_NOT_AVAILABLE" ? 0U : 1U);
                }
            }
        }
        ResetProcess();
        ClearRecord();
        ClearStoreError();
    }

    static void CompareSeen(const std::vector<Place>& listed, const std::set<std::wstring>& seen, const char* what)
    {
        for (const auto& each : seen) {
            EXPECT_TRUE(
                std::any_of(listed.begin(), listed.end(), [&](const Place& place) { return place.Matches(each); }))
                << what << ", but not listed: " << Narrow(each);
        }
    }

    // Between them, the two registries make a class read and write all that it can.
    static void CompareListed(const std::vector<Place>& listed, const std::set<std::wstring>& seen, const char* what)
    {
        for (const auto& place : listed) {
            EXPECT_TRUE(!place.certain ||
                        std::any_of(seen.begin(), seen.end(), [&](const auto& each) { return place.Matches(each); }))
                << "listed, but not " << what << ": " << Narrow(place.text);
        }
    }
};

TEST_F(ReferenceTruthTest, LoadReadsAndSaveWritesExactlyWhatTheReferenceLists)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        const auto toRead = ReadPlaces(*entry);
        const auto toWrite = WrittenPlaces(*entry);
        std::set<std::wstring> everRead;
        std::set<std::wstring> everWritten;
        for (const bool all : {true, false}) {
            SCOPED_TRACE(all ? "every key present" : "no key present");
            Fill(*entry, all);
            ReadRecorder recorder;
            const auto object = Make(*entry);
            {
                const ObserveLoads observe(recorder);
                MemoryLog log; // some values are read for their lines only
                EXPECT_TRUE(object->Load(&log));
            }
            CompareSeen(toRead, recorder.places, "read");
            everRead.merge(recorder.places);
            ClearRecord();
            object->Save();
            EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
            std::set<std::wstring> written;
            for (auto write : Writes()) {
                while (write.find(L"\\|") != std::wstring::npos) {
                    write.erase(write.find(L"\\|"), 1);
                }
                written.insert(UpCase(write));
            }
            CompareSeen(toWrite, written, "written");
            everWritten.merge(written);
        }
        CompareListed(toRead, everRead, "read");
        CompareListed(toWrite, everWritten, "written");
    }
}

} // namespace
