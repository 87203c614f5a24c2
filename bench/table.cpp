#include "bench/table.h"

#include <cstdio>
#include <iostream>

namespace mardel {
namespace {

std::string ProductName(const std::string& name, const std::string& size) {
  return name + (size.empty() ? "" : "/" + size);
}

std::string FloorName(const std::string& name, const std::string& size) {
  return ProductName(name, size) + "/floor";
}

std::string Format(const char* format, double value) {
  char text[32];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

std::string Duration(double nanoseconds) {
  if (nanoseconds < 1e3) return Format("%.0f ns", nanoseconds);
  if (nanoseconds < 1e6) return Format("%.3g µs", nanoseconds / 1e3);
  return Format("%.3g ms", nanoseconds / 1e6);
}

std::string Target(double most) {
  return most == 0 ? "" : "≤ " + Format("%.3g", most);
}

std::string Verdict(double ratio, double most) {
  return most != 0 && ratio > most ? Format("**%.2f, missed**", ratio) : Format("%.2f", ratio);
}

}  // namespace

// Shows the progress, and keeps the medians.
class table::collector : public benchmark::ConsoleReporter {
 public:
  explicit collector(std::map<std::string, double>& medians)
      : ConsoleReporter(OO_None), medians_(medians) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
      std::string name = run.run_name.function_name;
      if (!run.run_name.args.empty()) name += "/" + run.run_name.args;
      medians_[name] =
          run.GetAdjustedRealTime() * 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit);
      name += '|';
      for (const auto& [counter, value] : run.counters) medians_[name + counter] = value;
    }
  }

 private:
  std::map<std::string, double>& medians_;
};

void table::Add(const measure& added) {
  rows_.push_back({added.name, added.floor_name, added.size, added.target, added.growth_target,
                   added.memory_target});
  const auto add = [&added](const std::string& name, const measured& run) {
    auto* const made = benchmark::RegisterBenchmark(name.c_str(), run);
    made->Unit(benchmark::kMicrosecond)->UseManualTime();
    if (added.iterations != 0) made->Iterations(added.iterations);
  };
  add(ProductName(added.name, added.size), added.product);
  if (added.floor) add(FloorName(added.name, added.size), added.floor);
}

void table::PrintCounter(const row& shown, const std::string& counter, double target) const {
  const auto product = medians_.find(ProductName(shown.name, shown.size) + "|" + counter);
  const auto floor = medians_.find(FloorName(shown.name, shown.size) + "|" + counter);
  if (product == medians_.end() || floor == medians_.end()) return;
  const double ratio = product->second / floor->second;
  std::printf("| … %s | %s | %.0f | %.0f | %s | %s | | | |\n", counter.c_str(), shown.size.c_str(),
              product->second, floor->second, Verdict(ratio, target).c_str(),
              Target(target).c_str());
}

void table::PrintGrowth(const row& shown) const {
  const auto growth = medians_.find(ProductName(shown.name, shown.size) + "|" + kGrowthCounter);
  if (growth == medians_.end()) return;
  constexpr double kMost = 5;
  std::printf("| … memory from the 1,000th to the last, MiB | %s | %s | | | %s | | | |\n",
              shown.size.c_str(), Verdict(growth->second, kMost).c_str(), Target(kMost).c_str());
}

void table::PrintAgainstFloor(const row& shown, double product, double floor) const {
  std::printf(" %s: %s | %s | %s |", shown.floor_name.c_str(), Duration(floor).c_str(),
              Verdict(product / floor, shown.target).c_str(), Target(shown.target).c_str());
}

void table::PrintTimesSmaller(const row& shown) const {
  const std::string smaller = shown.size.substr(0, shown.size.size() - 1);
  const auto before = medians_.find(ProductName(shown.name, smaller));
  if (shown.growth_target == 0 || before == medians_.end()) {
    std::printf(" | | |\n");
    return;
  }
  const auto growth = [&](std::string (*name)(const std::string&, const std::string&)) {
    return medians_.at(name(shown.name, shown.size)) / medians_.at(name(shown.name, smaller));
  };
  const bool has_floor = medians_.contains(FloorName(shown.name, shown.size));
  std::printf(" %s | %s | %s |\n", Verdict(growth(ProductName), shown.growth_target).c_str(),
              has_floor ? Format("%.2f", growth(FloorName)).c_str() : "",
              Target(shown.growth_target).c_str());
}

void table::PrintRow(const row& shown) const {
  const auto product = medians_.find(ProductName(shown.name, shown.size));
  if (product == medians_.end()) return;
  const auto floor = medians_.find(FloorName(shown.name, shown.size));
  std::printf("| %s | %s | %s |", shown.name.c_str(), shown.size.c_str(),
              Duration(product->second).c_str());
  if (floor == medians_.end()) {
    std::printf(" | | |");
  } else {
    PrintAgainstFloor(shown, product->second, floor->second);
  }
  PrintTimesSmaller(shown);
  PrintCounter(shown, kPaintedCounter, 0);
  PrintCounter(shown, kProcessorCounter, 0);
  PrintCounter(shown, kMemoryCounter, shown.memory_target);
  PrintCounter(shown, kPeakCounter, shown.memory_target);
  PrintGrowth(shown);
}

void table::Run() {
  collector shown(medians_);
  shown.SetOutputStream(&std::clog);
  shown.SetErrorStream(&std::clog);
  benchmark::RunSpecifiedBenchmarks(&shown);
  std::printf(
      "| measure | size | median | floor | ratio | target | 10 × the size | the floor's | "
      "target "
      "|\n|---|--:|--:|--:|--:|--:|--:|--:|--:|\n");
  for (const row& each : rows_) PrintRow(each);
}

}  // namespace mardel
