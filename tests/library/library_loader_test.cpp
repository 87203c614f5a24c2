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
  loading run;
  LoadLibraryFiles(run.set, run.builder, folder.Path(), run.desk);
  LoadLibraryFiles(run.set, run.builder, folder.Path() + "missing/", run.desk);
  LoadLibraryFile(run.set, run.builder, folder.Path() + "missing.dvl", run.desk);
  EXPECT_EQ(run.set.Libraries().size(), 4U);
  EXPECT_EQ(run.desk.calls,
            std::vector<std::string>{
                "message Error Loading Library: Library named One experienced a loading error."});
}

}  // namespace
}  // namespace mardel
