// Files that come under names of their own and replace nothing.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace mardel {

enum class new_file_status { kMade, kNameTaken, kFailed };

// Whole and on the disk, or not at all. A crash may leave a temporary, which the next such file
// removes, and an empty file where the file system has no rename that spares other files.
new_file_status WriteNewFile(const std::string& path, std::string_view content);

// Across disks the file is copied before it goes. When it fails, `from` is as it was.
new_file_status MoveFile(const std::string& from, const std::string& to);

struct file_facts {
  std::size_t size = 0;
  date_time written;  // last, local time
  bool is_own = false;
};

// Nothing when `path` is no regular file; links are not followed.
std::optional<file_facts> FactsOf(const std::string& path);

}  // namespace mardel
