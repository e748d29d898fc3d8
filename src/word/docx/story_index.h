#pragma once
// Word's character positions over one story (the body, or a text box's
// w:txbxContent). Each position is one character, paragraph mark, cell or
// row end, field mark, tab, break or object. A segment is a stretch of
// positions held by one XML element: the characters of a w:t or w:instrText,
// or a single mark.

#include <string>
#include <vector>

#include <pugixml.hpp>

namespace word::docx {

enum class SegKind : unsigned char {
  Text,        // w:t, w:delText
  Code,        // w:instrText, w:delInstrText
  SimpleCode,  // the code of a w:fldSimple, held in its w:instr attribute
  ParaMark,    // node is the w:p
  CellMark,    // the last paragraph mark of a table cell
  RowEnd,      // node is the w:tr
  FieldBegin,
  FieldSep,
  FieldEnd,  // node is the w:fldChar, or the w:fldSimple of a simple field
  Tab,
  Break,
  Object,  // drawing, picture, equation, symbol, note reference
};

struct Segment {
  pugi::xml_node node;
  long pos = 0;
  long length = 1;
  SegKind kind = SegKind::Object;
  bool hidden = false;     // not shown: a field's code or result, as the field shows
  bool codeAfter = false;  // text typed right after this segment belongs to a field code
  char16_t mark = 0;       // the character that stands for a single-position segment
};

struct FieldSpan {
  pugi::xml_node begin;  // the w:fldChar of type begin, or the w:fldSimple
  long beginPos = 0;
  long sepPos = -1;  // -1: no separator (EQ fields as Word writes them)
  long endPos = 0;
};

struct BookmarkSpan {
  pugi::xml_node startNode;
  std::string name;
  long start = 0;
  long end = -1;
};

// Decides whether a field shows its code (true) or its result.
class FieldDisplay {
 public:
  virtual ~FieldDisplay() = default;
  virtual bool ShowsCode(pugi::xml_node beginFldChar) const = 0;
};

struct StoryIndex {
  std::vector<Segment> segments;
  std::vector<FieldSpan> fields;  // in order of their begin marks
  std::vector<BookmarkSpan> bookmarks;
  std::vector<size_t> paragraphs;  // indexes of ParaMark/CellMark segments
  long length = 0;

  // The segment holding position pos (0 <= pos < length).
  size_t SegmentAt(long pos) const;
  // The characters of [start, end), hidden ones included when asked.
  std::u16string Text(long start, long end, bool withHidden) const;
  char16_t CharAt(long pos) const;
  bool Hidden(long pos) const { return segments[SegmentAt(pos)].hidden; }
  // The paragraph mark segment at or after pos.
  size_t ParagraphOf(long pos) const;
};

StoryIndex BuildStoryIndex(pugi::xml_node container, const FieldDisplay& display);

// UTF-16 view of an element's text.
std::u16string NodeText(pugi::xml_node element);
// The characters a text or code segment holds.
std::u16string SegmentText(const Segment& s);
void SetNodeText(pugi::xml_node element, const std::u16string& text);

}  // namespace word::docx
