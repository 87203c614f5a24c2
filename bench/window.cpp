#include "bench/window.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTimer>

#include "app/event_handling.h"
#include "app/startup.h"
#include "app/window.h"
#include "bench/design_generator.h"

namespace mardel {
namespace {

QWidget* FindCanvas() {
  for (QWidget* const each : QApplication::allWidgets()) {
    if (each->accessibleName() == "Schematic") return each;
  }
  return nullptr;
}

}  // namespace

offscreen_desktop::offscreen_desktop() {
  for (std::string& word : words_) arguments_.push_back(word.data());
  arguments_.push_back(nullptr);
  desk_ = StartDesktop(argument_count_, arguments_.data());
}

bench_window::bench_window(std::size_t blocks, QSize size, const std::string& state_folder) {
  app_ = std::make_unique<program>(edges{*desk_, desk_->Metrics(), runner_, Now, state_folder});
  const host_facts host = ThisHost();
  ReadSettings(*app_, host);
  desk_->OpenMainWindow(MainWindow(*app_));
  (void)FillLibraries(*app_);
  desk_->SetMenuBar(MenuBar(host.kind, app_->ids, app_->libraries));
  GenerateDesign(app_->work.document, app_->libraries, {.blocks = blocks});
  canvas_ = FindCanvas();
  canvas_->window()->resize(size);
  if (!state_folder.empty()) desk_->KeepWork(Keeper(*app_));
  Settle();
}

void bench_window::Run(const std::function<void()>& session) {
  QTimer::singleShot(0, [&session] {
    session();
    QApplication::exit();
  });
  desk_->Run([this](const event& happened) { return HandleEvent(*app_, happened); });
}

void bench_window::Settle() {
  QApplication::processEvents();
}

void bench_window::Send(QEvent::Type type, point at) {
  const QPointF place(static_cast<double>(at.x), static_cast<double>(at.y));
  const bool is_move = type == QEvent::MouseMove;
  QMouseEvent happened(type, place, canvas_->mapToGlobal(place),
                       is_move ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(canvas_, &happened);
}

void bench_window::Press(point at) {
  Send(QEvent::MouseButtonPress, at);
}

void bench_window::Move(point at) {
  Send(QEvent::MouseMove, at);
}

void bench_window::Release(point at) {
  Send(QEvent::MouseButtonRelease, at);
}

void bench_window::Redraw() {
  canvas_->update();
  Settle();
}

}  // namespace mardel
