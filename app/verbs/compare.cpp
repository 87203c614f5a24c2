#include "app/verbs/compare.h"

#include <iostream>

#include "app/headless_program.h"
#include "app/verbs/input.h"
#include "codegen/compare/design_diff.h"
#include "codegen/compare/design_merge.h"
#include "codegen/design_file.h"
#include "codegen/findings/warnings.h"
#include "platform/escaping.h"
#include "platform/json.h"
#include "platform/path.h"

namespace mardel {
namespace {

// Printed when there is none.
std::optional<raw_design> Read(const std::string& path) {
  auto read = ReadRawInput(path);
  if (const auto* failure = std::get_if<report>(&read)) {
    std::cerr << ReportText({.file = path, .what = *failure}) << std::endl;
    return std::nullopt;
  }
  return std::get<raw_design>(std::move(read));
}

// A file without a byte stands for none at all, as version control hands it over.
std::optional<raw_design> ReadBase(const std::string& path) {
  const auto bytes = ReadInput(path);
  const auto* const content = std::get_if<std::string>(&bytes);
  return content != nullptr && content->empty() ? raw_design() : Read(path);
}

template <class record>
void AddIds(json_text& json, const matched<record>& both, std::int64_t record::* id) {
  if (both.old_one != nullptr) json.Name("old_id").Value(both.old_one->*id);
  if (both.new_one != nullptr) json.Name("new_id").Value(both.new_one->*id);
}

void AddText(json_text& json, std::string_view name, const std::optional<std::string>& text) {
  if (text) json.Name(name).Value(*text);
}

std::string Json(const std::vector<design_change>& changes) {
  constexpr std::string_view kChanges[] = {"added", "removed", "moved", "changed"};
  json_text json;
  json.OpenArray();
  for (const design_change& each : changes) {
    json.OpenObject().Name("change").Value(kChanges[static_cast<std::size_t>(each.kind)]);
    json.Name("what").Value(KindWord(each)).Name("name").Value(each.subject);
    AddIds(json, each.block, &dvblock::id);
    AddIds(json, each.wire, &net::net_id);
    AddIds(json, each.note, &textblock::id);
    if (!each.field.empty()) json.Name("field").Value(each.field);
    AddText(json, "from", each.from);
    AddText(json, "to", each.to);
    json.CloseObject();
  }
  json.CloseArray();
  return json.Take();
}

std::string Lines(const std::vector<design_change>& changes, bool is_listing) {
  std::string lines;
  for (const design_change& each : changes) {
    lines += (is_listing ? EscapeControls(each.subject) : ChangeText(each)) + '\n';
  }
  return lines;
}

}  // namespace

exit_status Run(const diff_request& asked) {
  const bool is_listing = asked.old_design.empty();
  const auto old_one = is_listing ? raw_design() : Read(asked.old_design);
  const auto new_one = Read(asked.new_design);
  if (!old_one || !new_one) return exit_status::kFileOrToolMissing;
  const auto changes = DiffDesigns(old_one->document, new_one->document);
  const std::string text =
      asked.format == text_format::kJson ? Json(changes) : Lines(changes, is_listing);
  const exit_status written = WriteOut(text);
  if (written != exit_status::kDone || is_listing || changes.empty()) return written;
  return exit_status::kRefused;
}

exit_status Run(const merge_request& asked) {
  const auto base = ReadBase(asked.base);
  const auto ours = Read(asked.ours);
  const auto theirs = Read(asked.theirs);
  if (!base || !ours || !theirs) return exit_status::kFileOrToolMissing;
  design merged;
  const auto conflicts = MergeDesigns(merged, {base->document, ours->document, theirs->document});
  const std::string text = DesignText(merged);
  const std::vector<report> lost = ValueWarnings(merged);
  for (const report& each : lost) {
    std::cerr << ReportText({.file = asked.ours, .what = each}) << std::endl;
  }
  if (!lost.empty()) return Fail(exit_status::kRefused, asked.ours + " was left as it is");
  if (text.size() > kMostFileBytes) {
    return Fail(exit_status::kRefused, asked.ours + " was left as it is: too large to be opened");
  }
  const exit_status written = WriteOutput(asked.ours, text);
  for (const std::string& each : conflicts) {
    std::cerr << EscapeControls(asked.ours + ": conflict: " + each) << '\n';
  }
  if (written != exit_status::kDone || conflicts.empty()) return written;
  return exit_status::kRefused;
}

}  // namespace mardel
