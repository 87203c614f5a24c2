// A folder of files that appears whole or not at all.
#pragma once

#include <span>
#include <string>
#include <system_error>

namespace mardel {

struct new_file {
  std::string name;  // may lead into a folder of its own: "Libraries/fx.dvl"
  std::string content;
};

// Makes the folder, and those above it that are missing. Whatever stands at `path` already, were it
// a link that leads nowhere, is left as it is: std::errc::file_exists.
std::error_code MakeFolder(const std::string& path, std::span<const new_file> files);

}  // namespace mardel
