#include "library/library_loader.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

#include "platform/files.h"
#include "platform/text.h"
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
    const bool is_continuation = (static_cast<unsigned char>(text[start]) & 0xC0U) == 0x80U;
    if (!is_continuation) --count;
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

// One walk through one file.
class library_reader {
 public:
  library_reader(library_set& set, ui& desk) : set_(set), desk_(desk) {}

  // The name that the file's blocks are registered under; "" when it has none or was refused.
  std::string Read(xml_tree::node root);

 private:
  bool StartLibrary(std::string_view name);
  void ReadBlock(xml_tree::node sub);
  void ReadPinOrParam(xml_tree::node element);
  void AddPinOrParam(pin read, std::string default_value);

  library_set& set_;
  ui& desk_;
  std::string lib_;
  std::int64_t numbers_taken_ = 0;  // by pins and parameters of the block
};

std::string library_reader::Read(xml_tree::node root) {
  for (const xml_tree::node child : root.Children()) {
    const std::string_view name = child.Name();
    if (name == "name") {
      if (!StartLibrary(child.Text())) return {};
    } else if (name == "desc") {
      set_.Current().desc = child.Text();
    } else if (name == "lib_color") {
      set_.Current().lib_color = LibraryColour(child.Text());
    } else if (name == "lib_text_color") {
      set_.Current().lib_text_color = LibraryColour(child.Text());
    } else if (name == "sub" && child.HasChildren()) {
      ReadBlock(child);
    }
  }
  return std::move(lib_);
}

bool library_reader::StartLibrary(std::string_view name) {
  if (const library* loaded = set_.SelectIgnoringCase(name)) {
    // kept: misspelt; users know the message so.
    desk_.ShowMessage({"Duplicate Library", "A library named " + loaded->name +
                                                " was already loaded, dupliacte not loaded."});
    return false;
  }
  lib_ = name;
  set_.AddLibrary({lib_, "", Rgba(230, 230, 64), kBlack});
  return true;
}

void library_reader::ReadBlock(xml_tree::node sub) {
  numbers_taken_ = 0;
  for (const xml_tree::node child : sub.Children()) {
    const std::string_view name = child.Name();
    if (name == "name") {
      blockdef& block = set_.staged.emplace_back();
      block.lib = lib_;
      block.sub = child.Text();
    } else if (name == "desc") {
      if (!set_.staged.empty()) set_.staged.back().desc = child.Text();
    } else if (name == "param") {
      ReadPinOrParam(child);
    }
  }
}

void library_reader::ReadPinOrParam(xml_tree::node element) {
  pin read;
  std::string default_value;
  const std::pair<std::string_view, std::string*> fields[] = {{"name", &read.pin_name},
                                                              {"type", &read.pin_type},
                                                              {"desc", &read.pin_desc},
                                                              {"side", &read.pin_side},
                                                              {"default", &default_value}};
  for (const xml_tree::node child : element.Children()) {
    for (const auto& [name, value] : fields) {
      if (child.Name() == name) *value = child.Text();
    }
  }
  read.pin_num = ++numbers_taken_;
  if (!set_.staged.empty()) AddPinOrParam(std::move(read), std::move(default_value));
}

void library_reader::AddPinOrParam(pin read, std::string default_value) {
  blockdef& block = set_.staged.back();
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
message LoadingError(const library_set& set) {
  return {"Error Loading Library",
          "Library named " + set.Current().name + " experienced a loading error."};
}

message ParsingError(const library_set& set) {
  return {"Error Parsing Library",
          "Library named " + set.Current().name + " experienced an XML parsing error."};
}

}  // namespace

void LoadLibraryFile(library_set& set, menu_builder& builder, const std::string& path, ui& desk) {
  std::string name;
  {
    const xml_result file = ReadXmlFile(path);
    if (file.status == xml_status::kNotLoaded) {
      desk.ShowMessage(LoadingError(set));
      return;
    }
    if (file.status == xml_status::kMalformed) {
      desk.ShowMessage(ParsingError(set));
      return;
    }
    name = library_reader(set, desk).Read(file.tree.Root());
  }
  if (!name.empty()) set.RegisterStaged(name, builder);
}

void LoadLibraryFiles(library_set& set, menu_builder& builder, const std::string& folder,
                      ui& desk) {
  for (const std::string& name : ListFiles(folder, ".dvl")) {
    LoadLibraryFile(set, builder, folder + name, desk);
  }
}

}  // namespace mardel
