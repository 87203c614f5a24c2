#include "bench/inputs.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "bench/design_generator.h"

namespace mardel {
namespace {

constexpr int kLibraryFiles = 30, kBlocksInFile = 50;
constexpr const char* kLibraries = "Documents/Dravik programs/Libraries/";

std::string MakeHome(const std::string& path) {
  std::filesystem::create_directories(path + kLibraries);
  return path;
}

std::string MakeFolder() {
  std::string path = (std::filesystem::temp_directory_path() / "mardel-bench-XXXXXX").string();
  if (mkdtemp(path.data()) == nullptr) std::abort();
  return path + "/";
}

}  // namespace

inputs::inputs(const std::string& program, const std::string& sources)
    : program_(program),
      folder_(MakeFolder()),
      samples_home_(MakeHome(folder_ + "samples/")),
      libraries_home_(MakeHome(folder_ + "libraries/")),
      library_home_(MakeHome(folder_ + "library/")) {
  std::filesystem::copy(sources + "samples/Libraries", samples_home_ + kLibraries);
  std::filesystem::copy(sources + "samples/Echo.mrd", SampleDesign());
  for (int number = 0; number < kLibraryFiles; ++number) {
    const std::string name = "synth" + std::to_string(number) + ".dvl";
    std::ofstream(libraries_home_ + kLibraries + name) << LibraryText(number, kBlocksInFile);
  }
  std::filesystem::copy(libraries_home_ + kLibraries + "synth0.dvl", library_home_ + kLibraries);
  // What runs in this process sees the home with the generated libraries.
  setenv("HOME", libraries_home_.c_str(), 1);
  std::filesystem::current_path(folder_);
}

inputs::~inputs() {
  std::error_code ignored;
  std::filesystem::current_path("/", ignored);
  std::filesystem::remove_all(folder_, ignored);
}

std::string inputs::SampleDesign() const {
  return samples_home_ + "Echo.mrd";
}

design_program::design_program() : measures(FixedTextMetrics()), run(*measures) {}

void design_program::Generate(std::size_t blocks) {
  GenerateDesign(document, run.libraries, {.blocks = blocks});
}

}  // namespace mardel
