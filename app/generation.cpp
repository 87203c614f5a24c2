#include "app/generation.h"

#include "codegen/netlist.h"

namespace mardel {

std::optional<source_result> GenerateSource(program& app) {
  ui& desk = app.outside.desk;
  const auto nodes = BuildNetlist(app.work.document, app.registers, desk);
  if (!nodes || !CheckDesign(app.work.document, desk)) return std::nullopt;
  return WriteSource(app.work.document, *nodes, app.registers,
                     {.options = app.options, .time = app.outside.time, .desk = desk});
}

toolchain_result RunTools(const program& app, const std::string& source_path,
                          std::optional<int> location) {
  return RunToolchain(
      source_path, location,
      {.options = app.options, .runner = app.outside.runner, .desk = app.outside.desk});
}

void Generate(program& app, std::optional<int> location) {
  const std::optional<source_result> source = GenerateSource(app);
  if (source) RunTools(app, source->path, location);
}

}  // namespace mardel
