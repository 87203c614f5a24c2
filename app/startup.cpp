#include "app/startup.h"

#include "app/configuration.h"
#include "library/builtin_libraries.h"
#include "library/library_loader.h"
#include "platform/files.h"

namespace mardel {

host_facts ThisHost() {
  return {HostKind(), HostFolders(), CurrentFolder()};
}

void ReadSettings(program& app, const host_facts& host) {
  const auto path = [&] { return ConfigurationPath(host.current_folder, host.folders.documents); };
  app.options = DefaultSettings(host.kind, host.folders);
  LoadConfiguration(app.options, path(), app.outside.desk);
  app.configuration_path = path();
}

std::vector<menu> BuildMenus(program& app, host_kind host) {
  int next_id = 1;
  std::vector<menu> bar{FileMenu(host, app.ids, next_id), EditMenu(host, app.ids, next_id),
                        menu{"Libraries", {}}};
  app.ids.first_library_id = next_id++;
  menu_builder builder{bar.back(), next_id, app.outside.metrics};
  BuildBuiltinLibraries(app.libraries, app.registers, builder, app.options.expert);
  LoadLibraryFiles(app.libraries, builder, app.options.libraries_path, app.outside.desk);
  app.ids.last_library_id = next_id++;
  bar.push_back(HelpMenu(host, app.ids, next_id));
  app.ids.escape = next_id++;
  return bar;
}

}  // namespace mardel
