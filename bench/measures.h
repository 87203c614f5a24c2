// All measures, by what they exercise.
#pragma once

#include <chrono>
#include <ctime>

#include "bench/inputs.h"
#include "bench/table.h"

namespace mardel {

// The inputs must outlive the table's run.
void AddStartMeasures(table& all, const inputs& in);
void AddFileMeasures(table& all, const inputs& in);
void AddKeepingMeasures(table& all, const inputs& in);
void AddNetlistMeasures(table& all, const inputs& in);
void AddProcessMeasures(table& all, const inputs& in);
void AddRedrawMeasures(table& all);
void AddEventMeasures(table& all);
void AddUndoMeasures(table& all);
void AddCornerMeasures(table& all, const inputs& in);
void AddMemoryMeasure(table& all);

// The floor of what reads a file.
void ParseFile(benchmark::State& state, const std::string& path);
double FileKibibytes(const std::string& path);

// Each counts as one iteration. What only computes is timed by the processor time that it takes,
// which other work on the machine hardly changes. The time is that of one of `steps`.
template <class step>
void TimeComputing(benchmark::State& state, step work, int steps = 1) {
  const auto processor_seconds = [] {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + 1e-9 * static_cast<double>(used.tv_nsec);
  };
  const double start = processor_seconds();
  work();
  state.SetIterationTime((processor_seconds() - start) / steps);
}

template <class step>
void TimeWaiting(benchmark::State& state, step work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
  state.SetIterationTime(passed.count());
}

}  // namespace mardel
