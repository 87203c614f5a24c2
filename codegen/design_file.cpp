#include "codegen/design_file.h"

#include <new>
#include <utility>

#include "codegen/design_reader.h"

namespace mardel {
namespace {

// Of any root element where none is named.
loaded_design Load(std::string_view content, std::string_view root_name,
                   const load_context& context) try {
  raw_design raw;
  loaded_design loaded;
  loaded.status = ReadRawDesign(raw, content, context.line_separator);
  if (loaded.status != load_status::kLoaded) return loaded;
  if (!root_name.empty() && raw.root_name != root_name) {
    loaded.status = load_status::kMalformed;
    return loaded;
  }
  loaded.document = std::move(raw.document);
  loaded.reports = RelinkDesign(loaded.document, context).missing;
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
  loaded_design loaded = Load(content, {}, context);
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
  return Load(text, "MardelDesign", context);
}

}  // namespace mardel
