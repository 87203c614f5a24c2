// Unsaved work that a dead program left behind. Each program keeps the copy of what it works on in
// a folder of its own below the state folder, with a lock that ends with the process.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mardel {

constexpr std::string_view kRecoveryLock = "lock";

// Of the folders that hold a copy each.
std::string RecoveryFolder(const std::string& state_folder);

// Removes the folder of one copy, which is gone; what else a user may have put there stays.
void RemoveRecoveryFolder(const std::string& folder);

// Paths of designs.
struct recovered_designs {
  std::string folder;               // where they are moved to
  std::vector<std::string> moved;   // as they are called now
  std::vector<std::string> stayed;  // where the dead program left them
  std::vector<std::string> in_use;  // of programs that live
};

// Moves what was left behind to "Recovered/" in `files_path`, each under its name with the date and
// time when it was written. Any number of programs may do so at once.
recovered_designs RecoverDesigns(const std::string& state_folder, const std::string& files_path);

// What happened, in a line; "" when nothing did.
std::string RecoveryText(const recovered_designs& found);

}  // namespace mardel
