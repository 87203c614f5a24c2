// The small functions of the room, by the table of their results.
#include <cmath>

#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/path.h"
#include "platform/process.h"
#include "platform/qt/requester.h"
#include "platform/text.h"
#include "platform/xml.h"
#include "tests/support/script.h"

namespace mardel {
namespace {

std::string Bracketed(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += "[" + word + "]";
  return text;
}

int Number(const std::string& text) {
  return std::stoi(text);
}

std::string Filters(const std::string& patterns) {
  std::vector<std::string> filters;
  for (const QString& each : NameFilters(patterns)) filters.push_back(each.toStdString());
  return Bracketed(filters);
}

TEST(Functions, GiveWhatTheirTableSays) {
  const auto metrics = FixedTextMetrics();
  const auto rounded = [](double pixels) { return std::to_string(std::lround(pixels)); };
  const auto code = [](int number) { return std::to_string(number); };
  ExpectTable(
      "platform.txt",
      {{"ParseInteger", [](auto& a) { return std::to_string(ParseInteger(a.at(0))); }},
       {"UpperCase", [](auto& a) { return UpperCase(a.at(0)); }},
       {"ReplaceLineBreaks", [](auto& a) { return ReplaceLineBreaks(a.at(0), a.at(1)); }},
       {"DropUnstorable", [](auto& a) { return DropUnstorable(a.at(0)); }},
       {"CountCharacters", [](auto& a) { return std::to_string(CountCharacters(a.at(0))); }},
       {"CutMiddle", [](auto& a) { return CutMiddle(a.at(0), std::stoul(a.at(1))); }},
       {"EscapeXml", [](auto& a) { return EscapeXml(a.at(0)); }},
       {"FileName", [](auto& a) { return std::string(FileName(a.at(0))); }},
       {"SplitArguments", [](auto& a) { return Bracketed(SplitArguments(a.at(0))); }},
       {"NameFilters", [](auto& a) { return Filters(a.at(0)); }},
       {"Brand", [](auto& a) { return BrandFromProcessorInformation(a.at(0)); }},
       {"System",
        [](auto& a) {
          const int number = Number(a.at(0));
          return SystemFamilyName(number) + " " + SystemVersionName(number);
        }},
       {"Linux", [&](auto& a) { return code(LinuxVersionCode(Number(a.at(0)), Number(a.at(1)))); }},
       {"Mac", [&](auto& a) { return code(MacVersionCode(Number(a.at(0)), Number(a.at(1)))); }},
       {"Windows",
        [&](auto& a) {
          return code(WindowsVersionCode(Number(a.at(0)), Number(a.at(1)), Number(a.at(2))));
        }},
       {"Width", [&](auto& a) { return rounded(metrics->Width(a.at(0))); }},
       {"VisibleWidth", [&](auto& a) { return rounded(metrics->VisibleWidth(a.at(0))); }},
       {"ParagraphHeight",
        [&](auto& a) { return rounded(metrics->ParagraphHeight(a.at(0), Number(a.at(1)))); }}});
}

}  // namespace
}  // namespace mardel
