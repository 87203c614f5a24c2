// Opening and saving designs.
#include <expat.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

#include "bench/measures.h"
#include "codegen/design_file.h"
#include "platform/files.h"

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

void Parse(const std::string& bytes) {
  const XML_Parser parser = XML_ParserCreate(nullptr);
  XML_SetElementHandler(parser, OnStart, OnEnd);
  XML_SetCharacterDataHandler(parser, OnCharacters);
  XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
  XML_ParserFree(parser);
}

void ParseOnly(benchmark::State& state, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  const std::string bytes = DesignText(generated.document);
  for (auto _ : state) TimeComputing(state, [&] { Parse(bytes); });
}

void Save(benchmark::State& state, const std::string& path, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  for (auto _ : state) {
    TimeWaiting(state, [&] { benchmark::DoNotOptimize(SaveDesign(generated.document, path)); });
  }
}

enum class flushes { kFile, kFileAndFolder };

void WriteOnly(benchmark::State& state, const std::string& path, std::size_t blocks,
               flushes asked) {
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
      if (asked == flushes::kFile) return;
      const int folder = open(".", O_RDONLY | O_DIRECTORY);
      fsync(folder);
      close(folder);
    });
  }
}

void AddSave(table& all, const std::string& path, std::size_t blocks, flushes asked) {
  const bool is_one = asked == flushes::kFile;
  all.Add({.name = is_one ? "save a design" : "… beside a floor that flushes twice too",
           .floor_name = is_one ? "write, flush, rename" : "the same, flush the folder",
           .size = std::to_string(blocks),
           .product = [=](benchmark::State& state) { Save(state, path, blocks); },
           .floor = [=](benchmark::State& state) { WriteOnly(state, path, blocks, asked); },
           .target = is_one ? 2.0 : 0});
}

}  // namespace

void ParseFile(benchmark::State& state, const std::string& path) {
  const std::string bytes = ReadFile(path).value_or("");
  for (auto _ : state) TimeWaiting(state, [&] { Parse(bytes); });
}

double FileKibibytes(const std::string& path) {
  return static_cast<double>(ReadFile(path).value_or("").size()) / 1024;
}

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
    AddSave(all, path, blocks, flushes::kFile);
    AddSave(all, path, blocks, flushes::kFileAndFolder);
  }
}

}  // namespace mardel
