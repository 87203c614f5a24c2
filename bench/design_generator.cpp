#include "bench/design_generator.h"

#include <deque>
#include <random>

namespace mardel {
namespace {

// Inputs on the left, outputs on the right.
struct shape {
  const char* name;
  int inputs, outputs, params;
};

constexpr shape kShapes[] = {
    {"head", 1, 1, 1}, {"tail", 1, 1, 1}, {"gain", 1, 1, 1}, {"mix", 2, 1, 2}, {"split", 1, 2, 0},
};

// Only the chip's side of "head" and "tail" is no memory register.
const char* PinType(std::string_view block, std::string_view side) {
  return (block == "head" && side == "L") || (block == "tail" && side == "R") ? "SFR" : "MREG";
}

std::string PinText(std::string_view block, const std::string& name, const std::string& side) {
  return "<param><name>" + name + "</name><type>" + PinType(block, side) +
         "</type><desc>Signal of the stage</desc><side>" + side + "</side></param>\n";
}

std::string BlockText(const std::string& name, const shape& like) {
  std::string text = "<sub><name>" + name + "</name><desc>A stage of the chain</desc>\n";
  for (int i = 0; i < like.inputs; ++i) text += PinText(name, "in" + std::to_string(i), "L");
  for (int i = 0; i < like.params; ++i) {
    text += "<param><name>factor" + std::to_string(i) +
            "</name><type>Number</type><desc>Factor, 0 to 1</desc><default>0.5</default></param>\n";
  }
  for (int i = 0; i < like.outputs; ++i) text += PinText(name, "out" + std::to_string(i), "R");
  return text + "</sub>\n";
}

struct output {
  const dvblock* block = nullptr;
  const pin* at = nullptr;
};

class generator {
 public:
  generator(design& document, const library_set& libraries, generated_size size)
      : document_(document), libraries_(libraries), size_(size), random_(size.seed) {}

  void Run() {
    while (document_.blocks.size() < size_.blocks) AddChain();
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  const dvblock& Place(const std::string& lib, const std::string& sub) {
    const blockdef& of = libraries_.Definitions()[libraries_.FindDefinitions(lib, sub).front()];
    // Rows from left to right. A full canvas begins anew, a little further down and right, so that
    // of 10,000 blocks none hides another wholly.
    constexpr int kColumns = 18, kRows = 18, kWide = 104, kHigh = 58, kLayers = 40;
    const int number = static_cast<int>(document_.blocks.size());
    const int layer = number / (kColumns * kRows) % kLayers;
    const int x = number % kColumns * kWide + layer;
    const int y = number / kColumns % kRows * kHigh + layer;
    return document_.blocks.Append({.id = document_.next_block_id++,
                                    .lib = of.lib,
                                    .sub = of.sub,
                                    .x = x,
                                    .y = y,
                                    .width = of.width,
                                    .height = of.height,
                                    .pins = of.pins,
                                    .params = of.params});
  }

  void Wire(const output& from, const dvblock& block, const pin& to) {
    const point start = PinCentre(*from.block, *from.at);
    const point end = PinCentre(block, to);
    document_.nets.Append({.net_id = document_.next_net_id++,
                           .id_1 = from.block->id,
                           .pin_1_num = from.at->pin_num,
                           .pin_1_name = from.at->pin_name,
                           .x_1 = start.x,
                           .y_1 = start.y,
                           .id_2 = block.id,
                           .pin_2_num = to.pin_num,
                           .pin_2_name = to.pin_name,
                           .x_2 = end.x,
                           .y_2 = end.y});
  }

  // Wires the inputs and keeps the outputs open.
  void AddStage(const std::string& sub) {
    const dvblock& block = Place("synth0", sub);
    for (const pin& p : block.pins) {
      if (p.pin_side == "L") Wire(TakeOutput(), block, p);
    }
    for (const pin& p : block.pins) {
      if (p.pin_side != "R") continue;
      open_.push_front({&block, &p});
      all_.push_back(open_.front());
    }
  }

  // The newest open one, so that the chain goes on; without one a branch from any before.
  output TakeOutput() {
    if (open_.empty()) return all_[static_cast<std::size_t>(Below(static_cast<int>(all_.size())))];
    const output taken = open_.front();
    open_.pop_front();
    return taken;
  }

  void AddChain() {
    all_.clear();
    const dvblock& in = Place("SFR", "IN" + std::to_string(Below(4)));
    open_.push_front({&in, &in.pins.front()});
    AddStage("head");
    const int length = 10 + Below(25);
    for (int stage = 0; stage < length; ++stage) AddStage(kBody[Below(std::size(kBody))]);
    while (open_.size() > 1) AddStage("mix");
    if (Below(4) == 0) {
      const dvblock& memory = Place("MREG", "MR" + std::to_string(Below(128)));
      Wire(open_.front(), memory, memory.pins.front());
    }
    AddStage("tail");
    const dvblock& out = Place("SFR", "OUT" + std::to_string(Below(4)));
    Wire(TakeOutput(), out, out.pins.front());
    AddNote(in);
  }

  void AddNote(const dvblock& beside) {
    const std::string number = std::to_string(document_.next_text_id);
    document_.texts.Append({.id = document_.next_text_id++,
                            .text_str = "Chain " + number + "\nfrom " + beside.sub + " on",
                            .x = beside.x,
                            .y = beside.y + beside.height,
                            .width = 90,
                            .height = 36});
  }

  static constexpr const char* kBody[] = {"gain", "mix", "mix", "mix", "split"};

  design& document_;
  const library_set& libraries_;
  generated_size size_;
  std::mt19937 random_;
  std::deque<output> open_;
  std::vector<output> all_;  // of the chain, but for the chip's own
};

}  // namespace

std::string LibraryText(int number, int blocks) {
  std::string text = "<library>\n<name>synth" + std::to_string(number) +
                     "</name>\n<desc>Stages of synthesizers</desc>\n" +
                     "<lib_color>255,214,102</lib_color>\n" +
                     "<lib_text_color>051,025,000</lib_text_color>\n";
  for (int i = 0; i < blocks; ++i) {
    const shape& like = kShapes[static_cast<std::size_t>(i) % std::size(kShapes)];
    const bool is_first = static_cast<std::size_t>(i) < std::size(kShapes);
    text += BlockText(is_first ? like.name : "stage" + std::to_string(i), like);
  }
  return text + "</library>\n";
}

void GenerateDesign(design& document, const library_set& libraries, generated_size size) {
  generator(document, libraries, size).Run();
}

}  // namespace mardel
