#pragma once
// The document a Word double holds: stories of formatted characters, fields
// over stretches of a story, floating shapes, the selection and the live
// ranges that edits move, as Word moves them. Positions count characters from
// 0; a field's code occupies the positions of its characters, which are
// hidden while the field shows its result.

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "word/api.h"

namespace comdouble {

using word::Text;

struct Format {
  Text name = u"Times New Roman";
  Text nameFarEast = u"宋体";
  float size = 10.5f;
  long bold = 0, italic = 0, superscript = 0, subscript = 0, scaling = 100, color = 0;
  bool operator==(const Format&) const = default;
};

struct Char {
  char16_t ch = 0;
  Format format;
  long field = 0;  // the id of the field whose code holds it, 0 for none
  long alignment = word::wdAlignParagraphLeft;  // of a paragraph mark
};

struct FieldState {
  long id = 0;
  long type = word::wdFieldEmpty;
  bool showCodes = false;
};

struct Story {
  std::vector<Char> chars;
  std::vector<FieldState> fields;  // in the order of their first character
  bool Visible(long pos) const;
  FieldState* FieldOf(long id);
};

// A stretch of one story, moved by edits while someone holds it.
struct Span {
  Story* story = nullptr;
  long start = 0, end = 0;
};
using SpanPtr = std::shared_ptr<Span>;

// A value of a property the double keeps without modelling it (line widths,
// options, ...), under the name the records give it.
using Kept = std::variant<long, float, bool, Text>;

struct ShapeState {
  long serial = 0;  // Shape<serial> in the records
  Text name;
  long type = word::msoAutoShape;
  float left = 0, top = 0, width = 0, height = 0;
  Story text;
  std::vector<std::shared_ptr<ShapeState>> members;  // of a group
  std::map<std::string, Kept> kept;                  // "Line.Weight" = 1.5
};
using ShapeList = std::vector<std::shared_ptr<ShapeState>>;

struct DocumentState {
  long number = 0;  // 1 for the first document of the run
  Text fullName;
  Text attachedTemplate = u"Normal.dot";
  Story body;
  ShapeList shapes;
  std::map<Text, Text> properties;
  std::map<Text, SpanPtr> bookmarks;
  std::map<std::string, Kept> kept;
};

// Find's settings, kept by the range or the selection that owns them.
struct FindState {
  Text text;
  bool forward = true;
  long wrap = word::wdFindStop;
  bool wildcards = false, matchByte = true, found = false;
  std::map<std::string, Kept> font;  // formats searched for
  Text replacementText;
  std::map<std::string, Kept> replacementFont;  // formats given to what is replaced
};

struct Counters {
  long objectsMade = 0, addRefs = 0, releases = 0;
  std::set<const void*> live;  // the objects not yet released
};

struct State {
  std::vector<std::unique_ptr<DocumentState>> documents;  // open, in order
  std::vector<std::unique_ptr<DocumentState>> closed;
  size_t active = 0;
  SpanPtr selection = std::make_shared<Span>();
  ShapeList selectedShapes;
  std::optional<Format> typing;  // what typing at the caret continues with
  std::shared_ptr<FindState> selectionFind = std::make_shared<FindState>();
  std::vector<std::weak_ptr<Span>> live;
  std::vector<std::string> calls;
  std::deque<bool> findAnswers;  // every Find.Execute answer, in order
  std::map<std::string, Kept> kept;
  std::map<std::string, double> answers;  // reads the fake takes from a script, last answer
  std::map<Text, std::vector<Char>> autoTextEntries;  // their formatted text
  bool extendsAtStart = false;  // the selection grows at its start (extended leftwards)
  long nextSerial = 1, nextField = 1, madeDocuments = 0;
  Counters counters;

  DocumentState& ActiveDocument();
  DocumentState& AddDocument(const Text& fullName, const Text& attachedTemplate);
  SpanPtr Hold(Story* story, long start, long end);
  // Replaces [start, end) of the span's story and moves every live span.
  void Replace(Story& story, long start, long end, const std::vector<Char>& with);
  std::shared_ptr<ShapeState> NewShape(DocumentState& document, long type, float left, float top,
                                       float width, float height);
  void RemoveShape(const ShapeState& shape);
};

// The characters of a text, all in one format.
std::vector<Char> Chars(const Text& text, const Format& format);
// What a stretch reads: its visible characters.
Text VisibleText(const Story& story, long start, long end);
std::vector<long> VisiblePositions(const Story& story, long start, long end);
// The format typing at pos takes: the character before it, else the one after.
Format FormatAt(const Story& story, long pos);

// Word's own failure of a call, with Word's error number.
struct WordFault {
  long number;
  std::string description;
};
WordFault NoSuchMember();

}  // namespace comdouble
