#include "platform/hash.h"

#include <unistd.h>

#include <cstring>

namespace mardel {
namespace {

hash_seeds MakeSeeds() noexcept {
  hash_seeds random;
  if (getentropy(&random, sizeof random) != 0) return {};
  return {random.start, random.first | 1U, random.second | 1U};
}

}  // namespace

const hash_seeds kHashSeeds = MakeSeeds();

std::size_t text_hash::operator()(std::string_view text) const {
  std::uint64_t hash = kHashSeeds.start ^ text.size();
  std::uint64_t word = 0;
  while (text.size() >= sizeof word) {
    std::memcpy(&word, text.data(), sizeof word);
    hash = HashWord(hash ^ word);
    text.remove_prefix(sizeof word);
  }
  word = 0;
  if (!text.empty()) std::memcpy(&word, text.data(), text.size());
  return static_cast<std::size_t>(HashWord(hash ^ word));
}

}  // namespace mardel
