#include "app/about_box.h"

#include <gtest/gtest.h>

#include "tests/app/describe_window.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

TEST(AboutBox, IsThisTable) {
  const std::pair<int, std::string> systems[] = {
      {12000, "Apple Mac 12 Monterey"},
      {99999, "Apple Mac Unknown version"},
      {2000, "Linux Linux"},
      {15000, "Your guess is as good as mine Unknown version"}};
  for (const auto& [code, system] : systems) {
    EXPECT_EQ(Describe(AboutWindow(code, "Quick CPU")),
              "500x170\n"
              "0 image (30,0 60x87) [PNG]\n"
              "0 label (100,25 390x25) [Mardel - A GUI based development environment for the "
              "Dravik]\n"
              "0 label (100,50 320x25) [Version 2.1, (c) 2026 Quillonworks]\n"
              "0 label (100,75 320x25) [OS: " +
                  system +
                  "]\n"
                  "0 label (100,100 320x25) [CPU: Quick CPU]\n"
                  "1 default (210,130 100x25) [OK]");
  }
  EXPECT_EQ(AboutWindow(0, "").gadgets.front().text,
            ReadAll(std::filesystem::path(MARDEL_SOURCE_DIR) / "app/logo.png"));
}

}  // namespace
}  // namespace mardel
