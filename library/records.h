// The records of block libraries. Pins and parameters of a placed block are copies of its
// definition's, and share its texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/geometry.h"
#include "platform/shared_text.h"

namespace mardel {

struct pin {
  std::int64_t pin_num = 0;
  shared_text pin_name;
  // "MREG", "SFR", "CREG" or "CONST"; "" on a placed pin that the definition lacks
  shared_text pin_type;
  shared_text pin_side;  // "L", "R", "T" or "B"
  shared_text pin_desc;
  std::int64_t pin_x = 0, pin_y = 0;  // top-left corner of its square, from the block's corner
  bool operator==(const pin&) const = default;
};

struct param {
  std::int64_t param_num = 0;
  shared_text param_name;
  shared_text param_type;
  std::string param_value;
  shared_text param_desc;
  bool operator==(const param&) const = default;
};

struct library {
  std::string name;
  std::string desc = {};
  colour lib_color = kBlack;
  colour lib_text_color = kBlack;
};

struct blockdef {
  int id = 0;  // of its item in the Libraries menu
  std::string lib;
  std::string sub;
  std::string desc = {};
  std::int64_t width = 0, height = 0;
  std::vector<pin> pins = {};
  std::vector<param> params = {};
};

constexpr std::int64_t kPinSize = 6;
// From a pin's corner to its centre, where net ends lie.
constexpr std::int64_t kPinCentre = 3;

// The four classes of registers: the types that a pin can have, and the names of the libraries
// whose blocks stand for registers.
bool IsRegisterClass(std::string_view name);

}  // namespace mardel
