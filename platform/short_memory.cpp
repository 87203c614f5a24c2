#include "platform/short_memory.h"

#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <new>
#include <string_view>

namespace mardel {
namespace {

// Takes no memory.
[[noreturn]] void End() {
  constexpr int kLacking = 3;  // as the command line has it
  constexpr std::string_view kLine = "mardel: there is not enough memory\n";
  try {
    if (std::current_exception() != nullptr) throw;
  } catch (const std::bad_alloc&) {
    static_cast<void>(write(STDERR_FILENO, kLine.data(), kLine.size()) == 0);
    std::_Exit(kLacking);
  } catch (...) {
    std::abort();
  }
  std::abort();
}

}  // namespace

void TellShortMemory() {
  std::set_terminate(End);
}

}  // namespace mardel
