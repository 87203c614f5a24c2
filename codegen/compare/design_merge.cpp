#include "codegen/compare/design_merge.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "codegen/compare/design_diff.h"
#include "codegen/compare/merge_records.h"

namespace mardel {
namespace {

// Ids for what theirs added.
class free_ids {
 public:
  void Use(std::int64_t id) { used_.insert(id); }
  // Of all versions, but for ids so large that none would be left.
  void StartAfter(std::int64_t id) {
    if (id >= next_ && id < std::numeric_limits<std::int64_t>::max() / 2) next_ = id + 1;
  }
  std::int64_t Take(std::int64_t wanted) {
    if (used_.insert(wanted).second) return wanted;
    while (!used_.insert(next_).second) ++next_;
    return next_;
  }

 private:
  std::unordered_set<std::int64_t, id_hash> used_;
  std::int64_t next_ = 0;
};

template <class record>
free_ids IdsAfter(const cursor_list<record> design::* list, std::int64_t record::* id,
                  const three_designs& versions) {
  free_ids ids;
  for (const design* version : {&versions.base, &versions.ours, &versions.theirs}) {
    for (const record& each : version->*list) ids.StartAfter(each.*id);
  }
  return ids;
}

class merger {
 public:
  merger(design& merged, const three_designs& versions)
      : merged_(merged),
        versions_(versions),
        blocks_(AlignBlocks(versions)),
        nets_(AlignNets(versions, blocks_)),
        our_blocks_(IndexBlocks(versions.ours.blocks)),
        their_blocks_(IndexBlocks(versions.theirs.blocks)) {}

  std::vector<std::string> Merge() {
    FindNewlyWired();
    MergeBlocks();
    MergeNets();
    MergeNotes();
    return std::move(conflicts_);
  }

 private:
  struct block_fate {
    const dvblock* kept = nullptr;  // in the merged design
    bool is_contested = false;      // removed by theirs, but ours needs it
    bool is_wired_by_ours = false;
  };

  void Conflict(const std::string& record, const char* what) {
    conflicts_.push_back(record + ": " + what);
  }

  void FindNewlyWired() {
    fates_.resize(blocks_.size());
    for (const aligned_net& each : nets_) {
      if (each.one.ours == nullptr || each.one.base != nullptr) continue;
      for (const std::size_t block : each.blocks) {
        if (block != kNoBlock) fates_[block].is_wired_by_ours = true;
      }
    }
  }

  // Nothing for a block that goes.
  std::optional<dvblock> MergedBlock(const versions_of<dvblock>& of, block_fate& fate) {
    const auto& [base, ours, theirs] = of;
    if (base == nullptr) return ours != nullptr ? *ours : *theirs;
    if (ours != nullptr && theirs != nullptr) return MergeBlock(of, conflicts_);
    if (ours == nullptr) {
      if (theirs != nullptr && IsChanged(*base, *theirs)) {
        Conflict(BlockWords(*base), "removed by ours, changed by theirs");
      }
      return std::nullopt;
    }
    const bool is_changed = IsChanged(*base, *ours);
    if (is_changed) Conflict(BlockWords(*base), "changed by ours, removed by theirs");
    fate.is_contested = is_changed || fate.is_wired_by_ours;
    return fate.is_contested ? std::optional(*ours) : std::nullopt;
  }

  // Those that ours has, in its order, then those that theirs added.
  void MergeBlocks() {
    std::unordered_map<const dvblock*, std::size_t> of_ours;
    for (std::size_t i = 0; i < blocks_.size(); ++i) of_ours[blocks_[i].ours] = i;
    const auto merge = [&](std::size_t i) {
      if (auto block = MergedBlock(blocks_[i], fates_[i])) {
        fates_[i].kept = &merged_.blocks.Append(*std::move(block));
      }
    };
    free_ids ids = IdsAfter(&design::blocks, &dvblock::id, versions_);
    for (const dvblock& ours : versions_.ours.blocks) merge(of_ours.at(&ours));
    for (const dvblock& kept : merged_.blocks) ids.Use(kept.id);
    for (std::size_t i = 0; i < blocks_.size(); ++i) {
      if (blocks_[i].ours != nullptr) continue;
      merge(i);
      if (fates_[i].kept != nullptr) merged_.blocks.Last().id = ids.Take(fates_[i].kept->id);
    }
  }

  void MergeNets() {
    std::unordered_map<const net*, const aligned_net*> of_ours;
    for (const aligned_net& each : nets_) of_ours[each.one.ours] = &each;
    free_ids ids = IdsAfter(&design::nets, &net::net_id, versions_);
    for (const net& ours : versions_.ours.nets) {
      const aligned_net& each = *of_ours.at(&ours);
      if (!KeepsOurNet(each)) continue;
      merged_.nets.Append(MergeNet(each, WireWords(ours, our_blocks_), conflicts_));
      ids.Use(ours.net_id);
    }
    for (const aligned_net& each : nets_) {
      if (each.one.ours != nullptr || each.one.theirs == nullptr || !TakesTheirNet(each)) continue;
      net& added = merged_.nets.Append(*each.one.theirs);
      added.net_id = ids.Take(added.net_id);
      const auto& [first, second] = each.blocks;
      const bool is_turned = each.is_turned[2];
      SetBlock(added.id_1, is_turned ? second : first);
      SetBlock(added.id_2, is_turned ? first : second);
    }
  }

  void SetBlock(std::int64_t& id, std::size_t block) const {
    if (block != kNoBlock) id = fates_[block].kept->id;
  }

  bool EndsAreKept(const aligned_net& of) const {
    return std::ranges::all_of(of.blocks, [&](std::size_t block) {
      return block == kNoBlock || fates_[block].kept != nullptr;
    });
  }

  bool KeepsOurNet(const aligned_net& of) {
    if (!EndsAreKept(of)) return false;  // with a block that theirs removed
    const auto is_contested = [&](std::size_t block) {
      return block != kNoBlock && fates_[block].is_contested;
    };
    const bool touches_contested = std::ranges::any_of(of.blocks, is_contested);
    const auto& [base, ours, theirs] = of.one;
    if (base == nullptr) {
      if (touches_contested) {
        Conflict(WireWords(*ours, our_blocks_), "added by ours, a block of it removed by theirs");
      }
      return true;
    }
    if (theirs != nullptr || touches_contested) return true;
    if (PinNumbersOf(of, 0) == PinNumbersOf(of, 1)) return false;
    Conflict(WireWords(*ours, our_blocks_), "changed by ours, removed by theirs");
    return true;
  }

  bool TakesTheirNet(const aligned_net& of) {
    if (of.one.base != nullptr) {
      if (PinNumbersOf(of, 0) != PinNumbersOf(of, 2)) {
        Conflict(WireWords(*of.one.theirs, their_blocks_), "removed by ours, changed by theirs");
      }
      return false;
    }
    if (EndsAreKept(of)) return true;
    Conflict(WireWords(*of.one.theirs, their_blocks_),
             "added by theirs, a block of it removed by ours");
    return false;
  }

  void MergeNotes() {
    free_ids ids = IdsAfter(&design::texts, &textblock::id, versions_);
    const std::vector<versions_of<textblock>> notes = AlignNotes(versions_);
    std::unordered_map<const textblock*, const versions_of<textblock>*> of_ours;
    for (const auto& each : notes) of_ours[each.ours] = &each;
    for (const textblock& ours : versions_.ours.texts) {
      const versions_of<textblock>& each = *of_ours.at(&ours);
      if (each.base != nullptr && each.theirs != nullptr) {
        merged_.texts.Append(MergeNote(each, conflicts_));
      } else if (each.base == nullptr || IsChanged(*each.base, ours)) {
        if (each.base != nullptr)
          Conflict(NoteWords(*each.base), "changed by ours, removed by theirs");
        merged_.texts.Append(ours);
      } else {
        continue;
      }
      ids.Use(ours.id);
    }
    for (const auto& each : notes) {
      if (each.ours != nullptr || each.theirs == nullptr) continue;
      if (each.base == nullptr) {
        textblock& added = merged_.texts.Append(*each.theirs);
        added.id = ids.Take(added.id);
      } else if (IsChanged(*each.base, *each.theirs)) {
        Conflict(NoteWords(*each.base), "removed by ours, changed by theirs");
      }
    }
  }

  design& merged_;
  const three_designs& versions_;
  std::vector<versions_of<dvblock>> blocks_;
  std::vector<aligned_net> nets_;
  blocks_by_id our_blocks_, their_blocks_;
  std::vector<block_fate> fates_;  // by position among the aligned blocks
  std::vector<std::string> conflicts_;
};

}  // namespace

std::vector<std::string> MergeDesigns(design& merged, const three_designs& versions) {
  return merger(merged, versions).Merge();
}

}  // namespace mardel
