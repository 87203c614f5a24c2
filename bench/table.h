// Measures beside their floors, and the table that they make.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace mardel {

using measured = std::function<void(benchmark::State&)>;

struct measure {
  std::string name;
  std::string floor_name;  // what the floor does
  std::string size;        // in blocks, or ""
  measured product, floor;
  double target = 0;         // most times the floor; 0 for none
  double growth_target = 0;  // most times the same measure one size before; 0 for none
  double memory_target = 0;  // most times the floor's memory; 0 for none
  int iterations = 0;        // of each of the repetitions; 0 as many as are worth it
};

// Counters that get a row of their own beside the time.
constexpr const char* kMemoryCounter = "PSS, KiB";
// Above that of `--version`; the floor's is the size of the file.
constexpr const char* kPeakCounter = "peak memory above a bare start and the file, KiB";
constexpr const char* kProcessorCounter = "processor time, ms";
constexpr const char* kPaintedCounter = "painted, ms";
constexpr const char* kGrowthCounter = "growth, MiB";  // has no floor

class table {
 public:
  // Registers both sides.
  void Add(const measure& added);
  // Runs what the command line asks for and prints the rows in Markdown.
  void Run();

 private:
  class collector;
  struct row {
    std::string name, floor_name, size;
    double target, growth_target, memory_target;
  };
  void PrintRow(const row& shown) const;
  void PrintAgainstFloor(const row& shown, double product, double floor) const;
  // Beside it the floor's growth, which has the same caches.
  void PrintTimesSmaller(const row& shown) const;
  void PrintCounter(const row& shown, const std::string& counter, double target) const;
  void PrintGrowth(const row& shown) const;

  std::vector<row> rows_;
  // Medians: nanoseconds, and counters by their name behind a "|".
  std::map<std::string, double> medians_;
};

}  // namespace mardel
