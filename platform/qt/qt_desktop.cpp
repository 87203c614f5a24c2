#include "platform/qt/qt_desktop.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QScreen>
#include <QThread>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <utility>

#include "platform/files.h"
#include "platform/qt/accessible_canvas.h"
#include "platform/qt/beside_place.h"
#include "platform/qt/message_box.h"
#include "platform/qt/patient_runner.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/requester.h"

namespace mardel {

qt_desktop::qt_desktop(int& argument_count, char** arguments)
    : application_(argument_count, arguments, [this](const auto& path) { Open(path); }),
      metrics_(layouts_) {
  QApplication::setApplicationName(QStringLiteral("mardel"));
  QApplication::setDesktopFileName(QStringLiteral("com.quillonworks.Mardel"));
  QApplication::setQuitOnLastWindowClosed(false);
}

answer qt_desktop::ShowMessage(const message& shown) {
  WaitForFrame();
  PaintNow();
  QWidget* const active = QApplication::activeWindow();
  const answer given = ShowMessageBox(active != nullptr ? active : frame_.get(), shown);
  PaintNow();
  return given;
}

std::string qt_desktop::AskOpenFile(const file_request& request) {
  PaintNow();
  std::string path = AskFile(frame_.get(), request, requester_kind::kOpen);
  PaintNow();
  return path;
}

std::string qt_desktop::AskSaveFile(const file_request& request) {
  PaintNow();
  std::string path = AskFile(frame_.get(), request, requester_kind::kSave);
  PaintNow();
  return path;
}

void qt_desktop::SetTitle(const std::string& title) {
  frame_->setWindowTitle(TitleText(title));
}

void qt_desktop::SetStatus(int field, const std::string& text) {
  frame_->Status().Set(field, text);
}

void qt_desktop::SetPointer(pointer_shape shape) {
  frame_->Canvas().SetPointer(shape);
}

void qt_desktop::Redraw() {
  frame_->Canvas().Redraw();
}

void qt_desktop::ShowOverlay(const overlay& shape) {
  frame_->Canvas().ShowOverlay(shape);
}

void qt_desktop::ScrollBy(point pixels) {
  frame_->ScrollBy(pixels);
}

void qt_desktop::ScrollTo(const rectangle& place) {
  frame_->ScrollTo(place);
}

std::string qt_desktop::ClipboardText() const {
  std::string text = FromQt(QApplication::clipboard()->text());
  return text.size() > kMostFileBytes ? std::string() : text;
}

void qt_desktop::SetClipboardText(const std::string& text) {
  QApplication::clipboard()->setText(ToQt(text));
}

void qt_desktop::CheckMenuItem(int id, bool checked) {
  frame_->Menus().Check(id, checked);
}

int qt_desktop::OpenWindow(const window& contents) {
  const int number = ++last_window_;
  auto opened = std::make_unique<secondary_window>(
      contents, *frame_,
      secondary_window_sink{
          .used = [this, number](int gadget_id) { Deliver(gadget_used{number, gadget_id}); },
          .close_requested = [this, number] { Deliver(window_close_requested{number}); },
          .activated = [this] { RaiseModalWindow(); }});
  if (opened->IsModal()) KeepAboveOthers(*opened);
  if (contents.beside) opened->move(PlaceBeside(*contents.beside, opened->size()));
  opened->show();
  opened->activateWindow();
  windows_.emplace(number, std::move(opened));
  return number;
}

// On the screen; a desktop that places all windows itself does not listen.
QPoint qt_desktop::PlaceBeside(const rectangle& spared, QSize size) const {
  const canvas& shown = frame_->Canvas();
  const QRect on_canvas(static_cast<int>(spared.x), static_cast<int>(spared.y),
                        static_cast<int>(spared.width), static_cast<int>(spared.height));
  const QRect seen = on_canvas & shown.visibleRegion().boundingRect();
  return BesidePlace({shown.mapToGlobal(seen.topLeft()), seen.size()}, size,
                     frame_->screen()->availableGeometry());
}

// Where the desktop keeps a window above the one that it belongs to, it stays above the last window
// that is not modal as well.
void qt_desktop::KeepAboveOthers(secondary_window& modal) {
  const auto below = std::find_if(windows_.rbegin(), windows_.rend(),
                                  [](const auto& each) { return !each.second->IsModal(); });
  if (below == windows_.rend()) return;
  modal.winId();  // makes its handle
  modal.windowHandle()->setTransientParent(below->second->windowHandle());
}

secondary_window* qt_desktop::ModalWindow() const {
  const auto found = std::find_if(windows_.rbegin(), windows_.rend(),
                                  [](const auto& each) { return each.second->IsModal(); });
  return found == windows_.rend() ? nullptr : found->second.get();
}

// Not over a message box or a requester, which belongs to it.
void qt_desktop::RaiseModalWindow() {
  secondary_window* const modal = ModalWindow();
  if (modal != nullptr && QApplication::activeModalWidget() == nullptr) modal->raise();
}

void qt_desktop::BringModalWindow() {
  RaiseModalWindow();
  if (secondary_window* const modal = ModalWindow()) modal->activateWindow();
}

// The window may be the sender of the event that is being handled, so it goes when that is over.
void qt_desktop::CloseWindow(int number) {
  const auto found = windows_.find(number);
  if (found == windows_.end()) return;
  secondary_window* const closed = found->second.release();
  windows_.erase(found);
  closed->hide();
  closed->deleteLater();
}

std::string qt_desktop::GadgetText(int number, int gadget_id) const {
  const secondary_window* const found = FindWindow(number);
  return found == nullptr ? std::string() : found->Gadgets().Text(gadget_id);
}

void qt_desktop::SetGadgetText(int number, int gadget_id, const std::string& text) {
  secondary_window* const found = FindWindow(number);
  if (found != nullptr) found->Gadgets().SetText(gadget_id, text);
}

bool qt_desktop::GadgetChecked(int number, int gadget_id) const {
  const secondary_window* const found = FindWindow(number);
  return found != nullptr && found->Gadgets().IsChecked(gadget_id);
}

int qt_desktop::SelectedTreeItem(int number, int gadget_id) const {
  const secondary_window* const found = FindWindow(number);
  return found == nullptr ? -1 : found->Gadgets().SelectedTreeItem(gadget_id);
}

// The toolkit disables a window's other windows with it.
void qt_desktop::DisableMainWindow() {
  frame_->setEnabled(false);
  for (const auto& [number, shown] : windows_) shown->setEnabled(true);
}

void qt_desktop::EnableMainWindow() {
  frame_->setEnabled(true);
  frame_->raise();
  frame_->activateWindow();
  frame_->Canvas().setFocus();
}

void qt_desktop::OpenMainWindow(const main_window& contents) {
  OfferCanvasParts();
  frame_ = std::make_unique<main_frame>(
      contents, [this](const event& happened) { Deliver(happened); },
      [this] { BringModalWindow(); }, layouts_);
  frame_->show();
}

void qt_desktop::SetMenuBar(const std::vector<menu>& menus) {
  frame_->Menus().Set(menus);
}

void qt_desktop::AddShortcut(const std::string& key, int id) {
  frame_->Menus().AddShortcut(key, id);
}

std::unique_ptr<process_runner> qt_desktop::ToolRunner() {
  return std::make_unique<patient_runner>();
}

void qt_desktop::KeepWork(work_keeper keeper) {
  constexpr std::chrono::milliseconds kDelay{500};
  keeper_ = std::move(keeper);
  last_call_.emplace(keeper_.keep_now);
  keep_timer_.setSingleShot(true);
  keep_timer_.setInterval(kDelay);
  keep_timer_.callOnTimeout([this] {
    keeper_.keep();
    KeepSoon();
  });
}

void qt_desktop::KeepSoon() {
  if (keeper_.is_due && !keep_timer_.isActive() && keeper_.is_due()) keep_timer_.start();
}

int qt_desktop::Run(const std::function<bool(const event&)>& handle) {
  handle_ = handle;
  if (!waiting_.empty()) QTimer::singleShot(0, [this] { DeliverWaiting(); });
  const int code = QApplication::exec();
  handle_ = nullptr;
  waiting_.clear();
  keep_timer_.stop();
  last_call_.reset();
  return code;
}

// A document may come before the first event. It takes the place of none whose window is open.
void qt_desktop::Open(const std::string& path) {
  if (ModalWindow() != nullptr) return BringModalWindow();
  waiting_.push_back(files_dropped{{path}});
  DeliverWaiting();
}

void qt_desktop::Deliver(const event& happened) {
  if (!handle_) return;
  waiting_.push_back(happened);
  DeliverWaiting();
}

void qt_desktop::DeliverWaiting() {
  if (!handle_ || is_handling_) return;
  is_handling_ = true;
  bool goes_on = true;
  while (goes_on && !waiting_.empty()) {
    const event next = waiting_.front();
    waiting_.pop_front();
    goes_on = handle_(next);
  }
  is_handling_ = false;
  KeepSoon();
  // Not quit(), which first asks every window whether it closes.
  if (!goes_on) QApplication::exit(EXIT_SUCCESS);
}

// A box that comes before the first event is centred on the main window once that has its place.
void qt_desktop::WaitForFrame() {
  constexpr qint64 kLongest = 1000;  // milliseconds
  if (handle_ || frame_ == nullptr) return;
  QElapsedTimer waited;
  waited.start();
  while (!frame_->windowHandle()->isExposed() && !waited.hasExpired(kLongest)) {
    PaintNow();
    QThread::msleep(1);
  }
}

// So that the canvas is right behind a box, a requester, or while a tool runs.
void qt_desktop::PaintNow() {
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

secondary_window* qt_desktop::FindWindow(int number) const {
  const auto found = windows_.find(number);
  return found == windows_.end() ? nullptr : found->second.get();
}

}  // namespace mardel
