// Wired designs made of bytes: the netlist equals the one without an index.
#include "codegen/design_check.h"
#include "fuzz/literal_netlist.h"
#include "fuzz/target.h"
#include "tests/codegen/wired_design.h"

namespace mardel {
namespace {

unsigned Take(std::string_view& bytes) {
  const unsigned first = bytes.empty() ? 0 : static_cast<unsigned char>(bytes.front());
  bytes.remove_prefix(std::min<std::size_t>(1, bytes.size()));
  return first;
}

// A register or another block, its pins of one type or of two.
std::string Block(unsigned id, unsigned kind) {
  constexpr const char* kNames[] = {" dsp Mix", " MREG MR1", " SFR R0", " SFR POT0", " MREG M"};
  const char* pins = kind < 200 ? " a:MREG b:MREG c:MREG d:MREG|" : " a:MREG b:SFR c:MREG d:SFR|";
  return std::to_string(id) + kNames[kind % std::size(kNames)] + pins;
}

std::string End(unsigned byte) {
  return std::to_string(byte / 4) + '.' + "abcd"[byte % 4];
}

// Block n has mostly the id n. A net is two bytes, one for each end.
void Fill(design& document, std::string_view from) {
  std::string blocks, nets;
  for (unsigned n = 0, count = Take(from) % 64; n < count; ++n) {
    const unsigned kind = Take(from);
    blocks += Block(kind < 240 ? n : kind % 16, kind);
  }
  for (from = from.substr(0, 192); !from.empty();) {  // of more the literal one is slow
    nets += End(Take(from)) + '-';
    nets += End(Take(from)) + ' ';
  }
  AddBlocks(document, blocks);
  AddNets(document, nets);
}

}  // namespace

void TryInput(std::string_view input) {
  design document;
  Fill(document, input);
  register_pool pool = PoolOf(4), literal_pool = PoolOf(4);
  const auto built = BuildNetlist(document, pool);
  const auto* nodes = std::get_if<0>(&built);
  const literal_netlist literal = LiteralNetlist(document, literal_pool);
  Require((nodes != nullptr) == (literal.mismatched == nullptr), "both refuse the same design");
  if (nodes != nullptr) {
    Require(Describe(*nodes) == Describe(literal.nodes), "both have the same nodes");
  } else {
    Require(std::get<report>(built).where.net_id == literal.mismatched->net_id,
            "and for the same net");
  }
  Require(CheckDesign(document, problem_search::kFirst).empty() ==
              CheckDesign(document, problem_search::kAll).empty(),
          "the check finds what there is");
}

}  // namespace mardel
