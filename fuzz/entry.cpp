// The names that the fuzzer's own main calls, and what lets small inputs stand for large ones.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "fuzz/target.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* bytes, std::size_t size, std::size_t most);

namespace mardel {
namespace {

constexpr char kGrows = '\xff';
constexpr std::size_t kHead = 5;  // kGrows, how often, where; two bytes each

// What grows holds the next element from a place on as often as its head says.
std::string Grown(std::string_view input) {
  constexpr std::size_t kMost = std::size_t{64} << 10U;
  if (input.size() <= kHead || input[0] != kGrows) return std::string(input);
  const auto number = [input](std::size_t at) {
    return 256U * static_cast<unsigned char>(input[at]) + static_cast<unsigned char>(input[at + 1]);
  };
  const std::string_view text = input.substr(kHead);
  const std::size_t start = text.find('<', number(3) % text.size());
  const std::string_view rest = text.substr(std::min(start, text.size()));
  const std::string close = "</" + std::string(rest.substr(0, rest.find('>'))).erase(0, 1) + ">";
  const std::size_t end = rest.find(close);
  if (end == rest.npos) return std::string(text);
  const std::string_view element = rest.substr(0, end + close.size());
  std::string grown(text.substr(0, start));
  for (std::size_t i = std::min<std::size_t>(number(1), kMost / element.size()); i > 0; --i) {
    grown += element;
  }
  return grown.append(rest);
}

}  // namespace
}  // namespace mardel

// NOLINTBEGIN(readability-identifier-naming)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  mardel::TryInput(mardel::Grown({reinterpret_cast<const char*>(bytes), size}));
  return 0;
}

// Now and then an input begins to grow, or grows otherwise.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* bytes, std::size_t size,
                                               std::size_t most, unsigned seed) {
  constexpr unsigned kSeldom = 8;
  if (seed % kSeldom != 0 || size + mardel::kHead > most) {
    return LLVMFuzzerMutate(bytes, size, most);
  }
  if (size == 0 || bytes[0] != static_cast<std::uint8_t>(mardel::kGrows)) {
    std::memmove(bytes + mardel::kHead, bytes, size);
    size += mardel::kHead;
  }
  bytes[0] = static_cast<std::uint8_t>(mardel::kGrows);
  seed = seed / kSeldom * 2654435761U;
  std::memcpy(bytes + 1, &seed, sizeof seed);
  return std::max(size, mardel::kHead);
}
// NOLINTEND(readability-identifier-naming)
