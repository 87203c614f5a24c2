#include "platform/descriptor.h"

#include <unistd.h>

#include <utility>

namespace mardel {

descriptor& descriptor::operator=(descriptor&& other) noexcept {
  std::swap(number_, other.number_);
  return *this;
}

descriptor::~descriptor() {
  if (IsOpen()) close(number_);
}

}  // namespace mardel
