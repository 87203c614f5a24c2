// What is left behind, moved and kept, as a listing of the folders.
#include "app/recovery.h"

#include <gmock/gmock.h>

#include <set>

#include "app/file_commands.h"
#include "app/history.h"
#include "platform/file_lock.h"
#include "tests/support/files.h"
#include "tests/support/fixed_metrics.h"
#include "tests/support/scripted_ui.h"

namespace mardel {
namespace {

namespace fs = std::filesystem;

// Files below the folder with their content, dates without digits.
std::set<std::string> Tree(const scratch_folder& folder) {
  std::set<std::string> found;
  for (const auto& each : fs::recursive_directory_iterator(folder.Path())) {
    std::string name = each.path().string().substr(folder.Path().size());
    if (const auto date = name.find(" 2"); date != std::string::npos)
      name.replace(date + 1, 19, "DATE");
    if (each.is_symlink()) found.insert(name + " -> " + fs::read_symlink(each).string());
    if (!each.is_symlink() && each.is_regular_file()) found.insert(name + " " + ReadAll(each));
  }
  return found;
}

void LeaveBehind(const scratch_folder& all, const std::string& path, const std::string& content) {
  const fs::path left = all.Path() + "recovery/" + path;
  fs::create_directories(left.parent_path());
  WriteAll(left, content);
}

TEST(Recovery, MovesWhatTheDeadLeftAndNothingElse) {
  const scratch_folder all;
  LeaveBehind(all, "1/Echo.mrd", "first");
  LeaveBehind(all, "1/.Echo.mrd.mardel-0.tmp", "torn");
  LeaveBehind(all, "2/Echo.mrd", "<damaged");
  LeaveBehind(all, "3/Live.mrd", "live");
  LeaveBehind(all, "4/lock", "");
  LeaveBehind(all, "5/Noise.mrd", "");
  LeaveBehind(all, "5/readme", "a user's");
  LeaveBehind(all, "6/lock", "");
  fs::create_symlink("/etc/hostname", all.Path() + "recovery/6/Link.mrd");
  // So that the second finds its name taken.
  for (const char* n : {"1", "2"}) {
    fs::last_write_time(all.Path() + "recovery/" + n + "/Echo.mrd", fs::file_time_type());
  }
  const file_lock live = LockFile(all.Path() + "recovery/3/lock", lock_target::kNewFile);

  const recovered_designs nowhere = RecoverDesigns(all.Path(), all.Path() + "recovery/5/readme/");
  EXPECT_EQ(nowhere.moved.size() + nowhere.in_use.size(), 1U);
  EXPECT_EQ(nowhere.stayed.size(), 3U);
  const recovered_designs found = RecoverDesigns(all.Path(), all.Path() + "files/");
  EXPECT_EQ(found.moved.size(), 3U);
  EXPECT_EQ(found.in_use.size(), 1U);
  std::set<std::string> tree = Tree(all);
  EXPECT_EQ(std::erase_if(tree, [](const auto& line) { return line.find("Echo") != line.npos; }),
            2U);
  EXPECT_THAT(tree,
              testing::ElementsAre("files/Recovered/Noise DATE.mrd ", "recovery/3/Live.mrd live",
                                   "recovery/3/lock ", "recovery/5/readme a user's",
                                   "recovery/6/Link.mrd -> /etc/hostname", "recovery/6/lock "));
  EXPECT_TRUE(RecoverDesigns(all.Path(), all.Path() + "files/").moved.empty());
}

struct kept_program {
  explicit kept_program(const std::string& state) : app({desk, metrics, runner, Now, state}) {}
  void Change(const std::string& text) {
    app.work.document.texts.Append({.text_str = text});
    app.work.document.unsaved_changes = true;
    CloseGroup(app.work.undo);
    app.copy.KeepNow(app.work);
  }
  scripted_ui desk;
  byte_metrics metrics;
  host_process_runner runner;
  program app;
};

TEST(UnsavedCopy, GoesWithTheChangesUnlessItIsTheOnlyOne) {
  const scratch_folder all;
  kept_program kept(all.Path());
  design& document = kept.app.work.document;
  const auto copies = [&] { return RecoverDesigns(all.Path(), all.Path()).in_use.size(); };
  kept.Change("a");
  EXPECT_EQ(copies(), 1U);
  EXPECT_FALSE(kept.app.copy.IsDue(kept.app.work));
  kept.desk.answers = {answer::kYes};
  New(kept.app);
  EXPECT_EQ(copies(), 0U);
  kept.Change("b");
  document.file_name = all.Path() + "b.mrd";
  Save(kept.app);
  EXPECT_EQ(copies(), 0U);
  kept.Change("c");
  document.file_name = all.Path() + "none/c.mrd";
  Save(kept.app);
  Save(kept.app);
  New(kept.app);
  EXPECT_EQ(RecoverDesigns(all.Path(), all.Path()).moved.size(), 1U);
  for (const char* change : {"d", "e"}) {
    fs::remove_all(all.Path() + "recovery");
    WriteAll(all.Path() + "recovery", "");
    kept.Change(change);
    EXPECT_TRUE(kept.app.copy.TakeFailure());
    EXPECT_FALSE(kept.app.copy.TakeFailure());
    fs::remove(all.Path() + "recovery");
    while (kept.app.copy.IsDue(kept.app.work)) kept.app.copy.Keep(kept.app.work);
    EXPECT_EQ(copies(), 1U);
  }
}

TEST(History, KeepsTheLastVersionsThatSavesReplaced) {
  const scratch_folder all;
  kept_program kept(all.Path());
  const std::string path = all.Path() + "a.mrd";
  kept.app.work.document.file_name = path;
  for (int save = 1; save <= 24; ++save) {
    kept.Change(std::to_string(save));
    Save(kept.app);
    if (save < 24) Save(kept.app);  // by habit: what it replaces is kept once
  }
  const std::vector<design_version> versions = Versions(all.Path(), path);
  ASSERT_EQ(versions.size(), 20U);
  EXPECT_EQ(versions.front().number, 23);
  EXPECT_EQ(versions.back().number, 4);
  EXPECT_THAT(ReadAll(versions.front().path), testing::HasSubstr(">23</text_str>"));
  EXPECT_THAT(ReadAll(versions.front().path), testing::Not(testing::HasSubstr(">24</text_str>")));

  // What is too large goes with all that is older.
  fs::resize_file(versions[1].path, kMostVersionBytes);
  kept.Change("25");
  Save(kept.app);
  ASSERT_EQ(Versions(all.Path(), path).size(), 2U);
  fs::resize_file(versions.front().path, kMostHistoryBytes);
  BoundHistory(all.Path());
  ASSERT_EQ(Versions(all.Path(), path).size(), 1U);
  EXPECT_EQ(Versions(all.Path(), path).front().number, 23);
}

}  // namespace
}  // namespace mardel
