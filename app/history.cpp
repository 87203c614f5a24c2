#include "app/history.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "codegen/design_file.h"
#include "platform/files.h"
#include "platform/path.h"
#include "platform/state_folder.h"

namespace mardel {
namespace {

std::string VersionsFolder(const std::string& state_folder, const std::string& design) {
  const std::filesystem::path absolute = AbsolutePath(design);
  std::error_code unknown;
  std::filesystem::path path = std::filesystem::weakly_canonical(absolute, unknown);
  if (unknown) path = absolute;
  return state_folder + "history/" + path.relative_path().string() + "/";
}

// 0 when it is none of ours.
int NumberOf(std::string_view name) {
  if (!name.ends_with(kDesignSuffix)) return 0;
  name.remove_suffix(kDesignSuffix.size());
  int number = 0;
  const auto [end, problem] = std::from_chars(name.data(), name.data() + name.size(), number);
  constexpr int kMost = 1'000'000'000;
  const bool is_number = problem == std::errc() && end == name.data() + name.size();
  return is_number && number <= kMost ? number : 0;
}

std::string PathOf(const std::string& folder, int number) {
  return folder + std::to_string(number) + std::string(kDesignSuffix);
}

void DropOldest(const std::string& state_folder, const std::string& design) {
  std::size_t count = 0, bytes = 0;
  for (const design_version& each : Versions(state_folder, design)) {
    ++count;
    bytes += each.facts.size;
    if (count > 1 && (count > kMostVersions || bytes > kMostVersionBytes))
      RemoveIfPossible(each.path);
  }
}

}  // namespace

std::vector<design_version> Versions(const std::string& state_folder, const std::string& design) {
  if (state_folder.empty()) return {};
  const std::string folder = VersionsFolder(state_folder, design);
  std::vector<design_version> found;
  for (const std::string& name : ListFiles(folder, kDesignSuffix)) {
    const int number = NumberOf(name);
    const std::optional<file_facts> facts = FactsOf(folder + name);
    // A crash may have left an empty one.
    if (number > 0 && facts && facts->size > 0) found.push_back({number, *facts, folder + name});
  }
  std::ranges::sort(found, std::ranges::greater(), &design_version::number);
  return found;
}

void KeepVersion(const std::string& state_folder, const std::string& design) {
  if (state_folder.empty()) return;
  const std::optional<std::string> bytes = ReadFile(design);
  if (!bytes || bytes->empty()) return;
  const std::vector<design_version> kept = Versions(state_folder, design);
  if (!kept.empty() && kept.front().facts.size == bytes->size() &&
      ReadFile(kept.front().path) == bytes) {
    return;
  }
  const std::string folder = VersionsFolder(state_folder, design);
  if (!MakeFolders(folder, folder_reader::kOwner)) return;
  int number = kept.empty() ? 1 : kept.front().number + 1;
  // Another program may be saving the same design.
  while (WriteNewFile(PathOf(folder, number), *bytes) == new_file_status::kNameTaken) ++number;
  std::error_code unknown;
  const auto saved = std::filesystem::last_write_time(design, unknown);
  if (!unknown) std::filesystem::last_write_time(PathOf(folder, number), saved, unknown);
  DropOldest(state_folder, design);
}

void BoundHistory(const std::string& state_folder) {
  if (state_folder.empty()) return;
  std::vector<stored_file> files = FilesBelow(state_folder + "history/");
  std::ranges::sort(files, std::ranges::greater(), &stored_file::stored);
  std::size_t bytes = 0;
  for (const stored_file& each : files) {
    if (NumberOf(FileName(each.path)) == 0) continue;  // none of ours
    bytes += each.size;
    if (bytes > kMostHistoryBytes) RemoveIfPossible(each.path);
  }
}

}  // namespace mardel
