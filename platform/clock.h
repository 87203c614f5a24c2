// The time of day.
#pragma once

#include <ctime>

namespace mardel {

// Fields as people write them: month 1 to 12, year in full.
struct date_time {
  int year = 0, month = 0, day = 0;
  int hour = 0, minute = 0, second = 0;
};

// In the time zone of the host.
date_time LocalTime(std::time_t moment);

class clock {
 public:
  clock() = default;
  clock(const clock&) = delete;
  clock& operator=(const clock&) = delete;
  virtual ~clock() = default;
  virtual date_time Now() const = 0;
};

// Local time of the host; or, for builds that must come out the same each time, the time (in UTC)
// that the environment variable SOURCE_DATE_EPOCH gives in seconds since 1970.
class host_clock : public clock {
 public:
  date_time Now() const override;
};

}  // namespace mardel
