#include "app/configuration.h"

#include <gmock/gmock.h>

#include "tests/support/files.h"
#include "tests/support/scripted_ui.h"

namespace mardel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const host_folders kFolders{"/d/", "/a/", "/h/"};

// Each folder: in.con (none when the file is missing) and out.con, the file that is written after
// in.con was loaded over the defaults.
TEST(Configuration, LoadsAndSavesEachFixture) {
  for (const auto& folder : Fixtures("configuration")) {
    SCOPED_TRACE(folder);
    settings options = DefaultSettings(host_kind::kLinux, kFolders);
    scripted_ui desk;
    const std::string path = (folder / "in.con").string();
    LoadConfiguration(options, path, desk);
    EXPECT_EQ(ConfigurationText(options), ReadAll(folder / "out.con"));
    const std::string name = folder.filename().string();
    if (name == "malformed" || name == "no_bytes") {
      EXPECT_THAT(desk.calls, ElementsAre("message XML Error Parsing Config File: A XML parsing "
                                          "error occured while parsing " +
                                          path));
    } else {
      EXPECT_THAT(desk.calls, IsEmpty());
    }
    EXPECT_EQ(options.pre_exe, "DravikPreProc.exe");
    EXPECT_EQ(options.asm_exe, "DravikCmdAsm.exe");
  }
}

TEST(Configuration, DefaultsFollowTheHost) {
  const settings mac = DefaultSettings(host_kind::kMac, kFolders);
  EXPECT_EQ(mac.exec_path + mac.pre_exe + "," + mac.asm_exe,
            "/h/Dravik/DravikPreProc,DravikAsmMac");
  for (const host_kind host : {host_kind::kLinux, host_kind::kWindows, host_kind::kOther}) {
    const settings other = DefaultSettings(host, {});
    EXPECT_EQ(other.exec_path + other.pre_exe + "," + other.asm_exe,
              "Quillonworks/Dravik/DravikPreProc.exe,DravikCmdAsm.exe");
    EXPECT_EQ(other.files_path, "Dravik programs/");
    EXPECT_EQ(other.libraries_path, "Dravik programs/Libraries/");
  }
}

TEST(Configuration, CurrentFolderComesBeforeDocuments) {
  const scratch_folder here;
  const scratch_folder documents;
  const std::string without_slash = here.Path().substr(0, here.Path().size() - 1);
  const std::string fallback = documents.Path() + "Mardel.con";
  std::filesystem::create_directory(here.Path() + "Mardel.con");
  EXPECT_EQ(ConfigurationPath(without_slash, documents.Path()), fallback);  // a folder
  std::filesystem::remove(here.Path() + "Mardel.con");
  EXPECT_EQ(ConfigurationPath(without_slash, documents.Path()), fallback);
  WriteAll(here.Path() + "Mardel.con", "");
  EXPECT_EQ(ConfigurationPath(without_slash, documents.Path()), here.Path() + "Mardel.con");
  EXPECT_EQ(ConfigurationPath(here.Path(), documents.Path()), here.Path() + "Mardel.con");
  EXPECT_EQ(ConfigurationPath("", "/no/such/"), "/no/such/Mardel.con");
}

}  // namespace
}  // namespace mardel
