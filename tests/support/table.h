// Tables of calls, kept as files: each line is a function, its arguments in double quotes, and its
// result, with the escapes of C for what a line cannot show.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/files.h"

namespace mardel {

using arguments = std::vector<std::string>;
using table_functions = std::map<std::string, std::function<std::string(const arguments&)>>;

// A character of a quoted word; `in` is behind its backslash.
inline char Escaped(std::istream& in) {
  static const std::map<char, char> letters{{'n', '\n'}, {'r', '\r'}, {'t', '\t'},
                                            {'v', '\v'}, {'f', '\f'}, {'0', '\0'}};
  const char letter = static_cast<char>(in.get());
  if (letter != 'x') return letters.contains(letter) ? letters.at(letter) : letter;
  std::string digits(2, '0');
  in.read(digits.data(), 2);
  return static_cast<char>(std::stoi(digits, nullptr, 16));
}

inline arguments QuotedWords(std::istream& in) {
  arguments words;
  while ((in >> std::ws).get() == '"') {
    std::string& word = words.emplace_back();
    for (char next = 0; in.get(next) && next != '"';) word += next == '\\' ? Escaped(in) : next;
  }
  return words;
}

// The table is tests/fixtures/tables/`name`.
inline void ExpectTable(const std::string& name, const table_functions& functions) {
  const std::string path = MARDEL_SOURCE_DIR "/tests/fixtures/tables/" + name;
  std::istringstream lines(ReadAll(path));
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    std::istringstream in(line);
    std::string function;
    in >> function;
    arguments words = QuotedWords(in);
    ASSERT_FALSE(words.empty()) << line;
    const std::string result = words.back();
    words.pop_back();
    EXPECT_EQ(functions.at(function)(words), result) << line;
  }
}

}  // namespace mardel
