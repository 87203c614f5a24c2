#include <unordered_set>

#include "codegen/findings/warnings.h"
#include "codegen/value_fate.h"
#include "platform/hash.h"

namespace mardel {
namespace {

template <class record, class function>
void WarnOfRepeatedIds(const cursor_list<record>& records, std::int64_t record::* id,
                       std::vector<report>& found, function warn) {
  std::unordered_set<std::int64_t, id_hash> seen;
  for (const record& each : records) {
    if (!seen.insert(each.*id).second) found.push_back(warn(each));
  }
}

report RepeatedId(const char* kind, std::int64_t id, const design_place& where) {
  return Warning(rule::kRepeatedId, "Id Warning",
                 "Used twice is the " + std::string(kind) + " id " + std::to_string(id), where);
}

}  // namespace

report Warning(rule kind, const char* title, std::string text, const design_place& where) {
  return {kind,
          severity::kWarning,
          {title, std::move(text), message_buttons::kOk, message_icon::kCaution},
          where};
}

std::string BlockName(const dvblock& block) {
  return "block " + std::to_string(block.id) + ", " + block.sub;
}

design_place PlaceOf(const dvblock& block) {
  return {.block_id = block.id, .at = point{block.x, block.y}};
}

design_place PlaceOf(const net& wire) {
  return {.net_id = wire.net_id, .at = point{wire.x_1, wire.y_1}};
}

std::vector<report> FileWarnings(const raw_design& raw) {
  std::vector<report> found;
  if (raw.root_name != "MardelDesign" || !raw.has_lists) {
    found.push_back(Warning(rule::kNoDesign, "File Warning",
                            raw.has_lists
                                ? "The file is no design: its root element is " + raw.root_name
                                : "The file is no design: it has none of blocks, nets and "
                                  "text",
                            {}));
  }
  return found;
}

std::vector<report> RepeatedIdWarnings(const design& document) {
  std::vector<report> found;
  WarnOfRepeatedIds(document.blocks, &dvblock::id, found, [](const dvblock& block) {
    return RepeatedId("block", block.id, PlaceOf(block));
  });
  WarnOfRepeatedIds(document.nets, &net::net_id, found, [](const net& wire) {
    return RepeatedId("net", wire.net_id, {.net_id = wire.net_id});
  });
  WarnOfRepeatedIds(document.texts, &textblock::id, found, [](const textblock& note) {
    return RepeatedId("note", note.id, {.at = point{note.x, note.y}});
  });
  return found;
}

// Values are saved raw: what a file can hold escaped may come back changed, or not at all.
std::vector<report> ValueWarnings(const design& document) {
  std::vector<report> found;
  for (const lost_value& each : LostValues(document)) {
    const bool breaks = each.fate == value_fate::kBreaksFile;
    found.push_back(Warning(
        breaks ? rule::kValueBreaksFile : rule::kValueChanges, "Value Warning",
        (breaks ? "Saved, \"" : "Saved and opened again, \"") + each.value +
            (breaks ? "\" makes the file unreadable on " : "\" changes on ") + OwnerName(each),
        each.block != nullptr ? PlaceOf(*each.block) : design_place{.net_id = each.wire->net_id}));
  }
  return found;
}

}  // namespace mardel
