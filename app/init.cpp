#include "app/init.h"

#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

#include "app/configuration.h"
#include "app/headless_program.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/new_folder.h"
#include "platform/path.h"

namespace mardel {
namespace {

// From the program's folder: as installed, in bin and libexec/mardel, and as built.
constexpr const char* kSamples[] = {"../share/mardel/samples/", "../../share/mardel/samples/",
                                    "../../samples/"};

struct sample_kind {
  const char* folder;
  const char* ending;
};

constexpr sample_kind kKinds[] = {{"", ".mrd"}, {"Libraries/", ".dvl"}, {"", ".con"}};

// All, or none when one can't be read.
std::vector<new_file> FilesIn(const std::string& samples) {
  std::vector<new_file> files;
  for (const sample_kind& kind : kKinds) {
    for (const std::string& name : ListFiles(samples + kind.folder, kind.ending)) {
      const std::string path = kind.folder + name;
      std::optional<std::string> content = ReadFile(samples + path);
      if (!content) return {};
      files.push_back({path, *std::move(content)});
    }
  }
  return files;
}

std::vector<new_file> SampleFiles() {
  std::vector<new_file> files;
  for (const char* samples : kSamples) {
    if (files.empty()) files = FilesIn(ProgramFolder() + samples);
  }
  return files;
}

std::string ProgramsFolder() {
  return AbsolutePath(DefaultSettings(HostKind(), HostFolders()).files_path);
}

}  // namespace

exit_status Run(const init_request& asked) {
  const std::string folder = asked.folder.empty() ? ProgramsFolder() : AbsolutePath(asked.folder);
  const std::vector<new_file> files = SampleFiles();
  if (files.empty()) {
    return Fail(exit_status::kFileOrToolMissing, "the samples beside the program can't be read");
  }
  const std::error_code error = MakeFolder(folder, files);
  if (!error) return WriteOut("Made " + folder + " with the sample libraries and designs.\n");
  if (error == std::errc::file_exists) {
    return Fail(exit_status::kRefused, folder + " is there already, and is left as it is");
  }
  return Fail(exit_status::kFileOrToolMissing, folder + " can't be made: " + error.message());
}

void MakeSamplesOnce() {
  std::error_code unknown;
  const auto standing = std::filesystem::symlink_status(ProgramsFolder(), unknown);
  if (!std::filesystem::exists(standing)) (void)Run(init_request{});
}

}  // namespace mardel
