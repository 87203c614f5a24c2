// What a check found, as text for people and in the formats that machines read.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "library/report.h"

namespace mardel {

enum class report_format { kText, kGcc, kJson, kSarif };

// By its name on the command line, such as "gcc".
std::optional<report_format> FindReportFormat(std::string_view name);

struct found_report {
  std::string file;
  std::optional<std::int64_t> line = {};  // from 1
  report what = {};
};

// "FILE: TITLE: TEXT" or "FILE: warning: TITLE: TEXT", in one line without its end.
std::string ReportText(const found_report& of);

// One document of all reports.
std::string FormatReports(std::span<const found_report> reports, report_format format);

}  // namespace mardel
