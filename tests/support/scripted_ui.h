// A user made of a script: answers in order, and a record of every call as one line of text.
#pragma once

#include <deque>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/ui.h"
#include "tests/support/recording_painter.h"

namespace mardel {

class scripted_ui : public ui {
 public:
  std::deque<answer> answers;     // to message boxes that ask; an OK box needs none
  std::deque<std::string> paths;  // to requesters; "" cancels
  std::vector<std::string> calls;
  std::map<int, window> windows;                     // the open ones
  std::map<std::pair<int, int>, std::string> typed;  // (window, gadget) to what the user typed
  std::map<std::pair<int, int>, bool> checked;
  std::map<std::pair<int, int>, int> selected_items;
  std::string clipboard;

  answer ShowMessage(const message& shown) override {
    calls.push_back("message " + shown.title + ": " + shown.text);
    if (shown.buttons == message_buttons::kOk) return answer::kOk;
    return Take(answers, answer::kNo);
  }
  std::string AskOpenFile(const file_request& r) override {
    calls.push_back("open requester " + r.title + "; " + r.start + "; " + r.patterns);
    return Take(paths, std::string());
  }
  std::string AskSaveFile(const file_request& r) override {
    calls.push_back("save requester " + r.title + "; " + r.start + "; " + r.patterns);
    return Take(paths, std::string());
  }
  void SetTitle(const std::string& title) override { calls.push_back("title " + title); }
  void SetStatus(int field, const std::string& text) override {
    calls.push_back("status " + std::to_string(field) + " " + text);
  }
  void SetPointer(pointer_shape shape) override {
    calls.emplace_back(shape == pointer_shape::kCross ? "pointer cross" : "pointer normal");
  }
  void Redraw() override { calls.emplace_back("redraw"); }
  void ShowOverlay(const overlay& o) override {
    const char* name = o.kind == overlay::shape::kLine        ? "line "
                       : o.kind == overlay::shape::kRectangle ? "rectangle "
                                                              : "none ";
    calls.push_back("overlay " + (name + Describe(o.span)) + ' ' + Describe(o.pen));
  }
  void ScrollBy(point by) override { calls.push_back("scroll by " + Describe(by)); }
  void ScrollTo(const rectangle& place) override {
    calls.push_back("scroll to " + Describe(place));
  }
  void CheckMenuItem(int id, bool is_checked) override {
    calls.push_back((is_checked ? "check " : "uncheck ") + std::to_string(id));
  }
  std::string ClipboardText() const override { return clipboard; }
  void SetClipboardText(const std::string& text) override { clipboard = text; }
  int OpenWindow(const window& contents) override {
    const int number = ++last_window_;
    windows.emplace(number, contents);
    calls.push_back("open window " + std::to_string(number) + " " + contents.title);
    return number;
  }
  void CloseWindow(int number) override {
    windows.erase(number);
    calls.push_back("close window " + std::to_string(number));
  }
  std::string GadgetText(int number, int id) const override {
    const auto found = typed.find({number, id});
    return found != typed.end() ? found->second : Find(number, id).text;
  }
  void SetGadgetText(int number, int id, const std::string& text) override {
    typed[{number, id}] = text;
    calls.push_back("set text " + std::to_string(number) + "/" + std::to_string(id) + " " + text);
  }
  bool GadgetChecked(int number, int id) const override {
    const auto found = checked.find({number, id});
    return found != checked.end() ? found->second : Find(number, id).checked;
  }
  int SelectedTreeItem(int number, int id) const override {
    const auto found = selected_items.find({number, id});
    return found != selected_items.end() ? found->second : -1;
  }
  void DisableMainWindow() override { calls.emplace_back("disable main window"); }
  void EnableMainWindow() override { calls.emplace_back("enable main window"); }

 private:
  template <class value>
  static value Take(std::deque<value>& script, value when_empty) {
    if (script.empty()) return when_empty;
    value first = script.front();
    script.pop_front();
    return first;
  }
  const gadget& Find(int number, int id) const {
    for (const gadget& g : windows.at(number).gadgets) {
      if (g.id == id) return g;
    }
    throw std::out_of_range("no such gadget");
  }
  int last_window_ = 0;
};

}  // namespace mardel
