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
  }
  return {};
}

}  // namespace mardel
