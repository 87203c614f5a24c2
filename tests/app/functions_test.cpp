// The small functions of the room, by the table of their results.
#include "app/command_line.h"
#include "app/configuration.h"
#include "tests/support/script.h"

namespace mardel {
namespace {

struct request_words {
  static std::string Warnings(warning_effect effect) {
    return effect == warning_effect::kRefuse ? " werror" : "";
  }
  static std::string Paths(const setting_paths& from) {
    return from.configuration.empty() && from.libraries.empty()
               ? ""
               : " by " + from.configuration + " and " + from.libraries;
  }
  static std::string Format(text_format format) {
    return format == text_format::kJson ? " json" : "";
  }
  std::string operator()(const explain_request& r) const {
    return "explain" + Format(r.format) + " " + r.design;
  }
  std::string operator()(const diff_request& r) const {
    return "diff" + Format(r.format) + " " + r.old_design + " " + r.new_design;
  }
  std::string operator()(const merge_request& r) const {
    return "merge " + r.base + " " + r.ours + " " + r.theirs;
  }
  std::string operator()(const window_request& r) const {
    return (r.at_start == samples::kMadeOnce ? "welcome " : "window ") + r.design;
  }
  std::string operator()(const generate_request& r) const {
    const std::string steps = r.steps == run_option::kPreprocess ? " preprocess"
                              : r.steps == run_option::kRun
                                  ? " program " + std::to_string(r.location)
                                  : "";
    return "generate " + r.output + steps + Warnings(r.warnings) + Paths(r.from) + " of " +
           r.design;
  }
  std::string operator()(const check_request& r) const {
    std::string text = "check" + Warnings(r.warnings) +
                       (r.format == report_format::kSarif ? " sarif" : "") + Paths(r.from);
    for (const std::string& name : r.designs) text += ' ' + name;
    return text;
  }
  std::string operator()(const render_request& r) const {
    std::ostringstream scale;
    scale << r.scale;
    return "render " + r.output + " scale " + scale.str() +
           (r.lines == grid::kShown ? " grid" : "") +
           (r.area == picture_area::kDrawn ? " crop" : "") +
           (r.format == picture_format::kPdf ? " pdf" : "") +
           (r.old_design.empty() ? "" : " since " + r.old_design) + " of " + r.design;
  }
  std::string operator()(const list_request& r) const { return "list " + r.library; }
  std::string operator()(const init_request& r) const { return "init " + r.folder; }
  std::string operator()(const recover_request& /*r*/) const { return "recover"; }
  std::string operator()(const history_request& r) const {
    return "history " + (r.number ? std::to_string(*r.number) + " of " : "") + r.design;
  }
  std::string operator()(const help_request& /*r*/) const { return "help"; }
  std::string operator()(const version_request& /*r*/) const { return "version"; }
  std::string operator()(const usage_error& r) const { return "error " + r.text; }
};

std::string Parse(const arguments& words) {
  return std::visit(request_words(), ParseCommandLine(words));
}

host_kind Host(const std::string& name) {
  static const std::map<std::string, host_kind> hosts{{"linux", host_kind::kLinux},
                                                      {"mac", host_kind::kMac},
                                                      {"windows", host_kind::kWindows},
                                                      {"other", host_kind::kOther}};
  return Named(hosts, name);
}

std::string Separator(const arguments& words) {
  return std::string(LineSeparator(Host(words[0])));
}

std::string Describe(const settings& s) {
  return s.files_path + ' ' + s.libraries_path + ' ' + s.exec_path + s.pre_exe + ' ' + s.asm_exe +
         ' ' + std::to_string(static_cast<int>(s.run_opt)) + " [" + s.dravik_i2c + ']' +
         (s.expert == expert_mode::kOn ? " expert" : "");
}

std::string Defaults(const arguments& words) {
  return Describe(DefaultSettings(Host(words[0]), {words[1], words[2], words[3]}));
}

// On Linux, with the folders /d/ and /a/.
std::string Configured(const arguments& words) {
  const scratch_folder folder;
  WriteAll(folder.Path() + "file", words[0]);
  settings read = DefaultSettings(host_kind::kLinux, {"/d/", "/a/", "/h/"});
  (void)LoadConfiguration(read, folder.Path() + "file");
  return Describe(read);
}

TEST(AppFunctions, GiveWhatTheirTableSays) {
  ExpectTable("app.txt", {{"Parse", Parse},
                          {"Defaults", Defaults},
                          {"Configured", Configured},
                          {"LineSeparator", Separator}});
}

// The file in the current folder comes before that in the documents.
TEST(ConfigurationPath, IsThatOfAFileIfThereIsOne) {
  const scratch_folder here;
  const std::string own = here.Path() + "Mardel.con";
  const std::string without_slash = here.Path().substr(0, here.Path().size() - 1);
  std::filesystem::create_directory(own);
  EXPECT_EQ(ConfigurationPath(without_slash, "/d/"), "/d/Mardel.con");
  std::filesystem::remove(own);
  EXPECT_EQ(ConfigurationPath(without_slash, "/d/"), "/d/Mardel.con");
  WriteAll(own, "");
  EXPECT_EQ(ConfigurationPath(without_slash, "/d/"), own);
  EXPECT_EQ(ConfigurationPath(here.Path(), "/d/"), own);
  EXPECT_EQ(ConfigurationPath("", "/no/such/"), "/no/such/Mardel.con");
}

}  // namespace
}  // namespace mardel
