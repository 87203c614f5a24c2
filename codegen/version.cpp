#include "codegen/version.h"

namespace mardel {

std::string_view VersionText() {
  return MARDEL_VERSION;
}

}  // namespace mardel
