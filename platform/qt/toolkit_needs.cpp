#include "platform/qt/toolkit_needs.h"

#include <sys/mman.h>

#include <QThreadPool>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <latch>
#include <thread>
#include <vector>

namespace mardel {
namespace {

constexpr int kMostDrawing = 4;  // threads; more gain nothing on a canvas
constexpr int kOthers = 2;       // the display's events, and the bus to other programs
// A start takes three quarters of it.
constexpr std::size_t kBytes = std::size_t{64} << 20U;

// All at once.
bool CanStartThreads(int count) {
  std::latch all_tried(1);
  std::vector<std::jthread> started;
  try {
    started.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) started.emplace_back([&] { all_tried.wait(); });
  } catch (const std::exception&) {
    // of a thread, or of memory for it
  }
  all_tried.count_down();
  return std::ssize(started) == count;
}

bool CanTakeMemory() {
  void* const taken =
      mmap(nullptr, kBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return taken != MAP_FAILED && munmap(taken, kBytes) == 0;
}

}  // namespace

bool ToolkitCanStart() {
  QThreadPool& drawing = *QThreadPool::globalInstance();
  drawing.setMaxThreadCount(std::min(drawing.maxThreadCount(), kMostDrawing));
  drawing.setExpiryTimeout(-1);  // a new one might find no room
  if (CanStartThreads(drawing.maxThreadCount() + kOthers) && CanTakeMemory()) return true;
  std::fputs("mardel: a limit on threads or memory is too low\n", stderr);
  return false;
}

}  // namespace mardel
