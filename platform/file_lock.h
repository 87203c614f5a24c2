// A lock on a file, which ends with its process: it tells what is in use from what was left behind.
#pragma once

#include <string>

#include "platform/descriptor.h"

namespace mardel {

enum class lock_target { kNewFile, kAnyFile };

struct file_lock {
  descriptor file;                // open while the lock is held
  bool is_held_by_other = false;  // which is why it is not; of a new file, another was quicker
};

// Makes the file where it is missing. Fails, too, on file systems without locks, where a new file
// is asked for and one is there, and where `path` is a link.
file_lock LockFile(const std::string& path, lock_target target);

// Whether the lock was had; true, too, on file systems without locks.
bool LockOpenFile(const descriptor& file);

// False when another file has come under that name since.
bool IsNamed(const descriptor& file, const std::string& path);

}  // namespace mardel
