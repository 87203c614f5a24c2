// The last thing that the program does when it is ended from outside: by a signal (SIGTERM, SIGHUP,
// SIGINT), or by the loss of the display, at which the toolkit ends the process.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform/descriptor.h"

namespace mardel {

// At most one lives at a time.
class last_call {
 public:
  // `act` is called in the thread of the event loop, and by it; the process ends afterwards, by the
  // signal that came. The second signal of a kind ends it at once, whatever the loop is doing.
  explicit last_call(std::function<void()> act);
  last_call(const last_call&) = delete;
  last_call& operator=(const last_call&) = delete;
  ~last_call();

 private:
  void HandleSignal();

  std::function<void()> act_;
  descriptor out_, in_;  // of the pipe that the signal handler writes to
  std::unique_ptr<QSocketNotifier> came_;
};

}  // namespace mardel
