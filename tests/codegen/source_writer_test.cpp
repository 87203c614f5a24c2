#include "codegen/source_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "tests/codegen/library_folder.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

// The design of a fixture; that of "whole" unless another is named.
struct fixture_run : library_folder {
  explicit fixture_run(const std::filesystem::path& folder = WholeFixture())
      : library_folder(folder) {
    (void)Load(folder / "design.mrd");
  }
  static std::filesystem::path WholeFixture() {
    return std::filesystem::path(MARDEL_SOURCE_DIR) / "tests/fixtures/sources/whole";
  }
};

// Fixtures hold a design, libraries, the source, the source written again in the same run when that
// differs, and what was shown with the order of the blocks afterwards.
TEST(SourceWriter, WritesFixtures) {
  for (const auto& folder : Fixtures("sources")) {
    SCOPED_TRACE(folder);
    const scratch_folder out;
    const std::string path = out.Path() + "out.dvc";
    fixture_run run(folder);
    const source_result result = run.Generate(path);
    EXPECT_EQ(ReadAll(path), ReadAll(folder / "expected.dvc"));
    std::string outcome = run.messages + "blocks";
    for (const dvblock& block : run.document.blocks) outcome += ' ' + std::to_string(block.id);
    EXPECT_EQ(outcome + '\n', ReadAll(folder / "expected.txt"));
    EXPECT_EQ(result.status, write_status::kWritten);
    EXPECT_FALSE(run.document.unsaved_changes);
    if (!std::filesystem::exists(folder / "expected_again.dvc")) continue;
    (void)run.Generate(path);
    EXPECT_EQ(ReadAll(path), ReadAll(folder / "expected_again.dvc"));
  }
}

// Then the blocks are not sorted, and the preset registers can still be declared.
TEST(SourceWriter, ChangesNothingWhenNothingIsWritten) {
  const scratch_folder out;
  fixture_run run;
  const std::string missing = out.Path() + "missing/out.dvc";
  const source_result not_created = run.Generate(missing);
  EXPECT_EQ(not_created.status, write_status::kNotCreated);
  EXPECT_EQ(run.messages, "");
  EXPECT_EQ(run.document.blocks.begin()->id, 0);

  const std::string path = out.Path() + "out.dvc";
  WriteAll(path, "old");
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit tight{16, before.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &tight);
  const source_result failed = run.Generate(path);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(failed.status, write_status::kFailed);
  EXPECT_EQ(run.messages, "message Error Writing Source: Source named " + path +
                              " could not be written, the old file was kept.\n");
  EXPECT_EQ(ReadAll(path), "old");
  EXPECT_EQ(run.document.blocks.begin()->id, 0);

  (void)run.Generate(path);
  EXPECT_EQ(ReadAll(path), ReadAll(run.WholeFixture() / "expected.dvc"));
}

}  // namespace
}  // namespace mardel
