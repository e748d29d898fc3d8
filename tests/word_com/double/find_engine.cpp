#include "double/find_engine.h"

#include "word/docx/find_pattern.h"
#include "word/fake/record.h"

namespace comdouble {

namespace {

struct Search {
  word::docx::FindPattern pattern;
  Story& story;
};

// The first match in [from, to) of the story: its first and end positions.
std::optional<std::pair<long, long>> FirstMatch(const Search& search, long from, long to) {
  std::vector<long> positions = VisiblePositions(search.story, from, to);
  Text text;
  for (long p : positions) text += search.story.chars[p].ch;
  for (size_t i = 0; i < text.size(); ++i) {
    long length = search.pattern.MatchAt(text, i);
    if (length > 0) return std::pair{positions[i], positions[i + length - 1] + 1};
  }
  return std::nullopt;
}

void ApplySpec(Format& format, const std::map<std::string, Kept>& kept) {
  for (const auto& [name, value] : kept) {
    if (name == "Name") format.name = std::get<Text>(value);
    if (name == "NameFarEast") format.nameFarEast = std::get<Text>(value);
    if (name == "Size") format.size = std::get<float>(value);
    if (name == "Bold") format.bold = std::get<long>(value) ? word::wdTrue : word::wdFalse;
    if (name == "Italic") format.italic = std::get<long>(value) ? word::wdTrue : word::wdFalse;
    if (name == "Superscript") format.superscript = std::get<long>(value) ? word::wdTrue : 0;
    if (name == "Subscript") format.subscript = std::get<long>(value) ? word::wdTrue : 0;
    if (name == "Scaling") format.scaling = std::get<long>(value);
    if (name == "Color") format.color = std::get<long>(value);
  }
}

// Replaces each match in [from, end of the span) in turn; with an empty
// replacement text and a format, the found text stays and takes the format.
bool ReplaceIn(State& st, const Search& search, Span& span, const FindState& find, bool all) {
  SpanPtr region = st.Hold(span.story, span.start, span.end);
  bool any = false;
  long from = region->start;
  while (auto match = FirstMatch(search, from, region->end)) {
    any = true;
    auto [start, end] = *match;
    if (find.replacementText.empty() && !find.replacementFont.empty()) {
      for (long p = start; p < end; ++p)
        ApplySpec(search.story.chars[p].format, find.replacementFont);
      from = end;
    } else {
      Format format = search.story.chars[start].format;
      ApplySpec(format, find.replacementFont);
      st.Replace(search.story, start, end, Chars(find.replacementText, format));
      from = start + static_cast<long>(find.replacementText.size());
    }
    if (!all) break;
  }
  return any;
}

}  // namespace

Value Execute(FindObj& f, Args& a) {
  State& st = f.state();
  FindState& find = *f.find;
  if (Given(a[0])) find.text = AsText(a[0]);
  if (Given(a[3])) find.wildcards = AsBool(a[3]);
  if (Given(a[6])) find.forward = AsBool(a[6]);
  if (Given(a[7])) find.wrap = AsLong(a[7]);
  if (Given(a[9])) find.replacementText = AsText(a[9]);
  long replace = Given(a[10]) ? AsLong(a[10]) : word::wdReplaceNone;
  if (!find.forward) st.calls.push_back("double: backward search is not modelled");
  Span& span = *f.span;
  Search search{word::docx::FindPattern(find.text, {find.wildcards, find.matchByte}), *span.story};
  const long storyEnd = static_cast<long>(span.story->chars.size());
  const bool wraps = find.wrap == word::wdFindContinue;
  if (replace != word::wdReplaceNone) {
    // A selection replaces within itself; a caret from there on, round when wrapping.
    Span region = span;
    if (f.selection && span.start == span.end) region.end = storyEnd;
    find.found = ReplaceIn(st, search, region, find, replace == word::wdReplaceAll);
    if (f.selection && span.start == span.end && wraps &&
        (!find.found || replace == word::wdReplaceAll)) {
      Span before{span.story, 0, span.start};
      find.found = ReplaceIn(st, search, before, find, replace == word::wdReplaceAll) || find.found;
    }
  } else {
    // A range searches itself; the selection searches from its start on.
    auto match = FirstMatch(search, span.start, f.selection ? storyEnd : span.end);
    if (!match && f.selection && wraps) match = FirstMatch(search, 0, span.start);
    find.found = match.has_value();
    if (match && f.selection) SelectSpan(st, span.story, match->first, match->second);
    if (match && !f.selection) span.start = match->first, span.end = match->second;
  }
  st.findAnswers.push_back(find.found);
  return find.found;
}

}  // namespace comdouble
