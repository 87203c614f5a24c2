#include "editor/cursor_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace mardel {
namespace {

TEST(CursorList, AgreesWithAVectorAndAnIndexOverRandomMoves) {
  std::mt19937 random(7);  // NOLINT: the same moves in every run
  const auto tens_less = [](int a, int b) { return a / 10 < b / 10; };
  cursor_list<int> list;
  std::vector<int> numbers;
  std::ptrdiff_t current = -1;  // index of the current number, -1 for none
  for (int next = 0; next < 20000; ++next) {
    cursor_list<int> moved = std::move(list);
    ASSERT_TRUE(list.empty());  // NOLINT(bugprone-use-after-move): promised
    list = std::move(moved);
    const auto size = static_cast<std::ptrdiff_t>(numbers.size());
    const auto place = static_cast<std::ptrdiff_t>(random()) % std::max(size, std::ptrdiff_t{1});
    const auto element = std::next(list.begin(), place);
    const auto number = numbers.begin() + place;
    const auto move = random() % 6;
    if (size == 0 || (move == 0 && size < 12)) {
      list.Append(next);
      numbers.push_back(next);
      current = size;
    } else if (move <= 1 && size < 12) {
      list.InsertAfterCurrent(next);
      numbers.insert(numbers.begin() + ++current, next);
    } else if (move == 2) {
      list.MoveToEnd(element);
      ASSERT_EQ(&list.Last(), &*element) << "moved in memory";
      std::rotate(number, number + 1, numbers.end());
      current = size - 1;
    } else if (move == 3) {
      const int kept = current < 0 ? -1 : *(numbers.begin() + current);
      list.SortStably(tens_less);
      std::stable_sort(numbers.begin(), numbers.end(), tens_less);
      if (current >= 0) current = std::find(numbers.begin(), numbers.end(), kept) - numbers.begin();
    } else {
      const auto after = list.Delete(element);
      ASSERT_EQ(std::distance(list.begin(), after), place);
      numbers.erase(number);
      current = place - 1;
    }
    ASSERT_EQ(std::vector<int>(list.begin(), list.end()), numbers) << "move " << next;
  }
}

}  // namespace
}  // namespace mardel
