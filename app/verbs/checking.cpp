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
#include "platform/host.h"

namespace mardel {
namespace {

using lines_by_id = std::unordered_map<std::int64_t, std::int64_t, id_hash>;

// The first of each id.
template <class record>
lines_by_id LinesById(const cursor_list<record>& records, std::int64_t record::* id,
                      const std::vector<std::int64_t>& lines) {
  lines_by_id found;
  auto line = lines.begin();
  for (const record& each : records) found.emplace(each.*id, *line++);
  return found;
}

class line_finder {
 public:
  line_finder(const raw_design& raw, std::string_view bytes)
      : blocks_(LinesById(raw.document.blocks, &dvblock::id, LinesOf(bytes, raw.block_offsets))),
        nets_(LinesById(raw.document.nets, &net::net_id, LinesOf(bytes, raw.net_offsets))) {}

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

checked_design CheckInput(headless_program& run, const std::string& path) {
  checked_design checked;
  const auto bytes = ReadInput(path);
  if (const auto* failure = std::get_if<report>(&bytes)) {
    checked.status = load_status::kNotLoaded;
    checked.errors.push_back({.file = path, .what = *failure});
    return checked;
  }
  const std::string& content = std::get<std::string>(bytes);
  loaded_design loaded = LinkInput(run, content, path);
  checked.status = loaded.status;
  std::optional<line_finder> lines;
  const auto add = [&](const std::vector<report>& reports, std::vector<found_report>& to) {
    for (const report& each : reports) {
      to.push_back({path, lines ? lines->Find(each.where) : std::nullopt, each});
    }
  };
  if (loaded.status != load_status::kLoaded) {
    add(loaded.reports, checked.errors);
    return checked;
  }
  checked.document = std::move(loaded.document);
  const auto raw = ReadRawDesign(content, LineSeparator(HostKind()));
  lines.emplace(*raw, content);
  design_findings found = FindAll(*raw, checked.document, run.libraries, run.registers);
  checked.nodes = std::move(found.nodes);
  add(loaded.reports, checked.errors);
  add(found.errors, checked.errors);
  add(found.warnings, checked.warnings);
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
    checked_design checked = CheckInput(run, path);
    worst = std::max(worst, StatusOf(checked, asked.warnings));
    std::ranges::move(checked.errors, std::back_inserter(all));
    std::ranges::move(checked.warnings, std::back_inserter(all));
  }
  return std::max(worst, Tell(all, asked.format));
}

}  // namespace mardel
