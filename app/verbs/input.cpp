#include "app/verbs/input.h"

#include "app/headless_program.h"
#include "platform/file_reasons.h"
#include "platform/files.h"
#include "platform/host.h"

namespace mardel {

std::variant<std::string, report> ReadInput(const std::string& path) {
  const bool is_stream = path == kStream;
  std::optional<std::string> bytes = is_stream ? ReadStandardInput() : ReadFile(path);
  if (bytes) return *std::move(bytes);
  report failure = LoadFailure(load_status::kNotLoaded, path);
  failure.text.text += " (" + (is_stream ? "closed or too long" : ReadingFailure(path)) + ")";
  return failure;
}

std::variant<raw_design, report> ReadRawInput(const std::string& path) {
  const auto bytes = ReadInput(path);
  if (const auto* failure = std::get_if<report>(&bytes)) return *failure;
  raw_design raw;
  const load_status status =
      ReadRawDesign(raw, std::get<std::string>(bytes), LineSeparator(HostKind()));
  if (status != load_status::kLoaded) return LoadFailure(status, path);
  return raw;
}

exit_status WriteOutput(const std::string& path, std::string_view content) {
  if (path == kStream) return WriteOut(content);
  const write_status status = ReplaceFile(path, content);
  if (status == write_status::kWritten) return exit_status::kDone;
  return Fail(exit_status::kFileOrToolMissing,
              path + " could not be written (" + WritingFailure(path, status) + ")");
}

}  // namespace mardel
