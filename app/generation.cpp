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

toolchain_result RunTools(const program& app, const toolchain_request& asked) {
  return RunToolchain(
      asked, {.options = app.options, .runner = app.outside.runner, .boxes = app.outside.desk});
}

void Generate(program& app, std::optional<int> location) {
  const std::optional<source_result> source = GenerateSource(app);
  if (source) (void)RunTools(app, {source->path, app.options.run_opt, location});
}

}  // namespace mardel
