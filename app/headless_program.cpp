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

exit_status Fail(exit_status status, const std::string& line) {
  std::cerr << "mardel: " << line << std::endl;
  return status;
}

exit_status LoadWhole(program& app, const std::string& path) {
  const load_result loaded = OpenFile(app, path);
  if (loaded.status != load_status::kLoaded) return exit_status::kFileOrToolMissing;
  return loaded.missing_blocks > 0 ? exit_status::kRefused : exit_status::kDone;
}

}  // namespace mardel
