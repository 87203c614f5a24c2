// The program as it is started: it does what needs no desktop, and else becomes the one that does
// all, so that the verbs load no toolkit.
#include "app/command_line.h"
#include "app/headless.h"
#include "app/headless_program.h"
#include "app/init.h"
#include "app/recovery_verbs.h"
#include "app/verbs/checking.h"
#include "app/verbs/compare.h"
#include "app/verbs/explaining.h"
#include "app/verbs/generating.h"
#include "platform/neighbour.h"
#include "platform/short_memory.h"

namespace {

struct front_end {
  char** arguments;

  int operator()(const auto& asked) const { return static_cast<int>(Run(asked)); }
  int operator()(const mardel::window_request& /*asked*/) const { return BecomeDesktop(); }
  int operator()(const mardel::render_request& /*asked*/) const { return BecomeDesktop(); }

  int BecomeDesktop() const {
    mardel::BecomeProgram("mardel-desktop", MARDEL_LIBEXEC, arguments);
    return static_cast<int>(mardel::Fail(mardel::exit_status::kFileOrToolMissing,
                                         "the program mardel-desktop could not be started"));
  }
};

}  // namespace

int main(int argc, char** argv) {
  mardel::TellShortMemory();
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return std::visit(front_end{argv}, mardel::ParseCommandLine(arguments));
}
