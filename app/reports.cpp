#include "app/reports.h"

#include <algorithm>

#include "editor/design.h"

namespace mardel {

void ShowReport(ui& desk, const report& shown) {
  const design_place& where = shown.where;
  if (where.at && where.other_end) {
    desk.ShowOverlay({overlay::shape::kLine, {*where.at, *where.other_end}, {kRed, kNetWidth}});
  }
  desk.ShowMessage(shown.text);
}

void ShowReports(ui& desk, std::span<const report> shown) {
  for (const report& each : shown) ShowReport(desk, each);
}

std::string ReportLine(const message& told) {
  std::string line = told.title + ": " + told.text;
  std::ranges::replace(line, '\r', '\n');
  return line;
}

}  // namespace mardel
