#include "codegen/design_reader.h"

#include <algorithm>

#include "platform/text.h"
#include "platform/xml.h"

namespace mardel {
namespace {

// Where the texts of a record's children go, by element name.
template <class record>
struct record_fields {
  struct integer {
    std::string_view name;
    std::int64_t record::* field;
  };
  struct text {
    std::string_view name;
    std::string record::* field;
  };
  struct shared_name {
    std::string_view name;
    shared_text record::* field;
  };
  std::span<const integer> integers;
  std::span<const text> texts;
  std::span<const shared_name> shared_names = {};
};

// Whether the child is one of the fields.
template <class record>
bool ReadField(record& into, xml_tree::node child, const record_fields<record>& fields,
               text_pool& names) {
  for (const auto& [name, field] : fields.integers) {
    if (child.Name() != name) continue;
    into.*field = ParseInteger(child.Text());
    return true;
  }
  for (const auto& [name, field] : fields.texts) {
    if (child.Name() != name) continue;
    into.*field = child.Text();
    return true;
  }
  for (const auto& [name, field] : fields.shared_names) {
    if (child.Name() != name) continue;
    into.*field = names.Share(child.Text());
    return true;
  }
  return false;
}

template <class record>
record ReadRecord(xml_tree::node element, const record_fields<record>& fields, text_pool& names) {
  record read;
  for (const xml_tree::node child : element.Children()) ReadField(read, child, fields, names);
  return read;
}

constexpr record_fields<pin>::integer kPinIntegers[] = {{"number", &pin::pin_num}};
constexpr record_fields<pin>::shared_name kPinNames[] = {{"name", &pin::pin_name}};

constexpr record_fields<param>::integer kParamIntegers[] = {{"number", &param::param_num}};
constexpr record_fields<param>::text kParamTexts[] = {{"value", &param::param_value}};
constexpr record_fields<param>::shared_name kParamNames[] = {{"name", &param::param_name}};

constexpr record_fields<dvblock>::integer kBlockIntegers[] = {
    {"id", &dvblock::id}, {"x", &dvblock::x}, {"y", &dvblock::y}};
constexpr record_fields<dvblock>::text kBlockTexts[] = {{"lib", &dvblock::lib},
                                                        {"sub", &dvblock::sub}};

constexpr record_fields<net>::integer kNetIntegers[] = {{"net_id", &net::net_id},
                                                        {"id_1", &net::id_1},
                                                        {"pin_1_num", &net::pin_1_num},
                                                        {"id_2", &net::id_2},
                                                        {"pin_2_num", &net::pin_2_num}};
constexpr record_fields<net>::text kNetTexts[] = {{"pin_1_name", &net::pin_1_name},
                                                  {"pin_2_name", &net::pin_2_name}};

constexpr record_fields<textblock>::integer kNoteIntegers[] = {
    {"text_id", &textblock::id}, {"x", &textblock::x}, {"y", &textblock::y}};
constexpr record_fields<textblock>::text kNoteTexts[] = {{"text_str", &textblock::text_str}};

std::size_t CountChildren(xml_tree::node of) {
  std::size_t count = 0;
  for ([[maybe_unused]] const xml_tree::node each : of.Children()) ++count;
  return count;
}

// Appends the entries of that name.
template <class record>
void ReadList(std::vector<record>& list, xml_tree::node from, std::string_view name,
              const record_fields<record>& fields, text_pool& names) {
  if (list.empty()) list.reserve(CountChildren(from));
  for (const xml_tree::node each : from.Children()) {
    if (each.Name() == name) list.push_back(ReadRecord<record>(each, fields, names));
  }
}

dvblock ReadBlock(xml_tree::node element, text_pool& names) {
  dvblock block;
  for (const xml_tree::node child : element.Children()) {
    if (ReadField<dvblock>(block, child, {kBlockIntegers, kBlockTexts}, names)) continue;
    if (child.Name() == "pins") {
      ReadList<pin>(block.pins, child, "pin", {kPinIntegers, {}, kPinNames}, names);
    } else if (child.Name() == "params") {
      ReadList<param>(block.params, child, "param", {kParamIntegers, kParamTexts, kParamNames},
                      names);
    }
  }
  return block;
}

textblock ReadNote(xml_tree::node element, std::string_view line_separator, text_pool& names) {
  textblock note = ReadRecord<textblock>(element, {kNoteIntegers, kNoteTexts}, names);
  note.text_str = ReplaceLineBreaks(note.text_str, line_separator);
  return note;
}

// In bytes, without texts. A block's share holds what is reported when no library has it.
std::size_t RoomOf(xml_tree::node entry) {
  constexpr std::size_t kRoomOfEntry = 256, kRoomOfBlock = 1024;
  if (entry.Name() != "dvblock") return kRoomOfEntry;
  std::size_t room = kRoomOfBlock;
  for (const xml_tree::node list : entry.Children()) room += CountChildren(list) * sizeof(pin);
  return room;
}

load_status StatusOf(xml_status read) {
  switch (read) {
    case xml_status::kRead:
      return load_status::kLoaded;
    case xml_status::kNotLoaded:
      return load_status::kNotLoaded;
    case xml_status::kMalformed:
      break;
  }
  return load_status::kMalformed;
}

class design_reader : public xml_list_reader {
 public:
  design_reader(raw_design& raw, std::size_t size, std::string_view line_separator)
      : raw_(raw), line_separator_(line_separator), room_(XmlRoom(size)) {}

  void OpenRoot(std::string_view name) override { raw_.root_name = name; }

  void OpenList(std::string_view name) override {
    list_ = name;
    raw_.has_lists = raw_.has_lists || name == "blocks" || name == "nets" || name == "text";
  }

  bool TakeEntry(xml_tree::node entry, std::size_t offset) override {
    const std::size_t needed = RoomOf(entry);
    if (needed > room_) return false;
    room_ -= needed;
    design& document = raw_.document;
    if (list_ == "blocks" && entry.Name() == "dvblock") {
      document.blocks.Append(ReadBlock(entry, names_));
      raw_.block_offsets.push_back(offset);
    } else if (list_ == "nets" && entry.Name() == "net") {
      document.nets.Append(ReadRecord<net>(entry, {kNetIntegers, kNetTexts}, names_));
      raw_.net_offsets.push_back(offset);
    } else if (list_ == "text" && entry.Name() == "text_item") {
      document.texts.Append(ReadNote(entry, line_separator_, names_));
    }
    return true;
  }

 private:
  raw_design& raw_;
  std::string_view line_separator_;
  std::size_t room_;  // in bytes, that is left
  std::string list_;
  text_pool names_;
};

}  // namespace

load_status ReadRawDesign(raw_design& raw, std::string_view bytes,
                          std::string_view line_separator) {
  design_reader reader(raw, bytes.size(), line_separator);
  return StatusOf(ReadXmlLists(bytes, reader));
}

}  // namespace mardel
