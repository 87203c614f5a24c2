#include "codegen/design_file.h"

#include <gtest/gtest.h>

#include "tests/codegen/library_folder.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

std::string Describe(const design& document) {
  std::ostringstream out;
  out << document.next_block_id << ' ' << document.next_net_id << ' ' << document.next_text_id
      << '\n';
  for (const dvblock& b : document.blocks) {
    out << "block " << b.id << ' ' << b.lib << '.' << b.sub << " at " << b.x << ',' << b.y
        << " size " << DescribeContents(b) << '\n';
  }
  for (const net& w : document.nets) {
    out << "net " << w.net_id << " from " << w.id_1 << '.' << w.pin_1_name << '/' << w.pin_1_num
        << ' ' << w.x_1 << ',' << w.y_1 << " to " << w.id_2 << '.' << w.pin_2_name << '/'
        << w.pin_2_num << ' ' << w.x_2 << ',' << w.y_2 << '\n';
    if (w.color != kNetColour || w.selected) out << "highlighted\n";
  }
  for (const textblock& note : document.texts) {
    out << "note " << note.id << " at " << note.x << ',' << note.y << " size " << note.width << 'x'
        << note.height << " {" << note.text_str << "}\n";
  }
  return out.str();
}

// Fixtures hold a design (but for one, with none), libraries, what is loaded, and what is then
// saved.
TEST(DesignFile, LoadsAndSavesFixtures) {
  for (const auto& folder : Fixtures("designs")) {
    SCOPED_TRACE(folder);
    library_folder run(folder);
    const std::string path = folder / "design.mrd";
    const load_status status = run.Load(path);
    std::string outcome = run.messages;
    if (const auto at = outcome.find(path); at != std::string::npos) {
      outcome.replace(at, path.size(), "PATH");
    }
    EXPECT_EQ(outcome + "next ids " + Describe(run.document), ReadAll(folder / "expected.txt"));
    EXPECT_EQ(run.document.file_name, status == load_status::kLoaded ? path : "");
    EXPECT_FALSE(run.document.unsaved_changes);

    if (!std::filesystem::exists(folder / "saved.mrd")) continue;
    EXPECT_EQ(DesignText(run.document), ReadAll(folder / "saved.mrd"));
  }
}

TEST(DesignFile, GivesNotesTheLineBreaksOfTheHost) {
  const scratch_folder folder;
  WriteAll(folder.Path() + "a.mrd",
           "<d><text><text_item><text_str>a&#13;&#10;b&#13;c&#10;&#13;</text_str></text_item></"
           "text></d>");
  library_folder run(folder.Path());
  (void)run.Load(folder.Path() + "a.mrd", "\r\n");
  EXPECT_EQ(run.document.texts.Last().text_str, "a\r\nb\r\nc\r\n\r\n");
}

}  // namespace
}  // namespace mardel
