// Blocks, nets and notes as scripts tell of them.
#pragma once

#include <sstream>
#include <string>
#include <type_traits>

#include "editor/snapshot.h"
#include "platform/xml.h"
#include "tests/support/script.h"

namespace mardel {

inline void AddPin(dvblock& block, std::istream& in) {
  pin& added = block.pins.emplace_back();
  std::string name, type;
  char comma = 0;
  std::getline(in, name, ',');
  std::getline(in, type, ',');
  added.pin_name = name;
  added.pin_type = type;
  in >> added.pin_x >> comma >> added.pin_y;
}

inline void AddParam(dvblock& block, std::istream& in) {
  param& added = block.params.emplace_back();
  std::string name;
  std::getline(in, name, ',');
  added.param_name = name;
  std::getline(in, added.param_value);
}

// A new record but for the fields that words such as "x=5" give; a block also has the pins and
// parameters of the words "pin=NAME,TYPE,X,Y" and "param=NAME,VALUE".
template <class record>
record Told(record told, const arguments& words) {
  std::string xml = WriteSnapshot(told);
  dvblock lists;
  for (std::size_t i = 1; i < words.size(); ++i) {
    std::istringstream in(words[i]);
    std::string field;
    std::getline(in, field, '=');
    if (field == "pin" || field == "param") {
      (field == "pin" ? AddPin : AddParam)(lists, in);
      continue;
    }
    const std::size_t at = xml.find('<' + field + '>');
    if (at == std::string::npos) throw unknown_word(words[i]);
    const std::size_t start = at + field.size() + 2;
    const std::string value = EscapeXml(words[i].substr(field.size() + 1));
    xml.replace(start, xml.find('<', start) - start, Replaced(value, "\r", "&#13;"));
  }
  if (!ReadSnapshot(xml, told)) throw unknown_word(xml);
  if constexpr (std::is_same_v<record, dvblock>) {
    told.pins = lists.pins;
    told.params = lists.params;
  }
  return told;
}

// Hands the record that words such as "note x=5" tell of to `act`.
template <class action>
void WithRecord(const arguments& words, action act) {
  if (words[0] == "block") return act(Told(dvblock(), words));
  if (words[0] == "net") return act(Told(net(), words));
  if (words[0] == "note") return act(Told(textblock(), words));
  throw unknown_word(words[0]);
}

}  // namespace mardel
