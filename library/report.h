// What work has to tell of a file or a design. Front ends make a box's text, a line, a record of a
// machine format of it; work itself shows nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/geometry.h"
#include "platform/message.h"

namespace mardel {

// One kind of finding each; each has a name, and the last one is told, in report.cpp.
enum class rule {
  kLibraryNotLoaded,
  kLibraryMalformed,
  kDuplicateLibrary,
  kConfigurationMalformed,
  kDesignNotLoaded,
  kDesignMalformed,
  kMissingBlock,
  kTypeMismatch,
  kUnsetParameter,
  kUnconnectedPin,
  kSourceNotWritten,
  kUnknownPin,
  kUnknownParameter,
  kFirstNodeWithoutRegister,
  kNodeWithoutRegisterBlock,
  kNoFreeRegister,
  kTwoRegisters,
  kSplitNode,
  kPinNumberDiffers,
  kPinWithoutArgument,
  kPinOnOtherRegister,
  kValueBreaksFile,
  kValueChanges,
  kNoDesign,
  kRepeatedId,
  kOffCanvas,
  kHidden,
  kQuoteInPath,
  kSettingsNotRead,
};

// The short, stable word that machine formats use, such as "type-mismatch".
std::string_view RuleName(rule of);

enum class severity { kError, kWarning };

// Where a finding lies; what does not apply is empty.
struct design_place {
  std::optional<std::int64_t> block_id = {}, net_id = {};
  std::optional<point> at = {};         // canvas pixels: a block's corner, a net's first end
  std::optional<point> other_end = {};  // of a net
  bool operator==(const design_place&) const = default;
};

struct [[nodiscard]] report {
  rule kind = rule::kDesignMalformed;
  severity how = severity::kError;
  message text;  // as the window's box shows it
  design_place where = {};
  std::string file = {};  // the path of a library or configuration; "" for the design at hand
  bool operator==(const report&) const = default;
};

}  // namespace mardel
