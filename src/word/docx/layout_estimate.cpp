#include "word/docx/layout_estimate.h"

#include "word/docx/host/units.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace word::docx {
namespace {

float Twips(pugi::xml_node n, const char* attr, float fallback) {
  pugi::xml_attribute a = n.attribute(attr);
  return a ? static_cast<float>(a.as_double() / kTwipsPerPoint) : fallback;
}

// Width of UTF-8 text in ems: multi-byte characters are full width.
float Ems(const char* s, long from, long to) {
  float ems = 0;
  long index = 0;
  for (const unsigned char* p = reinterpret_cast<const unsigned char*>(s); *p; ++p) {
    if ((*p & 0xC0) == 0x80) continue;
    if (index >= from && index < to) ems += *p < 0x80 ? 0.5f : 1.0f;
    index += (*p & 0xF8) == 0xF0 ? 2 : 1;
  }
  return ems;
}

// A spacing value of the paragraph, else of the document's defaults.
float Spacing(pugi::xml_node own, pugi::xml_node defaults, const char* attr, float fallback) {
  return Twips(own.attribute(attr) ? own : defaults, attr, fallback);
}

// Single lines are 1.3 times the font size; w:line counts 240ths of that
// when the rule is "auto" (or absent), points otherwise.
float LineHeight(pugi::xml_node own, pugi::xml_node defaults, float fontSize) {
  pugi::xml_node spacing = own.attribute("w:line") ? own : defaults;
  const float single = fontSize * 1.3f;
  if (!spacing.attribute("w:line")) return single;
  const float line = Twips(spacing, "w:line", 0);
  const char* rule = spacing.attribute("w:lineRule").value();
  if (!*rule || !std::strcmp(rule, "auto")) return single * line / 12.0f;
  return !std::strcmp(rule, "exact") ? line : std::max(single, line);
}

// On a document grid of lines a line takes as many whole pitches as its
// height needs: a heading in a larger size takes two. Exact spacing keeps
// its height.
float OnGrid(float height, float pitch, pugi::xml_node own, pugi::xml_node defaults) {
  pugi::xml_node spacing = own.attribute("w:line") ? own : defaults;
  if (pitch <= 0 || !std::strcmp(spacing.attribute("w:lineRule").value(), "exact")) return height;
  return std::max(1.0f, std::ceil(height / pitch - 0.01f)) * pitch;
}

struct Paragraph {
  long start = 0, end = 0;  // positions, end = the mark
  float lineHeight = 15.6f, fontSize = 10.5f, before = 0, after = 0, indent = 0;
  float alignment = 0;  // where a short line stands in the room: 0 left, 0.5 centred, 1 right
  bool pageBreakBefore = false;
};

std::vector<Paragraph> Paragraphs(const StoryIndex& ix, const StyleSheet& styles,
                                  const PageGeometry& page) {
  std::vector<Paragraph> out;
  long start = 0;
  for (size_t markIndex : ix.paragraphs) {
    const Segment& mark = ix.segments[markIndex];
    Paragraph p;
    p.start = start;
    p.end = mark.pos;
    pugi::xml_node node = mark.node;
    pugi::xml_node firstRun = node.child("w:r");
    CharFormat f = styles.Effective(firstRun ? firstRun : node.child("w:pPr"), node);
    p.fontSize = f.halfPoints.value_or(21) / 2.0f;
    pugi::xml_node pPr = node.child("w:pPr");
    pugi::xml_node spacing = pPr.child("w:spacing");
    p.lineHeight = OnGrid(LineHeight(spacing, styles.DefaultSpacing(), p.fontSize), page.linePitch,
                          spacing, styles.DefaultSpacing());
    p.before = Spacing(spacing, styles.DefaultSpacing(), "w:before", 0);
    p.after = Spacing(spacing, styles.DefaultSpacing(), "w:after", 0);
    p.indent = Twips(pPr.child("w:ind"), "w:left", 0);
    p.pageBreakBefore = static_cast<bool>(pPr.child("w:pageBreakBefore"));
    const std::string jc = styles.Alignment(node);
    p.alignment = jc == "center" ? 0.5f : jc == "right" || jc == "end" ? 1.0f : 0.0f;
    out.push_back(p);
    start = mark.pos + 1;
  }
  return out;
}

// Width in points of the shown characters in [from, to), and whether a page
// break stands among them.
float TextWidth(const StoryIndex& ix, long from, long to, float size, bool* pageBreak) {
  float width = 0;
  if (from >= to) return 0;
  for (size_t i = ix.SegmentAt(from); i < ix.segments.size() && ix.segments[i].pos < to; ++i) {
    const Segment& s = ix.segments[i];
    if (s.hidden) continue;
    if (s.kind == SegKind::Text || s.kind == SegKind::Code)
      width += Ems(s.node.text().get(), std::max(from, s.pos) - s.pos,
                   std::min(to, s.pos + s.length) - s.pos) *
               size;
    else if (s.kind == SegKind::Break && s.mark == u'\f' && pageBreak)
      *pageBreak = true;
    else
      width += size;
  }
  return width;
}

}  // namespace

PageGeometry ReadPageGeometry(pugi::xml_node sectPr) {
  PageGeometry g;
  pugi::xml_node size = sectPr.child("w:pgSz");
  pugi::xml_node margins = sectPr.child("w:pgMar");
  g.width = Twips(size, "w:w", g.width);
  g.height = Twips(size, "w:h", g.height);
  g.top = std::fabs(Twips(margins, "w:top", g.top));
  g.bottom = std::fabs(Twips(margins, "w:bottom", g.bottom));
  g.left = Twips(margins, "w:left", g.left);
  g.right = Twips(margins, "w:right", g.right);
  // Columns share the text width, less the space between them; unequal
  // ones are taken as wide as the first.
  pugi::xml_node columns = sectPr.child("w:cols");
  const int count = std::max(1, columns.attribute("w:num").as_int(1));
  if (pugi::xml_node first = columns.child("w:col");
      first && !columns.attribute("w:equalWidth").as_bool(true)) {
    g.columnWidth = Twips(first, "w:w", 0);
  } else if (count > 1) {
    const float space = Twips(columns, "w:space", 36);
    g.columnWidth = (g.width - g.left - g.right - space * (count - 1)) / count;
  }
  pugi::xml_node grid = sectPr.child("w:docGrid");
  g.linePitch = grid && std::strcmp(grid.attribute("w:type").value(), "default") != 0
                    ? Twips(grid, "w:linePitch", 0)
                    : 0;
  return g;
}

CaretEstimate EstimateCaret(const StoryIndex& ix, const StyleSheet& styles,
                            const PageGeometry& page, long pos) {
  CaretEstimate caret;
  caret.x = page.left;
  caret.y = page.top;
  const float textWidth = std::max(
      72.0f, page.columnWidth > 0 ? page.columnWidth : page.width - page.left - page.right);
  const float textHeight = std::max(72.0f, page.height - page.top - page.bottom);
  float y = 0;
  int pageNo = 1;
  long pageStart = 0;
  bool found = false;
  for (const Paragraph& p : Paragraphs(ix, styles, page)) {
    bool pageBreak = false;
    float width = TextWidth(ix, p.start, p.end, p.fontSize, &pageBreak);
    float lines = std::max(1.0f, std::ceil(width / (textWidth - p.indent)));
    float height = p.before + lines * p.lineHeight + p.after;
    if ((y > 0 && y + height > textHeight) || (p.pageBreakBefore && y > 0)) {
      if (found) break;
      ++pageNo;
      y = 0;
      pageStart = p.start;
    }
    if (!found && pos <= p.end) {
      const float room = textWidth - p.indent;
      float before = TextWidth(ix, p.start, pos, p.fontSize, nullptr);
      float line = std::floor(before / room);
      // The last line is as long as what is left; a centred or right-aligned
      // one moves over by its share of the room it leaves.
      const float lineWidth = line < lines - 1 ? room : width - line * room;
      caret.x = page.left + p.indent + (before - line * room) +
                std::max(0.0f, room - lineWidth) * p.alignment;
      caret.y = page.top + y + p.before + std::min(line, lines - 1) * p.lineHeight;
      caret.paragraphY = page.top + y;
      caret.page = pageNo;
      caret.pageStart = pageStart;
      found = true;
    }
    y += height;
    if (found) caret.pageEnd = p.end + 1;
    if (pageBreak) {
      if (found) break;
      ++pageNo;
      y = 0;
      pageStart = p.end + 1;
    }
  }
  return caret;
}

}  // namespace word::docx
