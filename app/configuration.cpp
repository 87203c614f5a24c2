#include "app/configuration.h"

#include <string_view>

#include "platform/files.h"
#include "platform/path.h"
#include "platform/text.h"
#include "platform/xml.h"

namespace mardel {
namespace {

constexpr const char* kFileName = "Mardel.con";

struct folder_element {
  const char* name;
  std::string settings::* value;
};

constexpr folder_element kFolders[] = {
    {"libraries_path", &settings::libraries_path},
    {"files_path", &settings::files_path},
    {"exec_path", &settings::exec_path},
};

void Apply(settings& options, std::string_view name, std::string_view text) {
  for (const folder_element& folder : kFolders) {
    if (name != folder.name) continue;
    options.*folder.value = text;
    EndFolderWithSlash(options.*folder.value);
  }
  if (name == "run_opt") options.run_opt = run_option{ParseInteger(text)};
  if (name == "i2c_addr") options.dravik_i2c = text;
  // kept: the element's presence is the switch, so even a "0" in it turns expert mode on.
  if (name == "expert_mode") options.expert = expert_mode::kOn;
}

std::string Line(const std::string& name, const std::string& value) {
  return "    <" + name + ">" + value + "</" + name + ">\n";
}

}  // namespace

settings DefaultSettings(host_kind host, const host_folders& folders) {
  settings options;
  options.files_path = folders.documents + "Dravik programs/";
  options.libraries_path = folders.documents + "Dravik programs/Libraries/";
  options.dravik_i2c = "0x30";
  if (host == host_kind::kMac) {
    options.exec_path = folders.home + "Dravik/";
    options.asm_exe = "DravikAsmMac";
    options.pre_exe = "DravikPreProc";
  } else {
    options.exec_path = folders.applications + "Quillonworks/Dravik/";
    options.asm_exe = "DravikCmdAsm.exe";
    options.pre_exe = "DravikPreProc.exe";
  }
  return options;
}

std::string ConfigurationPath(std::string current_folder, const std::string& documents) {
  if (current_folder.size() >= 2) EndFolderWithSlash(current_folder);
  const std::string here = current_folder + kFileName;
  return IsRegularFile(here) ? here : documents + kFileName;
}

std::vector<report> LoadConfiguration(settings& options, const std::string& path) {
  const xml_result read = ReadXmlFile(path);
  switch (read.status) {
    case xml_status::kNotLoaded:
      return {};
    case xml_status::kMalformed:
      return {{.kind = rule::kConfigurationMalformed,
               .text = {.title = "XML Error Parsing Config File",
                        .text = "A XML parsing error occured while parsing " + path}}};
    case xml_status::kRead:
      break;
  }
  for (const xml_tree::node element : read.tree.Root().Children()) {
    Apply(options, element.Name(), element.Text());
  }
  return {};
}

std::string ConfigurationText(const settings& options) {
  std::string text = "<MardelConfig>\n";
  for (const folder_element& folder : kFolders) text += Line(folder.name, options.*folder.value);
  text += Line("run_opt", std::to_string(static_cast<std::int64_t>(options.run_opt)));
  text += Line("i2c_addr", options.dravik_i2c);
  if (options.expert == expert_mode::kOn) text += Line("expert_mode", "");
  return text + "</MardelConfig>\n";
}

void SaveConfiguration(const settings& options, const std::string& path) {
  (void)ReplaceFile(path, ConfigurationText(options));
}

}  // namespace mardel
