#include "platform/qt/last_call.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace mardel {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

// Neither a signal handler nor what is called at exit takes an argument that could lead here.
struct reach {
  volatile std::sig_atomic_t signal_pipe = -1;
  const std::function<void()>* act = nullptr;
};

reach& Reach() {
  static reach only;
  return only;
}

void PassOn(int signal) {
  const int before = errno;
  const auto byte = static_cast<unsigned char>(signal);
  static_cast<void>(write(Reach().signal_pipe, &byte, 1) == 1);
  errno = before;
}

void ActAtExit() {
  if (Reach().act != nullptr) (*Reach().act)();
}

// What is ignored, as under nohup, stays so.
void Exchange(void (*from)(int), void (*to)(int)) {
  for (const int signal : kSignals) {
    struct sigaction now{};
    sigaction(signal, nullptr, &now);
    if (now.sa_handler != from) continue;
    now.sa_handler = to;
    now.sa_flags = SA_RESTART | (to == PassOn ? static_cast<int>(SA_RESETHAND) : 0);
    sigaction(signal, &now, nullptr);
  }
}

}  // namespace

last_call::last_call(std::function<void()> act) : act_(std::move(act)) {
  Reach().act = &act_;
  std::atexit(ActAtExit);
  int ends[2] = {-1, -1};
  if (pipe(ends) != 0) return;
  out_ = descriptor(ends[0]);
  in_ = descriptor(ends[1]);
  for (const int end : ends) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  came_ = std::make_unique<QSocketNotifier>(out_.Number(), QSocketNotifier::Read);
  QObject::connect(came_.get(), &QSocketNotifier::activated, [this] { HandleSignal(); });
  Reach().signal_pipe = in_.Number();
  Exchange(SIG_DFL, PassOn);
}

last_call::~last_call() {
  Exchange(PassOn, SIG_DFL);
  Reach() = {};
}

void last_call::HandleSignal() {
  unsigned char signal = 0;
  if (read(out_.Number(), &signal, 1) != 1) return;
  Reach().act = nullptr;
  act_();
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace mardel
