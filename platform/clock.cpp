#include "platform/clock.h"

#include <charconv>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace mardel {
namespace {

date_time Fields(const std::tm& t) {
  return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec};
}

// Nothing when the text is no number, or one beyond the years of four digits.
std::optional<date_time> FixedTime(std::string_view text) {
  constexpr std::time_t kYear10000 = 253402300800;
  std::time_t seconds = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  const bool is_whole = problem == std::errc() && end == text.data() + text.size();
  std::tm fields{};
  if (!is_whole || seconds < 0 || seconds >= kYear10000 || gmtime_r(&seconds, &fields) == nullptr) {
    return std::nullopt;
  }
  return Fields(fields);
}

}  // namespace

date_time LocalTime(std::time_t moment) {
  std::tm fields{};
  localtime_r(&moment, &fields);
  return Fields(fields);
}

date_time Now() {
  const std::optional<date_time> fixed = Moment();
  return fixed ? *fixed : LocalTime(std::time(nullptr));
}

std::optional<date_time> Moment() {
  const char* const setting = std::getenv("SOURCE_DATE_EPOCH");
  if (setting == nullptr || *setting == '\0') return LocalTime(std::time(nullptr));
  return FixedTime(setting);
}

}  // namespace mardel
