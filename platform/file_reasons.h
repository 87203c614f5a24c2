// Why a file can't be used, in the system's words.
#pragma once

#include <string>

#include "platform/files.h"

namespace mardel {

// Looked up anew after an attempt that failed.
std::string ReadingFailure(const std::string& path);
std::string WritingFailure(const std::string& path, write_status how);
// Of a folder; "" when it can be listed.
std::string ListingFailure(const std::string& folder);
std::string StartingFailure(const std::string& program);

}  // namespace mardel
