#include "library/report.h"

namespace mardel {

std::string_view RuleName(rule of) {
  switch (of) {
    case rule::kLibraryNotLoaded:
      return "library-not-loaded";
    case rule::kLibraryMalformed:
      return "library-malformed";
    case rule::kDuplicateLibrary:
      return "duplicate-library";
    case rule::kConfigurationMalformed:
      return "configuration-malformed";
    case rule::kDesignNotLoaded:
      return "design-not-loaded";
    case rule::kDesignMalformed:
      return "design-malformed";
    case rule::kMissingBlock:
      return "missing-block";
    case rule::kTypeMismatch:
      return "type-mismatch";
    case rule::kUnsetParameter:
      return "unset-parameter";
    case rule::kUnconnectedPin:
      return "unconnected-pin";
    case rule::kSourceNotWritten:
      return "source-not-written";
    case rule::kUnknownPin:
      return "unknown-pin";
    case rule::kUnknownParameter:
      return "unknown-parameter";
    case rule::kFirstNodeWithoutRegister:
      return "first-node-without-register";
    case rule::kNodeWithoutRegisterBlock:
      return "node-without-register-block";
    case rule::kNoFreeRegister:
      return "no-free-register";
    case rule::kTwoRegisters:
      return "two-registers";
    case rule::kSplitNode:
      return "split-node";
    case rule::kPinNumberDiffers:
      return "pin-number-differs";
    case rule::kPinWithoutArgument:
      return "pin-without-argument";
    case rule::kPinOnOtherRegister:
      return "pin-on-other-register";
    case rule::kValueBreaksFile:
      return "value-breaks-file";
    case rule::kValueChanges:
      return "value-changes";
    case rule::kNoDesign:
      return "no-design";
    case rule::kRepeatedId:
      return "repeated-id";
    case rule::kOffCanvas:
      return "off-canvas";
    case rule::kHidden:
      return "hidden";
    case rule::kQuoteInPath:
      return "quote-in-path";
    case rule::kSettingsNotRead:
      return "settings-not-read";
  }
  return {};
}

}  // namespace mardel
