#include "app/recovery.h"

#include <cstdio>

#include "codegen/design_file.h"
#include "platform/file_lock.h"
#include "platform/files.h"
#include "platform/new_file.h"
#include "platform/path.h"
#include "platform/state_folder.h"

namespace mardel {
namespace {

constexpr int kMostOfOneName = 1000;

// "Echo.mrd" becomes "Echo 2026-11-21 23.05.07".
std::string DatedName(const std::string& name, const date_time& written) {
  char moment[80];
  std::snprintf(moment, sizeof moment, " %04d-%02d-%02d %02d.%02d.%02d", written.year,
                written.month, written.day, written.hour, written.minute, written.second);
  return name.substr(0, name.size() - kDesignSuffix.size()) + moment;
}

// The new path, or "" when the design stayed.
std::string MoveDesign(const std::string& from, const date_time& written,
                       const std::string& folder) {
  MakeFolders(folder, folder_reader::kAnyone);
  const std::string stem = folder + DatedName(std::string(FileName(from)), written);
  for (int number = 1; number <= kMostOfOneName; ++number) {
    std::string to = stem;
    if (number > 1) to += " (" + std::to_string(number) + ")";
    to += kDesignSuffix;
    const new_file_status moved = MoveFile(from, to);
    if (moved == new_file_status::kMade) return to;
    if (moved == new_file_status::kFailed) break;
  }
  return {};
}

void RecoverOne(recovered_designs& found, const std::string& folder) {
  const file_lock lock = LockFile(folder + std::string(kRecoveryLock), lock_target::kAnyFile);
  bool is_empty = true;
  for (const std::string& name : ListFiles(folder, kDesignSuffix)) {
    const std::string from = folder + name;
    const std::optional<file_facts> facts = FactsOf(from);
    const bool is_ours = facts && facts->is_own;
    const std::string to = is_ours && lock.file.IsOpen()
                               ? MoveDesign(from, facts->written, found.folder)
                               : std::string();
    if (to.empty()) is_empty = false;
    if (!to.empty()) {
      found.moved.push_back(to);
    } else if (is_ours) {
      (lock.is_held_by_other ? found.in_use : found.stayed).push_back(from);
    }
  }
  if (lock.file.IsOpen() && is_empty) RemoveRecoveryFolder(folder);
}

// The first, and how many more there are.
std::string Wording(std::string_view first, std::size_t count) {
  std::string text(first);
  if (count > 1) text += " and " + std::to_string(count - 1) + " more";
  return text;
}

}  // namespace

std::string RecoveryFolder(const std::string& state_folder) {
  return state_folder + "recovery/";
}

void RemoveRecoveryFolder(const std::string& folder) {
  for (const std::string& temporary : ListFiles(folder, ".tmp"))
    RemoveIfPossible(folder + temporary);
  // Last, since the folder is another's as soon as the lock is gone.
  RemoveIfPossible(folder + std::string(kRecoveryLock));
  RemoveIfPossible(folder);
}

recovered_designs RecoverDesigns(const std::string& state_folder, const std::string& files_path) {
  recovered_designs found{files_path + "Recovered/", {}, {}, {}};
  if (state_folder.empty()) return found;
  const std::string all = RecoveryFolder(state_folder);
  for (const std::string& name : ListFolders(all)) RecoverOne(found, all + name + "/");
  return found;
}

std::string RecoveryText(const recovered_designs& found) {
  std::string text;
  if (!found.moved.empty()) {
    const std::string_view first = FileName(found.moved.front());
    text = "Recovered " + Wording(first, found.moved.size()) + " in " + found.folder;
  }
  if (found.stayed.empty()) return text;
  if (!text.empty()) text += "; ";
  return text + "Unsaved work stays in " + Wording(found.stayed.front(), found.stayed.size()) +
         ", since it could not be moved to " + found.folder;
}

}  // namespace mardel
