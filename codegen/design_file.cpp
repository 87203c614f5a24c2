#include "codegen/design_file.h"

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

report Failure(load_status status, const std::string& path) {
  const std::string design_named = "Design named " + path;
  if (status == load_status::kMalformed) {
    return {.kind = rule::kDesignMalformed,
            .text = {"Error Parsing Design", design_named + " experienced an XML parsing error."}};
  }
  return {.kind = rule::kDesignNotLoaded,
          .text = {"Error Loading Design", design_named + " experienced a loading error."}};
}

}  // namespace

loaded_design LoadDesign(const std::string& path, const load_context& context) {
  loaded_design loaded;
  {
    const xml_result read = ReadXmlFile(path);
    loaded.status = StatusOf(read.status);
    if (loaded.status != load_status::kLoaded) {
      loaded.reports.push_back(Failure(loaded.status, path));
      return loaded;
    }
    ReadDesign(loaded.document, read.tree.Root(), context.line_separator);
  }
  loaded.document.file_name = path;
  loaded.reports = RelinkDesign(loaded.document, context);
  return loaded;
}

}  // namespace mardel
