#include "app/command_line.h"
#include "app/headless.h"
#include "app/window.h"

int main(int argc, char** argv) {
  using namespace mardel;
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  const auto parsed = ParseCommandLine(arguments);
  if (const auto* wrong = std::get_if<usage_error>(&parsed)) return ReportWrongUsage(*wrong);
  const command_line& asked = std::get<command_line>(parsed);
  if (asked.action != verb::kWindow) return RunHeadless(asked);
  return RunWindow(asked.names.empty() ? "" : asked.names.front(), argc, argv);
}
