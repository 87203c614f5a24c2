#include "platform/xml.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/script.h"

namespace mardel {
namespace {

// name{text}, and after it the children in brackets
std::string Outline(const xml_tree::node& node) {
  std::string outline = std::string(node.Name()) + "{" + std::string(node.Text()) + "}";
  if (!node.HasChildren()) return outline;
  outline += "[";
  for (const xml_tree::node child : node.Children()) outline += Outline(child);
  return outline + "]";
}

std::string Repeat(const std::string& text, int count) {
  std::string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}

std::string Nested(int levels) {
  return Repeat("<a>", levels) + Repeat("</a>", levels);
}

// Each of `levels` entities stands for ten of the one before, the first for `core`.
std::string Entities(int levels, const std::string& core) {
  std::string document = "<!DOCTYPE r [<!ENTITY e0 \"" + core + "\">";
  for (int i = 1; i <= levels; ++i) {
    document += "<!ENTITY e" + std::to_string(i) + " \"" +
                Repeat("&e" + std::to_string(i - 1) + ";", 10) + "\">";
  }
  return document + "]><r>&e" + std::to_string(levels) + ";</r>";
}

TEST(Xml, ReadsWhatItsTableSays) {
  ExpectTable("xml.txt", {{"ParseXml", [](auto& a) {
                             const xml_result read = ParseXml(a.at(0));
                             const bool is_read = read.status == xml_status::kRead;
                             return is_read ? Outline(read.tree.Root()) : "malformed";
                           }}});
  const xml_result expanded = ParseXml(Entities(1, "x<b>y</b>"));
  EXPECT_EQ(Outline(expanded.tree.Root()), "r{xxxxxxxxxx}[" + Repeat("b{y}", 10) + "]");
}

// `count` entities, each of which stands for the one before, and what uses the last one.
std::string Chain(int count, const std::string& last, const std::string& use) {
  std::string document = "<!DOCTYPE r [<!ENTITY e0 'x'>";
  for (int i = 1; i < count; ++i) {
    const std::string name = i + 1 == count ? "last" : "e" + std::to_string(i);
    document += "<!ENTITY " + name + " '&e" + std::to_string(i - 1) + ";'>";
  }
  return document + last + "]>" + use;
}

TEST(Xml, RefusesWhatNeedsTooMuchTimeStackOrMemory) {
  const std::string attribute = "<!ATTLIST r a CDATA '&last;'>";
  const std::string large = "<!DOCTYPE r [<!ENTITY e '" + std::string(4'000'000, 'x') + "'>]><r>";
  const std::string full = "<!DOCTYPE r [<!ENTITY e '" + Repeat("<b/>", 7'000) + "'>]><r>";
  for (const auto& [expected, document] : std::vector<std::pair<xml_status, std::string>>{
           {xml_status::kRead, Nested(kMostXmlLevels)},
           {xml_status::kRead, Chain(63, attribute, "<r b='&last;'>&last;</r>")},
           {xml_status::kRead, large + "&e;</r>"},
           {xml_status::kRead, "<r>" + Repeat("<b/>     ", 100'000) + "</r>"},
           {xml_status::kRead, full + Repeat("&e;", 9) + "</r>"},
           {xml_status::kMalformed, Nested(kMostXmlLevels + 1)},
           {xml_status::kMalformed, Nested(1'000'000)},
           {xml_status::kMalformed, Entities(9, "lol")},
           {xml_status::kMalformed, Entities(3, Nested(kMostXmlLevels))},
           {xml_status::kMalformed, Chain(64, attribute, "<r/>")},
           {xml_status::kMalformed, Chain(100'000, "", "<r>&last;</r>")},
           {xml_status::kMalformed, large + "&e;&e;</r>"},
           {xml_status::kNotLoaded, full + Repeat("&e;", 10) + "</r>"},
           {xml_status::kNotLoaded, "<r>" + Repeat("<b/>", 100'000) + "</r>"}}) {
    EXPECT_EQ(ParseXml(document).status, expected) << document.substr(0, 100);
  }
}

TEST(Xml, TellsUnreadableFilesFromMalformedOnes) {
  const scratch_folder scratch;
  WriteAll(scratch.Path() + "good", "<a>1</a>");
  WriteAll(scratch.Path() + "empty", "");
  EXPECT_EQ(ReadXmlFile(scratch.Path() + "good").status, xml_status::kRead);
  EXPECT_EQ(ReadXmlFile(scratch.Path() + "empty").status, xml_status::kMalformed);
  EXPECT_EQ(ReadXmlFile(scratch.Path()).status, xml_status::kNotLoaded);
  EXPECT_EQ(ReadXmlFile(scratch.Path() + "missing").status, xml_status::kNotLoaded);
}

}  // namespace
}  // namespace mardel
