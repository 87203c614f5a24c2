#include "codegen/design_file.h"

#include <new>
#include <utility>

#include "codegen/design_reader.h"

namespace mardel {
namespace {

load_status StatusOf(xml_status read) {
  switch (read) {
    case xml_status::kRead:
      return load_status::kLoaded;
    case xml_status::kNotLoaded:
      return load_status::kNotLoaded;
    case xml_status::kMalformed:
      break;
  }
  return load_status::kMalformed;
}

loaded_design Loaded(xml_result read, const load_context& context) try {
  loaded_design loaded{.status = StatusOf(read.status), .document = {}, .reports = {}};
  if (loaded.status != load_status::kLoaded) return loaded;
  if (!ReadDesign(loaded.document, read.tree, context.line_separator)) {
    return {.status = load_status::kNotLoaded, .document = {}, .reports = {}};
  }
  read.tree = {};  // a large one is not to stand beside what else is needed
  loaded.reports = RelinkDesign(loaded.document, context);
  return loaded;
} catch (const std::bad_alloc&) {
  return {.status = load_status::kNotLoaded, .document = {}, .reports = {}};
}

}  // namespace

report LoadFailure(load_status status, const std::string& path) {
  const std::string design_named = "Design named " + path;
  if (status == load_status::kMalformed) {
    return {.kind = rule::kDesignMalformed,
            .text = {"Error Parsing Design", design_named + " experienced an XML parsing error."}};
  }
  return {.kind = rule::kDesignNotLoaded,
          .text = {"Error Loading Design", design_named + " experienced a loading error."}};
}

loaded_design LoadDesign(std::string_view content, const std::string& path,
                         const load_context& context) {
  loaded_design loaded = Loaded(ParseXml(content), context);
  if (loaded.status == load_status::kLoaded) {
    loaded.document.file_name = path;
  } else {
    loaded.reports.push_back(LoadFailure(loaded.status, path));
  }
  return loaded;
}

loaded_design LoadDesign(const std::string& path, const load_context& context) {
  const std::optional<std::string> content = ReadFile(path);
  if (content) return LoadDesign(*content, path, context);
  return {.status = load_status::kNotLoaded,
          .document = {},
          .reports = {LoadFailure(load_status::kNotLoaded, path)}};
}

loaded_design LoadDesignText(std::string_view text, const load_context& context) {
  xml_result read = ParseXml(text);
  const bool is_design =
      read.status == xml_status::kRead && read.tree.Root().Name() == "MardelDesign";
  if (!is_design) read.status = xml_status::kMalformed;
  return Loaded(std::move(read), context);
}

}  // namespace mardel
