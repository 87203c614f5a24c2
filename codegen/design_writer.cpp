#include <array>
#include <charconv>
#include <new>

#include "codegen/design_file.h"
#include "platform/xml.h"

namespace mardel {
namespace {

// Collects the file's lines. Tags come with their indentation and line ends.
class xml_lines {
 public:
  explicit xml_lines(std::size_t expected_size) { text_.reserve(expected_size); }
  void Tags(std::string_view tags) { text_ += tags; }
  void Value(std::string_view open, std::string_view value, std::string_view close) {
    text_ += open;
    text_ += value;
    text_ += close;
  }
  void Value(std::string_view open, std::int64_t value, std::string_view close) {
    std::array<char, 20> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), value);
    Value(open, std::string_view(digits.begin(), end.ptr), close);
  }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

void WritePin(xml_lines& lines, const pin& p) {
  lines.Tags("                <pin>\n");
  lines.Value("                    <name>", p.pin_name, "</name>\n");
  lines.Value("                    <number>", p.pin_num, "</number>\n");
  lines.Tags("                </pin>\n");
}

void WriteParam(xml_lines& lines, const param& p) {
  lines.Tags("                <param>\n");
  lines.Value("                    <name>", p.param_name, "</name>\n");
  lines.Value("                    <number>", p.param_num, "</number>\n");
  lines.Value("                    <value>", p.param_value, "</value>\n");
  lines.Tags("                </param>\n");
}

void WriteBlock(xml_lines& lines, const dvblock& block) {
  lines.Tags("        <dvblock>\n");
  lines.Value("            <id>", block.id, "</id>\n");
  lines.Value("            <lib>", block.lib, "</lib>\n");
  lines.Value("            <sub>", block.sub, "</sub>\n");
  lines.Value("            <x>", block.x, "</x>\n");
  lines.Value("            <y>", block.y, "</y>\n");
  lines.Tags("            <pins>\n");
  for (const pin& p : block.pins) WritePin(lines, p);
  lines.Tags("            </pins>\n");
  lines.Tags("            <params>\n");
  for (const param& p : block.params) WriteParam(lines, p);
  lines.Tags("            </params>\n");
  lines.Tags("        </dvblock>\n");
}

void WriteNet(xml_lines& lines, const net& wire) {
  lines.Tags("        <net>\n");
  lines.Value("            <net_id>", wire.net_id, "</net_id>\n");
  lines.Value("            <id_1>", wire.id_1, "</id_1>\n");
  lines.Value("            <pin_1_name>", wire.pin_1_name, "</pin_1_name>\n");
  lines.Value("            <pin_1_num>", wire.pin_1_num, "</pin_1_num>\n");
  lines.Value("            <id_2>", wire.id_2, "</id_2>\n");
  lines.Value("            <pin_2_name>", wire.pin_2_name, "</pin_2_name>\n");
  lines.Value("            <pin_2_num>", wire.pin_2_num, "</pin_2_num>\n");
  lines.Tags("        </net>\n");
}

void WriteNote(xml_lines& lines, const textblock& note) {
  lines.Tags("        <text_item>\n");
  lines.Value("            <text_id>", note.id, "</text_id>\n");
  lines.Value("            <x>", note.x, "</x>\n");
  lines.Value("            <y>", note.y, "</y>\n");
  lines.Value("            <text_str>", EscapeXml(note.text_str), "</text_str>\n");
  lines.Tags("        </text_item>\n");
}

// Room for what most designs need; what stays unused is never touched.
std::size_t ExpectedSize(const design& document) {
  constexpr std::size_t kBytesOfBlock = 1024, kBytesOfNet = 384, kBytesOfNote = 256;
  return kBytesOfBlock * document.blocks.size() + kBytesOfNet * document.nets.size() +
         kBytesOfNote * document.texts.size();
}

}  // namespace

std::string DesignText(const design& document) {
  xml_lines lines(ExpectedSize(document));
  lines.Tags("<MardelDesign>\n");
  lines.Tags("    <blocks>\n");
  for (const dvblock& block : document.blocks) WriteBlock(lines, block);
  lines.Tags("    </blocks>\n");
  lines.Tags("    <nets>\n");
  for (const net& wire : document.nets) WriteNet(lines, wire);
  lines.Tags("    </nets>\n");
  lines.Tags("    <text>\n");
  for (const textblock& note : document.texts) WriteNote(lines, note);
  lines.Tags("    </text>\n");
  lines.Tags("</MardelDesign>\n");
  return lines.Take();
}

write_status SaveDesign(const design& document, const std::string& path) try {
  const std::string text = DesignText(document);
  if (text.size() > kMostFileBytes) return write_status::kFailed;
  return ReplaceFile(path, text);
} catch (const std::bad_alloc&) {
  return write_status::kFailed;
}

}  // namespace mardel
