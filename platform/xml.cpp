#include "platform/xml.h"

#define XML_DTD  // for expat's limit on entities
#include <expat.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <new>

#include "platform/files.h"
#include "platform/hash.h"

namespace mardel {
namespace {

// Of entities, and of attributes in a document type. Entities that stand for one another nest as
// calls of expat, and each default value is looked up at each element.
constexpr int kMostDeclarations = 64;
// Beyond 8 MiB, where expat begins to count, a document may grow to twice its size when its
// entities are replaced; expat alone would let a hundred times through.
constexpr float kMostAmplification = 2;
// A small document may be of elements only. In a large one they hold something, so that the tree
// and what is read from it stay within a few times the document's size.
constexpr std::size_t kFewElements = std::size_t{1} << 16U;
constexpr std::size_t kLeastBytesOfElement = 8;

struct parser_freer {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using parser_owner = std::unique_ptr<XML_ParserStruct, parser_freer>;

}  // namespace

// Builds a tree from expat's calls, of the root or of one entry of a list after the other. The text
// of the open elements lies in one buffer: a child's text is moved into the tree at its end, so
// that its parent's text goes on where it stopped.
class xml_reader {
 public:
  // Without lists the whole document becomes the tree.
  explicit xml_reader(xml_list_reader* lists)
      : parser_(XML_ParserCreate(nullptr)), lists_(lists), tree_level_(lists == nullptr ? 0 : 2) {
    open_.reserve(kMostXmlLevels);
  }

  xml_status Read(std::string_view bytes) {
    if (parser_ == nullptr) return xml_status::kNotLoaded;
    SetUp(parser_.get());
    if (lists_ == nullptr) ReserveTree(bytes.size());
    most_elements_ = std::max(kFewElements, bytes.size() / kLeastBytesOfElement);
    const int size = static_cast<int>(bytes.size());
    if (XML_Parse(parser_.get(), bytes.data(), size, XML_TRUE) == XML_STATUS_OK) {
      return xml_status::kRead;
    }
    const bool is_out_of_memory = XML_GetErrorCode(parser_.get()) == XML_ERROR_NO_MEMORY;
    return is_out_of_memory ? xml_status::kNotLoaded : refusal_.value_or(xml_status::kMalformed);
  }

  xml_tree TakeTree() { return std::move(tree_); }

 private:
  struct open_element {
    std::uint32_t index = 0;
    std::uint32_t last_child = 0;
    std::size_t text_start = 0;  // in text_
  };

  // Room for what most files hold; what stays unused is never touched.
  void ReserveTree(std::size_t bytes) {
    constexpr std::size_t kBytesOfElement = 32;
    tree_.elements_.reserve(bytes / kBytesOfElement);
    tree_.characters_.reserve(bytes);
  }

  void SetUp(XML_Parser parser) {
    XML_SetUserData(parser, this);
    XML_SetHashSalt(parser, kHashSeeds.start);  // its own would ask the system for each document
    XML_SetElementHandler(parser, &OnStart, &OnEnd);
    XML_SetCharacterDataHandler(parser, &OnCharacters);
    XML_SetEntityDeclHandler(parser, &OnEntity);
    XML_SetAttlistDeclHandler(parser, &OnAttribute);
    XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser, kMostAmplification);
  }

  static void OnStart(void* reader, const char* name, const char** /*attributes*/) {
    Do(reader, [name](xml_reader& it) { it.Start(name); });
  }
  static void OnEnd(void* reader, const char* /*name*/) {
    Do(reader, [](xml_reader& it) { it.End(); });
  }
  static void OnCharacters(void* reader, const char* text, int size) {
    Do(reader, [=](xml_reader& it) {
      if (it.open_.size() > it.tree_level_) it.text_.append(text, static_cast<std::size_t>(size));
    });
  }
  // The parser gives more of a declaration than a house's function takes.
  // NOLINTBEGIN(readability-function-size)
  static void OnEntity(void* reader, const char*, int, const char*, int, const char*, const char*,
                       const char*, const char*) {
    static_cast<xml_reader*>(reader)->Declare();
  }
  static void OnAttribute(void* reader, const char*, const char*, const char*, const char*, int) {
    static_cast<xml_reader*>(reader)->Declare();
  }
  // NOLINTEND(readability-function-size)

  // After a refusal expat may still report the end of what was refused. It is written in C, which
  // no exception may cross.
  template <class step>
  static void Do(void* reader, step reported) {
    auto& it = *static_cast<xml_reader*>(reader);
    if (it.refusal_) return;
    try {
      reported(it);
    } catch (const std::bad_alloc&) {
      it.Refuse(xml_status::kNotLoaded);
    }
  }

  void Declare() {
    if (++declarations_ > kMostDeclarations) Refuse(xml_status::kMalformed);
  }

  void Start(std::string_view name) {
    if (open_.size() == kMostXmlLevels) return Refuse(xml_status::kMalformed);
    if (elements_++ == most_elements_) return Refuse(xml_status::kNotLoaded);
    const std::size_t level = open_.size();
    if (level < tree_level_) {
      open_.emplace_back();
      return level == 0 ? lists_->OpenRoot(name) : lists_->OpenList(name);
    }
    if (level == tree_level_) {
      tree_.elements_.clear();
      tree_.characters_.clear();
      offset_ = static_cast<std::size_t>(XML_GetCurrentByteIndex(parser_.get()));
    }
    AddElement(name);
  }

  void AddElement(std::string_view name) {
    const auto index = static_cast<std::uint32_t>(tree_.elements_.size());
    xml_tree::element& added = tree_.elements_.emplace_back();
    added.name_start = static_cast<std::uint32_t>(tree_.characters_.size());
    added.name_size = static_cast<std::uint32_t>(name.size());
    tree_.characters_.append(name);
    if (open_.size() > tree_level_) LinkChild(index);
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

  void End() {
    const open_element ended = open_.back();
    open_.pop_back();
    if (open_.size() < tree_level_) return;
    xml_tree::element& element = tree_.elements_[ended.index];
    element.text_start = static_cast<std::uint32_t>(tree_.characters_.size());
    element.text_size = static_cast<std::uint32_t>(text_.size() - ended.text_start);
    tree_.characters_.append(text_, ended.text_start);
    text_.resize(ended.text_start);
    if (lists_ == nullptr || open_.size() > tree_level_) return;
    if (!lists_->TakeEntry(tree_.Root(), offset_)) Refuse(xml_status::kNotLoaded);
  }

  void Refuse(xml_status as) {
    refusal_ = as;
    XML_StopParser(parser_.get(), XML_FALSE);
  }

  parser_owner parser_;
  xml_list_reader* lists_;
  std::size_t tree_level_;  // of the elements that become a tree; the root's is 0
  xml_tree tree_;
  std::size_t offset_ = 0;  // of the tree's start tag
  std::vector<open_element> open_;
  std::string text_;
  std::size_t elements_ = 0, most_elements_ = 0;
  int declarations_ = 0;
  std::optional<xml_status> refusal_;
};

xml_result ParseXml(std::string_view bytes) try {
  if (bytes.size() > std::numeric_limits<int>::max()) return {};
  xml_reader reader(nullptr);
  const xml_status status = reader.Read(bytes);
  if (status != xml_status::kRead) return {status, {}};
  return {status, reader.TakeTree(), bytes.size()};
} catch (const std::bad_alloc&) {
  return {};
}

xml_status ReadXmlLists(std::string_view bytes, xml_list_reader& lists) try {
  if (bytes.size() > std::numeric_limits<int>::max()) return xml_status::kNotLoaded;
  return xml_reader(&lists).Read(bytes);
} catch (const std::bad_alloc&) {
  return xml_status::kNotLoaded;
}

xml_result ReadXmlFile(const std::string& path) try {
  const std::optional<std::string> bytes = ReadFile(path);
  return bytes ? ParseXml(*bytes) : xml_result();
} catch (const std::bad_alloc&) {
  return {};
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
