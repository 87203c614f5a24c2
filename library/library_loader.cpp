#include "library/library_loader.h"

#include <cstdint>
#include <new>
#include <string_view>
#include <utility>

#include "platform/files.h"
#include "platform/text.h"
#include "platform/utf8.h"
#include "platform/xml.h"

namespace mardel {

namespace {

// kept: blanks before a number make it 0, and what does not fit a byte is 192.
int Component(std::string_view text) {
  const bool starts_like_a_number =
      !text.empty() && std::string_view("+-0123456789").find(text[0]) != std::string_view::npos;
  const std::int64_t value = starts_like_a_number ? ParseInteger(text) : 0;
  return value < 0 || value > 255 ? 192 : static_cast<int>(value);
}

std::string_view LastCharacters(std::string_view text, std::size_t count) {
  std::size_t start = text.size();
  while (start > 0 && count > 0) {
    --start;
    if (!IsContinuation(text[start])) --count;
  }
  return text.substr(start);
}

// "r,g,b". kept: blue is read from as many trailing characters as red has, so library files write
// every component with the same number of digits.
colour LibraryColour(std::string_view text) {
  const std::size_t comma = text.find(',');
  const std::string_view red = text.substr(0, comma);
  if (comma == std::string_view::npos) return Rgba(Component(red), 0, 0);
  const std::string_view rest = text.substr(comma + 1);
  const std::string_view green = rest.substr(0, rest.find(','));
  const std::string_view blue = LastCharacters(rest, CountCharacters(red));
  return Rgba(Component(red), Component(green), Component(blue));
}

// In bytes, what is made of a file, each block with its library's name.
std::size_t RoomOf(xml_tree::node root) {
  constexpr std::size_t kRoomOfEntry = 256, kRoomOfBlock = 512;
  std::size_t room = 0, name_size = 0;
  for (const xml_tree::node child : root.Children()) {
    room += kRoomOfEntry;
    if (child.Name() == "name") name_size = child.Text().size();
    for (const xml_tree::node each : child.Children()) {
      room += each.Name() == "name" ? kRoomOfBlock + name_size : kRoomOfEntry;
    }
  }
  return room;
}

// One walk through one file.
class library_reader {
 public:
  explicit library_reader(library_loading& so_far) : so_far_(so_far) {}

  // What refuses the rest of the file.
  std::optional<report> Read(xml_tree::node root);
  // That the file's blocks are registered under; "" when it has none.
  const std::string& LibraryName() const { return lib_; }

 private:
  std::optional<report> StartLibrary(std::string_view name);
  void ReadBlock(xml_tree::node sub);
  void ReadPinOrParam(xml_tree::node element);
  void AddPinOrParam(pin read, std::string default_value);

  library_loading& so_far_;
  std::string lib_;
  text_pool texts_;
  std::int64_t numbers_taken_ = 0;  // by pins and parameters of the block
};

std::optional<report> library_reader::Read(xml_tree::node root) {
  for (const xml_tree::node child : root.Children()) {
    const std::string_view name = child.Name();
    if (name == "name") {
      if (auto refused = StartLibrary(child.Text())) return refused;
    } else if (name == "desc") {
      CurrentLibrary(so_far_).desc = child.Text();
    } else if (name == "lib_color") {
      CurrentLibrary(so_far_).lib_color = LibraryColour(child.Text());
    } else if (name == "lib_text_color") {
      CurrentLibrary(so_far_).lib_text_color = LibraryColour(child.Text());
    } else if (name == "sub" && child.HasChildren()) {
      ReadBlock(child);
    }
  }
  return std::nullopt;
}

std::optional<report> library_reader::StartLibrary(std::string_view name) {
  if (const library* loaded = SelectIgnoringCase(so_far_, name)) {
    // kept: misspelt; users know the message so.
    return report{.kind = rule::kDuplicateLibrary,
                  .text = {"Duplicate Library", "A library named " + loaded->name +
                                                    " was already loaded, dupliacte not loaded."}};
  }
  lib_ = name;
  AddLibrary(so_far_, {lib_, "", Rgba(230, 230, 64), kBlack});
  return std::nullopt;
}

void library_reader::ReadBlock(xml_tree::node sub) {
  numbers_taken_ = 0;
  for (const xml_tree::node child : sub.Children()) {
    const std::string_view name = child.Name();
    if (name == "name") {
      blockdef& block = so_far_.staged.emplace_back();
      block.lib = lib_;
      block.sub = child.Text();
    } else if (name == "desc") {
      if (!so_far_.staged.empty()) so_far_.staged.back().desc = child.Text();
    } else if (name == "param") {
      ReadPinOrParam(child);
    }
  }
}

void library_reader::ReadPinOrParam(xml_tree::node element) {
  pin read;
  std::string default_value;
  const std::pair<std::string_view, shared_text*> fields[] = {{"name", &read.pin_name},
                                                              {"type", &read.pin_type},
                                                              {"desc", &read.pin_desc},
                                                              {"side", &read.pin_side}};
  for (const xml_tree::node child : element.Children()) {
    if (child.Name() == "default") default_value = child.Text();
    for (const auto& [name, value] : fields) {
      if (child.Name() == name) *value = texts_.Share(child.Text());
    }
  }
  read.pin_num = ++numbers_taken_;
  if (!so_far_.staged.empty()) AddPinOrParam(std::move(read), std::move(default_value));
}

void library_reader::AddPinOrParam(pin read, std::string default_value) {
  blockdef& block = so_far_.staged.back();
  if (IsRegisterClass(read.pin_type)) {
    block.pins.push_back(std::move(read));
    return;
  }
  block.params.push_back({.param_num = read.pin_num,
                          .param_name = std::move(read.pin_name),
                          .param_type = std::move(read.pin_type),
                          .param_value = std::move(default_value),
                          .param_desc = std::move(read.pin_desc)});
}

// kept: these texts name the library that is current, not the file.
report LoadingError(library_loading& so_far) {
  return {.kind = rule::kLibraryNotLoaded,
          .text = {"Error Loading Library", "Library named " + CurrentLibrary(so_far).name +
                                                " experienced a loading error."}};
}

report ParsingError(library_loading& so_far) {
  return {.kind = rule::kLibraryMalformed,
          .text = {"Error Parsing Library", "Library named " + CurrentLibrary(so_far).name +
                                                " experienced an XML parsing error."}};
}

}  // namespace

std::optional<report> LoadLibraryFile(library_loading& so_far, const std::string& path) try {
  const xml_result file = ReadXmlFile(path);
  switch (file.status) {
    case xml_status::kNotLoaded:
      return LoadingError(so_far);
    case xml_status::kMalformed:
      return ParsingError(so_far);
    case xml_status::kRead:
      break;
  }
  if (RoomOf(file.tree.Root()) > XmlRoom(file.size)) return LoadingError(so_far);
  library_reader reader(so_far);
  if (auto refused = reader.Read(file.tree.Root())) return refused;
  if (!reader.LibraryName().empty()) RegisterStaged(so_far, reader.LibraryName());
  return std::nullopt;
} catch (const std::bad_alloc&) {
  return LoadingError(so_far);
}

std::vector<report> LoadLibraryFiles(library_loading& so_far, const std::string& folder) {
  std::vector<report> reports;
  for (const std::string& name : ListFiles(folder, ".dvl")) {
    const std::string path = folder + name;
    auto found = LoadLibraryFile(so_far, path);
    if (!found) continue;
    found->file = path;
    reports.push_back(std::move(*found));
  }
  return reports;
}

loaded_libraries LoadLibraries(const std::string& folder, expert_mode mode, int first_id,
                               const text_metrics& metrics) {
  library_loading so_far{.metrics = metrics, .next_id = first_id};
  BuildBuiltinLibraries(so_far, mode);
  std::vector<report> reports = LoadLibraryFiles(so_far, folder);
  return {library_set(std::move(so_far.records)), so_far.next_id, std::move(reports)};
}

}  // namespace mardel
