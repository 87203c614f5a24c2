#include "platform/clock.h"

#include <charconv>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace mardel {
namespace {

std::optional<std::time_t> FixedTime() {
  const char* const setting = std::getenv("SOURCE_DATE_EPOCH");
  if (setting == nullptr) return std::nullopt;
  const std::string_view text = setting;
  std::time_t seconds = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  const bool whole = problem == std::errc() && end == text.data() + text.size();
  return whole && seconds >= 0 ? std::optional(seconds) : std::nullopt;
}

date_time Fields(const std::tm& t) {
  return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec};
}

}  // namespace

date_time LocalTime(std::time_t moment) {
  std::tm fields{};
  localtime_r(&moment, &fields);
  return Fields(fields);
}

date_time Now() {
  std::tm fields{};
  const std::optional<std::time_t> fixed = FixedTime();
  if (fixed && gmtime_r(&*fixed, &fields) != nullptr) return Fields(fields);
  return LocalTime(std::time(nullptr));
}

}  // namespace mardel
