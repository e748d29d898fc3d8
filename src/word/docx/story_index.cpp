#include "word/docx/story_index.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <unordered_set>

#include "runtime/utf8.h"

namespace word::docx {
namespace {

bool Is(pugi::xml_node n, const char* name) {
  return std::strcmp(n.name(), name) == 0;
}

// Elements whose children continue the text around them.
bool IsTransparent(pugi::xml_node n) {
  static const char* const kNames[] = {
      "w:hyperlink", "w:ins",       "w:del",        "w:moveTo", "w:moveFrom",
      "w:smartTag",  "w:customXml", "w:sdtContent", "w:dir",    "w:bdo",
  };
  for (const char* name : kNames)
    if (Is(n, name)) return true;
  return false;
}

// Counts UTF-16 units of a UTF-8 string without converting it.
long Utf16Length(const char* s) {
  long n = 0;
  for (const unsigned char* p = reinterpret_cast<const unsigned char*>(s); *p; ++p) {
    if ((*p & 0xC0) != 0x80) ++n;
    if ((*p & 0xF8) == 0xF0) ++n;  // a 4-byte sequence is a surrogate pair
  }
  return n;
}

class Builder {
 public:
  explicit Builder(StoryIndex& index) : index_(index) {}

  void Container(pugi::xml_node container) {
    for (pugi::xml_node child : container.children()) Block(child);
  }

 private:
  void Add(pugi::xml_node node, SegKind kind, long length, char16_t mark) {
    if (length <= 0) return;
    Segment s;
    s.node = node;
    s.pos = index_.length;
    s.length = length;
    s.kind = kind;
    s.mark = mark;
    s.hidden = deleted_ > 0;  // tracked deletions keep their place but show nothing
    index_.segments.push_back(s);
    index_.length += length;
  }

  void Block(pugi::xml_node n) {
    if (n.type() != pugi::node_element) return;
    if (Is(n, "w:p")) {
      Paragraph(n);
    } else if (Is(n, "w:tbl")) {
      for (pugi::xml_node row : n.children("w:tr")) Row(row);
    } else if (Is(n, "w:sdt")) {
      Container(n.child("w:sdtContent"));
    } else if (IsTransparent(n)) {
      Transparent(n, [&] { Container(n); });
    } else {
      Markup(n);
    }
  }

  template <class Body>
  void Transparent(pugi::xml_node n, Body body) {
    const bool deletion = Is(n, "w:del") || Is(n, "w:moveFrom");
    deleted_ += deletion;
    body();
    deleted_ -= deletion;
  }

  void Row(pugi::xml_node row) {
    for (pugi::xml_node cell : row.children()) {
      if (Is(cell, "w:tc")) {
        Cell(cell);
      } else if (Is(cell, "w:sdt")) {
        for (pugi::xml_node c : cell.child("w:sdtContent").children("w:tc")) Cell(c);
      } else if (cell.type() == pugi::node_element) {
        Markup(cell);  // a bookmark behind the last cell stands at the end-of-row mark
      }
    }
    Add(row, SegKind::RowEnd, 1, u'\a');
  }

  void Cell(pugi::xml_node cell) {
    size_t before = index_.segments.size();
    Container(cell);
    // The last paragraph mark of a cell is its end-of-cell mark.
    for (size_t i = index_.segments.size(); i > before; --i) {
      Segment& s = index_.segments[i - 1];
      if (s.kind == SegKind::ParaMark) {
        s.kind = SegKind::CellMark;
        s.mark = u'\a';
        break;
      }
    }
  }

  void Paragraph(pugi::xml_node p) {
    Inline(p);
    index_.paragraphs.push_back(index_.segments.size());
    Add(p, SegKind::ParaMark, 1, u'\r');
  }

  void Inline(pugi::xml_node parent) {
    for (pugi::xml_node n : parent.children()) {
      if (n.type() != pugi::node_element) continue;
      if (Is(n, "w:r")) {
        Run(n);
      } else if (Is(n, "w:fldSimple")) {
        SimpleField(n);
      } else if (IsTransparent(n)) {
        Transparent(n, [&] { Inline(n); });
      } else if (Is(n, "w:sdt")) {
        Inline(n.child("w:sdtContent"));
      } else if (Is(n, "m:oMath") || Is(n, "m:oMathPara") || Is(n, "mc:AlternateContent")) {
        Add(n, SegKind::Object, 1, u'\x01');
      } else {
        Markup(n);
      }
    }
  }

  void Markup(pugi::xml_node n) {
    if (Is(n, "w:bookmarkStart")) {
      BookmarkSpan b;
      b.startNode = n;
      b.name = n.attribute("w:name").value();
      b.start = index_.length;
      openBookmarks_.push_back({n.attribute("w:id").value(), index_.bookmarks.size()});
      index_.bookmarks.push_back(b);
    } else if (Is(n, "w:bookmarkEnd")) {
      std::string id = n.attribute("w:id").value();
      for (auto it = openBookmarks_.begin(); it != openBookmarks_.end(); ++it) {
        if (it->first != id) continue;
        index_.bookmarks[it->second].end = index_.length;
        openBookmarks_.erase(it);
        break;
      }
    }
  }

  void Run(pugi::xml_node r) {
    for (pugi::xml_node n : r.children()) {
      if (n.type() != pugi::node_element) continue;
      const char* name = n.name();
      if (!std::strcmp(name, "w:t") || !std::strcmp(name, "w:delText")) {
        Add(n, SegKind::Text, Utf16Length(n.text().get()), 0);
      } else if (!std::strcmp(name, "w:instrText") || !std::strcmp(name, "w:delInstrText")) {
        Add(n, SegKind::Code, Utf16Length(n.text().get()), 0);
      } else if (!std::strcmp(name, "w:fldChar")) {
        FieldChar(n);
      } else if (!std::strcmp(name, "w:tab") || !std::strcmp(name, "w:ptab")) {
        Add(n, SegKind::Tab, 1, u'\t');
      } else if (!std::strcmp(name, "w:br") || !std::strcmp(name, "w:cr")) {
        bool page = std::strcmp(n.attribute("w:type").value(), "page") == 0;
        Add(n, SegKind::Break, 1, page ? u'\f' : u'\v');
      } else if (!std::strcmp(name, "w:sym")) {
        auto code = std::strtol(n.attribute("w:char").value(), nullptr, 16);
        Add(n, SegKind::Object, 1, static_cast<char16_t>(code));
      } else if (!std::strcmp(name, "w:noBreakHyphen")) {
        Add(n, SegKind::Object, 1, u'\x1e');
      } else if (!std::strcmp(name, "w:softHyphen")) {
        Add(n, SegKind::Object, 1, u'\x1f');
      } else if (IsObject(name)) {
        Add(n, SegKind::Object, 1, u'\x01');
      }
    }
  }

  static bool IsObject(const char* name) {
    static const char* const kNames[] = {
        "w:drawing",
        "w:pict",
        "w:object",
        "mc:AlternateContent",
        "w:sym",
        "w:footnoteReference",
        "w:endnoteReference",
        "w:commentReference",
        "w:ruby",
        "w:separator",
        "w:continuationSeparator",
    };
    for (const char* k : kNames)
      if (!std::strcmp(name, k)) return true;
    return false;
  }

  // A simple field counts as Word counts any field: begin, code, separator,
  // result, end.
  void SimpleField(pugi::xml_node n) {
    FieldSpan span{n, index_.length, -1, -1};
    Add(n, SegKind::FieldBegin, 1, u'\x13');
    Add(n, SegKind::SimpleCode, Utf16Length(n.attribute("w:instr").value()), 0);
    span.sepPos = index_.length;
    Add(n, SegKind::FieldSep, 1, u'\x14');
    Inline(n);
    span.endPos = index_.length;
    Add(n, SegKind::FieldEnd, 1, u'\x15');
    index_.fields.push_back(span);
  }

  void FieldChar(pugi::xml_node n) {
    std::string type = n.attribute("w:fldCharType").value();
    if (type == "begin") {
      Add(n, SegKind::FieldBegin, 1, u'\x13');
      open_.push_back(index_.fields.size());
      index_.fields.push_back({n, index_.length - 1, -1, -1});
    } else if (type == "separate") {
      Add(n, SegKind::FieldSep, 1, u'\x14');
      if (!open_.empty()) index_.fields[open_.back()].sepPos = index_.length - 1;
    } else if (type == "end") {
      Add(n, SegKind::FieldEnd, 1, u'\x15');
      if (!open_.empty()) {
        index_.fields[open_.back()].endPos = index_.length - 1;
        open_.pop_back();
      }
    }
  }

  StoryIndex& index_;
  int deleted_ = 0;
  std::vector<size_t> open_;
  std::vector<std::pair<std::string, size_t>> openBookmarks_;
};

// Marks what each field hides, and where typed text joins a field code.
void ApplyFieldDisplay(StoryIndex& index, const FieldDisplay& display) {
  auto& f = index.fields;
  f.erase(std::remove_if(f.begin(), f.end(), [](const FieldSpan& s) { return s.endPos < 0; }),
          f.end());
  auto hide = [&](long from, long to) {  // hides [from, to)
    if (from >= to) return;
    for (size_t i = index.SegmentAt(from); i < index.segments.size(); ++i) {
      if (index.segments[i].pos >= to) break;
      index.segments[i].hidden = true;
    }
  };
  std::vector<const FieldSpan*> stack;
  for (const FieldSpan& field : f) {
    long codeEnd = field.sepPos >= 0 ? field.sepPos : field.endPos;
    if (display.ShowsCode(field.begin)) {
      hide(codeEnd == field.endPos ? field.endPos : field.sepPos, field.endPos);
    } else if (field.sepPos >= 0) {
      hide(field.beginPos, field.sepPos + 1);
      hide(field.endPos, field.endPos + 1);
    } else {
      hide(field.beginPos + 1, field.endPos + 1);  // the begin mark stands for the field
    }
    if (std::strcmp(field.begin.name(), "w:fldSimple") == 0) continue;  // no typing into it
    for (size_t i = index.SegmentAt(field.beginPos); i < index.segments.size(); ++i) {
      Segment& s = index.segments[i];
      if (s.pos >= codeEnd) break;
      s.codeAfter = true;
    }
  }
  // A field nested in another's code: the text after its end is the outer code.
  for (const FieldSpan& field : f) {
    Segment& end = index.segments[index.SegmentAt(field.endPos)];
    for (const FieldSpan& outer : f) {
      long outerCodeEnd = outer.sepPos >= 0 ? outer.sepPos : outer.endPos;
      if (outer.beginPos < field.beginPos && field.endPos < outerCodeEnd) end.codeAfter = true;
    }
  }
}

}  // namespace

size_t StoryIndex::SegmentAt(long pos) const {
  auto it = std::upper_bound(segments.begin(), segments.end(), pos,
                             [](long p, const Segment& s) { return p < s.pos; });
  return it == segments.begin() ? 0 : static_cast<size_t>(it - segments.begin() - 1);
}

char16_t StoryIndex::CharAt(long pos) const {
  const Segment& s = segments[SegmentAt(pos)];
  if (s.kind != SegKind::Text && s.kind != SegKind::Code && s.kind != SegKind::SimpleCode)
    return s.mark;
  std::u16string text = SegmentText(s);
  size_t k = static_cast<size_t>(pos - s.pos);
  return k < text.size() ? text[k] : u' ';
}

std::u16string StoryIndex::Text(long start, long end, bool withHidden) const {
  std::u16string out;
  if (start >= end || segments.empty()) return out;
  for (size_t i = SegmentAt(start); i < segments.size() && segments[i].pos < end; ++i) {
    const Segment& s = segments[i];
    if (s.hidden && !withHidden) continue;
    if (s.kind != SegKind::Text && s.kind != SegKind::Code && s.kind != SegKind::SimpleCode) {
      out += s.mark;
      continue;
    }
    std::u16string text = SegmentText(s);
    long from = std::max(start, s.pos) - s.pos;
    long to = std::min(end, s.pos + s.length) - s.pos;
    if (to > static_cast<long>(text.size())) to = static_cast<long>(text.size());
    if (from < to) out.append(text, static_cast<size_t>(from), static_cast<size_t>(to - from));
  }
  return out;
}

size_t StoryIndex::ParagraphOf(long pos) const {
  for (size_t i = SegmentAt(pos); i < segments.size(); ++i) {
    SegKind k = segments[i].kind;
    if (k == SegKind::ParaMark || k == SegKind::CellMark) return i;
  }
  return segments.empty() ? 0 : segments.size() - 1;
}

StoryIndex BuildStoryIndex(pugi::xml_node container, const FieldDisplay& display) {
  StoryIndex index;
  Builder(index).Container(container);
  ApplyFieldDisplay(index, display);
  for (auto& b : index.bookmarks)
    if (b.end < 0) b.end = b.start;
  return index;
}

std::u16string NodeText(pugi::xml_node element) {
  return lp::FromUtf8(element.text().get());
}

std::u16string SegmentText(const Segment& s) {
  return s.kind == SegKind::SimpleCode ? lp::FromUtf8(s.node.attribute("w:instr").value())
                                       : NodeText(s.node);
}

void SetNodeText(pugi::xml_node element, const std::u16string& text) {
  element.text().set(lp::ToUtf8(text).c_str());
  if (!text.empty() && (text.front() == u' ' || text.back() == u' ' || text.front() == u'\t'))
    if (!element.attribute("xml:space")) element.append_attribute("xml:space") = "preserve";
}

}  // namespace word::docx
