// Settings: defaults by host, and the configuration file "Mardel.con".
#pragma once

#include <string>
#include <vector>

#include "codegen/settings.h"
#include "library/report.h"
#include "platform/host.h"

namespace mardel {

settings DefaultSettings(host_kind host, const host_folders& folders);

// The file in the current folder when there is one, else the one in the documents folder, whether
// it exists or not.
std::string ConfigurationPath(std::string current_folder, const std::string& documents);

// Applies the file's values one by one. A file that can't be read changes nothing; a malformed one
// changes nothing and is reported.
[[nodiscard]] std::vector<report> LoadConfiguration(settings& options, const std::string& path);

// kept: values are not escaped, so a path holding "<" or "&" makes a file that does not load again;
// users edit this file by hand and find their paths in it as they stand.
std::string ConfigurationText(const settings& options);

// A file that can't be written is not reported; the settings hold for the rest of the run.
void SaveConfiguration(const settings& options, const std::string& path);

}  // namespace mardel
