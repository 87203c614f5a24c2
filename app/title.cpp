#include "app/title.h"

#include "codegen/settings.h"

namespace mardel {

std::string Title(const std::string& design_file) {
  return std::string(
             "Mardel - GUI Development Environment for the Dravik DSP from Quillonworks V") +
         kVersionText + "  " + design_file;
}

}  // namespace mardel
