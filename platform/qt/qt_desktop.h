// The desktop on top of the toolkit's widgets.
#pragma once

#include <QTimer>
#include <deque>
#include <map>
#include <memory>
#include <optional>

#include "platform/desktop.h"
#include "platform/qt/last_call.h"
#include "platform/qt/main_frame.h"
#include "platform/qt/opening_application.h"
#include "platform/qt/qt_text_metrics.h"
#include "platform/qt/secondary_window.h"
#include "platform/qt/text_layouts.h"

namespace mardel {

class qt_desktop : public desktop {
 public:
  qt_desktop(int& argument_count, char** arguments);

  answer ShowMessage(const message& shown) override;
  std::string AskOpenFile(const file_request& request) override;
  std::string AskSaveFile(const file_request& request) override;
  void SetTitle(const std::string& title) override;
  void SetStatus(int field, const std::string& text) override;
  void SetPointer(pointer_shape shape) override;
  void Redraw() override;
  void ShowOverlay(const overlay& shape) override;
  void ScrollBy(point pixels) override;
  void ScrollTo(const rectangle& place) override;
  void CheckMenuItem(int id, bool checked) override;
  std::string ClipboardText() const override;
  void SetClipboardText(const std::string& text) override;
  int OpenWindow(const window& contents) override;
  void CloseWindow(int number) override;
  std::string GadgetText(int number, int gadget_id) const override;
  void SetGadgetText(int number, int gadget_id, const std::string& text) override;
  bool GadgetChecked(int number, int gadget_id) const override;
  int SelectedTreeItem(int number, int gadget_id) const override;
  void DisableMainWindow() override;
  void EnableMainWindow() override;

  const text_metrics& Metrics() const override { return metrics_; }
  void OpenMainWindow(const main_window& contents) override;
  void SetMenuBar(const std::vector<menu>& menus) override;
  void AddShortcut(const std::string& key, int id) override;
  std::unique_ptr<process_runner> ToolRunner() override;
  void KeepWork(work_keeper keeper) override;
  int Run(const std::function<bool(const event&)>& handle) override;

 private:
  void Deliver(const event& happened);
  void DeliverWaiting();
  void Open(const std::string& path);
  void KeepSoon();
  void PaintNow();
  void WaitForFrame();
  secondary_window* FindWindow(int number) const;
  secondary_window* ModalWindow() const;
  QPoint PlaceBeside(const rectangle& spared, QSize size) const;
  void KeepAboveOthers(secondary_window& modal);
  void RaiseModalWindow();
  void BringModalWindow();

  opening_application application_;
  text_layouts layouts_;
  qt_text_metrics metrics_;
  std::unique_ptr<main_frame> frame_;
  std::map<int, std::unique_ptr<secondary_window>> windows_;
  int last_window_ = 0;
  std::function<bool(const event&)> handle_;
  // What happens while an event is being handled, behind a message box say, waits for its end.
  std::deque<event> waiting_;
  bool is_handling_ = false;
  work_keeper keeper_;
  QTimer keep_timer_;
  std::optional<last_call> last_call_;
};

}  // namespace mardel
