// What the fuzz targets share.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace mardel {

// Each target's own: what is done with one input. Nothing may be left over for the next.
void TryInput(std::string_view input);

// Ends the process, so that the fuzzer keeps the input.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

// A regular file that lies in memory, for what reads by path.
class memory_file {
 public:
  explicit memory_file(std::string_view content) : number_(memfd_create("input", MFD_CLOEXEC)) {
    Require(write(number_, content.data(), content.size()) == std::ssize(content), "a whole write");
  }
  memory_file(const memory_file&) = delete;
  memory_file& operator=(const memory_file&) = delete;
  ~memory_file() { close(number_); }
  std::string Path() const { return "/proc/self/fd/" + std::to_string(number_); }

 private:
  int number_;
};

}  // namespace mardel
