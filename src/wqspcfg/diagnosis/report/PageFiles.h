// The files that stand in every page. The build makes their text from report.css and report.js.
#pragma once

#include "wqspcfg/diagnosis/report/Html.h"

namespace wqspcfg::diagnosis {

extern const EmbeddedFile kPageStyle;
extern const EmbeddedFile kPageScript;

} // namespace wqspcfg::diagnosis
