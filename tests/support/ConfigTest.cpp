#include "support/ConfigTest.h"

#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/utility/Utility.h"

#include <sstream>

namespace wqspcfg::test {

namespace {

std::vector<std::wstring> Filter(RecordingStore& store, Recorded::What what)
{
    std::vector<std::wstring> out;
    for (const auto& recorded : store.Take()) {
        if (recorded.what == what) {
            out.push_back(recorded.path + L"|" + recorded.name);
        }
    }
    return out;
}

std::wstring Below(std::wstring path, const std::wstring& subkey)
{
    return subkey.empty() ? path : path + L"\\" + subkey;
}

} // namespace

ConfigTest::ConfigTest()
{
    ResetProcess();
    Error error;
    m_store = std::make_shared<RecordingStore>(OpenStore("memory:", {}, error));
    SetCurrentStore(m_store);
    ClearStoreError();
    OverrideModuleDir(L"C:\\vexo\\sp\\bin");
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(Service(), L"ExeDllMother", L"Dev.exe");
    ClearRecord();
}

ConfigTest::~ConfigTest()
{
    SetCurrentStore(nullptr);
    OverrideModuleDir(L"");
}

std::wstring ConfigTest::Device(const std::wstring& subkey)
{
    return Below(L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Dev", subkey);
}

std::wstring ConfigTest::Service(const std::wstring& subkey)
{
    return Below(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", subkey);
}

std::wstring ConfigTest::Common(const std::wstring& subkey)
{
    return Below(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQCmnCfg", subkey);
}

void ConfigTest::SetNumber(const std::wstring& path, const std::wstring& name, DWORD value)
{
    ASSERT_NE(CRegKeyEx::SetValue(value, CString(name), L"%s", path), 0) << LastStoreError().message;
}

void ConfigTest::Set(const std::wstring& path, const std::wstring& name, const wchar_t* value)
{
    ASSERT_NE(CRegKeyEx::SetValue(CString(value), CString(name), L"%s", path), 0) << LastStoreError().message;
}

std::optional<DWORD> ConfigTest::Number(const std::wstring& path, const std::wstring& name)
{
    DWORD value = 0;
    return CRegKeyEx::QueryValue(value, CString(name), L"%s", path) ? std::optional(value) : std::nullopt;
}

std::optional<std::wstring> ConfigTest::Text(const std::wstring& path, const std::wstring& name)
{
    CString value;
    return CRegKeyEx::QueryValue(value, CString(name), L"%s", path) ? std::optional(value.Std()) : std::nullopt;
}

void ConfigTest::ResetProcess()
{
    CRegInfo::ForgetProcess();
}

std::vector<std::wstring> ConfigTest::Lines() const
{
    std::vector<std::wstring> lines;
    for (const auto& entry : m_log.Entries()) {
        lines.push_back(entry.text);
    }
    return lines;
}

std::wstring ConfigTest::Line(const std::wstring& label) const
{
    for (const auto& entry : m_log.Entries()) {
        const auto at = entry.text.find(label);
        if (at != std::wstring::npos && at != 0 && entry.text[at - 1] == L' ' && at < 60 &&
            (entry.text.compare(at + label.size(), 2, L" :") == 0 ||
             entry.text.compare(at + label.size(), 1, L":") == 0)) {
            return entry.text;
        }
    }
    return {};
}

std::vector<std::wstring> ConfigTest::Reads()
{
    return Filter(*m_store, Recorded::What::Query);
}

std::vector<std::wstring> ConfigTest::Writes()
{
    return Filter(*m_store, Recorded::What::Set);
}

std::vector<std::wstring> ConfigTest::OfDevice(const std::vector<Values>& values)
{
    std::vector<std::wstring> all;
    for (const auto& each : values) {
        std::wistringstream names(each.names);
        for (std::wstring name; names >> name;) {
            all.push_back(Device(each.subkey) + L"|" + name);
        }
    }
    return all;
}

std::size_t ConfigTest::Commits()
{
    return Filter(*m_store, Recorded::What::Commit).size();
}

} // namespace wqspcfg::test
