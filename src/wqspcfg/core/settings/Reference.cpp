#include "wqspcfg/core/settings/Reference.h"

#include "wqspcfg/core/RegistryRoots.h"

namespace wqspcfg {

namespace {

struct Turn
{
    const wchar_t* name;
    unsigned number;
    unsigned index;
};

std::wstring ForTurn(const wchar_t* text, const Turn* turn)
{
    if (turn == nullptr) {
        return text;
    }
    return turn->name != nullptr ? FormatString(text, turn->name) : FormatString(text, turn->number);
}

DescribedValue Describe(Type type, const Value& value)
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

DescribedSetting Describe(const Setting& row, const Turn* turn, bool conditional)
{
    DescribedSetting described;
    described.root = row.key.root;
    described.key = ForTurn(row.key.subkey, turn);
    while (described.key.ends_with(L'\\')) {
        described.key.pop_back();
    }
    described.name = ForTurn(row.name.data(), turn);
    described.type = row.type;
    Value fallback = row.fallback;
    if (row.perTurn != nullptr && turn != nullptr) {
        fallback.number = row.perTurn[turn->index];
    }
    // A missing value that is not given a default leaves what the constructor set.
    if (row.keep && row.hasConstructed) {
        fallback = row.constructed;
    }
    described.fallback = Describe(row.type, fallback);
    if (row.hasConstructed && row.bound && !row.preloaded) {
        auto constructed = Describe(row.type, row.constructed);
        if (constructed != described.fallback) {
            described.constructed = std::move(constructed);
        }
    }
    auto label = row.label != nullptr ? ForTurn(row.label, turn) : described.name;
    if (row.qualifiedLabel) {
        label = described.key + L'\\' + label;
    }
    if (label != described.name) {
        described.label = std::move(label);
    }
    described.allowed = {row.allowed, row.allowedCount};
    if (row.hasRange) {
        described.range = {row.low, row.high};
    }
    described.meaning = row.meaning;
    described.saved = row.saved;
    if (row.savedName != nullptr) {
        described.savedName = ForTurn(row.savedName, turn);
    }
    described.secret = row.secret;
    described.row = &row;
    described.turn = turn != nullptr ? turn->index : 0;
    described.conditional = conditional;
    return described;
}

void Append(std::span<const Setting> rows, const Turn* turn, bool conditional, std::vector<DescribedSetting>& out)
{
    for (const auto& row : rows) {
        if (row.rows != nullptr) {
            const std::span<const Setting> group{row.rows, row.rowCount};
            if (row.condition != nullptr) {
                Append(group, turn, true, out);
                continue;
            }
            for (unsigned i = 0; i < row.turns; ++i) {
                const Turn each{row.turnNames != nullptr ? row.turnNames[i] : nullptr, row.turnFirst + i, i};
                Append(group, &each, conditional, out);
            }
        } else if (row.type != Type::None) {
            out.push_back(Describe(row, turn, conditional));
        }
    }
}

} // namespace

std::vector<DescribedSetting> Describe(const Table& table)
{
    std::vector<DescribedSetting> out;
    Append(table.rows, nullptr, false, out);
    return out;
}

std::vector<DescribedSetting> DescribeOnRequest(const Table& table)
{
    std::vector<DescribedSetting> out;
    for (const auto& group : table.onRequest) {
        const auto first = out.size();
        Append(group.rows, nullptr, false, out);
        for (auto i = first; i < out.size(); ++i) {
            out[i].readBy = group.readBy;
            out[i].writtenBy = group.writtenBy;
        }
    }
    return out;
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
