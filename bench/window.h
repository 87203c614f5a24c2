// The real window on the toolkit's offscreen platform.
#pragma once

#include <QEvent>
#include <QSize>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/program.h"
#include "platform/desktop.h"

namespace mardel {

// The toolkit without a display; one at a time.
class offscreen_desktop {
 public:
  offscreen_desktop();
  desktop& operator*() const { return *desk_; }
  desktop* operator->() const { return desk_.get(); }

 private:
  std::vector<std::string> words_ = {"mardel", "-platform", "offscreen"};
  std::vector<char*> arguments_;
  int argument_count_ = 3;
  std::unique_ptr<desktop> desk_;
};

class bench_window {
 public:
  // `state_folder` is where unsaved work is kept; "" for nowhere.
  explicit bench_window(std::size_t blocks, QSize size = {1920, 1080},
                        const std::string& state_folder = {});

  program& App() { return *app_; }
  // Events are only handled while this runs.
  void Run(const std::function<void()>& session);
  // Through the toolkit, as the mouse's.
  void Press(point at);
  void Move(point at);
  void Release(point at);
  // Does all that follows from what was sent, such as painting.
  void Settle();
  // Paints the canvas without an event.
  void Redraw();

 private:
  void Send(QEvent::Type type, point at);

  offscreen_desktop desk_;
  host_process_runner runner_;
  std::unique_ptr<program> app_;
  QWidget* canvas_ = nullptr;
};

}  // namespace mardel
