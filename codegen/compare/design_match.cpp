#include "codegen/compare/design_match.h"

#include <array>
#include <functional>

#include "codegen/compare/digest.h"

namespace mardel {
namespace {

// A record of either design with what it is matched by: the strictest key first.
template <class record, std::size_t passes>
struct candidate {
  const record* one = nullptr;
  std::array<std::uint64_t, passes> keys{};
  bool is_matched = false;
};

template <class record, std::size_t passes>
using candidates = std::vector<candidate<record, passes>>;

// Of records with the same key the first ones go together.
template <class record, std::size_t passes>
void MatchPass(std::size_t pass, candidates<record, passes>& old_ones,
               candidates<record, passes>& new_ones, std::vector<const record*>& partners) {
  std::unordered_map<std::uint64_t, std::vector<std::size_t>> free;  // the last is the first one
  for (std::size_t i = old_ones.size(); i-- > 0;) {
    if (!old_ones[i].is_matched) free[old_ones[i].keys[pass]].push_back(i);
  }
  if (free.empty()) return;
  for (auto& added : new_ones) {
    if (added.is_matched) continue;
    const auto found = free.find(added.keys[pass]);
    if (found == free.end() || found->second.empty()) continue;
    const std::size_t partner = found->second.back();
    found->second.pop_back();
    old_ones[partner].is_matched = added.is_matched = true;
    partners[partner] = added.one;
  }
}

template <class record, std::size_t passes>
matches<record> Match(candidates<record, passes> old_ones, candidates<record, passes> new_ones) {
  std::vector<const record*> partners(old_ones.size());
  for (std::size_t pass = 0; pass < passes; ++pass) {
    MatchPass(pass, old_ones, new_ones, partners);
  }
  matches<record> all;
  for (std::size_t i = 0; i < old_ones.size(); ++i) all.push_back({old_ones[i].one, partners[i]});
  for (const auto& added : new_ones) {
    if (!added.is_matched) all.push_back({nullptr, added.one});
  }
  return all;
}

std::uint64_t DigestOf(const dvblock& block) {
  std::uint64_t entries = 0;  // in any order
  for (const param& p : block.params) {
    entries += (digest() << p.param_name << p.param_num << p.param_value).Value();
  }
  for (const pin& p : block.pins) entries += (digest() << p.pin_name << p.pin_num << 1L).Value();
  return (digest() << block.lib << block.sub << block.x << block.y << entries).Value();
}

candidates<dvblock, 8> BlockCandidates(const design& document) {
  const block_digests digests = DigestBlocks(document);
  candidates<dvblock, 8> all;
  for (const dvblock& block : document.blocks) {
    const auto [own, wires] = digests.at(&block);
    const auto with_id = [&](std::uint64_t of) { return (digest() << of << block.id).Value(); };
    const std::uint64_t kind = (digest() << block.lib << block.sub).Value();
    const std::uint64_t name = (digest() << block.sub).Value();
    const auto at_place = [&](std::uint64_t of) {
      return (digest() << of << block.x << block.y).Value();
    };
    const std::uint64_t whole = (digest() << own << wires).Value();
    all.push_back({&block,
                   {with_id(whole), whole, with_id(own), own, with_id(kind), at_place(kind),
                    with_id(name), at_place(name)}});
  }
  return all;
}

// Blocks by what both designs' nets call them: matched ones have one number.
using block_numbers = std::unordered_map<const dvblock*, std::int64_t>;

candidates<net, 2> NetCandidates(const design& document, const block_numbers& numbers) {
  const blocks_by_id blocks = IndexBlocks(document.blocks);
  const auto end = [&](std::int64_t id, std::string_view pin_name) {
    const auto found = blocks.find(id);
    const bool is_block = found != blocks.end();
    return digest() << std::int64_t{is_block} << (is_block ? numbers.at(found->second) : id)
                    << pin_name;
  };
  candidates<net, 2> all;
  for (const net& wire : document.nets) {
    digest first = end(wire.id_1, wire.pin_1_name), second = end(wire.id_2, wire.pin_2_name);
    const std::uint64_t ends = first.Value() + second.Value();  // in any order
    first << wire.pin_1_num;
    second << wire.pin_2_num;
    all.push_back({&wire, {first.Value() + second.Value(), ends}});
  }
  return all;
}

candidates<textblock, 4> NoteCandidates(const design& document) {
  candidates<textblock, 4> all;
  for (const textblock& note : document.texts) {
    const digest place = digest() << note.x << note.y;
    all.push_back(
        {&note,
         {(digest(place) << note.text_str).Value(), (digest() << note.id << note.text_str).Value(),
          (digest() << note.text_str).Value(), (digest() << note.id).Value()}});
  }
  return all;
}

}  // namespace

blocks_by_id IndexBlocks(const cursor_list<dvblock>& blocks) {
  blocks_by_id index;
  index.reserve(blocks.size());
  for (const dvblock& block : blocks) index.emplace(block.id, &block);
  return index;
}

block_digests DigestBlocks(const design& document) {
  const blocks_by_id blocks = IndexBlocks(document.blocks);
  block_digests all;
  for (const dvblock& block : document.blocks) all[&block].own = DigestOf(block);
  for (const net& wire : document.nets) {
    const auto first = blocks.find(wire.id_1), second = blocks.find(wire.id_2);
    if (first == blocks.end() || second == blocks.end()) continue;
    block_digest& one = all[first->second];
    block_digest& other = all[second->second];
    one.wires += (digest() << wire.pin_1_name << other.own << wire.pin_2_name).Value();
    other.wires += (digest() << wire.pin_2_name << one.own << wire.pin_1_name).Value();
  }
  return all;
}

design_match MatchDesigns(const design& old_one, const design& new_one) {
  design_match found;
  found.blocks = Match(BlockCandidates(old_one), BlockCandidates(new_one));
  block_numbers numbers;
  std::int64_t number = 0;
  for (const auto& [before, after] : found.blocks) {
    if (before != nullptr) numbers[before] = number;
    if (after != nullptr) numbers[after] = number;
    ++number;
  }
  found.nets = Match(NetCandidates(old_one, numbers), NetCandidates(new_one, numbers));
  found.texts = Match(NoteCandidates(old_one), NoteCandidates(new_one));
  return found;
}

}  // namespace mardel
