// The whole program: the window, pictures, and the verbs too where it is the only one.
#include "app/command_line.h"
#include "app/headless.h"
#include "app/init.h"
#include "app/recovery_verbs.h"
#include "app/render.h"
#include "app/verbs/checking.h"
#include "app/verbs/compare.h"
#include "app/verbs/explaining.h"
#include "app/verbs/generating.h"
#include "app/window.h"
#include "platform/short_memory.h"

namespace {

// One overload for each kind of request.
struct front_end {
  int& argument_count;
  char** arguments;

  int operator()(const mardel::window_request& asked) const {
    const bool may_make = asked.at_start == mardel::samples::kMadeOnce;
    const std::string made = may_make ? mardel::MakeSamplesOnce() : "";
    return mardel::RunWindow(asked.design, made, argument_count, arguments);
  }
  int operator()(const auto& asked) const { return static_cast<int>(Run(asked)); }
};

}  // namespace

int main(int argc, char** argv) {
  mardel::TellShortMemory();
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return std::visit(front_end{argc, argv}, mardel::ParseCommandLine(arguments));
}
