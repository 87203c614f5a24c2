// XML files as element trees, or as a stream of small ones.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mardel {

// Deeper trees are refused, so that no file can exhaust the stack of a reader.
constexpr int kMostXmlLevels = 256;

// A tree of elements: names, document order of children, and text. An element's text is its own
// character data, joined and untrimmed; attributes are not kept.
class xml_tree {
 public:
  class node;
  class children;

  // The root element; the tree must have been read without an error.
  node Root() const;

 private:
  friend class xml_reader;
  struct element {
    std::uint32_t name_start = 0, name_size = 0, text_start = 0, text_size = 0;
    std::uint32_t first_child = 0, next_sibling = 0;  // 0 is none: the root is nobody's child
  };
  std::vector<element> elements_;
  std::string characters_;  // the names and texts of all elements
};

// A view into a tree, which must outlive it.
class xml_tree::node {
 public:
  std::string_view Name() const;
  std::string_view Text() const;
  // For range-for, in document order.
  children Children() const;
  bool HasChildren() const;

 private:
  friend class xml_tree;
  friend class xml_tree::children;
  node(const xml_tree& tree, std::uint32_t index) : tree_(&tree), index_(index) {}
  const xml_tree* tree_;
  std::uint32_t index_;
};

class xml_tree::children {
 public:
  class iterator {
   public:
    node operator*() const { return {*tree_, index_}; }
    iterator& operator++() {
      index_ = tree_->elements_[index_].next_sibling;
      return *this;
    }
    bool operator==(const iterator& other) const { return index_ == other.index_; }

   private:
    friend class children;
    iterator(const xml_tree& tree, std::uint32_t index) : tree_(&tree), index_(index) {}
    const xml_tree* tree_;
    std::uint32_t index_;
  };
  iterator begin() const { return {*tree_, first_}; }
  iterator end() const { return {*tree_, 0}; }

 private:
  friend class xml_tree::node;
  children(const xml_tree& tree, std::uint32_t first) : tree_(&tree), first_(first) {}
  const xml_tree* tree_;
  std::uint32_t first_;
};

// Takes a document whose root holds lists of entries, as the parser meets them.
class xml_list_reader {
 public:
  virtual ~xml_list_reader() = default;
  virtual void OpenRoot(std::string_view name) = 0;
  virtual void OpenList(std::string_view name) = 0;
  // An element of the open list, which is gone after the call, and where its start tag lies, in
  // bytes from the start of the file. False when it is too much: nothing more is read then.
  virtual bool TakeEntry(xml_tree::node entry, std::size_t offset) = 0;
};

inline xml_tree::node xml_tree::Root() const {
  return {*this, 0};
}
inline std::string_view xml_tree::node::Name() const {
  const element& e = tree_->elements_[index_];
  return std::string_view(tree_->characters_).substr(e.name_start, e.name_size);
}
inline std::string_view xml_tree::node::Text() const {
  const element& e = tree_->elements_[index_];
  return std::string_view(tree_->characters_).substr(e.text_start, e.text_size);
}
inline xml_tree::children xml_tree::node::Children() const {
  return {*tree_, tree_->elements_[index_].first_child};
}
inline bool xml_tree::node::HasChildren() const {
  return tree_->elements_[index_].first_child != 0;
}

enum class [[nodiscard]] xml_status {
  kRead,
  kNotLoaded,  // no regular file, unreadable, or too large for the memory that it may take
  kMalformed,  // no XML, nested too deeply, an entity bomb, or more than a few declarations
};

struct [[nodiscard]] xml_result {
  xml_status status = xml_status::kNotLoaded;
  xml_tree tree;         // only when status is kRead
  std::size_t size = 0;  // of the document, in bytes
};

// In bytes, how much may be made of a document of this size, so that no small one takes all memory.
inline std::size_t XmlRoom(std::size_t size) {
  return std::max(std::size_t{32} << 20U, 16 * size);
}

xml_result ReadXmlFile(const std::string& path);
xml_result ParseXml(std::string_view bytes);

// The same without a tree of the whole. What was taken is worth something only when all was read.
xml_status ReadXmlLists(std::string_view bytes, xml_list_reader& lists);

// & < > " ' as entities.
std::string EscapeXml(std::string_view text);

}  // namespace mardel
