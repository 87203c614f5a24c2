#include "library/library_loader.h"

#include <gtest/gtest.h>

#include "app/reports.h"
#include "tests/library/description.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

struct loading {
  loading() {
    BuildBuiltinLibraries(so_far, expert_mode::kOff);
    so_far.next_id = 1000;
  }
  void LoadFile(const std::string& path) {
    if (const auto told = LoadLibraryFile(so_far, path)) reports.push_back(*told);
  }
  // From CONST on, which is current before the first file.
  std::string Outcome() const {
    std::string text = Describe(library_set(so_far.records), 2, 3);
    for (const blockdef& b : so_far.staged) text += "staged " + b.sub + '\n';
    for (const report& told : reports) text += "message " + ReportLine(told.text) + '\n';
    return text;
  }
  byte_metrics metrics;
  library_loading so_far{.metrics = metrics};
  std::vector<report> reports;
};

// A case's files are loaded by name, so that it has one outcome.
TEST(LibraryLoader, LoadsFixtures) {
  for (const auto& folder : Fixtures("libraries")) {
    loading run;
    for (const auto& file : Fixtures("libraries/" + folder.filename().string())) {
      if (file.extension() == ".txt") continue;
      run.LoadFile(file.string());
    }
    EXPECT_EQ(run.Outcome(), ReadAll(folder / "expected.txt")) << folder;
  }
}

TEST(LibraryLoader, LoadsTheLibraryFilesOfAFolder) {
  const scratch_folder folder;
  WriteAll(folder.Path() + "one.dvl", "<x><name>One</name></x>");
  WriteAll(folder.Path() + "two.txt", "<x><name>Two</name></x>");
  std::filesystem::create_directory(folder.Path() + "folder.dvl");
  std::filesystem::create_symlink(".", folder.Path() + "itself.dvl");
  loading run;
  EXPECT_TRUE(LoadLibraryFiles(run.so_far, folder.Path()).empty());
  EXPECT_TRUE(LoadLibraryFiles(run.so_far, folder.Path() + "missing/").empty());
  EXPECT_EQ(run.so_far.records.libraries.size(), 4U);
  const auto told = LoadLibraryFile(run.so_far, folder.Path() + "missing.dvl");
  EXPECT_EQ(ReportLine(told.value().text),
            "Error Loading Library: Library named One experienced a loading error.");
}

TEST(LibraryLoader, LoadsManyFilesAndManyBlocks) {
  const scratch_folder folder;
  std::string blocks;
  for (int i = 0; i < 5000; ++i) blocks += "<sub><name>b" + std::to_string(i) + "</name></sub>";
  WriteAll(folder.Path() + "big.dvl", "<x><name>Big</name>" + blocks + "</x>");
  for (int i = 0; i < 1000; ++i) {
    const std::string name = "Lib" + std::to_string(i);
    WriteAll(folder.Path() + name + ".dvl", "<x><name>" + name + "</name></x>");
  }
  loading run;
  EXPECT_TRUE(LoadLibraryFiles(run.so_far, folder.Path()).empty());
  const library_set set(run.so_far.records);
  EXPECT_EQ(set.Libraries().size(), 3U + 1 + 1000);
  EXPECT_EQ(set.Groups().size(), 3U + 1 + 1000);
  for (int id = 1000; id < 6000; ++id) {
    EXPECT_EQ(set.FindDefinition(id)->sub, "b" + std::to_string(id - 1000));
  }
}

}  // namespace
}  // namespace mardel
