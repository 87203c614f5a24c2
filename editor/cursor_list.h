// An ordered list that keeps a current element. Elements never move in memory: moving one within
// the list relinks it.
#pragma once

#include <cstddef>
#include <iterator>
#include <list>
#include <utility>

namespace mardel {

// The current element is the one added or moved to the end last; after a deletion it is the one
// before the deleted, or none when the first was deleted. So what is deleted and at once inserted
// after the current element is back at its place. Walking, sorting and overwriting an element in
// place do not change which one is current.
template <class element_type>
class cursor_list {
 public:
  using iterator = typename std::list<element_type>::iterator;
  using const_iterator = typename std::list<element_type>::const_iterator;

  cursor_list() = default;
  cursor_list(cursor_list&& from) noexcept { *this = std::move(from); }
  // Elements stay where they are in memory; `from` is left empty.
  cursor_list& operator=(cursor_list&& from) noexcept {
    if (this == &from) return *this;
    const bool has_current = from.current_ != from.elements_.end();
    elements_.swap(from.elements_);
    current_ = has_current ? from.current_ : elements_.end();
    from.Clear();
    return *this;
  }
  ~cursor_list() = default;

  iterator begin() { return elements_.begin(); }
  iterator end() { return elements_.end(); }
  const_iterator begin() const { return elements_.begin(); }
  const_iterator end() const { return elements_.end(); }
  auto rbegin() { return elements_.rbegin(); }
  auto rend() { return elements_.rend(); }
  std::size_t size() const { return elements_.size(); }
  bool empty() const { return elements_.empty(); }

  // The list must not be empty.
  element_type& Last() { return elements_.back(); }
  const element_type& Last() const { return elements_.back(); }

  element_type& Append(element_type element) {
    elements_.push_back(std::move(element));
    current_ = std::prev(elements_.end());
    return *current_;
  }

  // At the front when there is no current element.
  element_type& InsertAfterCurrent(element_type element) {
    const iterator next = current_ == elements_.end() ? elements_.begin() : std::next(current_);
    current_ = elements_.insert(next, std::move(element));
    return *current_;
  }

  void MoveToEnd(iterator element) {
    elements_.splice(elements_.end(), elements_, element);
    current_ = element;
  }

  // Returns the element after the deleted one.
  iterator Delete(iterator element) {
    current_ = element == elements_.begin() ? elements_.end() : std::prev(element);
    return elements_.erase(element);
  }

  // Keeps the order of elements that compare equal; the current element stays the same one.
  template <class order>
  void SortStably(order less) {
    elements_.sort(less);
  }

  void Clear() {
    elements_.clear();
    current_ = elements_.end();
  }

 private:
  std::list<element_type> elements_;
  iterator current_ = elements_.end();
};

}  // namespace mardel
