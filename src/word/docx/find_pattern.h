#pragma once
// Word's search patterns. Without wildcards: ^$ any letter, ^# any digit, ^?
// any character, ^p a paragraph mark, ^t a tab, ^^ a caret; letters match
// either case. With wildcards: ? one character, * any run (shortest first),
// [abc] [a-z] [!x] sets, {n} {n,} {n,m} and @ repeat the element before, \x
// the character x; matching is case-sensitive.

#include <memory>
#include <string>
#include <vector>

namespace word::docx {

struct PatternOptions {
  bool wildcards = false;
  bool matchByte = true;  // false: half- and full-width forms are the same
};

class FindPattern {
 public:
  FindPattern(const std::u16string& pattern, PatternOptions options);
  // The length of a match starting at `at`, or -1.
  long MatchAt(const std::u16string& text, size_t at) const;
  bool Empty() const { return items_.empty(); }

  struct Item;

 private:
  long Match(const std::u16string& text, size_t at, size_t item) const;
  std::vector<std::shared_ptr<Item>> items_;
  PatternOptions options_;
};

bool IsWordLetter(char16_t c);

}  // namespace word::docx
