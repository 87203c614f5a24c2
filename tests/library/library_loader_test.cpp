#include "library/library_loader.h"

#include <gtest/gtest.h>

#include "library/builtin_libraries.h"
#include "tests/library/description.h"
#include "tests/support/files.h"
#include "tests/support/scripted_ui.h"

namespace mardel {
namespace {

struct loading : registration {
  loading() {
    register_pool pool;
    BuildBuiltinLibraries(set, pool, builder, expert_mode::kOff);
    libraries.items.clear();
    next_id = 1000;
  }
  // From CONST on, which is current before the first file.
  std::string Outcome() const {
    std::string text = Describe(*this, 2);
    for (const blockdef& b : set.staged) text += "staged " + b.sub + '\n';
    for (const std::string& call : desk.calls) text += call + '\n';
    return text;
  }
  scripted_ui desk;
};

// A case's files are loaded by name, so that it has one outcome.
TEST(LibraryLoader, LoadsFixtures) {
  for (const auto& folder : Fixtures("libraries")) {
    loading run;
    for (const auto& file : Fixtures("libraries/" + folder.filename().string())) {
      if (file.extension() == ".txt") continue;
      LoadLibraryFile(run.set, run.builder, file.string(), run.desk);
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
  LoadLibraryFiles(run.set, run.builder, folder.Path(), run.desk);
  LoadLibraryFiles(run.set, run.builder, folder.Path() + "missing/", run.desk);
  LoadLibraryFile(run.set, run.builder, folder.Path() + "missing.dvl", run.desk);
  EXPECT_EQ(run.set.Libraries().size(), 4U);
  EXPECT_EQ(run.desk.calls,
            std::vector<std::string>{
                "message Error Loading Library: Library named One experienced a loading error."});
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
  LoadLibraryFiles(run.set, run.builder, folder.Path(), run.desk);
  EXPECT_EQ(run.set.Libraries().size(), 3U + 1 + 1000);
  EXPECT_EQ(run.libraries.items.size(), 1U + 1000);
  for (int id = 1000; id < 6000; ++id) {
    EXPECT_EQ(run.set.FindDefinition(id)->sub, "b" + std::to_string(id - 1000));
  }
  EXPECT_TRUE(run.desk.calls.empty());
}

}  // namespace
}  // namespace mardel
