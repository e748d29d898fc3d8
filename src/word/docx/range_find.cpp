#include "word/docx/find_pattern.h"
#include "word/docx/range_parts.h"

namespace word::docx {

std::vector<RangeFind::Hit> RangeFind::Search(long from, long to, bool all) const {
  std::vector<Hit> hits;
  const StoryIndex& ix = place_.story->Index();
  to = std::min(to, ix.length);
  if (from >= to) return hits;
  std::u16string text;
  std::vector<long> positions;
  for (size_t i = ix.SegmentAt(from); i < ix.segments.size() && ix.segments[i].pos < to; ++i) {
    const Segment& s = ix.segments[i];
    if (s.hidden) continue;
    long a = std::max(from, s.pos), b = std::min(to, s.pos + s.length);
    text += ix.Text(a, b, true);
    for (long p = a; p < b; ++p) positions.push_back(p);
  }
  FindPattern pattern(text_, PatternOptions{wildcards_, matchByte_});
  for (size_t i = 0; i < text.size();) {
    long n = pattern.MatchAt(text, i);
    if (n <= 0) {
      ++i;
      continue;
    }
    hits.push_back({positions[i], positions[i + static_cast<size_t>(n) - 1] + 1});
    if (!all && forward_) break;
    i += static_cast<size_t>(n);
  }
  if (!all && !forward_ && hits.size() > 1) hits.erase(hits.begin(), hits.end() - 1);
  return hits;
}

std::vector<RangeFind::Hit> RangeFind::SearchWrapping(bool all) const {
  const long start = place_.Start(), end = place_.End();
  const long length = place_.story->Length();
  if (start < end) {
    auto hits = Search(start, end, all);
    if (!hits.empty() || wrap_ != wdFindContinue || all) return hits;
    hits = forward_ ? Search(end, length, false) : Search(0, start, false);
    if (hits.empty()) hits = forward_ ? Search(0, start, false) : Search(end, length, false);
    return hits;
  }
  auto hits = forward_ ? Search(start, length, all) : Search(0, start, all);
  if (wrap_ == wdFindContinue && (all || hits.empty())) {
    auto more = forward_ ? Search(0, start, all) : Search(start, length, all);
    hits.insert(hits.end(), more.begin(), more.end());
  }
  return hits;
}

void RangeFind::Replace(const Hit& hit) {
  Story& story = *place_.story;
  const Text& with = replacement_.GetText();
  const CharFormat& format = replacement_.Format();
  if (with.empty() && !format.Empty()) {
    story.ApplyFormat(hit.start, hit.end, format);
    return;
  }
  Text found = story.Index().Text(hit.start, hit.end, true);
  Text text;
  for (size_t i = 0; i < with.size(); ++i) {
    if (with[i] == u'^' && i + 1 < with.size() && with[i + 1] == u'&') {
      text += found;
      ++i;
    } else {
      text += with[i];
    }
  }
  pugi::xml_document keep;
  if (pugi::xml_node rPr = story.ReplacementFormat(hit.start, hit.end)) keep.append_copy(rPr);
  story.Delete(hit.start, hit.end);
  story.InsertText(hit.start, text, TypingFormat{keep.first_child(), format});
}

bool RangeFind::Execute(WdReplace replace) {
  found_ = false;
  if (text_.empty()) return false;
  std::vector<Hit> hits = SearchWrapping(replace == wdReplaceAll);
  found_ = !hits.empty();
  if (!found_) return false;
  if (replace == wdReplaceAll) {
    // From the last, so that the earlier hits keep their positions.
    for (auto it = hits.rbegin(); it != hits.rend(); ++it) Replace(*it);
    return true;
  }
  Hit hit = hits.front();
  long before = place_.story->Length();
  if (replace == wdReplaceOne) {
    Replace(hit);
    hit.end += place_.story->Length() - before;
  }
  place_.span->start = hit.start;
  place_.span->end = hit.end;
  return true;
}

}  // namespace word::docx
