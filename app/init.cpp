#include "app/init.h"

#include <array>
#include <filesystem>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "app/configuration.h"
#include "app/headless_program.h"
#include "app/startup.h"
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

constexpr sample_kind kDesigns = {"", ".mrd"}, kLibraries = {"Libraries/", ".dvl"},
                      kConfiguration = {"", ".con"};

// All, or none when one can't be read.
std::vector<new_file> FilesIn(const std::string& samples, std::span<const sample_kind> kinds) {
  std::vector<new_file> files;
  for (const sample_kind& kind : kinds) {
    for (const std::string& name : ListFiles(samples + kind.folder, kind.ending)) {
      const std::string path = kind.folder + name;
      std::optional<std::string> content = ReadFile(samples + path);
      if (!content) return {};
      files.push_back({path, *std::move(content)});
    }
  }
  return files;
}

std::vector<new_file> SampleFiles(std::span<const sample_kind> kinds) {
  std::vector<new_file> files;
  const std::string here = ProgramFolder();
  if (here.empty()) return files;
  for (const char* samples : kSamples) {
    if (files.empty()) files = FilesIn(here + samples, kinds);
  }
  return files;
}

std::string ProgramsFolder() {
  return AbsolutePath(DefaultSettings(HostKind(), HostFolders()).files_path);
}

struct outcome {
  exit_status status = exit_status::kDone;
  std::string text;
};

outcome MakeSamples(const std::string& folder, std::span<const sample_kind> kinds) {
  const std::vector<new_file> files = SampleFiles(kinds);
  if (files.empty()) {
    return {exit_status::kFileOrToolMissing, "the samples beside the program can't be read"};
  }
  const std::error_code error = MakeFolder(folder, files);
  if (!error) {
    return {exit_status::kDone, "Made " + folder + " with the sample libraries and designs."};
  }
  if (error == std::errc::file_exists) {
    return {exit_status::kRefused, folder + " is there already, and is left as it is"};
  }
  return {exit_status::kFileOrToolMissing, folder + " can't be made: " + error.message()};
}

// The program looks there by itself. A configuration would only stand before the user's own for
// whoever starts the program in this folder.
outcome MakeProgramsFolder() {
  return MakeSamples(ProgramsFolder(), std::array{kDesigns, kLibraries});
}

exit_status Say(const outcome& made) {
  return made.status == exit_status::kDone ? WriteOut(made.text + "\n")
                                           : Fail(made.status, made.text);
}

bool IsFirstStart() {
  const host_facts host = ThisHost();
  if (host.folders.documents.empty()) return false;
  if (IsRegularFile(ConfigurationPath(host.current_folder, host.folders.documents))) return false;
  std::error_code unknown;
  return !std::filesystem::exists(std::filesystem::symlink_status(ProgramsFolder(), unknown));
}

}  // namespace

exit_status Run(const init_request& asked) {
  if (asked.folder.empty()) return Say(MakeProgramsFolder());
  return Say(
      MakeSamples(AbsolutePath(asked.folder), std::array{kDesigns, kLibraries, kConfiguration}));
}

std::string MakeSamplesOnce() {
  if (!IsFirstStart()) return "";
  const outcome made = MakeProgramsFolder();
  (void)Say(made);
  return made.text;
}

}  // namespace mardel
