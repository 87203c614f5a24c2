#include "app/unsaved_copy.h"

#include <chrono>
#include <new>

#include "app/recovery.h"
#include "codegen/design_file.h"
#include "editor/canvas_input.h"
#include "platform/file_lock.h"
#include "platform/path.h"
#include "platform/state_folder.h"
#include "platform/utf8.h"

namespace mardel {
namespace {

constexpr int kMostFolders = 1000;
constexpr int kTicksToRetry = 10;
constexpr std::size_t kMostName = 200;  // leaves room for what recovery adds

// By the design's own name, so that a person knows it.
std::string CopyName(const std::string& design_path) {
  std::string_view name = FileName(design_path);
  if (name.ends_with(kDesignSuffix)) name.remove_suffix(kDesignSuffix.size());
  const std::string_view stem = name.empty() ? "Untitled" : Beginning(name, kMostName);
  return std::string(stem) + std::string(kDesignSuffix);
}

}  // namespace

bool unsaved_copy::IsDue(const workspace& work) const {
  if (state_folder_.empty()) return false;
  const bool has_changes = work.document.unsaved_changes;
  return writing_.valid() || (has_changes && kept_change_ != work.undo.changes) ||
         (has_failed_ && (has_changes || is_only_one_));
}

void unsaved_copy::Keep(const workspace& work) {
  using namespace std::chrono_literals;
  if (!IsDue(work) || IsDragging(work.hand)) return;
  if (writing_.valid() && writing_.wait_for(0s) == std::future_status::timeout) return;
  Finish();
  if (!IsDue(work)) return;
  if (has_failed_ && kept_change_ == work.undo.changes && ++skipped_ < kTicksToRetry) return;
  Begin(work);
}

void unsaved_copy::KeepNow(const workspace& work) {
  Finish();
  if (IsDue(work)) Begin(work);
  Finish();
}

void unsaved_copy::KeepAsOnlyOne(const workspace& work) {
  if (state_folder_.empty()) return;
  Finish();
  Begin(work);
  Finish();
  is_only_one_ = true;
}

void unsaved_copy::Remove() {
  Finish();
  if (HoldsFolder()) {
    RemoveIfPossible(path_);
    RemoveRecoveryFolder(folder_);
  }
  lock_ = descriptor();
  kept_change_.reset();
  is_only_one_ = has_failed_ = false;
}

void unsaved_copy::GiveUp() {
  if (!is_only_one_) return Remove();
  Finish();
  lock_ = descriptor();
  kept_change_.reset();
  is_only_one_ = has_failed_ = false;
}

bool unsaved_copy::TakeFailure() {
  if (!has_failed_ || was_told_) return false;
  was_told_ = true;
  return true;
}

// False, too, when somebody cleared the state folder.
bool unsaved_copy::HoldsFolder() const {
  return lock_.IsOpen() && IsNamed(lock_, folder_ + std::string(kRecoveryLock));
}

bool unsaved_copy::ClaimFolder() {
  const std::string all = RecoveryFolder(state_folder_);
  if (!MakeFolders(all, folder_reader::kOwner)) return false;
  for (int number = 1; number <= kMostFolders; ++number) {
    folder_ = all + std::to_string(number) + "/";
    const new_file_status made = MakeNewFolder(folder_);
    if (made == new_file_status::kFailed) break;
    if (made == new_file_status::kNameTaken) continue;
    file_lock lock = LockFile(folder_ + std::string(kRecoveryLock), lock_target::kNewFile);
    lock_ = std::move(lock.file);
    if (lock_.IsOpen()) return true;
    RemoveIfPossible(folder_);
    // Who looks for what the dead left behind may have been quicker.
    if (!lock.is_held_by_other) break;
  }
  return false;
}

void unsaved_copy::Begin(const workspace& work) try {
  kept_change_ = work.undo.changes;
  has_failed_ = false;
  skipped_ = 0;
  if (!HoldsFolder()) {
    if (!ClaimFolder()) {
      has_failed_ = true;
      return;
    }
    path_ = folder_ + CopyName(work.document.file_name);
  }
  // Where no thread can be started, the copy is written when it is waited for.
  writing_ = std::async(
      std::launch::async | std::launch::deferred,
      [path = path_, text = DesignText(work.document)] { return ReplaceFile(path, text); });
} catch (const std::bad_alloc&) {
  has_failed_ = true;
}

void unsaved_copy::Finish() try {
  if (!writing_.valid()) return;
  has_failed_ = writing_.get() != write_status::kWritten;
  if (!has_failed_) was_told_ = false;
} catch (const std::bad_alloc&) {
  has_failed_ = true;
}

}  // namespace mardel
