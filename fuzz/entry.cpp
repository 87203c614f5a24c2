#include <cstddef>
#include <cstdint>

#include "fuzz/target.h"

// The name that the fuzzer's own main calls.
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  mardel::TryInput({reinterpret_cast<const char*>(bytes), size});
  return 0;
}
