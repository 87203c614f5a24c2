#include <gtest/gtest.h>

#include "codegen/design_check.h"
#include "tests/codegen/library_folder.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

// Each sample's source was worked out by hand.
TEST(Samples, OpenGenerateAndSaveToTheSameBytes) {
  const auto samples = std::filesystem::path(MARDEL_SOURCE_DIR) / "samples";
  for (const auto& folder : Fixtures("samples")) {
    SCOPED_TRACE(folder);
    const auto path = samples / (folder.filename().string() + ".mrd");
    library_folder run(samples / "Libraries");
    EXPECT_EQ(run.Load(path), load_status::kLoaded);
    EXPECT_EQ(DesignText(run.document), ReadAll(path));

    const scratch_folder out;
    run.Tell(CheckDesign(run.document, problem_search::kAll));
    EXPECT_EQ(run.messages, "");
    (void)run.Generate(out.Path() + "out.dvc");
    EXPECT_EQ(ReadAll(out.Path() + "out.dvc"), ReadAll(folder / "expected.dvc"));
  }
}

}  // namespace
}  // namespace mardel
