#include "platform/host.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>
#include <utility>

#include "platform/clock.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

// An environment variable for the length of a test.
class variable {
 public:
  variable(std::string name, const char* value) : name_(std::move(name)) {
    if (const char* before = std::getenv(name_.c_str())) before_ = before;
    setenv(name_.c_str(), value, 1);
  }
  variable(const variable&) = delete;
  variable& operator=(const variable&) = delete;
  ~variable() {
    unsetenv(name_.c_str());
    if (!before_.empty()) setenv(name_.c_str(), before_.c_str(), 1);
  }

 private:
  std::string name_, before_;
};

TEST(Host, KnowsItself) {
  EXPECT_EQ(SystemFamilyName(HostVersionCode()) == "Linux", HostKind() == host_kind::kLinux);
  EXPECT_FALSE(ProcessorBrand().empty());
}

TEST(Host, FoldersEndInASlashOrAreEmpty) {
  const variable user_folders("XDG_CONFIG_HOME", "/nowhere");
  const variable home("HOME", "/home/dörte");
  EXPECT_EQ(HostFolders().home, "/home/dörte/");
  EXPECT_EQ(HostFolders().documents, "/home/dörte/Documents/");
  EXPECT_EQ(HostFolders().applications, "/opt/");
  const scratch_folder configured;
  WriteAll(configured.Path() + "user-dirs.dirs",
           "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\r\nXDG_DOCUMENTS_DIR=\"\"\n");
  const variable listing("XDG_CONFIG_HOME", configured.Path().c_str());
  EXPECT_EQ(HostFolders().documents, "/home/dörte/Dokumente/");
  const variable no_home("HOME", "");
  EXPECT_EQ(HostFolders().home + HostFolders().documents, "");
}

std::time_t Seconds(const date_time& t) {
  std::tm fields{t.second, t.minute, t.hour, t.day, t.month - 1, t.year - 1900,
                 0,        0,        -1,     0,     nullptr};
  return std::mktime(&fields);
}

TEST(Clock, GivesLocalTimeUnlessABuildFixesIt) {
  const variable zone("TZ", "ABC-5:30");
  {
    const variable fixed("SOURCE_DATE_EPOCH", "1709210096");  // 2024-02-29 12:34:56 in UTC
    EXPECT_EQ(Seconds(Now()), 1709210096 - 5 * 3600 - 1800);
  }
  for (const char* no_time : {"", "x", "12x", "-1", " 1", "99999999999999999999"}) {
    const variable fixed("SOURCE_DATE_EPOCH", no_time);
    const std::time_t before = std::time(nullptr);
    const std::time_t now = Seconds(Now());
    EXPECT_TRUE(before <= now && now <= std::time(nullptr)) << no_time;
  }
}

}  // namespace
}  // namespace mardel
