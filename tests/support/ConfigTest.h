// A fixture for configuration classes: an empty memory store in which the service `Svc` (physical name `Phys`) has the
// device key `Dev`, and a process whose shared state is as at its start.
#pragma once

#include "support/RecordingStore.h"
#include "wqspcfg/core/RegInfo.h"

#include <gtest/gtest.h>

#include <concepts>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace wqspcfg::test {

class ConfigTest : public ::testing::Test
{
  protected:
    ConfigTest();
    ~ConfigTest() override;

    // "SOFTWARE\XFS\PHYSICAL_SERVICES\Dev", with a subkey when one is given.
    static std::wstring Device(const std::wstring& subkey = {});
    static std::wstring Service(const std::wstring& subkey = {});
    static std::wstring Common(const std::wstring& subkey);

    template <std::integral T>
    static void Set(const std::wstring& path, const std::wstring& name, T value)
    {
        SetNumber(path, name, static_cast<DWORD>(value));
    }
    static void Set(const std::wstring& path, const std::wstring& name, const wchar_t* value);
    static void SetNumber(const std::wstring& path, const std::wstring& name, DWORD value);
    static std::optional<DWORD> Number(const std::wstring& path, const std::wstring& name);
    static std::optional<std::wstring> Text(const std::wstring& path, const std::wstring& name);

    // Puts the process's shared state back to what it is at its start. No configuration object may be alive.
    static void ResetProcess();

    std::vector<std::wstring> Lines() const;
    // The whole line that shows `label`, or an empty text.
    std::wstring Line(const std::wstring& label) const;
    // What was read or written since the last ClearRecord, each as "path|name".
    std::vector<std::wstring> Reads();
    std::vector<std::wstring> Writes();
    std::size_t Commits();
    void ClearRecord() { m_store->Clear(); }
    // The same form of values below the device key: the names, separated by blanks, of each subkey in turn.
    struct Values
    {
        const wchar_t* subkey;
        const wchar_t* names;
    };
    static std::vector<std::wstring> OfDevice(const std::vector<Values>& values);

    MemoryLog m_log;
    std::shared_ptr<RecordingStore> m_store;
};

} // namespace wqspcfg::test
