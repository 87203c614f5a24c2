// Scratch folders, fixture folders and whole files for tests.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace mardel {

// A folder of its own for one test, removed with everything in it afterwards.
class scratch_folder {
 public:
  scratch_folder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "mardel-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no scratch folder");
    path_ = pattern + "/";
  }
  scratch_folder(const scratch_folder&) = delete;
  scratch_folder& operator=(const scratch_folder&) = delete;
  ~scratch_folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  const std::string& Path() const { return path_; }  // ends in "/"

 private:
  std::string path_;
};

inline std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("no file " + path.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

inline void WriteAll(const std::filesystem::path& path, std::string_view content) {
  std::ofstream out(path, std::ios::binary);
  out << content;
  if (!out) throw std::runtime_error("can't write " + path.string());
}

// The folders or files directly in tests/fixtures/`kind`, sorted by name; a test with no fixture
// fails.
inline std::vector<std::filesystem::path> Fixtures(const std::string& kind) {
  std::vector<std::filesystem::path> found;
  const std::filesystem::path folder =
      std::filesystem::path(MARDEL_SOURCE_DIR) / "tests/fixtures" / kind;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    found.push_back(entry.path());
  }
  std::sort(found.begin(), found.end());
  if (found.empty()) throw std::runtime_error("no fixtures in " + folder.string());
  return found;
}

}  // namespace mardel
