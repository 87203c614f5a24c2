#include "platform/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "tests/support/files.h"

namespace mardel {
namespace {

namespace fs = std::filesystem;
using names = std::set<std::string>;
constexpr write_status kWritten = write_status::kWritten;
constexpr write_status kNotCreated = write_status::kNotCreated;
constexpr write_status kFailed = write_status::kFailed;

// What `save` gives in a child process, whose user and limits it may change and whose end it may
// be.
write_status InChild(const std::function<write_status()>& save) {
  const pid_t child = fork();
  if (child == 0) _exit(static_cast<int>(save()));
  int status = 0;
  waitpid(child, &status, 0);
  return static_cast<write_status>(WEXITSTATUS(status));
}

class files_test : public testing::Test {
 protected:
  files_test() { chmod(scratch.Path().c_str(), 0755); }
  ~files_test() override { umask(mask); }

  std::string In(const std::string& name) const { return scratch.Path() + name; }
  void Make(const std::string& name, mode_t mode, const std::string& content) const {
    WriteAll(In(name), content);
    chmod(In(name).c_str(), mode);
  }
  // What may have the name of a library or design and is no regular file.
  void MakeOddities() const {
    fs::create_directory(In("folder.x"));
    mkfifo(In("fifo.x").c_str(), 0666);
    fs::create_symlink("nowhere", In("dangling.x"));
    fs::create_symlink("loop.x", In("loop.x"));
    fs::create_symlink("folder.x", In("to_folder.x"));
  }
  names Names(const std::string& folder = "") const {
    names found;
    for (const auto& entry : fs::directory_iterator(In(folder))) {
      found.insert(entry.path().filename());
    }
    return found;
  }
  // As an ordinary user, whom permissions stop.
  write_status ReplaceAsNobody(const std::string& name, const std::string& content) const {
    constexpr uid_t kNobody = 65534;
    return InChild([&] {
      return setuid(kNobody) == 0 || geteuid() != 0 ? ReplaceFile(In(name), content) : kWritten;
    });
  }

  scratch_folder scratch;
  const mode_t mask = umask(022);
};

TEST_F(files_test, ReadsWholeRegularFilesOnly) {
  MakeOddities();
  const std::string content("a\0\r\n\xff", 5);
  Make("file", 0644, content);
  fs::create_symlink("file", In("link"));
  for (const char* name : {"largest", "too_large"}) Make(name, 0644, "");
  fs::resize_file(In("largest"), kMostFileBytes);
  fs::resize_file(In("too_large"), kMostFileBytes + 1);
  EXPECT_EQ(ReadFile(In("link")), content);
  EXPECT_EQ(ReadFile(In("largest")).value_or("").size(), kMostFileBytes);
  EXPECT_TRUE(ReadFile("/proc/self/stat").value_or("").size() > 10);  // its size is given as 0
  for (const char* name : {"too_large", "folder.x", "fifo.x", "dangling.x", "loop.x", "none", ""}) {
    EXPECT_FALSE(ReadFile(In(name))) << name;
  }
  EXPECT_FALSE(ReadFile("/dev/zero"));
}

TEST_F(files_test, ListsAllButFolders) {
  MakeOddities();
  for (const char* name : {"a.x", ".x", "b.X", "c.x.bak", "x"}) Make(name, 0, "");
  const std::vector<std::string> found = ListFiles(scratch.Path(), ".x");
  EXPECT_EQ(names(found.begin(), found.end()),
            (names{".x", "a.x", "dangling.x", "fifo.x", "loop.x"}));
  EXPECT_TRUE(ListFiles(In("missing/"), "").empty() && ListFiles(In("a.x"), "").empty());
}

TEST_F(files_test, ReplacesAndKeepsPermissionsAndLinks) {
  fs::create_directory(In("sub"));
  Make("old", 0640, "a longer old content");
  fs::create_symlink("../old", In("sub/one"));
  fs::create_symlink("sub/one", In("two"));
  fs::create_symlink(In("sub/made"), In("dangling"));
  for (const char* name : {"new", "two", "dangling"}) {
    EXPECT_EQ(ReplaceFile(In(name), name), kWritten);
  }
  EXPECT_EQ(ReadAll(In("new")) + ReadAll(In("old")) + ReadAll(In("sub/made")), "newtwodangling");
  EXPECT_EQ(fs::status(In("new")).permissions(), fs::perms(0644));
  EXPECT_EQ(fs::status(In("old")).permissions(), fs::perms(0640));
  EXPECT_TRUE(fs::is_symlink(In("two")) && fs::is_symlink(In("sub/one")));
  EXPECT_EQ(Names(), (names{"dangling", "new", "old", "sub", "two"}));
  EXPECT_EQ(Names("sub"), (names{"made", "one"}));
}

TEST_F(files_test, NamesOfEveryLengthCanBeSaved) {
  std::string euros;
  while (euros.size() < 255) euros += "€";
  const names all = {std::string(255, 'n'), "n", euros};
  for (const std::string& name : all) EXPECT_EQ(ReplaceFile(In(name), "x"), kWritten) << name;
  EXPECT_EQ(ReplaceFile(In(std::string(256, 'n')), "x"), kNotCreated);
  EXPECT_EQ(Names(), all);
}

TEST_F(files_test, CreatesNothingWhereNoFileCanStand) {
  MakeOddities();
  fs::create_symlink("gone/file", In("to_gone.x"));
  const names before = Names();
  for (const char* name : {"folder.x", "fifo.x", "loop.x", "to_folder.x", "to_gone.x", "gone/file",
                           "fifo.x/file", "folder.x/", "gone/", ""}) {
    EXPECT_EQ(ReplaceFile(In(name), "x"), kNotCreated) << name;
  }
  EXPECT_EQ(ReplaceFile("", "x"), kNotCreated);
  EXPECT_EQ(Names(), before);
}

TEST_F(files_test, WritesInPlaceWhereTheFolderTakesNoFile) {
  for (const char* folder : {"closed", "sticky"}) {
    fs::create_directory(In(folder));
    Make(folder + std::string("/open"), 0666, "old and long");
    Make(folder + std::string("/protected"), 0444, "old");
  }
  chmod(In("closed").c_str(), 0555);
  chmod(In("sticky").c_str(), 01777);  // takes new files, but only owners replace theirs
  for (const char* name : {"closed/open", "sticky/open"}) {
    EXPECT_EQ(ReplaceAsNobody(name, "new"), kWritten) << name;
    EXPECT_EQ(ReadAll(In(name)), "new");
  }
  for (const char* name : {"closed/none", "closed/protected", "sticky/protected"}) {
    EXPECT_EQ(ReplaceAsNobody(name, "new"), kNotCreated) << name;
  }
  EXPECT_EQ(Names("closed"), (names{"open", "protected"}));
  EXPECT_EQ(Names("sticky"), (names{"open", "protected"}));
}

// A file-size limit stands for a full disk: both end a write in its middle.
TEST_F(files_test, AFullDiskCostsNothing) {
  const std::string old(60'000, 'o');
  fs::create_directory(In("closed"));
  for (const char* name : {"old", "closed/old"}) Make(name, 0666, old);
  chmod(In("closed").c_str(), 0555);
  for (const rlim_t most : {70'000U, 1'000U}) {
    for (const char* name : {"old", "new", "closed/old"}) {
      const auto save = [&] {
        const rlimit limit{most, most};
        setrlimit(RLIMIT_FSIZE, &limit);
        return ReplaceAsNobody(name, std::string(100'000, 'n'));
      };
      chmod(scratch.Path().c_str(), 0777);
      EXPECT_EQ(InChild(save), kFailed) << name;
    }
  }
  EXPECT_TRUE(ReadAll(In("old")) == old && ReadAll(In("closed/old")) == old);
  EXPECT_EQ(Names(), (names{"closed", "old"}));
}

TEST_F(files_test, TheNextSaveRemovesDeadTemporariesAndNoLiveOnes) {
  for (const char* name : {".file.mardel-0.tmp", ".file.mardel-1.tmp"}) Make(name, 0600, "part");
  const int live = open(In(".file.mardel-0.tmp").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(flock(live, LOCK_EX | LOCK_NB), 0);
  EXPECT_EQ(ReplaceFile(In("file"), "1"), kWritten);
  EXPECT_EQ(ReadAll(In(".file.mardel-0.tmp")) + ReadAll(In("file")), "part1");
  EXPECT_EQ(Names(), (names{".file.mardel-0.tmp", "file"}));
  close(live);
  EXPECT_EQ(ReplaceFile(In("file"), "2"), kWritten);
  EXPECT_EQ(Names(), names{"file"});
}

}  // namespace
}  // namespace mardel
