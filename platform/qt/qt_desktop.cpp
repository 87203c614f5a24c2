#include "platform/qt/qt_desktop.h"

#include <QClipboard>
#include <cstdlib>
#include <utility>

#include "platform/files.h"
#include "platform/qt/gadget_widgets.h"
#include "platform/qt/message_box.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/requester.h"

namespace mardel {

qt_desktop::qt_desktop(int& argument_count, char** arguments)
    : application_(argument_count, arguments), metrics_(layouts_) {
  QApplication::setApplicationName("mardel");
  QApplication::setDesktopFileName("com.quillonworks.Mardel");
  QApplication::setQuitOnLastWindowClosed(false);
}

answer qt_desktop::ShowMessage(const message& shown) {
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
          [this, number](int gadget_id) { Deliver(gadget_used{number, gadget_id}); },
          [this, number] { Deliver(window_close_requested{number}); }});
  opened->show();
  opened->activateWindow();
  windows_.emplace(number, std::move(opened));
  return number;
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
  const QWidget* const found = FindGadget(number, gadget_id);
  return found == nullptr ? std::string() : TextOf(*found);
}

void qt_desktop::SetGadgetText(int number, int gadget_id, const std::string& text) {
  QWidget* const found = FindGadget(number, gadget_id);
  if (found != nullptr) SetTextOf(*found, text);
}

bool qt_desktop::GadgetChecked(int number, int gadget_id) const {
  const QWidget* const found = FindGadget(number, gadget_id);
  return found != nullptr && IsChecked(*found);
}

int qt_desktop::SelectedTreeItem(int number, int gadget_id) const {
  const QWidget* const found = FindGadget(number, gadget_id);
  return found == nullptr ? -1 : SelectedItem(*found);
}

void qt_desktop::DisableMainWindow() {
  frame_->setEnabled(false);
}

void qt_desktop::EnableMainWindow() {
  frame_->setEnabled(true);
  frame_->raise();
  frame_->activateWindow();
  frame_->Canvas().setFocus();
}

void qt_desktop::OpenMainWindow(const main_window& contents) {
  frame_ = std::make_unique<main_frame>(
      contents, [this](const event& happened) { Deliver(happened); }, layouts_);
  frame_->show();
}

void qt_desktop::SetMenuBar(const std::vector<menu>& menus) {
  frame_->Menus().Set(menus);
}

void qt_desktop::AddShortcut(const std::string& key, int id) {
  frame_->Menus().AddShortcut(key, id);
}

int qt_desktop::Run(const std::function<bool(const event&)>& handle) {
  handle_ = handle;
  const int code = QApplication::exec();
  handle_ = nullptr;
  waiting_.clear();
  return code;
}

void qt_desktop::Deliver(const event& happened) {
  if (!handle_) return;
  waiting_.push_back(happened);
  if (is_handling_) return;
  is_handling_ = true;
  bool goes_on = true;
  while (goes_on && !waiting_.empty()) {
    const event next = waiting_.front();
    waiting_.pop_front();
    goes_on = handle_(next);
  }
  is_handling_ = false;
  // Not quit(), which first asks every window whether it closes.
  if (!goes_on) QApplication::exit(EXIT_SUCCESS);
}

// So that the canvas is right behind a box, a requester, or while a tool runs.
void qt_desktop::PaintNow() {
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

QWidget* qt_desktop::FindGadget(int number, int gadget_id) const {
  const auto found = windows_.find(number);
  return found == windows_.end() ? nullptr : found->second->Find(gadget_id);
}

}  // namespace mardel
