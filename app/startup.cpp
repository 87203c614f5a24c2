#include "app/startup.h"

#include <utility>

#include "app/configuration.h"
#include "app/reports.h"
#include "library/library_loader.h"
#include "platform/files.h"

namespace mardel {

host_facts ThisHost() {
  return {HostKind(), HostFolders(), CurrentFolder()};
}

configuration ReadConfiguration(const host_facts& host) {
  const auto path = [&] { return ConfigurationPath(host.current_folder, host.folders.documents); };
  configuration read{.options = DefaultSettings(host.kind, host.folders)};
  read.reports = LoadConfiguration(read.options, path());
  read.path = path();
  return read;
}

void ReadSettings(program& app, const host_facts& host) {
  const configuration read = ReadConfiguration(host);
  app.options = read.options;
  app.configuration_path = read.path;
  ShowReports(app.outside.desk, read.reports);
}

std::vector<report> FillLibraries(program& app) {
  loaded_libraries loaded = LoadLibraries(app.options.libraries_path, app.options.expert,
                                          app.ids.first_library_id + 1, app.outside.metrics);
  app.libraries = std::move(loaded.libraries);
  app.ids = MenuIds(loaded.next_id);
  return std::move(loaded.reports);
}

}  // namespace mardel
