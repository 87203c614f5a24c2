#include <compare>
#include <map>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "codegen/compare/design_match.h"
#include "codegen/compare/digest.h"
#include "codegen/compare/merge_records.h"

namespace mardel {
namespace {

// A block of another name took the id after the one of the base was deleted.
bool IsSame(const dvblock& base, const dvblock& side) {
  return base.sub == side.sub;
}
bool IsSame(const textblock& /*base*/, const textblock& /*side*/) {
  return true;
}

// What a side has of each record of the base, by id, and what else it has.
template <class record>
struct side_records {
  std::vector<const record*> of_base, added;
};

template <class record>
side_records<record> Align(const cursor_list<record>& base, const cursor_list<record>& side) {
  std::unordered_map<std::int64_t, std::vector<const record*>, id_hash> by_id;
  for (const record& each : side) by_id[each.id].push_back(&each);
  side_records<record> found;
  std::unordered_set<const record*> known;
  for (const record& each : base) {
    const record*& partner = found.of_base.emplace_back();
    const auto same_id = by_id.find(each.id);
    if (same_id == by_id.end()) continue;
    for (const record* candidate : same_id->second) {
      if (!IsSame(each, *candidate) || !known.insert(candidate).second) continue;
      partner = candidate;
      break;
    }
  }
  for (const record& each : side) {
    if (!known.contains(&each)) found.added.push_back(&each);
  }
  return found;
}

// `key` gives what both sides' additions must have in common to be one; 0 is never common.
template <class record, class function>
std::vector<versions_of<record>> AlignAll(const cursor_list<record>& base,
                                          const side_records<record>& ours,
                                          const side_records<record>& theirs, function key) {
  std::vector<versions_of<record>> all;
  for (const record& each : base) {
    all.push_back({&each, ours.of_base[all.size()], theirs.of_base[all.size()]});
  }
  std::unordered_map<std::uint64_t, std::size_t> added_by_ours;
  for (const record* added : ours.added) {
    added_by_ours.emplace(key(*added), all.size());
    all.push_back({nullptr, added, nullptr});
  }
  for (const record* added : theirs.added) {
    const std::uint64_t common = key(*added);
    const auto found = added_by_ours.find(common);
    if (common == 0 || found == added_by_ours.end() || all[found->second].theirs != nullptr) {
      all.push_back({nullptr, nullptr, added});
    } else {
      all[found->second].theirs = added;
    }
  }
  return all;
}

struct wire_end {
  std::size_t block = kNoBlock;
  std::int64_t id = 0;  // of an end on no block
  std::string_view pin_name;
  auto operator<=>(const wire_end&) const = default;
};

using wire_ends = std::pair<wire_end, wire_end>;  // in order

// The nets of one version after the other. Wires side by side are aligned one by one.
class net_aligner {
 public:
  explicit net_aligner(const std::vector<versions_of<dvblock>>& blocks) : blocks_(blocks) {}

  void Add(const design& version, std::size_t place) {
    constexpr std::array kBlocks = {&versions_of<dvblock>::base, &versions_of<dvblock>::ours,
                                    &versions_of<dvblock>::theirs};
    constexpr std::array kNets = {&versions_of<net>::base, &versions_of<net>::ours,
                                  &versions_of<net>::theirs};
    std::unordered_map<const dvblock*, std::size_t> positions;
    for (std::size_t i = 0; i < blocks_.size(); ++i) positions[blocks_[i].*kBlocks.at(place)] = i;
    const blocks_by_id by_id = IndexBlocks(version.blocks);
    const auto end = [&](std::int64_t id, std::string_view pin_name) {
      const auto found = by_id.find(id);
      return found == by_id.end() ? wire_end{kNoBlock, id, pin_name}
                                  : wire_end{positions.at(found->second), 0, pin_name};
    };
    for (const net& wire : version.nets) {
      wire_ends ends{end(wire.id_1, wire.pin_1_name), end(wire.id_2, wire.pin_2_name)};
      const bool is_turned = ends.second < ends.first;
      if (is_turned) std::swap(ends.first, ends.second);
      aligned_net& into = FindOrAdd(ends, place);
      into.one.*kNets.at(place) = &wire;
      into.is_turned.at(place) = is_turned;
    }
  }

  std::vector<aligned_net> Take() { return std::move(all_); }

 private:
  struct alike_nets {
    std::vector<std::size_t> positions;
    std::array<std::size_t, 3> taken = {};  // how many of them each version has
  };

  // The first net with these ends that the version does not have yet.
  aligned_net& FindOrAdd(const wire_ends& ends, std::size_t version) {
    alike_nets& known = by_ends_[ends];
    const std::size_t next = known.taken.at(version)++;
    if (next < known.positions.size()) return all_[known.positions[next]];
    known.positions.push_back(all_.size());
    aligned_net& added = all_.emplace_back();
    added.blocks = {ends.first.block, ends.second.block};
    return added;
  }

  const std::vector<versions_of<dvblock>>& blocks_;
  std::map<wire_ends, alike_nets> by_ends_;
  std::vector<aligned_net> all_;
};

}  // namespace

std::vector<versions_of<dvblock>> AlignBlocks(const three_designs& versions) {
  const block_digests ours = DigestBlocks(versions.ours), theirs = DigestBlocks(versions.theirs);
  return AlignAll(versions.base.blocks, Align(versions.base.blocks, versions.ours.blocks),
                  Align(versions.base.blocks, versions.theirs.blocks), [&](const dvblock& block) {
                    const auto found = ours.find(&block);
                    const block_digest& of =
                        found == ours.end() ? theirs.at(&block) : found->second;
                    return of.wires == 0 ? 0 : (digest() << block.id << of.own << of.wires).Value();
                  });
}

std::vector<versions_of<textblock>> AlignNotes(const three_designs& versions) {
  return AlignAll(versions.base.texts, Align(versions.base.texts, versions.ours.texts),
                  Align(versions.base.texts, versions.theirs.texts), [](const textblock& note) {
                    return (digest() << note.x << note.y << note.text_str).Value();
                  });
}

std::vector<aligned_net> AlignNets(const three_designs& versions,
                                   const std::vector<versions_of<dvblock>>& blocks) {
  net_aligner aligner(blocks);
  aligner.Add(versions.base, 0);
  aligner.Add(versions.ours, 1);
  aligner.Add(versions.theirs, 2);
  return aligner.Take();
}

}  // namespace mardel
