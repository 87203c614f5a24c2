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

void ReportFailure(load_status status, const std::string& path, ui& desk) {
  const bool is_malformed = status == load_status::kMalformed;
  desk.ShowMessage({is_malformed ? "Error Parsing Design" : "Error Loading Design",
                    "Design named " + path +
                        (is_malformed ? " experienced an XML parsing error."
                                      : " experienced a loading error.")});
}

}  // namespace

load_result LoadDesign(design& document, const std::string& path, const load_context& context) {
  ClearDesign(document);
  load_result result;
  {
    const xml_result read = ReadXmlFile(path);
    result.status = StatusOf(read.status);
    if (result.status == load_status::kLoaded) {
      ReadDesign(document, read.tree.Root(), context.line_separator);
    }
  }
  if (result.status != load_status::kLoaded) {
    document.file_name.clear();
    ReportFailure(result.status, path, context.desk);
    return result;
  }
  document.file_name = path;
  result.missing_blocks = RelinkDesign(document, context);
  return result;
}

}  // namespace mardel
