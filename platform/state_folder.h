// The folder where the program keeps what is not the user's own file, and folders below it.
#pragma once

#include <cstddef>
#include <ctime>
#include <string>
#include <vector>

#include "platform/new_file.h"

namespace mardel {

// "mardel/" where this user's programs keep their state: below XDG_STATE_HOME, else below
// "~/.local/state/". "" when the system can't name it. It need not exist.
std::string StateFolder();

enum class folder_reader { kAnyone, kOwner };

// Makes the folder, which ends in "/", and those that lead to it; true when it is there then.
bool MakeFolders(const std::string& path, folder_reader reader);

// Makes one folder that only its owner reads.
new_file_status MakeNewFolder(const std::string& path);

// Names of the folders in `folder`, links left out.
std::vector<std::string> ListFolders(const std::string& folder);

// Removes a file or an empty folder. Where that can't be done it stays, and nothing is said.
void RemoveIfPossible(const std::string& path);

struct stored_file {
  std::string path;
  std::size_t size = 0;
  std::time_t stored = 0;  // when it came there, whatever date it bears
};

// Regular files in `folder` and in all folders below it, links left out; in no order.
std::vector<stored_file> FilesBelow(const std::string& folder);

}  // namespace mardel
