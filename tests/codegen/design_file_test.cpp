#include "codegen/design_file.h"

#include <gmock/gmock.h>
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
    run.document.blocks.Append(dvblock());
    run.document.next_block_id = run.document.next_net_id = 1000;
    const std::string path = folder / "design.mrd";
    const load_result result = run.Load(path);
    std::string outcome = run.Calls();
    if (const auto at = outcome.find(path); at != std::string::npos) {
      outcome.replace(at, path.size(), "PATH");
    }
    outcome += std::to_string(result.missing_blocks) + " missing, next ids ";
    EXPECT_EQ(outcome + Describe(run.document), ReadAll(folder / "expected.txt"));
    EXPECT_EQ(run.document.file_name, result.status == load_status::kLoaded ? path : "");
    EXPECT_FALSE(run.document.unsaved_changes);

    if (!std::filesystem::exists(folder / "saved.mrd")) continue;
    EXPECT_EQ(DesignText(run.document), ReadAll(folder / "saved.mrd"));
  }
}

// Stands for the canvas, which the user sees behind a message box.
struct onlooker : scripted_ui {
  explicit onlooker(const design& seen_through) : document(seen_through) {}
  answer ShowMessage(const message& shown) override {
    seen.push_back(Describe(document));
    return scripted_ui::ShowMessage(shown);
  }
  const design& document;
  std::vector<std::string> seen;
};

TEST(DesignFile, IsWholeBeforeItSaysWhatIsMissing) {
  for (const auto& folder : Fixtures("designs")) {
    library_folder run(folder);
    onlooker user(run.document);
    const load_result result =
        LoadDesign(run.document, folder / "design.mrd", {run.set, run.metrics, "\n", user});
    if (result.status != load_status::kLoaded) continue;
    EXPECT_EQ(std::ssize(user.seen), result.missing_blocks) << folder;
    EXPECT_THAT(user.seen, testing::Each(Describe(run.document))) << folder;
  }
}

TEST(DesignFile, GivesNotesTheLineBreaksOfTheHost) {
  const scratch_folder folder;
  WriteAll(folder.Path() + "a.mrd",
           "<d><text><text_item><text_str>a&#13;&#10;b&#13;c&#10;&#13;</text_str></text_item></"
           "text></d>");
  library_folder run(folder.Path());
  LoadDesign(run.document, folder.Path() + "a.mrd", {run.set, run.metrics, "\r\n", run.desk});
  EXPECT_EQ(run.document.texts.Last().text_str, "a\r\nb\r\nc\r\n\r\n");
}

}  // namespace
}  // namespace mardel
