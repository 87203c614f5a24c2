#include "app/title.h"

#include "codegen/version.h"

namespace mardel {

std::string Title(const std::string& design_file) {
  std::string title = "Mardel - GUI Development Environment for the Dravik DSP from Quillonworks V";
  return title.append(VersionText()).append("  ").append(design_file);
}

}  // namespace mardel
