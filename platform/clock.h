// The time of day.
#pragma once

#include <ctime>
#include <optional>

namespace mardel {

// Fields as people write them: month 1 to 12, year in full.
struct date_time {
  int year = 0, month = 0, day = 0;
  int hour = 0, minute = 0, second = 0;
};

// In the time zone of the host.
date_time LocalTime(std::time_t moment);

// Local time of the host; or, for builds that must come out the same each time, the time (in UTC)
// that the environment variable SOURCE_DATE_EPOCH gives in seconds since 1970.
date_time Now();

// The same, but nothing when that variable holds anything else than such a number.
std::optional<date_time> Moment();

}  // namespace mardel
