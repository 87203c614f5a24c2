#include <algorithm>
#include <queue>
#include <set>
#include <span>
#include <tuple>

#include "codegen/netlist_steps.h"

namespace mardel {
namespace {

// A node that a joining node may take over, because it holds `end`.
struct candidate {
  std::uint32_t node = 0, end = 0;
  bool operator==(const candidate&) const = default;
  bool operator>(const candidate& other) const {
    return std::tie(node, end) > std::tie(other.node, other.end);
  }
};

using candidate_queue =
    std::priority_queue<candidate, std::vector<candidate>, std::greater<candidate>>;

// Works on shared ends only, those that more than one node holds.
//
// Each shared end keeps the nodes that hold it, in order. A node that still looks for partners
// keeps a queue with, for each shared end that grouping gave it, the next holder after it. An entry
// may be out of date when a holder has gone, and is then replaced as it comes up; when a holder
// comes in, the one before it is told. So a node's partner is found without a walk over its ends.
class joining {
 public:
  joining(net_grouping& grouping, const net_ends& ends);
  std::vector<std::uint32_t> Run();

 private:
  template <class visitor>
  void VisitEnds(const net_ends& ends, visitor visit) const;
  std::span<const std::uint32_t> OwnEnds(std::uint32_t node) const {
    return std::span(own_ends_).subspan(own_start_[node], own_start_[node + 1] - own_start_[node]);
  }
  void Queue(std::uint32_t node);
  std::uint32_t Partner(std::uint32_t node);
  void TakeOver(std::uint32_t node, std::uint32_t partner);
  void HandOver(std::uint32_t end, std::uint32_t node, std::uint32_t partner);

  net_grouping& grouping_;
  std::vector<std::set<std::uint32_t>> holders_;  // by shared end
  std::vector<std::uint32_t> own_ends_;           // shared ends of all nodes, each node's sorted
  std::vector<std::uint32_t> own_start_;
  std::vector<std::vector<std::uint32_t>> gained_ends_;  // by joins, by node
  std::vector<candidate_queue> queues_;                  // by node
  std::vector<bool> is_gone_;                            // by node
};

// Calls visit(node, end) once for each end that a node holds, nodes in order.
template <class visitor>
void joining::VisitEnds(const net_ends& ends, visitor visit) const {
  std::vector<std::uint32_t> last_node(ends.Count(), kNoNumber);
  for (std::uint32_t node = 0; node < grouping_.nodes.size(); ++node) {
    std::uint32_t wire = grouping_.nodes[node].first;
    for (; wire != kNoNumber; wire = grouping_.next[wire]) {
      for (const std::uint32_t end : {ends.Pairs()[wire].first, ends.Pairs()[wire].second}) {
        if (last_node[end] != node) visit(node, end);
        last_node[end] = node;
      }
    }
  }
}

joining::joining(net_grouping& grouping, const net_ends& ends)
    : grouping_(grouping),
      own_start_(grouping.nodes.size() + 1),
      gained_ends_(grouping.nodes.size()),
      queues_(grouping.nodes.size()),
      is_gone_(grouping.nodes.size()) {
  std::vector<std::uint32_t> holder_count(ends.Count());
  VisitEnds(ends, [&](std::uint32_t, std::uint32_t end) { ++holder_count[end]; });
  std::vector<std::uint32_t> shared_number(ends.Count(), kNoNumber);
  std::uint32_t shared_count = 0;
  for (std::size_t end = 0; end < ends.Count(); ++end) {
    if (holder_count[end] > 1) shared_number[end] = shared_count++;
  }
  holders_.resize(shared_count);
  VisitEnds(ends, [&](std::uint32_t node, std::uint32_t end) {
    const std::uint32_t shared = shared_number[end];
    if (shared == kNoNumber) return;
    holders_[shared].insert(holders_[shared].end(), node);
    own_ends_.push_back(shared);
    ++own_start_[node + 1];
  });
  for (std::size_t node = 0; node < grouping.nodes.size(); ++node) {
    own_start_[node + 1] += own_start_[node];
    std::ranges::sort(own_ends_.begin() + own_start_[node],
                      own_ends_.begin() + own_start_[node + 1]);
  }
}

std::vector<std::uint32_t> joining::Run() {
  // A node that finds no partner once never finds one later: what the nodes after it hold changes
  // by joins among them only.
  std::vector<std::uint32_t> seeking;
  for (std::uint32_t node = 0; node < grouping_.nodes.size(); ++node) {
    if (!OwnEnds(node).empty()) seeking.push_back(node);
  }
  for (bool is_first_pass = true; !seeking.empty(); is_first_pass = false) {
    std::vector<std::uint32_t> still_seeking;
    for (const std::uint32_t node : seeking) {
      if (is_gone_[node]) continue;
      if (is_first_pass) Queue(node);
      const std::uint32_t partner = Partner(node);
      if (partner == kNoNumber) continue;
      TakeOver(node, partner);
      still_seeking.push_back(node);
    }
    seeking = std::move(still_seeking);
  }
  std::vector<std::uint32_t> left;
  for (std::uint32_t node = 0; node < grouping_.nodes.size(); ++node) {
    if (!is_gone_[node]) left.push_back(node);
  }
  return left;
}

void joining::Queue(std::uint32_t node) {
  for (const std::uint32_t end : OwnEnds(node)) {
    const auto next = holders_[end].upper_bound(node);
    if (next != holders_[end].end()) queues_[node].push({*next, end});
  }
}

// The first node after this one that holds one of its own ends; kNoNumber when there is none.
std::uint32_t joining::Partner(std::uint32_t node) {
  candidate_queue& queue = queues_[node];
  while (!queue.empty()) {
    const candidate top = queue.top();
    const auto next = holders_[top.end].upper_bound(node);
    if (next != holders_[top.end].end() && *next == top.node) return top.node;
    while (!queue.empty() && queue.top() == top) queue.pop();
    if (next != holders_[top.end].end()) queue.push({*next, top.end});
  }
  return kNoNumber;
}

void joining::TakeOver(std::uint32_t node, std::uint32_t partner) {
  net_chain& chain = grouping_.nodes[node];
  grouping_.next[chain.last] = grouping_.nodes[partner].first;
  chain.last = grouping_.nodes[partner].last;
  is_gone_[partner] = true;
  for (const std::uint32_t end : OwnEnds(partner)) HandOver(end, node, partner);
  for (const std::uint32_t end : gained_ends_[partner]) HandOver(end, node, partner);
  gained_ends_[partner] = {};
  queues_[partner] = {};
}

void joining::HandOver(std::uint32_t end, std::uint32_t node, std::uint32_t partner) {
  std::set<std::uint32_t>& holders = holders_[end];
  if (holders.size() == 1) return;  // nobody else can ask for it any more
  auto handle = holders.extract(partner);
  handle.value() = node;
  const auto placed = holders.insert(std::move(handle));
  if (!placed.inserted) return;
  gained_ends_[node].push_back(end);
  if (placed.position == holders.begin()) return;
  const std::uint32_t before = *std::prev(placed.position);
  const std::span<const std::uint32_t> own = OwnEnds(before);
  if (std::ranges::binary_search(own, end)) queues_[before].push({node, end});
}

}  // namespace

std::vector<std::uint32_t> JoinNodes(net_grouping& grouping, const net_ends& ends) {
  return joining(grouping, ends).Run();
}

}  // namespace mardel
