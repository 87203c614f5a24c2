#include "app/headless_program.h"

#include <iostream>

#include "app/file_commands.h"
#include "app/startup.h"

namespace mardel {

headless_program::headless_program(const std::string& output, const text_metrics& measures)
    : desk(std::cerr, output), app({desk, measures, runner, time}) {
  const host_facts host = ThisHost();
  ReadSettings(app, host);
  BuildMenus(app, host.kind);
}

int Fail(exit_status status, const std::string& line) {
  std::cerr << "mardel: " << line << std::endl;
  return status;
}

int LoadWhole(program& app, const std::string& path) {
  const load_result loaded = OpenFile(app, path);
  if (loaded.status != load_status::kLoaded) return kFileOrToolMissing;
  return loaded.missing_blocks > 0 ? kRefused : kDone;
}

}  // namespace mardel
