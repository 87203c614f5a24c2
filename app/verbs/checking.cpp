#include "app/verbs/checking.h"

#include <algorithm>
#include <iostream>
#include <unordered_map>

#include "app/reports.h"
#include "app/verbs/input.h"
#include "codegen/findings/design_findings.h"
#include "platform/desktop.h"
#include "platform/escaping.h"
#include "platform/hash.h"

namespace mardel {
namespace {

using lines_by_id = std::unordered_map<std::int64_t, std::int64_t, id_hash>;

std::int64_t CountLineEnds(std::string_view text) {
  std::int64_t count = 0;
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string_view::npos; ++at) ++count;
  return count;
}

// Of each id the first one's, from 1. The offsets are those of the records, ascending.
template <class record>
lines_by_id LinesById(const cursor_list<record>& records, std::int64_t record::* id,
                      const std::vector<std::size_t>& offsets, std::string_view bytes) {
  lines_by_id found;
  std::int64_t line = 1;
  std::size_t counted = 0;
  auto offset = offsets.begin();
  for (const record& each : records) {
    const std::size_t end = std::min(std::max(*offset++, counted), bytes.size());
    line += CountLineEnds(bytes.substr(counted, end - counted));
    counted = end;
    found.emplace(each.*id, line);
  }
  return found;
}

class line_finder {
 public:
  line_finder(const raw_design& raw, std::string_view bytes)
      : blocks_(LinesById(raw.document.blocks, &dvblock::id, raw.block_offsets, bytes)),
        nets_(LinesById(raw.document.nets, &net::net_id, raw.net_offsets, bytes)) {}

  std::optional<std::int64_t> Find(const design_place& where) const {
    if (where.net_id) return Find(nets_, *where.net_id);
    return where.block_id ? Find(blocks_, *where.block_id) : std::nullopt;
  }

 private:
  static std::optional<std::int64_t> Find(const lines_by_id& lines, std::int64_t id) {
    const auto found = lines.find(id);
    return found == lines.end() ? std::nullopt : std::optional(found->second);
  }
  lines_by_id blocks_, nets_;
};

exit_status Tell(const std::vector<found_report>& reports, report_format format) {
  const std::string text = FormatReports(reports, format);
  if (format != report_format::kText) return WriteOut(text);
  std::cerr << text << std::flush;
  return exit_status::kDone;
}

}  // namespace

checked_design CheckInput(headless_program& run, const std::string& path, report_format format) {
  checked_design checked;
  const auto bytes = ReadInput(path);
  if (const auto* failure = std::get_if<report>(&bytes)) {
    checked.status = load_status::kNotLoaded;
    checked.errors.push_back({.file = path, .what = *failure});
    return checked;
  }
  const std::string& content = std::get<std::string>(bytes);
  const load_context context = LoadContext(run);
  raw_design raw;
  checked.status = ReadRawDesign(raw, content, context.line_separator);
  if (checked.status != load_status::kLoaded) {
    checked.errors.push_back({.file = path, .what = LoadFailure(checked.status, path)});
    return checked;
  }
  std::optional<line_finder> lines;
  if (format != report_format::kText) lines.emplace(raw, content);
  design_findings found = FindAll(std::move(raw), context, run.registers);
  const auto add = [&](std::vector<report>& reports, std::vector<found_report>& to) {
    for (report& each : reports) {
      to.push_back({path, lines ? lines->Find(each.where) : std::nullopt, std::move(each)});
    }
  };
  add(found.errors, checked.errors);
  add(found.warnings, checked.warnings);
  checked.document = std::move(found.document);
  checked.nodes = std::move(found.nodes);
  return checked;
}

void PrintRefusal(const checked_design& checked) {
  for (const found_report& each : checked.errors) {
    std::cerr << EscapeControls(ReportLine(each.what.text)) << std::endl;
    if (each.what.kind != rule::kMissingBlock) return;
  }
}

exit_status StatusOf(const checked_design& checked, warning_effect warnings) {
  if (checked.status != load_status::kLoaded) return exit_status::kFileOrToolMissing;
  const bool is_refused =
      !checked.errors.empty() || (warnings == warning_effect::kRefuse && !checked.warnings.empty());
  return is_refused ? exit_status::kRefused : exit_status::kDone;
}

exit_status Run(const check_request& asked) {
  const auto measures = FixedTextMetrics();
  headless_program run(*measures, asked.from);
  std::vector<found_report> all = run.reports;
  exit_status worst = run.status;
  for (const std::string& path : asked.designs) {
    if (run.status != exit_status::kDone) break;
    checked_design checked = CheckInput(run, path, asked.format);
    worst = std::max(worst, StatusOf(checked, asked.warnings));
    std::ranges::move(checked.errors, std::back_inserter(all));
    std::ranges::move(checked.warnings, std::back_inserter(all));
  }
  return std::max(worst, Tell(all, asked.format));
}

}  // namespace mardel
