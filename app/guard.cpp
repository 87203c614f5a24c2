#include "app/guard.h"

namespace mardel {
namespace {

const char* Purpose(guarded_command command) {
  switch (command) {
    case guarded_command::kNew:
      return "start a new design";
    case guarded_command::kOpen:
      return "load a design";
    case guarded_command::kQuit:
      return "quit";
  }
  return "";
}

}  // namespace

message UnsavedChangesQuestion(guarded_command command) {
  return {.title = "Unsaved Changes",
          .text = std::string("You have unsaved changes, are you sure you want to ") +
                  Purpose(command) + "?",
          .buttons = message_buttons::kYesNo,
          .icon = message_icon::kCaution};
}

bool GoesOn(guarded_command command, answer given) {
  return command == guarded_command::kQuit ? given != answer::kNo : given == answer::kYes;
}

bool MayLoseChanges(const design& document, guarded_command command, ui& desk) {
  return !document.unsaved_changes ||
         GoesOn(command, desk.ShowMessage(UnsavedChangesQuestion(command)));
}

}  // namespace mardel
