#include "platform/qt/toolkit_needs.h"

#include <pthread.h>
#include <sys/mman.h>

#include <QThreadPool>
#include <algorithm>
#include <cstdio>
#include <latch>
#include <vector>

namespace mardel {
namespace {

constexpr int kMostDrawing = 4;  // threads; more gain nothing on a canvas
constexpr int kOthers = 2;       // the display's events, and the bus to other programs
// A start takes three quarters of it.
constexpr std::size_t kBytes = std::size_t{64} << 20U;

void* AwaitAll(void* all_tried) {
  static_cast<std::latch*>(all_tried)->wait();
  return nullptr;
}

// All at once. They take next to no memory, unlike the library's own.
bool CanStartThreads(int count) {
  std::latch all_tried(1);
  std::vector<pthread_t> started;
  started.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    pthread_t thread{};
    if (pthread_create(&thread, nullptr, AwaitAll, &all_tried) == 0) started.push_back(thread);
  }
  all_tried.count_down();
  for (const pthread_t each : started) pthread_join(each, nullptr);
  return std::ssize(started) == count;
}

bool CanTakeMemory() {
  void* const taken =
      mmap(nullptr, kBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return taken != MAP_FAILED && munmap(taken, kBytes) == 0;
}

}  // namespace

bool ToolkitCanStart() {
  QThreadPool* const drawing = QThreadPool::globalInstance();
  if (drawing == nullptr) return true;  // an application before this one could start
  drawing->setMaxThreadCount(std::min(drawing->maxThreadCount(), kMostDrawing));
  drawing->setExpiryTimeout(-1);  // a new one might find no room
  if (CanStartThreads(drawing->maxThreadCount() + kOthers) && CanTakeMemory()) return true;
  std::fputs("mardel: a limit on threads or memory is too low\n", stderr);
  return false;
}

}  // namespace mardel
