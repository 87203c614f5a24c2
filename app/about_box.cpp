#include "app/about_box.h"

#include "app/logo.h"
#include "codegen/version.h"
#include "platform/host.h"

namespace mardel {

window AboutWindow(int system_version_code, const std::string& processor) {
  const std::string system =
      SystemFamilyName(system_version_code) + " " + SystemVersionName(system_version_code);
  constexpr gadget_kind kLabel = gadget_kind::kLabel;
  return {.title = "About Mardel",
          .width = 500,
          .height = 170,
          .gadgets = {
              {0, gadget_kind::kImage, {30, 0, 60, 87}, std::string(LogoPng())},
              {0,
               kLabel,
               {100, 25, 390, 25},
               "Mardel - A GUI based development environment for the Dravik"},
              {0,
               kLabel,
               {100, 50, 320, 25},
               "Version " + std::string(VersionText()) + ", (c) 2026 Quillonworks"},
              {0, kLabel, {100, 75, 320, 25}, "OS: " + system},
              {0, kLabel, {100, 100, 320, 25}, "CPU: " + processor},
              {1, gadget_kind::kDefaultButton, {210, 130, 100, 25}, "OK"},
          }};
}

// kept: only its button closes the box.
void OpenAbout(program& app) {
  open_windows& windows = app.work.windows;
  windows.Open(AboutWindow(HostVersionCode(), ProcessorBrand()),
               {.use = [&windows](const gadget_used& used) { windows.Close(used.window); }});
}

}  // namespace mardel
