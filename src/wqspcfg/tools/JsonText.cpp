#include "wqspcfg/tools/JsonText.h"

#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/diagnosis/StoredText.h"
#include "wqspcfg/tools/Console.h"

namespace wqspcfg::tools {

void PrintJson(const ordered_json& json, std::ostream& out)
{
    out << json.dump(1, ' ', false, ordered_json::error_handler_t::replace) << '\n';
}

ordered_json StoredJson(const ValueView& value, bool isMasked)
{
    ordered_json out;
    out["type"] = diagnosis::TypeName(value.type);
    out["data"] = isMasked ? diagnosis::kMasked : Utf8(diagnosis::DataText(value, L"\n"));
    return out;
}

} // namespace wqspcfg::tools
