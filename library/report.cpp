#include "library/report.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace mardel {
namespace {

// In the order of the rules.
constexpr auto kNames = std::to_array<std::pair<rule, std::string_view>>({
    {rule::kLibraryNotLoaded, "library-not-loaded"},
    {rule::kLibraryMalformed, "library-malformed"},
    {rule::kDuplicateLibrary, "duplicate-library"},
    {rule::kConfigurationMalformed, "configuration-malformed"},
    {rule::kDesignNotLoaded, "design-not-loaded"},
    {rule::kDesignMalformed, "design-malformed"},
    {rule::kMissingBlock, "missing-block"},
    {rule::kTypeMismatch, "type-mismatch"},
    {rule::kUnsetParameter, "unset-parameter"},
    {rule::kUnconnectedPin, "unconnected-pin"},
    {rule::kSourceNotWritten, "source-not-written"},
    {rule::kUnknownPin, "unknown-pin"},
    {rule::kUnknownParameter, "unknown-parameter"},
    {rule::kFirstNodeWithoutRegister, "first-node-without-register"},
    {rule::kNodeWithoutRegisterBlock, "node-without-register-block"},
    {rule::kNoFreeRegister, "no-free-register"},
    {rule::kTwoRegisters, "two-registers"},
    {rule::kSplitNode, "split-node"},
    {rule::kPinNumberDiffers, "pin-number-differs"},
    {rule::kPinWithoutArgument, "pin-without-argument"},
    {rule::kPinOnOtherRegister, "pin-on-other-register"},
    {rule::kValueBreaksFile, "value-breaks-file"},
    {rule::kValueChanges, "value-changes"},
    {rule::kNoDesign, "no-design"},
    {rule::kRepeatedId, "repeated-id"},
    {rule::kOffCanvas, "off-canvas"},
    {rule::kHidden, "hidden"},
    {rule::kQuoteInPath, "quote-in-path"},
    {rule::kSettingsNotRead, "settings-not-read"},
});
static_assert(std::ranges::is_sorted(kNames) && kNames.back().first == rule::kSettingsNotRead &&
              kNames.size() == static_cast<std::size_t>(rule::kSettingsNotRead) + 1);

}  // namespace

std::string_view RuleName(rule of) {
  return kNames.at(static_cast<std::size_t>(of)).second;
}

}  // namespace mardel
