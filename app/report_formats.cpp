#include "app/report_formats.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "codegen/version.h"
#include "platform/escaping.h"
#include "platform/json.h"

namespace mardel {
namespace {

constexpr std::pair<std::string_view, report_format> kFormats[] = {
    {"text", report_format::kText},
    {"gcc", report_format::kGcc},
    {"json", report_format::kJson},
    {"sarif", report_format::kSarif},
};

std::string_view SeverityName(severity of) {
  return of == severity::kError ? "error" : "warning";
}

std::string GccLine(const found_report& of) {
  const std::string line = of.line ? ":" + std::to_string(*of.line) : "";
  return EscapeControls(of.file) + line + ": " + std::string(SeverityName(of.what.how)) + ": " +
         EscapeControls(of.what.text.text) + " [" + std::string(RuleName(of.what.kind)) + "]";
}

void AddNumber(json_text& json, std::string_view name, std::optional<std::int64_t> number) {
  if (number) json.Name(name).Value(*number);
}

void AddPlace(json_text& json, const design_place& where) {
  AddNumber(json, "block", where.block_id);
  AddNumber(json, "net", where.net_id);
  if (where.at) json.Name("x").Value(where.at->x).Name("y").Value(where.at->y);
}

void AddRecord(json_text& json, const found_report& of) {
  json.OpenObject().Name("file").Value(of.file);
  AddNumber(json, "line", of.line);
  AddPlace(json, of.what.where);
  json.Name("severity").Value(SeverityName(of.what.how));
  json.Name("rule").Value(RuleName(of.what.kind));
  json.Name("message").Value(of.what.text.text).CloseObject();
}

std::string UriOf(const std::string& path) {
  return (path.starts_with('/') ? "file://" : "") + EscapePath(path);
}

void AddResult(json_text& json, const found_report& of) {
  json.OpenObject().Name("ruleId").Value(RuleName(of.what.kind));
  json.Name("level").Value(SeverityName(of.what.how));
  json.Name("message").OpenObject().Name("text").Value(of.what.text.text).CloseObject();
  json.Name("locations").OpenArray().OpenObject().Name("physicalLocation").OpenObject();
  json.Name("artifactLocation").OpenObject().Name("uri").Value(UriOf(of.file)).CloseObject();
  if (of.line) json.Name("region").OpenObject().Name("startLine").Value(*of.line).CloseObject();
  json.CloseObject().CloseObject().CloseArray();
  json.Name("properties").OpenObject();
  AddPlace(json, of.what.where);
  json.CloseObject().CloseObject();
}

std::string Sarif(std::span<const found_report> reports) {
  json_text json;
  json.OpenObject().Name("version").Value("2.1.0").Name("runs").OpenArray().OpenObject();
  json.Name("tool").OpenObject().Name("driver").OpenObject().Name("name").Value("Mardel");
  json.Name("version").Value(VersionText()).CloseObject().CloseObject();
  json.Name("results").OpenArray();
  for (const found_report& each : reports) AddResult(json, each);
  json.CloseArray().CloseObject().CloseArray().CloseObject();
  return json.Take();
}

std::string Json(std::span<const found_report> reports) {
  json_text json;
  json.OpenArray();
  for (const found_report& each : reports) AddRecord(json, each);
  json.CloseArray();
  return json.Take();
}

std::string Lines(std::span<const found_report> reports,
                  std::string (*line_of)(const found_report& of)) {
  std::string lines;
  for (const found_report& each : reports) lines += line_of(each) + '\n';
  return lines;
}

}  // namespace

std::optional<report_format> FindReportFormat(std::string_view name) {
  for (const auto& [known, format] : kFormats) {
    if (known == name) return format;
  }
  return std::nullopt;
}

std::string ReportText(const found_report& of) {
  const std::string kind = of.what.how == severity::kWarning ? "warning: " : "";
  // A configuration's text names the file.
  const bool is_named = of.what.kind == rule::kConfigurationMalformed;
  return EscapeControls((is_named ? "" : of.file + ": ") + kind + of.what.text.title + ": " +
                        of.what.text.text);
}

std::string FormatReports(std::span<const found_report> reports, report_format format) {
  switch (format) {
    case report_format::kText:
      return Lines(reports, ReportText);
    case report_format::kGcc:
      return Lines(reports, GccLine);
    case report_format::kJson:
      return Json(reports);
    case report_format::kSarif:
      break;
  }
  return Sarif(reports);
}

}  // namespace mardel
