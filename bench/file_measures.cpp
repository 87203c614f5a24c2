// Opening and saving designs.
#include <expat.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

#include "bench/measures.h"
#include "codegen/design_file.h"

namespace mardel {
namespace {

void Open(benchmark::State& state, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  const std::string bytes = DesignText(generated.document);
  design_program opened;
  const load_context context{opened.run.libraries, *opened.measures, "\n"};
  for (auto _ : state) {
    ClearDesign(opened.document);
    TimeComputing(state,
                  [&] { opened.document = LoadDesign(bytes, "opened.mrd", context).document; });
  }
}

void OnStart(void* /*data*/, const XML_Char* /*name*/, const XML_Char** /*attributes*/) {}
void OnEnd(void* /*data*/, const XML_Char* /*name*/) {}
void OnCharacters(void* /*data*/, const XML_Char* /*text*/, int /*size*/) {}

void ParseOnly(benchmark::State& state, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  const std::string bytes = DesignText(generated.document);
  for (auto _ : state) {
    TimeComputing(state, [&] {
      const XML_Parser parser = XML_ParserCreate(nullptr);
      XML_SetElementHandler(parser, OnStart, OnEnd);
      XML_SetCharacterDataHandler(parser, OnCharacters);
      XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
      XML_ParserFree(parser);
    });
  }
}

void Save(benchmark::State& state, const std::string& path, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  for (auto _ : state) {
    TimeWaiting(state, [&] { benchmark::DoNotOptimize(SaveDesign(generated.document, path)); });
  }
}

void WriteOnly(benchmark::State& state, const std::string& path, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  const std::string bytes = DesignText(generated.document);
  const std::string beside = path + "~";
  for (auto _ : state) {
    TimeWaiting(state, [&] {
      const int file = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
      benchmark::DoNotOptimize(write(file, bytes.data(), bytes.size()));
      fsync(file);
      close(file);
      benchmark::DoNotOptimize(std::rename(beside.c_str(), path.c_str()));
    });
  }
}

}  // namespace

void AddFileMeasures(table& all, const inputs& in) {
  for (const std::size_t blocks : {100U, 1000U, 10000U}) {
    all.Add({.name = "open a design",
             .floor_name = "expat alone",
             .size = std::to_string(blocks),
             .product = [=](benchmark::State& state) { Open(state, blocks); },
             .floor = [=](benchmark::State& state) { ParseOnly(state, blocks); },
             .target = 3});
  }
  for (const std::size_t blocks : {100U, 1000U, 10000U}) {
    const std::string path = in.Folder() + "saved.mrd";
    all.Add({.name = "save a design",
             .floor_name = "write, flush, rename",
             .size = std::to_string(blocks),
             .product = [=](benchmark::State& state) { Save(state, path, blocks); },
             .floor = [=](benchmark::State& state) { WriteOnly(state, path, blocks); },
             .target = 2});
  }
}

}  // namespace mardel
