// The copy of a design with unsaved changes, which outlives the program (see app/recovery.h). It is
// written beside the program's own work, so that no gesture waits for the disk.
#pragma once

#include <cstdint>
#include <future>
#include <optional>
#include <string>
#include <utility>

#include "editor/workspace.h"
#include "platform/descriptor.h"
#include "platform/files.h"

namespace mardel {

class unsaved_copy {
 public:
  // "" keeps no copy, ever.
  explicit unsaved_copy(std::string state_folder) : state_folder_(std::move(state_folder)) {}

  // Whether there are changes that no copy on the disk holds.
  bool IsDue(const workspace& work) const;
  // Begins to write the copy if it is due; later, when the mouse is down or the one before is still
  // being written. What failed is tried again at the first change, else now and then.
  void Keep(const workspace& work);
  // The same at once, even when it failed before, and waits for the disk.
  void KeepNow(const workspace& work);
  // For a design that counts as saved though its file could not be created: its copy stays, even
  // when it is given up.
  void KeepAsOnlyOne(const workspace& work);
  // The design was saved.
  void Remove();
  // The user gave up the changes, or the whole design.
  void GiveUp();

  // True once while no copy can be written.
  bool TakeFailure();

 private:
  bool HoldsFolder() const;
  bool ClaimFolder();
  void Begin(const workspace& work);
  void Finish();

  std::string state_folder_;
  descriptor lock_;
  std::string folder_, path_;                // of the copy, while the lock is held
  std::optional<std::int64_t> kept_change_;  // that the copy holds or will hold
  std::future<write_status> writing_;
  bool is_only_one_ = false;
  bool has_failed_ = false;  // the last time
  bool was_told_ = false;
  int skipped_ = 0;  // calls of Keep since then
};

}  // namespace mardel
