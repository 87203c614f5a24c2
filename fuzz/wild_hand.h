// What a hand does that knows no sense: gestures, single events, menu commands, typing. All of it
// is what a desktop can deliver: nothing to the main window while a modal window is open.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "app/program.h"
#include "fuzz/wild_ui.h"
#include "platform/event.h"

namespace mardel {

class wild_hand {
 public:
  wild_hand(const program& app, wild_ui& desk, dice& random)
      : app_(app), desk_(desk), random_(random) {}

  event Next();

 private:
  event Choose();
  event AnswerWindow(int number);
  void Fill(int number);
  void Plan();
  void PlanGeneration();
  void PlanBlock();
  void PlanDrag(point from, point to);
  void PlanBand();
  event SingleEvent();
  event UseSomeWindow();
  int SomeMenuId();
  int SomeBlockId();
  point SomePoint();
  point OnSomePin();
  point OnSelection();
  point Anywhere();
  template <class record>
  point Inside(const record& each);

  const program& app_;
  wild_ui& desk_;
  dice& random_;
  std::deque<event> plan_;
  bool is_held_ = false;  // the left button
};

}  // namespace mardel
