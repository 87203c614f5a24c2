#include "editor/snapshot.h"

#include <array>
#include <charconv>
#include <concepts>
#include <optional>
#include <type_traits>
#include <utility>

#include "platform/text.h"
#include "platform/xml.h"

namespace mardel {

namespace {

template <class record, class wanted>
concept is = std::same_as<std::remove_const_t<record>, wanted>;

// The fields of each record once, for the writer and the reader, in the order of the text.
void VisitFields(is<pin> auto& p, auto& visit) {
  visit("pin_num", p.pin_num);
  visit("pin_name", p.pin_name);
  visit("pin_type", p.pin_type);
  visit("pin_side", p.pin_side);
  visit("pin_desc", p.pin_desc);
  visit("pin_x", p.pin_x);
  visit("pin_y", p.pin_y);
}

void VisitFields(is<param> auto& p, auto& visit) {
  visit("param_num", p.param_num);
  visit("param_name", p.param_name);
  visit("param_type", p.param_type);
  visit("param_value", p.param_value);
  visit("param_desc", p.param_desc);
}

void VisitFields(is<dvblock> auto& block, auto& visit) {
  visit("id", block.id);
  visit("lib", block.lib);
  visit("sub", block.sub);
  visit("selected", block.selected);
  visit("x", block.x);
  visit("y", block.y);
  visit("width", block.width);
  visit("height", block.height);
  visit.List("pins", "pin", block.pins);
  visit.List("params", "param", block.params);
}

void VisitFields(is<net> auto& wire, auto& visit) {
  visit("net_id", wire.net_id);
  visit("color", wire.color);
  visit("selected", wire.selected);
  visit("id_1", wire.id_1);
  visit("pin_1_num", wire.pin_1_num);
  visit("pin_1_name", wire.pin_1_name);
  visit("x_1", wire.x_1);
  visit("y_1", wire.y_1);
  visit("id_2", wire.id_2);
  visit("pin_2_num", wire.pin_2_num);
  visit("pin_2_name", wire.pin_2_name);
  visit("x_2", wire.x_2);
  visit("y_2", wire.y_2);
}

void VisitFields(is<textblock> auto& note, auto& visit) {
  visit("id", note.id);
  visit("selected", note.selected);
  visit("text_str", note.text_str);
  visit("x", note.x);
  visit("y", note.y);
  visit("width", note.width);
  visit("height", note.height);
}

class snapshot_writer {
 public:
  void operator()(std::string_view name, const std::string& text) {
    Open(name);
    AppendEscaped(text);
    Close(name);
  }
  void operator()(std::string_view name, std::integral auto number) {
    Open(name);
    std::array<char, 20> digits;  // enough for any 64-bit number with its sign
    const auto end =
        std::to_chars(digits.begin(), digits.end(), static_cast<std::int64_t>(number)).ptr;
    xml_.append(digits.begin(), end);
    Close(name);
  }
  template <class record>
  void List(std::string_view name, std::string_view of, const std::vector<record>& list) {
    Open(name);
    for (const record& each : list) Whole(of, each);
    Close(name);
  }
  void Whole(std::string_view name, const auto& record) {
    Open(name);
    VisitFields(record, *this);
    Close(name);
  }
  // The text so far; memory holds no more than its length.
  std::string Take() {
    xml_.shrink_to_fit();
    return std::move(xml_);
  }

 private:
  void Open(std::string_view name) { xml_.append(1, '<').append(name).append(1, '>'); }
  void Close(std::string_view name) { xml_.append("</").append(name).append(1, '>'); }
  // A reader of XML takes a bare carriage return for a line feed.
  void AppendEscaped(std::string_view text) {
    std::size_t start = 0;
    for (std::size_t end = 0; (end = text.find('\r', start)) != std::string_view::npos;) {
      xml_.append(EscapeXml(text.substr(start, end - start))).append("&#13;");
      start = end + 1;
    }
    xml_.append(EscapeXml(text.substr(start)));
  }

  std::string xml_;
};

// Takes what snapshot_writer wrote, in its order.
class snapshot_reader {
 public:
  explicit snapshot_reader(xml_tree::node record)
      : next_(record.Children().begin()), end_(record.Children().end()) {}

  void operator()(std::string_view name, std::string& text) {
    if (const auto field = Take(name)) text = field->Text();
  }
  void operator()(std::string_view name, shared_text& text) {
    if (const auto field = Take(name)) text = shared_text(field->Text());
  }
  template <std::integral integer>
  void operator()(std::string_view name, integer& number) {
    if (const auto field = Take(name)) number = static_cast<integer>(ParseInteger(field->Text()));
  }
  template <class record>
  void List(std::string_view name, std::string_view of, std::vector<record>& list) {
    const auto field = Take(name);
    if (!field) return;
    for (const xml_tree::node each : field->Children()) {
      is_good_ = is_good_ && each.Name() == of && ReadRecord(each, list.emplace_back());
    }
  }
  // Whether every field was there, and nothing else.
  bool IsRead() const { return is_good_ && next_ == end_; }

  template <class record>
  static bool ReadRecord(xml_tree::node from, record& into) {
    snapshot_reader reader(from);
    VisitFields(into, reader);
    return reader.IsRead();
  }

 private:
  std::optional<xml_tree::node> Take(std::string_view name) {
    is_good_ = is_good_ && next_ != end_ && (*next_).Name() == name;
    if (!is_good_) return std::nullopt;
    const xml_tree::node taken = *next_;
    ++next_;
    return taken;
  }

  xml_tree::children::iterator next_, end_;
  bool is_good_ = true;
};

std::string Write(std::string_view root, const auto& record) {
  snapshot_writer writer;
  writer.Whole(root, record);
  return writer.Take();
}

template <class record>
bool Read(std::string_view root, std::string_view xml, record& into) {
  const xml_result parsed = ParseXml(xml);
  if (parsed.status != xml_status::kRead || parsed.tree.Root().Name() != root) return false;
  record whole;
  if (!snapshot_reader::ReadRecord(parsed.tree.Root(), whole)) return false;
  into = std::move(whole);
  return true;
}

}  // namespace

std::string WriteSnapshot(const dvblock& block) {
  return Write("dvblock", block);
}
std::string WriteSnapshot(const net& wire) {
  return Write("net", wire);
}
std::string WriteSnapshot(const textblock& note) {
  return Write("textblock", note);
}

bool ReadSnapshot(std::string_view xml, dvblock& into) {
  return Read("dvblock", xml, into);
}
bool ReadSnapshot(std::string_view xml, net& into) {
  return Read("net", xml, into);
}
bool ReadSnapshot(std::string_view xml, textblock& into) {
  return Read("textblock", xml, into);
}

}  // namespace mardel
