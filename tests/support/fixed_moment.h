// The moment at which the sources of fixtures were written.
#pragma once

#include "platform/clock.h"

namespace mardel {

inline date_time FixedMoment() {
  return {2026, 11, 15, 19, 6, 26};
}

}  // namespace mardel
