#include "app/configuration_dialog.h"

#include <vector>

#include "app/configuration.h"
#include "platform/path.h"

namespace mardel {
namespace {

enum gadget_id {
  kFilesPath = 1,
  kLibrariesPath,
  kExecPath,
  kRunFromRam,
  kPreprocessOnly,
  kSourceOnly,
  kI2cAddress,
  kOk,
  kCancel,
};

constexpr gadget_kind kLabel = gadget_kind::kLabel;
constexpr gadget_kind kRightLabel = gadget_kind::kRightLabel;
constexpr gadget_kind kTextField = gadget_kind::kTextField;
constexpr gadget_kind kOption = gadget_kind::kOption;

gadget_id RunGadget(run_option shown) {
  switch (shown) {
    case run_option::kRun:
      return kRunFromRam;
    case run_option::kPreprocess:
      return kPreprocessOnly;
    case run_option::kSourceOnly:
      break;
  }
  return kSourceOnly;
}

void Store(settings& options, const secondary_windows& desk, int number) {
  options.files_path = desk.GadgetText(number, kFilesPath);
  options.libraries_path = desk.GadgetText(number, kLibrariesPath);
  options.exec_path = desk.GadgetText(number, kExecPath);
  options.dravik_i2c = desk.GadgetText(number, kI2cAddress);
  options.run_opt = desk.GadgetChecked(number, kRunFromRam)       ? run_option::kRun
                    : desk.GadgetChecked(number, kPreprocessOnly) ? run_option::kPreprocess
                                                                  : run_option::kSourceOnly;
  EndFolderWithSlash(options.files_path);
  EndFolderWithSlash(options.libraries_path);
  EndFolderWithSlash(options.exec_path);
}

using gadgets = std::vector<gadget>;

gadgets FolderFields(const settings& options) {
  return {
      {0, kRightLabel, {80, 100, 70, 25}, "Files path:"},
      {kFilesPath,
       kTextField,
       {160, 100, 300, 25},
       options.files_path,
       "Path to where you store the Dravik and Mardel design files"},
      {0, kRightLabel, {70, 140, 80, 25}, "Library path:"},
      {kLibrariesPath,
       kTextField,
       {160, 140, 300, 25},
       options.libraries_path,
       "Path to the library files used in Mardel and preprocessor"},
      {0, kRightLabel, {80, 180, 70, 25}, "Exec path:"},
      {kExecPath,
       kTextField,
       {160, 180, 300, 25},
       options.exec_path,
       "Path to the preprocessor and assembler command line tools"},
  };
}

gadgets RunOptions(run_option chosen) {
  gadgets shown = {
      {0,
       kLabel,
       {30, 220, 480, 25},
       "What to do when you select \"Generate code/run from RAM\" in File menu:"},
      // kept: the missing blank in "ICPconnected" and the last blank of the second option.
      {kRunFromRam,
       kOption,
       {40, 240, 450, 25},
       "Dev board or ICPconnected so preprocess, assemble and run from RAM"},
      {kPreprocessOnly,
       kOption,
       {40, 260, 450, 25},
       "No dev board or ICP so just preprocess to generate .dvo file for assembler "},
      {kSourceOnly,
       kOption,
       {40, 280, 450, 25},
       "No dev board or ICP just save .dvc file for preprocessor"},
  };
  for (gadget& each : shown) each.checked = each.id == RunGadget(chosen);
  return shown;
}

gadgets AddressAndButtons(const std::string& address) {
  return {
      {0, kLabel, {20, 310, 250, 25}, "Dravik I2C address (hex leading 0x):"},
      {kI2cAddress, kTextField, {270, 307, 100, 25}, address},
      {kOk, gadget_kind::kDefaultButton, {120, 350, 100, 25}, "OK"},
      {kCancel, gadget_kind::kButton, {330, 350, 100, 25}, "Cancel"},
  };
}

}  // namespace

window ConfigurationWindow(const settings& options, const std::string& configuration_path) {
  window shown{.title = "Configuration",
               .width = 530,
               .height = 400,
               .gadgets = {
                   {0, kLabel, {165, 30, 200, 25}, "Configuration settings"},
                   {0, gadget_kind::kCentredLabel, {20, 60, 490, 25}, configuration_path},
               }};
  for (const gadgets& group : {FolderFields(options), RunOptions(options.run_opt),
                               AddressAndButtons(options.dravik_i2c)}) {
    shown.gadgets.insert(shown.gadgets.end(), group.begin(), group.end());
  }
  return shown;
}

void OpenConfiguration(program& app) {
  open_windows& windows = app.work.windows;
  const auto close = [&windows](int number) { windows.Close(number); };
  const auto use = [&app, close](const gadget_used& used) {
    if (used.gadget == kOk) {
      Store(app.options, app.outside.desk, used.window);
      SaveConfiguration(app.options, app.configuration_path);
    }
    if (used.gadget == kOk || used.gadget == kCancel) close(used.window);
  };
  windows.Open(ConfigurationWindow(app.options, app.configuration_path),
               {.use = use, .close = close});
}

}  // namespace mardel
