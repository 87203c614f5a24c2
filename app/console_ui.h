// Stands in for the desktop when there is none: messages become lines of text, requesters are
// answered by the command line.
#pragma once

#include <ostream>
#include <string>

#include "platform/ui.h"

namespace mardel {

class console_ui : public ui {
 public:
  // `chosen_path` is what every save requester answers; "" cancels.
  explicit console_ui(std::ostream& messages, std::string chosen_path = {});

  // Goes before the title of each message, such as "echo.mrd: ".
  std::string prefix;

  // "TITLE: TEXT" on a line. Questions are answered by No.
  answer ShowMessage(const message& shown) override;
  std::string AskOpenFile(const file_request& request) override;
  std::string AskSaveFile(const file_request& request) override;

  // There is nothing to show these on.
  void SetTitle(const std::string& /*title*/) override {}
  void SetStatus(int /*field*/, const std::string& /*text*/) override {}
  void SetPointer(pointer_shape /*shape*/) override {}
  void Redraw() override {}
  void ShowOverlay(const overlay& /*shape*/) override {}
  void ScrollBy(int /*pixels*/) override {}
  void CheckMenuItem(int /*id*/, bool /*checked*/) override {}
  int OpenWindow(const window& /*contents*/) override { return ++last_window_; }
  void CloseWindow(int /*number*/) override {}
  std::string GadgetText(int /*number*/, int /*gadget_id*/) const override { return {}; }
  void SetGadgetText(int /*number*/, int /*gadget_id*/, const std::string& /*text*/) override {}
  bool GadgetChecked(int /*number*/, int /*gadget_id*/) const override { return false; }
  int SelectedTreeItem(int /*number*/, int /*gadget_id*/) const override { return -1; }
  void DisableMainWindow() override {}
  void EnableMainWindow() override {}

 private:
  std::ostream& messages_;
  std::string chosen_path_;
  int last_window_ = 0;
};

}  // namespace mardel
