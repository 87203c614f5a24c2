#include "bench/child.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <thread>

namespace mardel {
namespace {

using steady = std::chrono::steady_clock;
constexpr std::chrono::seconds kPatience{20};

double SecondsSince(steady::time_point start) {
  return std::chrono::duration<double>(steady::now() - start).count();
}

std::vector<char*> Pointers(std::vector<std::string>& words) {
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> Environment(const std::string& home) {
  std::vector<std::string> variables = {"HOME=" + home, "XDG_RUNTIME_DIR=" + home,
                                        "LC_ALL=C.UTF-8"};
  for (const char* const name : {"DISPLAY", "XAUTHORITY", "PATH", "DBUS_SESSION_BUS_ADDRESS"}) {
    if (const char* const value = std::getenv(name)) {
      variables.push_back(std::string(name) + "=" + value);
    }
  }
  return variables;
}

double ProportionalSetSize(pid_t process) {
  std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
  for (std::string word; rollup >> word;) {
    double size = 0;
    if (word == "Pss:" && rollup >> size) return size;
  }
  return 0;
}

double ProcessorSeconds(pid_t process) {
  clockid_t clock = 0;
  timespec used{};
  if (clock_getcpuclockid(process, &clock) == 0) clock_gettime(clock, &used);
  return static_cast<double>(used.tv_sec) + 1e-9 * static_cast<double>(used.tv_nsec);
}

template <class allocated>
using reply = std::unique_ptr<allocated, decltype(&std::free)>;

// Sees every window that becomes visible on the display.
class watcher {
 public:
  watcher() : display_(xcb_connect(nullptr, nullptr), &xcb_disconnect) {
    if (xcb_connection_has_error(display_.get()) != 0) std::abort();
    root_ = xcb_setup_roots_iterator(xcb_get_setup(display_.get())).data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display_.get(), root_, XCB_CW_EVENT_MASK, &mask);
    Synchronise();
  }

  // The first one mapped, or 0.
  xcb_window_t AwaitWindow(steady::time_point start) {
    while (steady::now() - start < kPatience) {
      const reply<xcb_generic_event_t> happened(xcb_poll_for_event(display_.get()), &std::free);
      if (happened == nullptr) {
        std::this_thread::sleep_for(std::chrono::microseconds(200));
        continue;
      }
      if ((happened->response_type & 0x7f) != XCB_MAP_NOTIFY) continue;
      return reinterpret_cast<const xcb_map_notify_event_t*>(happened.get())->window;
    }
    return 0;
  }

  // Whether the middle of the window has the colour of a canvas in time.
  bool AwaitPaint(xcb_window_t window, steady::time_point start) {
    while (steady::now() - start < kPatience) {
      if (IsPainted(window)) return true;
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return false;
  }

 private:
  bool IsPainted(xcb_window_t window) {
    constexpr std::uint32_t kCanvasGrey = 0xdcdcdc;
    const auto asked = xcb_get_image(display_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, 700, 500, 1,
                                     1, ~std::uint32_t{0});
    const reply<xcb_get_image_reply_t> got(xcb_get_image_reply(display_.get(), asked, nullptr),
                                           &std::free);
    if (got == nullptr || xcb_get_image_data_length(got.get()) < 4) return false;
    const std::uint8_t* const bytes = xcb_get_image_data(got.get());
    return (bytes[0] | bytes[1] << 8U | bytes[2] << 16U) == kCanvasGrey;
  }
  void Synchronise() {
    const reply<xcb_get_input_focus_reply_t> ignored(
        xcb_get_input_focus_reply(display_.get(), xcb_get_input_focus(display_.get()), nullptr),
        &std::free);
  }

  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> display_;
  xcb_window_t root_ = 0;
};

}  // namespace

std::string Beside(const std::string& program) {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path() / program;
}

pid_t Start(const command& started) {
  std::vector<std::string> words = started.words;
  std::vector<std::string> variables = Environment(started.home);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_WRONLY, 0);
  }
  pid_t child = 0;
  const int error = posix_spawn(&child, words.front().c_str(), &actions, nullptr,
                                Pointers(words).data(), Pointers(variables).data());
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) std::abort();
  return child;
}

ending Await(pid_t child) {
  int status = 0;
  rusage used{};
  wait4(child, &status, 0, &used);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
  };
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
          seconds(used.ru_utime) + seconds(used.ru_stime)};
}

void End(pid_t child) {
  kill(child, SIGKILL);
  Await(child);
}

mapping StartWindow(const command& started) {
  watcher display;
  mapping seen;
  const steady::time_point start = steady::now();
  const pid_t child = Start(started);
  if (const xcb_window_t window = display.AwaitWindow(start)) {
    seen.mapped = SecondsSince(start);
    if (display.AwaitPaint(window, start)) seen.painted = SecondsSince(start);
    seen.processor = ProcessorSeconds(child);
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    seen.memory = ProportionalSetSize(child);
  }
  End(child);
  return seen;
}

}  // namespace mardel
