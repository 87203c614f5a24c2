// mardel_bench PROGRAM SOURCES [options of the benchmark library]: prints the table of all
// measures.
#include <cstdio>

#include "bench/measures.h"

int main(int argc, char** argv) {
  using namespace mardel;
  if (argc < 3) {
    std::fputs("usage: mardel_bench PROGRAM SOURCES [--benchmark_...]\n", stderr);
    return 2;
  }
  const inputs in(argv[1], std::string(argv[2]) + "/");
  benchmark::Initialize(&argc, argv);
  table all;
  AddStartMeasures(all, in);
  AddProcessMeasures(all, in);
  AddFileMeasures(all, in);
  AddKeepingMeasures(all, in);
  AddNetlistMeasures(all, in);
  AddRedrawMeasures(all);
  AddEventMeasures(all);
  AddUndoMeasures(all);
  AddCornerMeasures(all, in);
  AddMemoryMeasure(all);
  all.Run();
}
