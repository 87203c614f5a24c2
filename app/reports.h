// How the front ends show what work has to tell.
#pragma once

#include <span>
#include <string>

#include "library/report.h"
#include "platform/ui.h"

namespace mardel {

// A net is drawn in red behind its box.
void ShowReport(ui& desk, const report& shown);
void ShowReports(ui& desk, std::span<const report> shown);

// "TITLE: TEXT". Its line breaks are "\n".
std::string ReportLine(const message& told);

}  // namespace mardel
