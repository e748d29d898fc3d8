#include "word/docx/find_pattern.h"

#include <algorithm>
#include <climits>

#include "runtime/text.h"

namespace word::docx {

struct FindPattern::Item {
  enum Kind { Literal, Letter, Digit, Any, Set } kind = Literal;
  char16_t ch = 0;
  std::vector<std::pair<char16_t, char16_t>> ranges;  // for Set
  bool negated = false;
  long min = 1, max = 1;
  bool lazy = false;
};

namespace {

char16_t Lower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
}

}  // namespace

bool IsWordLetter(char16_t c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') ||
         (c >= 0xC0 && c <= 0x24F && c != 0xD7 && c != 0xF7) || (c >= 0x391 && c <= 0x3C9) ||
         (c >= 0x410 && c <= 0x44F) || (c >= 0xFF21 && c <= 0xFF3A) || (c >= 0xFF41 && c <= 0xFF5A);
}

namespace {

using Item = FindPattern::Item;

// ^x without wildcards: the special characters of Word's search box.
void CaretCode(char16_t c, Item& item) {
  switch (c) {
    case u'$':
      item.kind = Item::Letter;
      break;
    case u'#':
      item.kind = Item::Digit;
      break;
    case u'?':
      item.kind = Item::Any;
      break;
    case u'p':
      item.ch = u'\r';
      break;
    case u't':
      item.ch = u'\t';
      break;
    default:
      item.ch = c;
  }
}

// [abc], [a-z], [!x] from the "[" at i; returns the index of the "]".
size_t ParseSet(const std::u16string& p, size_t i, Item& item) {
  item.kind = Item::Set;
  size_t j = i + 1;
  if (j < p.size() && p[j] == u'!') item.negated = true, ++j;
  for (; j < p.size() && p[j] != u']'; ++j) {
    char16_t lo = p[j], hi = p[j];
    if (j + 2 < p.size() && p[j + 1] == u'-' && p[j + 2] != u']') hi = p[j += 2];
    item.ranges.push_back({lo, hi});
  }
  return j;
}

// {n}, {n,}, {n,m} from the "{" at i; returns the index of the "}".
size_t ParseRepeat(const std::u16string& p, size_t i, Item& item) {
  size_t close = std::min(p.find(u'}', i), p.size());
  std::u16string body = p.substr(i + 1, close - i - 1);
  size_t comma = body.find(u',');
  auto number = [](const std::u16string& s, long fallback) {
    if (s.empty()) return fallback;
    long v = 0;
    for (char16_t d : s)
      if (d >= u'0' && d <= u'9') v = v * 10 + (d - u'0');
    return v;
  };
  item.min = number(body.substr(0, comma), 0);
  item.max = comma == std::u16string::npos ? item.min : number(body.substr(comma + 1), LONG_MAX);
  return close;
}

}  // namespace

FindPattern::FindPattern(const std::u16string& p, PatternOptions options) : options_(options) {
  const bool w = options.wildcards;
  for (size_t i = 0; i < p.size(); ++i) {
    char16_t c = p[i];
    if (w && (c == u'{' || c == u'@') && !items_.empty()) {
      Item& last = *items_.back();
      if (c == u'@')
        last.min = 1, last.max = LONG_MAX;
      else
        i = ParseRepeat(p, i, last);
      continue;
    }
    if (w && (c == u'(' || c == u')' || c == u'<' || c == u'>'))
      continue;  // grouping and word edges do not narrow what the tools search
    auto item = std::make_shared<Item>();
    if (c == u'^' && i + 1 < p.size()) {
      CaretCode(p[++i], *item);
    } else if (w && c == u'\\' && i + 1 < p.size()) {
      item->ch = p[++i];
    } else if (w && c == u'?') {
      item->kind = Item::Any;
    } else if (w && c == u'*') {
      item->kind = Item::Any;
      item->min = 0;
      item->max = LONG_MAX;
      item->lazy = true;
    } else if (w && c == u'[') {
      i = ParseSet(p, i, *item);
    } else {
      item->ch = c;
    }
    items_.push_back(item);
  }
}

static bool Accepts(const FindPattern::Item& item, char16_t c, const PatternOptions& o) {
  switch (item.kind) {
    case FindPattern::Item::Letter:
      return IsWordLetter(c);
    case FindPattern::Item::Digit:
      return c >= u'0' && c <= u'9';
    case FindPattern::Item::Any:
      return true;
    case FindPattern::Item::Set: {
      bool in = false;
      for (auto [lo, hi] : item.ranges) in = in || (c >= lo && c <= hi);
      return in != item.negated;
    }
    case FindPattern::Item::Literal:
      break;
  }
  char16_t a = item.ch, b = c;
  if (!o.matchByte) a = lp::NarrowUnit(a), b = lp::NarrowUnit(b);
  if (!o.wildcards) a = Lower(a), b = Lower(b);
  return a == b;
}

long FindPattern::Match(const std::u16string& text, size_t at, size_t index) const {
  if (index == items_.size()) return 0;
  const Item& item = *items_[index];
  long count = 0;
  while (count < item.min) {
    if (at + count >= text.size() || !Accepts(item, text[at + count], options_)) return -1;
    ++count;
  }
  long most = count;
  while (most < item.max && at + most < text.size() && Accepts(item, text[at + most], options_))
    ++most;
  if (item.lazy) {
    for (long n = count; n <= most; ++n)
      if (long rest = Match(text, at + n, index + 1); rest >= 0) return n + rest;
  } else {
    for (long n = most; n >= count; --n)
      if (long rest = Match(text, at + n, index + 1); rest >= 0) return n + rest;
  }
  return -1;
}

long FindPattern::MatchAt(const std::u16string& text, size_t at) const {
  if (items_.empty()) return -1;
  return Match(text, at, 0);
}

}  // namespace word::docx
