// Configuration files: loading, and saving what was loaded.
#include "app/configuration.h"

#include "fuzz/target.h"

namespace mardel {
namespace {

settings Load(std::string_view text) {
  settings options = DefaultSettings(host_kind::kLinux, {"/d/", "/a/", "/h/"});
  (void)LoadConfiguration(options, memory_file(text).Path());
  return options;
}

// Whether saving and loading gives the same settings, which such values prevent.
bool IsStorable(const settings& options) {
  const std::string values = options.files_path + ' ' + options.libraries_path + ' ' +
                             options.exec_path + ' ' + options.dravik_i2c;
  return values.find_first_of("<&\r") == std::string::npos &&
         values.find("]]>") == std::string::npos;
}

}  // namespace

void TryInput(std::string_view input) {
  const settings options = Load(input);
  for (const std::string& folder :
       {options.files_path, options.libraries_path, options.exec_path}) {
    Require(folder.ends_with('/'), "a folder ends in a slash");
  }
  const std::string saved = ConfigurationText(options);
  if (!IsStorable(options)) return;
  Require(ConfigurationText(Load(saved)) == saved, "what was saved is loaded and saved the same");
}

}  // namespace mardel
