#include "platform/xml.h"

#include <expat.h>

#include <limits>
#include <memory>

#include "platform/files.h"

namespace mardel {
namespace {

// What a document may grow to when its entities are replaced. The largest file fits twice, however
// many elements it holds; expat alone would let a hundred times its size through.
constexpr std::size_t kMostCharacters = 2 * kMostFileBytes;
constexpr std::size_t kMostElements = kMostFileBytes / 4;

struct parser_freer {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using parser_owner = std::unique_ptr<XML_ParserStruct, parser_freer>;

}  // namespace

// Builds a tree from expat's calls. The text of the open elements lies in one buffer: a child's
// text is moved into the tree at its end, so that its parent's text goes on where it stopped.
class xml_reader {
 public:
  xml_reader() : parser_(XML_ParserCreate(nullptr)) { open_.reserve(kMostXmlLevels); }

  xml_result Read(std::string_view bytes) {
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), &OnStart, &OnEnd);
    XML_SetCharacterDataHandler(parser_.get(), &OnCharacters);
    // Room for what most files hold; what stays unused is never touched.
    constexpr std::size_t kBytesOfElement = 32;
    tree_.elements_.reserve(bytes.size() / kBytesOfElement);
    tree_.characters_.reserve(bytes.size());
    const int size = static_cast<int>(bytes.size());
    if (XML_Parse(parser_.get(), bytes.data(), size, XML_TRUE) != XML_STATUS_OK) {
      return {xml_status::kMalformed, {}};
    }
    return {xml_status::kRead, std::move(tree_)};
  }

 private:
  struct open_element {
    std::uint32_t index = 0;
    std::uint32_t last_child = 0;
    std::size_t text_start = 0;  // in text_
  };

  static void OnStart(void* reader, const char* name, const char** /*attributes*/) {
    static_cast<xml_reader*>(reader)->Start(name);
  }
  static void OnEnd(void* reader, const char* /*name*/) { static_cast<xml_reader*>(reader)->End(); }
  static void OnCharacters(void* reader, const char* text, int size) {
    static_cast<xml_reader*>(reader)->Add({text, static_cast<std::size_t>(size)});
  }

  void Start(std::string_view name) {
    if (open_.size() == kMostXmlLevels || tree_.elements_.size() == kMostElements) return Refuse();
    if (!Count(name.size())) return;
    const auto index = static_cast<std::uint32_t>(tree_.elements_.size());
    xml_tree::element& added = tree_.elements_.emplace_back();
    added.name_start = tree_.characters_.size();
    added.name_size = static_cast<std::uint32_t>(name.size());
    tree_.characters_.append(name);
    if (!open_.empty()) LinkChild(index);
    open_.push_back({index, 0, text_.size()});
  }

  void LinkChild(std::uint32_t index) {
    open_element& parent = open_.back();
    if (parent.last_child == 0) {
      tree_.elements_[parent.index].first_child = index;
    } else {
      tree_.elements_[parent.last_child].next_sibling = index;
    }
    parent.last_child = index;
  }

  // After a refusal expat may still report the end of the element that was refused.
  void End() {
    if (refused_) return;
    const open_element& ended = open_.back();
    xml_tree::element& element = tree_.elements_[ended.index];
    element.text_start = tree_.characters_.size();
    element.text_size = static_cast<std::uint32_t>(text_.size() - ended.text_start);
    tree_.characters_.append(text_, ended.text_start);
    text_.resize(ended.text_start);
    open_.pop_back();
  }

  void Add(std::string_view text) {
    if (Count(text.size())) text_.append(text);
  }

  bool Count(std::size_t characters) {
    characters_ += characters;
    if (characters_ > kMostCharacters) Refuse();
    return !refused_;
  }

  void Refuse() {
    refused_ = true;
    XML_StopParser(parser_.get(), XML_FALSE);
  }

  parser_owner parser_;
  xml_tree tree_;
  std::vector<open_element> open_;
  std::string text_;
  std::size_t characters_ = 0;  // all that went into the tree or text_
  bool refused_ = false;
};

xml_result ParseXml(std::string_view bytes) {
  if (bytes.size() > std::numeric_limits<int>::max()) return {};
  return xml_reader().Read(bytes);
}

xml_result ReadXmlFile(const std::string& path) {
  const std::optional<std::string> bytes = ReadFile(path);
  return bytes ? ParseXml(*bytes) : xml_result();
}

std::string EscapeXml(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char byte : text) {
    switch (byte) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&apos;";
        break;
      default:
        escaped += byte;
    }
  }
  return escaped;
}

}  // namespace mardel
