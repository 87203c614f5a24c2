#include "codegen/findings/raw_design.h"

#include <algorithm>

#include "codegen/design_reader.h"

namespace mardel {

std::optional<raw_design> ReadRawDesign(std::string_view bytes, std::string_view line_separator) {
  const xml_result read = ParseXml(bytes);
  if (read.status != xml_status::kRead) return std::nullopt;
  raw_design raw;
  const xml_tree::node root = read.tree.Root();
  raw.root_name = root.Name();
  if (!ReadDesign(raw.document, read.tree, line_separator)) return std::nullopt;
  for (const xml_tree::node list : root.Children()) {
    const std::string_view kind = list.Name();
    raw.has_lists = raw.has_lists || kind == "blocks" || kind == "nets" || kind == "text";
    for (const xml_tree::node entry : list.Children()) {
      const std::string_view name = entry.Name();
      if (kind == "blocks" && name == "dvblock") raw.block_offsets.push_back(entry.Offset());
      if (kind == "nets" && name == "net") raw.net_offsets.push_back(entry.Offset());
      if (kind == "text" && name == "text_item") raw.note_offsets.push_back(entry.Offset());
    }
  }
  return raw;
}

std::vector<std::int64_t> LinesOf(std::string_view bytes, const std::vector<std::size_t>& offsets) {
  std::vector<std::int64_t> lines;
  std::int64_t line = 1;
  std::size_t counted = 0;
  for (const std::size_t offset : offsets) {
    const std::size_t end = std::min(std::max(offset, counted), bytes.size());
    line += std::ranges::count(bytes.substr(counted, end - counted), '\n');
    lines.push_back(line);
    counted = end;
  }
  return lines;
}

}  // namespace mardel
