// The batch clean-ups as loops over Word's own collections. Collections are
// walked from the last item, as deleting shifts the later ones.

#include "word/com/document.h"

namespace word::com {
namespace {

const long kHyperlinkRange = 0;       // msoHyperlinkRange
const long kFieldExpression = 34;     // wdFieldExpression: EQ
const long kInlineOle = 1;            // wdInlineShapeEmbeddedOLEObject
const long kInlinePicture = 3;        // wdInlineShapePicture
const long kBaselineAlignCenter = 1;  // wdBaselineAlignCenter
const long kReplaceAll = 2;           // wdReplaceAll
const long kFindStop = 0;             // wdFindStop

long CountOf(const Dispatch& collection) {
  return collection.Get(L"Count").ToLong();
}

bool IsEquationObject(const Dispatch& inlineShape) {
  if (inlineShape.Get(L"Type").ToLong() != kInlineOle) return false;
  Text progId = inlineShape.Object(L"OLEFormat").Get(L"ProgID").ToText();
  return progId.rfind(u"Equation", 0) == 0 || progId.rfind(u"MathType", 0) == 0;
}

void ScaleFont(const Dispatch& range, double factor) {
  Dispatch font = range.Object(L"Font");
  font.Put(L"Size", font.Get(L"Size").ToDouble() * factor);
}

void ScaleInline(const Dispatch& shape, double factor) {
  shape.Put(L"ScaleWidth", shape.Get(L"ScaleWidth").ToDouble() * factor);
  shape.Put(L"ScaleHeight", shape.Get(L"ScaleHeight").ToDouble() * factor);
}

// A blank paragraph holds its mark alone (or blanks), and nothing Word counts
// as an object. The last paragraph of a cell ends in the end-of-cell mark and
// that of a section in its break, so neither reads as blank; the last of the
// document stays.
bool DeletableBlank(const Dispatch& paragraph, bool last) {
  if (last) return false;
  Dispatch range = paragraph.Object(L"Range");
  Text text = range.Get(L"Text").ToText();
  if (text.find_first_not_of(u" \u3000\r") != Text::npos) return false;
  return !CountOf(range.Object(L"InlineShapes")) && !CountOf(range.Object(L"Fields")) &&
         !CountOf(range.Object(L"ShapeRange")) && !CountOf(range.Object(L"Bookmarks"));
}

// Runs take on each item of the collection; the count of items it took.
template <class Take>
long CountTaken(const Dispatch& collection, Take take) {
  long taken = 0;
  for (long i = 1; i <= CountOf(collection); ++i)
    if (take(collection.Object(L"Item", {i}))) ++taken;
  return taken;
}

}  // namespace

long ComDocument::DeleteTextHyperlinks() {
  Dispatch links = Object().Object(L"Hyperlinks");
  long done = 0;
  for (long i = CountOf(links); i >= 1; --i) {
    Dispatch link = links.Object(L"Item", {i});
    if (link.Get(L"Type").ToLong() != kHyperlinkRange) continue;
    link.Call(L"Delete");
    ++done;
  }
  return done;
}

long ComDocument::DeleteShapeHyperlinks() {
  Dispatch links = Object().Object(L"Hyperlinks");
  long done = 0;
  for (long i = CountOf(links); i >= 1; --i) {
    Dispatch link = links.Object(L"Item", {i});
    if (link.Get(L"Type").ToLong() == kHyperlinkRange) continue;
    link.Call(L"Delete");
    ++done;
  }
  return done;
}

// Headers(1..3) and Footers(1..3): primary, first page, even pages.
long ComDocument::DeleteHeadersFooters() {
  Dispatch sections = Object().Object(L"Sections");
  long done = 0;
  for (long i = 1; i <= CountOf(sections); ++i) {
    Dispatch section = sections.Object(L"Item", {i});
    for (const wchar_t* kind : {L"Headers", L"Footers"}) {
      for (long j = 1; j <= 3; ++j) {
        Dispatch range = section.Object(kind).Object(L"Item", {j}).Object(L"Range");
        if (range.Get(L"End").ToLong() <= range.Get(L"Start").ToLong() + 1) continue;
        range.Call(L"Delete");
        ++done;
      }
    }
  }
  return done;
}

long ComDocument::DeleteBlankParagraphs() {
  Dispatch paragraphs = Object().Object(L"Paragraphs");
  long done = 0;
  const long count = CountOf(paragraphs);
  for (long i = count; i >= 1; --i) {
    Dispatch paragraph = paragraphs.Object(L"Item", {i});
    if (!DeletableBlank(paragraph, i == count)) continue;
    paragraph.Object(L"Range").Call(L"Delete");
    ++done;
  }
  return done;
}

// Find.Execute(FindText, MatchCase, MatchWholeWord, MatchWildcards,
// MatchSoundsLike, MatchAllWordForms, Forward, Wrap, Format, ReplaceWith,
// Replace) on each story and the stories linked after it.
long ComDocument::ReplaceAllText(const word::Text& findText, const word::Text& replacement) {
  Dispatch stories = Object().Object(L"StoryRanges");
  long done = 0;
  for (long i = 1; i <= CountOf(stories); ++i) {
    for (Dispatch story = stories.Object(L"Item", {i}); story;
         story = ToDispatch(story.Get(L"NextStoryRange"))) {
      Dispatch find = story.Object(L"Find");
      find.Call(L"ClearFormatting");
      if (find.Call(L"Execute", {findText, true, false, false, false, false, true, kFindStop, false,
                                 replacement, kReplaceAll})
              .ToBool())
        ++done;
    }
  }
  return done;
}

long ComDocument::ScaleFormulas(double factor) {
  const long objects = CountTaken(Object().Object(L"InlineShapes"), [&](const Dispatch& shape) {
    if (!IsEquationObject(shape)) return false;
    ScaleInline(shape, factor);
    return true;
  });
  const long fields = CountTaken(Object().Object(L"Fields"), [&](const Dispatch& field) {
    if (field.Get(L"Type").ToLong() != kFieldExpression) return false;
    ScaleFont(field.Object(L"Code"), factor);
    return true;
  });
  const long equations = CountTaken(Object().Object(L"OMaths"), [&](const Dispatch& equation) {
    ScaleFont(equation.Object(L"Range"), factor);
    return true;
  });
  return objects + fields + equations;
}

long ComDocument::ScalePictures(double factor) {
  return CountTaken(Object().Object(L"InlineShapes"), [&](const Dispatch& shape) {
    if (shape.Get(L"Type").ToLong() != kInlinePicture) return false;
    ScaleInline(shape, factor);
    return true;
  });
}

long ComDocument::AlignFormulas(bool unshift) {
  long done = 0;
  auto align = [&](const Dispatch& range) {
    range.Object(L"ParagraphFormat").Put(L"BaseLineAlignment", kBaselineAlignCenter);
    if (unshift) range.Object(L"Font").Put(L"Position", 0L);
    ++done;
  };
  Dispatch fields = Object().Object(L"Fields");
  for (long i = 1; i <= CountOf(fields); ++i) {
    Dispatch field = fields.Object(L"Item", {i});
    if (field.Get(L"Type").ToLong() == kFieldExpression) align(field.Object(L"Code"));
  }
  Dispatch shapes = Object().Object(L"InlineShapes");
  for (long i = 1; i <= CountOf(shapes); ++i) {
    Dispatch shape = shapes.Object(L"Item", {i});
    if (IsEquationObject(shape)) align(shape.Object(L"Range"));
  }
  Dispatch equations = Object().Object(L"OMaths");
  for (long i = 1; i <= CountOf(equations); ++i)
    align(equations.Object(L"Item", {i}).Object(L"Range"));
  return done;
}

// Word's own EQ fields are not rebuilt as equations through Word: the file
// is left as it was and the teacher told why.
word::EqConversion ComDocument::ConvertEqFields(const word::EqFieldConverter&) {
  throw word::ComError(word::kNotSupported,
                       "在 Word 中运行时不能把 EQ 域转为 Word 公式；请关闭 Word 后，"
                       "由 lumenpad 直接处理这些 .docx 文件。");
}

}  // namespace word::com
