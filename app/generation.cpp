#include "app/generation.h"

#include "app/reports.h"
#include "codegen/design_check.h"
#include "codegen/findings/design_findings.h"
#include "codegen/source_writer.h"
#include "codegen/toolchain.h"
#include "platform/path.h"

namespace mardel {
namespace {

std::string AskSourcePath(const program& app) {
  return app.outside.desk.AskSaveFile(
      {.title = "Please choose file to save",
       .start = ProposedSourcePath(app.options.files_path, app.work.document.file_name),
       .patterns = "Dravik file (*.dvc)|*.dvc|Text (*.txt)|*.txt|All files (*.*)|*.*"});
}

// "Wrote echo.dvc, 2 warnings: mardel --check"
std::string WrittenText(const std::string& path, std::size_t warnings) {
  std::string text = "Wrote " + std::string(FileName(path));
  if (warnings == 0) return text;
  text += ", " + std::to_string(warnings);
  return text + (warnings == 1 ? " warning" : " warnings") + ": mardel --check";
}

}  // namespace

std::variant<std::vector<net_node>, report> ReadyNodes(const design& document,
                                                       register_pool& pool) {
  auto nodes = BuildNetlist(document, pool);
  if (std::holds_alternative<report>(nodes)) return nodes;
  std::vector<report> problems = CheckDesign(document, problem_search::kFirst);
  if (!problems.empty()) return std::move(problems.front());
  return nodes;
}

void Generate(program& app, std::optional<int> location) {
  ui& desk = app.outside.desk;
  const auto nodes = ReadyNodes(app.work.document, app.registers);
  if (const auto* refused = std::get_if<report>(&nodes)) return ShowReport(desk, *refused);
  const std::string path = AskSourcePath(app);
  if (path.empty()) return;
  const source_result source =
      WriteSource(app.work.document, std::get<0>(nodes), app.registers,
                  {.path = path, .moment = app.outside.now(), .mode = app.options.expert});
  if (source.problem) ShowReport(desk, *source.problem);
  if (IsFault(source.status)) return;  // no tool runs on the old file
  // A tool may take its time, or hang.
  app.copy.KeepNow(app.work);
  const toolchain_result ended =
      RunToolchain({path, app.options.run_opt, location},
                   {.options = app.options, .runner = app.outside.runner, .boxes = desk});
  const bool is_well = source.status == write_status::kWritten && !source.problem &&
                       ended == toolchain_result::kDone;
  if (!is_well) return;
  const auto warnings = FindWarnings(app.work.document, std::get<0>(nodes));
  desk.SetStatus(1, WrittenText(path, warnings.size()));
}

}  // namespace mardel
