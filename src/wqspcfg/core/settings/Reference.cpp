#include "wqspcfg/core/settings/Reference.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Walk.h"

#include <utility>

namespace wqspcfg {

namespace {

DescribedValue DescribeValue(Type type, const Value& value)
{
    switch (type) {
    case Type::String:
        return {0, value.text};
    case Type::Char:
        return {0, value.text[0] != 0 ? std::wstring(1, value.text[0]) : std::wstring()};
    case Type::Flag:
        return {value.number != 0 ? 1U : 0U, {}};
    case Type::Dword:
    case Type::None:
        break;
    }
    return {value.number, {}};
}

std::wstring WithoutEndingBackslash(std::wstring key)
{
    while (key.ends_with(L'\\')) {
        key.pop_back();
    }
    return key;
}

void DescribeDefaults(const Setting& row, const Iteration* iteration, DescribedSetting& described)
{
    Value value = row.defaultValue;
    if (row.perIteration != nullptr && iteration != nullptr) {
        value.number = row.perIteration[iteration->index];
    }
    // A missing value that is not given a default leaves what the constructor set.
    if (described.keptWhenMissing && row.hasConstructed) {
        value = row.constructed;
    }
    described.defaultValue = DescribeValue(row.type, value);
    if (row.hasConstructed && row.bound && !row.Has(Flags::Preloaded)) {
        auto constructed = DescribeValue(row.type, row.constructed);
        if (constructed != described.defaultValue) {
            described.constructed = std::move(constructed);
        }
    }
}

void AppendRow(const Setting& row, const Iteration* iteration, std::vector<DescribedSetting>& out)
{
    if (row.kind == Kind::Step) {
        return;
    }
    auto described = Describe(row, iteration);
    for (const auto& entry : row.entries) {
        auto each = described;
        each.name = entry.name;
        each.label.clear();
        each.defaultValue = {0, entry.text};
        out.push_back(std::move(each));
    }
    if (row.entries.empty()) {
        out.push_back(std::move(described));
    }
}

void Append(std::span<const Setting> rows, std::vector<DescribedSetting>& out, bool conditional = false)
{
    for (const auto& row : rows) {
        const auto first = out.size();
        if (row.kind == Kind::Group || row.kind == Kind::Step) {
            Append(row.rows, out, conditional || row.condition != nullptr);
            for (auto i = first; i < out.size(); ++i) {
                out[i].part = row.part != nullptr ? row.part : out[i].part;
                out[i].heldAs = row.heldAs != nullptr ? row.heldAs : out[i].heldAs;
            }
            continue;
        }
        Walk(std::span(&row, 1), nullptr, EnterAll, [&](const Setting& each, const Iteration* iteration) {
            AppendRow(each, iteration, out);
            return true;
        });
        for (auto i = first; i < out.size(); ++i) {
            out[i].conditional = conditional;
        }
    }
}

} // namespace

DescribedSetting Describe(const Setting& row, const Iteration* iteration)
{
    DescribedSetting described;
    described.root = row.key.root;
    described.key = WithoutEndingBackslash(ForIteration(row.key.subkey, iteration));
    described.wholeKey = row.kind == Kind::WholeKey;
    described.name = described.wholeKey ? std::wstring(row.name) : ForIteration(row.name.data(), iteration);
    described.type = row.type;
    described.keptWhenMissing = row.Has(Flags::KeepWhenMissing);
    DescribeDefaults(row, iteration, described);
    auto label = row.label != nullptr ? ForIteration(row.label, iteration) : described.name;
    if (row.Has(Flags::QualifiedLabel)) {
        label = described.key + L'\\' + label;
    }
    if (label != described.name) {
        described.label = std::move(label);
    }
    if (row.Has(Flags::OneOf)) {
        ForEachChoice(row.meaning, [&](DWORD value, std::wstring_view word) {
            described.allowed.push_back({value, word});
        });
    }
    if (row.hasRange) {
        described.range = {row.low, row.high};
    }
    described.meaning = row.meaning;
    described.saved = row.saved;
    if (row.savedName != nullptr) {
        described.savedName = ForIteration(row.savedName, iteration);
    }
    if (row.emptySavedAs != nullptr) {
        described.emptySavedAs = row.emptySavedAs;
    }
    if (row.fallbackSubkey != nullptr) {
        if (row.fallbackName != nullptr) {
            described.readAs = std::exchange(described.name, row.fallbackName);
            described.label.clear();
        }
        described.fallback = {row.fallbackRoot, WithoutEndingBackslash(ForIteration(row.fallbackSubkey, iteration)),
                              described.name};
    }
    described.secret = row.Has(Flags::Secret);
    described.required = row.requiredLine != 0;
    described.corrected = row.normalize != nullptr || row.normalizeText != nullptr || row.Has(Flags::AsWord);
    described.computed = row.Has(Flags::Computed);
    described.computedDefault = row.Has(Flags::DefaultByClass);
    described.refersTo = row.reference;
    described.heldAs = row.heldAs;
    described.row = &row;
    described.iteration = iteration != nullptr ? iteration->index : 0;
    return described;
}

std::vector<DescribedSetting> Describe(const Table& table)
{
    std::vector<DescribedSetting> out;
    Append(table.rows, out);
    return out;
}

std::vector<DescribedSetting> DescribeOperations(const Table& table)
{
    std::vector<DescribedSetting> out;
    for (const auto& group : table.operations) {
        const auto first = out.size();
        Append(group.rows, out);
        for (auto i = first; i < out.size(); ++i) {
            out[i].readBy = group.readBy;
            out[i].writtenBy = group.writtenBy;
        }
    }
    return out;
}

DescribedValue Held(const DescribedSetting& setting, CRegKeyEx& owner)
{
    auto& object = setting.part != nullptr ? setting.part(owner) : owner;
    if (setting.type == Type::String || setting.type == Type::Char) {
        return {0, HeldText(*setting.row, object, setting.iteration).Std()};
    }
    return {HeldNumber(*setting.row, object, setting.iteration), {}};
}

const char* NameOf(Type type) noexcept
{
    switch (type) {
    case Type::Flag:
        return "flag";
    case Type::String:
        return "string";
    case Type::Char:
        return "char";
    case Type::Dword:
    case Type::None:
        break;
    }
    return "dword";
}

const char* NameOf(Root root) noexcept
{
    switch (root) {
    case Root::Service:
        return "service";
    case Root::Logical:
        return "logical";
    case Root::Common:
        return "common";
    case Root::Absolute:
        return "absolute";
    case Root::Device:
        break;
    }
    return "device";
}

std::wstring PathOf(const DescribedSetting& setting)
{
    std::wstring path = L"HKLM\\";
    switch (setting.root) {
    case Root::Device:
        path += std::wstring(kDeviceRoot) + L"<device>\\";
        break;
    case Root::Service:
        path += std::wstring(kServiceRoot) + L"<service>\\";
        break;
    case Root::Logical:
        path = std::wstring(L"HKU\\") + kLogicalRoot + L"<logical service>\\";
        break;
    case Root::Common:
        path += std::wstring(kServiceRoot) + kCommonKey;
        break;
    case Root::Absolute:
        path = setting.key.starts_with(L".DEFAULT") ? L"HKU\\" : L"HKLM\\";
        break;
    }
    path += setting.key;
    if (path.ends_with(L'\\')) {
        path.pop_back();
    }
    return path;
}

const wchar_t* DeviceClassOf(const Table& table) noexcept
{
    for (const auto* each = &table; each != nullptr; each = each->base != nullptr ? &each->base() : nullptr) {
        if (each->deviceClass != nullptr && each->deviceClass[0] != 0) {
            return each->deviceClass;
        }
    }
    return nullptr;
}

std::vector<const Table*> Lineage(const Table& table)
{
    std::vector<const Table*> tables;
    for (const auto* each = &table; each != nullptr; each = each->base != nullptr ? &each->base() : nullptr) {
        tables.push_back(each);
    }
    return tables;
}

} // namespace wqspcfg
