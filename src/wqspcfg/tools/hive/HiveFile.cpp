#include "wqspcfg/tools/hive/HiveFile.h"

#include "wqspcfg/platform/text/CaseFold.h"

#include <hivex.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace wqspcfg {

namespace {

struct Freer
{
    void operator()(void* memory) const noexcept { std::free(memory); }
};

template <class T>
using Allocated = std::unique_ptr<T[], Freer>;

// Why libhivex has refused something.
std::string CauseOf(int status)
{
    return status == ERANGE ? std::string("there is more than libhivex reads")
                            : "libhivex cannot read it: " + std::generic_category().message(status);
}

// What libhivex has listed, up to the zero behind the last one, by name.
template <class NameOf>
bool Sort(const std::size_t* listed, NameOf nameOf, HiveFile::Entries& entries, std::string& cause)
{
    entries.clear();
    for (; *listed != 0; ++listed) {
        entries.push_back({nameOf(*listed), *listed});
    }
    const auto compare = [](const auto& left, const auto& right) { return CompareNoCase(left.name, right.name); };
    std::sort(entries.begin(), entries.end(),
              [compare](const auto& left, const auto& right) { return compare(left, right) < 0; });
    if (std::adjacent_find(entries.begin(), entries.end(), [compare](const auto& left, const auto& right) {
            return compare(left, right) == 0;
        }) != entries.end()) {
        cause = "a name stands twice";
        return false;
    }
    return true;
}

} // namespace

void HiveFile::Closer::operator()(hive_h* handle) const noexcept
{
    hivex_close(handle);
}

std::unique_ptr<HiveFile> HiveFile::Open(const FileDescriptor& file, std::string path, Error& error)
{
    std::unique_ptr<HiveFile> hive(new HiveFile(std::move(path)));
    // libhivex opens a file of its own.
    if (const int status = FillStandardDescriptors()) {
        error = SystemError("open", "/dev/null", status);
        return nullptr;
    }
    if (!hive->m_image.Read(file, hive->m_path, error)) {
        return nullptr;
    }
    hive->m_hive.reset(hivex_open(hive->m_image.CopyPath().c_str(), 0));
    if (!hive->m_hive) {
        error = {ErrorKind::Damaged, hive->m_path + ": " + CauseOf(errno)};
        return nullptr;
    }
    if (hivex_root(hive->m_hive.get()) != hive->Root()) {
        error = {ErrorKind::Damaged, hive->m_path + ": it has no root key"};
        return nullptr;
    }
    return hive;
}

// What `list` lists of the key, which the image has found without fault.
template <class List, class NameOf>
bool HiveFile::ListOf(std::size_t key, const char* fault, List list, NameOf nameOf, Entries& entries,
                      std::string& cause) const
{
    if (fault != nullptr) {
        cause = fault;
        return false;
    }
    Allocated<std::size_t> listed;
    {
        const std::lock_guard lock(m_mutex);
        listed.reset(list(m_hive.get(), key));
    }
    if (!listed) {
        cause = CauseOf(errno);
        return false;
    }
    return Sort(listed.get(), nameOf, entries, cause);
}

bool HiveFile::Subkeys(std::size_t key, Entries& entries, std::string& cause) const
{
    const auto nameOf = [this](std::size_t at) { return m_image.KeyName(at); };
    return ListOf(key, m_image.SubkeysFault(key), hivex_node_children, nameOf, entries, cause);
}

bool HiveFile::Values(std::size_t key, Entries& entries, std::string& cause) const
{
    const auto nameOf = [this](std::size_t at) { return m_image.ValueName(at); };
    return ListOf(key, m_image.ValuesFault(key), hivex_node_values, nameOf, entries, cause);
}

bool HiveFile::Data(std::size_t value, ValueType& type, std::vector<std::byte>& data, std::string& cause) const
{
    if (const auto* fault = m_image.DataFault(value)) {
        cause = fault;
        return false;
    }
    hive_type hiveType = {};
    std::size_t length = 0;
    Allocated<char> bytes;
    {
        const std::lock_guard lock(m_mutex);
        if (hivex_value_type(m_hive.get(), value, &hiveType, &length) != 0) {
            cause = CauseOf(errno);
            return false;
        }
        if (length != 0) { // data of no length may be nowhere
            bytes.reset(hivex_value_value(m_hive.get(), value, &hiveType, &length));
        }
    }
    if (length != 0 && !bytes) {
        cause = CauseOf(errno);
        return false;
    }
    std::uint32_t number = 0; // not all types have a name in hive_type
    static_assert(sizeof number == sizeof hiveType);
    std::memcpy(&number, &hiveType, sizeof number);
    type = static_cast<ValueType>(number);
    const auto* begin = reinterpret_cast<const std::byte*>(bytes.get());
    data.assign(begin, begin + length);
    return true;
}

const HiveFile::Entry* HiveFile::Find(const Entries& entries, std::wstring_view name)
{
    const auto found =
        std::lower_bound(entries.begin(), entries.end(), name, [](const Entry& entry, std::wstring_view wanted) {
            return CompareNoCase(entry.name, wanted) < 0;
        });
    return found != entries.end() && EqualNoCase(found->name, name) ? &*found : nullptr;
}

} // namespace wqspcfg
