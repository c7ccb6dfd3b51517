// What holds for every class of the library.
#include "catalogue/CatalogueTesting.h"

#include "wqspcfg/platform/format/Format.h"

#include <filesystem>

namespace wqspcfg::test {

TEST_F(CatalogueTest, EverySourcePairHasItsLine)
{
    std::set<std::string> names;
    for (const auto* entry : AllClasses()) {
        EXPECT_TRUE(names.insert(NameOfClass(*entry)).second) << NameOfClass(*entry) << " stands twice";
    }
    std::size_t files = 0;
    for (const auto* folder : {"classes", "models"}) {
        for (const auto& file : std::filesystem::recursive_directory_iterator(
                 std::filesystem::path(WQSPCFG_SOURCE_DIR) / "src" / "wqspcfg" / folder)) {
            const auto stem = file.path().stem().string();
            if (file.path().extension() == ".h" && stem.ends_with("RegInfo")) {
                ++files;
                EXPECT_TRUE(names.contains("C" + stem)) << file.path() << " has no line in src/wqspcfg/catalogue";
            }
        }
    }
    EXPECT_EQ(names.size(), files + 1) << "every class but CRegInfo has a file pair named after it";
}

TEST_F(CatalogueTest, ClassesAreFoundByNameAndDeviceClass)
{
    for (const auto* entry : AllClasses()) {
        EXPECT_EQ(FindClass(entry->table().className), entry);
        const auto* deviceClass = DeviceClassOf(entry->table());
        if (entry->create == nullptr || entry->table().base == nullptr) {
            EXPECT_EQ(deviceClass, nullptr) << NameOfClass(*entry);
            continue;
        }
        ASSERT_NE(deviceClass, nullptr) << NameOfClass(*entry);
        const auto same = ClassesOf(deviceClass);
        EXPECT_NE(std::find(same.begin(), same.end(), entry), same.end()) << NameOfClass(*entry);
        EXPECT_TRUE(Is(*entry, L"CRegInfo")) << NameOfClass(*entry);
    }
    EXPECT_NE(FindClass(L"cregINFO"), nullptr);
    EXPECT_EQ(FindClass(L"CNoRegInfo"), nullptr);
    EXPECT_TRUE(ClassesOf(L"NO").empty());
}

TEST_F(CatalogueTest, TablesAreSound)
{
    for (const auto* entry : AllClasses()) {
        std::set<std::wstring> seen;
        for (const auto& setting : Describe(entry->table())) {
            const Owned owned{&entry->table(), setting};
            SCOPED_TRACE(owned.Name());
            EXPECT_FALSE(setting.name.empty() && setting.key.empty());
            EXPECT_FALSE(setting.meaning.empty());
            EXPECT_FALSE(setting.meaning.ends_with(L'.') ||
                         setting.meaning.find_first_of(L"\r\n") != std::wstring::npos);
            if (!setting.allowed.empty()) {
                EXPECT_TRUE(std::any_of(
                    setting.allowed.begin(), setting.allowed.end(),
                    [&](const DescribedChoice& choice) { return choice.value == setting.defaultValue.number; }))
                    << "the default is not allowed";
            }
            if (setting.range) {
                EXPECT_LE(setting.range->low, setting.defaultValue.number);
                EXPECT_GE(setting.range->high, setting.defaultValue.number);
            }
            if (setting.saved && setting.savedName.empty() && !setting.conditional) {
                EXPECT_TRUE(seen.insert(UpCase(PathOf(setting) + L"|" + setting.name)).second) << "saved twice";
            }
        }
    }
}

TEST_F(CatalogueTest, WhatIsANumberOfSomethingRefersToIt)
{
    std::size_t ports = 0;
    std::size_t units = 0;
    for (const auto* entry : AllClasses()) {
        for (const auto& setting : Describe(entry->table())) {
            const Owned owned{&entry->table(), setting};
            if (setting.meaning.starts_with(L"serial port number")) {
                ++ports;
                EXPECT_EQ(setting.refersTo, Reference::SerialPort) << owned.Name();
            } else if (setting.meaning.starts_with(L"card-unit number")) {
                ++units;
                EXPECT_EQ(setting.refersTo, Reference::CardUnit) << owned.Name();
            }
        }
    }
    EXPECT_GT(ports, 50U);
    EXPECT_GT(units, 5U);
}

TEST_F(CatalogueTest, AnEmptyRegistryGivesEveryDefault)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        Wipe();
        AddRequiredKeys();
        const auto object = Make(*entry);
        const auto settings = WithInherited(*entry);
        for (const auto& each : settings) {
            if (each.table->base != nullptr && IsHeld(each.setting) && !each.setting.row->Has(Flags::Preloaded)) {
                EXPECT_EQ(Held(each.setting, *object), each.setting.constructed.value_or(each.setting.defaultValue))
                    << each.Name() << " after construction";
            }
        }
        EXPECT_TRUE(object->Load(&m_log));
        EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
        for (const auto& each : settings) {
            if (IsPlain(each.setting)) {
                EXPECT_EQ(Held(each.setting, *object), each.setting.defaultValue) << each.Name() << " after Load";
            }
        }
    }
}

TEST_F(CatalogueTest, EveryLoggedSettingHasItsLineInOrder)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        Wipe();
        AddRequiredKeys();
        EXPECT_TRUE(Make(*entry)->Load(&m_log));
        const auto lines = Lines();
        std::size_t at = 0;
        for (const auto& each : WithInherited(*entry)) {
            const auto& row = *each.setting.row;
            // The root prints its lines in an order of its own.
            if (each.table->base == nullptr || row.Has(Flags::NotLogged) || row.kind != Kind::Value ||
                row.step != nullptr || each.setting.conditional) {
                continue;
            }
            const auto& label = each.setting.label.empty() ? each.setting.name : each.setting.label;
            std::wstring start = FormatString(L"[CFG] %40s : ", label);
            if (row.line != nullptr) {
                start = FormatString(row.line, label, 0, L"");
                start.resize(start.find(L" : ") + 3);
            } else if (IsPlain(each.setting) && row.conversion == nullptr && row.logAs == nullptr &&
                       (each.setting.type != Type::Char || !each.setting.defaultValue.text.empty())) {
                start += IsText(each.setting.type) ? each.setting.defaultValue.text
                                                   : FormatString(L"%d", each.setting.defaultValue.number);
                start += L"[" + std::wstring(each.setting.meaning);
            }
            std::size_t found = at;
            while (found < lines.size() && !lines[found].starts_with(start)) {
                ++found;
            }
            if (found == lines.size()) {
                ADD_FAILURE() << each.Name() << ": no such line behind those before it: " << Narrow(start);
            } else {
                at = found + 1;
            }
        }
    }
}

TEST_F(CatalogueTest, EverySavedValueSurvivesLoadAndSave)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        Wipe();
        AddRequiredKeys();
        Set(Device(L"CAPABILITIES"), L"EnableRandSpecMix", 1U); // without it, the order of the mix is not written
        const auto settings = WithInherited(*entry);
        std::map<std::wstring, DescribedValue> written; // by path and name
        DWORD next = 3;
        for (const auto& each : settings) {
            const auto& setting = each.setting;
            if (!setting.saved || !IsHeld(setting)) {
                continue;
            }
            const auto path = PathOfSetting(setting);
            DescribedValue value;
            if (setting.type == Type::String) {
                value.text = L"text " + std::to_wstring(next++);
            } else if (setting.type == Type::Char) {
                value.text = setting.defaultValue.text == L"Q" ? L"R" : L"Q";
            } else if (setting.type == Type::Flag || setting.row->Has(Flags::AsSwitch) || setting.row->savedAsSwitch) {
                value.number = 1 - setting.defaultValue.number;
            } else if (!setting.allowed.empty()) {
                const auto& other = setting.allowed.front().value != setting.defaultValue.number
                                        ? setting.allowed.front()
                                        : setting.allowed.back();
                value.number = other.value;
            } else if (setting.range) {
                value.number =
                    setting.range->low != setting.defaultValue.number ? setting.range->low : setting.range->high;
            } else {
                value.number = next++;
            }
            if (IsText(setting.type)) {
                Set(path, setting.name, value.text.c_str());
            } else {
                Set(path, setting.name, value.number);
            }
            written[UpCase(path + L"|" + setting.name)] = value;
        }
        bool loaded = false;
        const auto first = LoadAndSave(*entry, loaded);
        std::set<std::wstring> misnamed; // saved under a name that is not read
        EXPECT_TRUE(loaded);
        EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
        for (const auto& each : settings) {
            const auto& setting = each.setting;
            if (!setting.saved || !IsHeld(setting) || setting.row->savedIf != nullptr || !Saves(*entry, *each.table)) {
                continue;
            }
            const auto path = PathOfSetting(setting);
            const auto& name = setting.savedName.empty() ? setting.name : setting.savedName;
            if (!setting.savedName.empty()) {
                misnamed.insert(UpCase(path + L"|" + name));
            }
            if (IsText(setting.type)) {
                const auto text = Text(path, name);
                EXPECT_TRUE(text) << each.Name() << " is not written";
                if (text && IsPlain(setting)) {
                    EXPECT_EQ(*text, written[UpCase(path + L"|" + setting.name)].text) << each.Name();
                }
            } else {
                const auto number = Number(path, name);
                EXPECT_TRUE(number) << each.Name() << " is not written";
                if (number && IsPlain(setting)) {
                    EXPECT_EQ(*number, written[UpCase(path + L"|" + setting.name)].number) << each.Name();
                }
            }
        }
        // What was saved gives the same when it is loaded and saved again.
        ResetProcess();
        Set(Device(L"SNRData"), L"Present", 1U);
        Set(Device(L"CAPABILITIES"), L"EnableRandSpecMix", 1U);
        const auto again = LoadAndSave(*entry, loaded);
        EXPECT_EQ(first.size(), again.size());
        for (const auto& [what, data] : first) {
            const auto found = again.find(what);
            EXPECT_TRUE(misnamed.contains(what) || (found != again.end() && found->second == data))
                << Narrow(what) << " changes with the second Save";
        }
    }
}

} // namespace wqspcfg::test
