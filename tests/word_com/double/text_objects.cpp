// Ranges, the selection, fonts, paragraphs, fields and characters.
#include <algorithm>

#include "double/find_engine.h"
#include "double/objects.h"
#include "word/fake/record.h"

namespace comdouble {

using word::fake::Arg;

void SelectSpan(State& state, Story* story, long start, long end) {
  *state.selection = Span{story, start, end};
  state.selectedShapes.clear();
  state.typing.reset();
  state.extendsAtStart = false;
}

void RangeObj::Moved() const {
  if (IsSelection()) st_.typing.reset();
}

namespace {

long Size(const Story& story) {
  return static_cast<long>(story.chars.size());
}

// The format typing or a new text takes at the start of the span.
Format NewTextFormat(const RangeObj& r) {
  const Span& s = *r.span;
  if (r.IsSelection() && r.state().typing) return *r.state().typing;
  if (s.end > s.start) return s.story->chars[s.start].format;
  return FormatAt(*s.story, s.start);
}

void Type(SelectionObj& sel, const Text& text) {
  State& st = sel.state();
  Format format = NewTextFormat(sel);
  Span& s = *st.selection;
  st.Replace(*s.story, s.start, s.end, Chars(text, format));
  s.start = s.end;
  st.typing = format;
}

// One step of the caret over the visible characters; 0 when it can't move.
long Step(const Story& story, long pos, long direction) {
  long last = Size(story) - 1;  // the caret stays before the final paragraph mark
  for (long p = pos + direction; p >= 0 && p <= last; p += direction) {
    if (p == 0 || p == last || story.Visible(p - (direction < 0 ? 0 : 1))) return p;
  }
  return pos;
}

Value Move(SelectionObj& sel, Args& a, long direction) {
  State& st = sel.state();
  long unit = Given(a[0]) ? AsLong(a[0]) : long{word::wdCharacter};
  long count = Given(a[1]) ? AsLong(a[1]) : 1;
  bool extend = Given(a[2]) && AsLong(a[2]) == word::wdExtend;
  Span& s = *st.selection;
  Story& story = *s.story;
  if (unit == word::wdStory) count = 1;
  if (unit != word::wdCharacter && unit != word::wdStory) {
    st.calls.push_back("double: unmodelled unit " + Arg(unit));
    return 0L;
  }
  long moved = 0;
  if (!extend && s.start != s.end) {  // collapsing counts as one step
    s.start = s.end = direction < 0 ? s.start : s.end;
    ++moved;
  }
  bool atStart = extend && (st.extendsAtStart || (s.start == s.end && direction < 0));
  long pos = atStart ? s.start : s.end;
  for (; moved < count; ++moved) {
    long next =
        unit == word::wdStory ? (direction < 0 ? 0 : Size(story) - 1) : Step(story, pos, direction);
    if (next == pos) break;
    pos = next;
  }
  if (!extend) {
    s.start = s.end = pos;
  } else if (atStart) {
    s.start = std::min(pos, s.end);
  } else {
    s.end = std::max(pos, s.start);
  }
  st.extendsAtStart = extend && atStart && s.start < s.end;
  st.typing.reset();
  return moved;
}

Value DeleteText(RangeObj& r, Args& a) {
  State& st = r.state();
  Span& s = *r.span;
  long count = a.size() > 1 && Given(a[1]) ? AsLong(a[1]) : 1;
  long end = s.end > s.start ? s.end : std::min(s.start + count, Size(*s.story) - 1);
  if (end <= s.start) return 0L;
  st.Replace(*s.story, s.start, end, {});
  s.end = s.start;
  return count;
}

Value RangeOf(State& st, const std::string& path, const Span& s) {
  return Make<RangeObj>(st, path, st.Hold(s.story, s.start, s.end));
}

std::vector<Member> RangeMembers() {
  return Table<RangeObj>()
      .Prop(
          L"Start", "l", [](RangeObj& r, Args&) -> Value { return r.span->start; },
          [](RangeObj& r, Args& a) {
            r.span->start = std::clamp(AsLong(a[0]), 0L, Size(r.story()));
            r.span->end = std::max(r.span->end, r.span->start);
            r.Moved();
          })
      .Prop(
          L"End", "l", [](RangeObj& r, Args&) -> Value { return r.span->end; },
          [](RangeObj& r, Args& a) {
            r.span->end = std::clamp(AsLong(a[0]), 0L, Size(r.story()));
            r.span->start = std::min(r.span->start, r.span->end);
            r.Moved();
          })
      .Prop(
          L"Text", "s",
          [](RangeObj& r, Args&) -> Value {
            if (!r.wholeCode) return VisibleText(r.story(), r.span->start, r.span->end);
            Text text;
            for (long p = r.span->start; p < r.span->end; ++p) text += r.story().chars[p].ch;
            return text;
          },
          [](RangeObj& r, Args& a) {
            Span& s = *r.span;
            r.state().Replace(*s.story, s.start, s.end, Chars(AsText(a[0]), NewTextFormat(r)));
          })
      .Read(
          L"Font", "",
          [](RangeObj& r, Args&) -> Value { return Make<FontObj>(r.state(), r.Child("Font"), r); })
      .Read(L"ParagraphFormat", "",
            [](RangeObj& r, Args&) -> Value {
              return Make<ParagraphObj>(r.state(), r.Child("ParagraphFormat"), r.span);
            })
      .Read(L"Fields", "",
            [](RangeObj& r, Args&) -> Value {
              return Make<FieldsObj>(r.state(), r.Child("Fields"), r.span, false);
            })
      .Read(L"Characters", "",
            [](RangeObj& r, Args&) -> Value {
              return Make<CharactersObj>(r.state(), r.Child("Characters"), r.span);
            })
      .Read(
          L"Find", "",
          [](RangeObj& r, Args&) -> Value { return Make<FindObj>(r.state(), r.Child("Find"), r); })
      .Method(L"InsertAfter", "s",
              [](RangeObj& r, Args& a) -> Value {
                Span& s = *r.span;
                r.state().Replace(*s.story, s.end, s.end,
                                  Chars(AsText(a[0]), FormatAt(*s.story, s.end)));
                return {};
              })
      .Method(L"Collapse", "|l",
              [](RangeObj& r, Args& a) -> Value {
                bool toEnd = Given(a[0]) && AsLong(a[0]) == word::wdCollapseEnd;
                Span& s = *r.span;
                s.start = s.end = toEnd ? s.end : s.start;
                r.Moved();
                return {};
              })
      .Method(L"Delete", "|ll", &DeleteText)
      .Method(L"Select", "",
              [](RangeObj& r, Args&) -> Value {
                if (!r.IsSelection())
                  SelectSpan(r.state(), r.span->story, r.span->start, r.span->end);
                return {};
              })
      .Read(L"Duplicate", "",
            [](RangeObj& r, Args&) -> Value {
              return RangeOf(r.state(), r.Path() + ".Duplicate", *r.span);
            })
      // The double keeps no files: a fragment's calls are recorded and
      // checked for their arguments only.
      .Method(L"InsertFile", "s|sbbb", [](RangeObj&, Args&) -> Value { return {}; })
      .Method(L"ExportFragment", "sl", [](RangeObj&, Args&) -> Value { return {}; })
      .Done();
}

std::vector<Member> SelectionMembers() {
  std::vector<Member> rows = RangeMembers();
  auto more =
      Table<SelectionObj>()
          .Method(L"TypeText", "s",
                  [](SelectionObj& s, Args& a) -> Value {
                    Type(s, AsText(a[0]));
                    return {};
                  })
          .Method(L"TypeParagraph", "",
                  [](SelectionObj& s, Args&) -> Value {
                    Type(s, u"\r");
                    return {};
                  })
          .Method(L"TypeBackspace", "",
                  [](SelectionObj& sel, Args&) -> Value {
                    Span& s = *sel.span;
                    if (s.start == s.end && s.start > 0) --s.start;
                    sel.state().Replace(*s.story, s.start, s.end, {});
                    s.end = s.start;
                    return {};
                  })
          .Method(L"MoveLeft", "|lll", [](SelectionObj& s, Args& a) { return Move(s, a, -1); })
          .Method(L"MoveRight", "|lll", [](SelectionObj& s, Args& a) { return Move(s, a, 1); })
          .Method(L"InsertSymbol", "l|sbl",
                  [](SelectionObj& s, Args& a) -> Value {
                    // The symbol takes its font; typing goes on in the font before it.
                    State& st = s.state();
                    Format before = NewTextFormat(s), symbol = before;
                    if (Given(a[1])) symbol.name = AsText(a[1]);
                    st.typing = symbol;
                    Type(s, Text(1, static_cast<char16_t>(AsLong(a[0]))));
                    st.typing = before;
                    return {};
                  })
          .Read(L"Information", "l",
                [](SelectionObj& s, Args& a) -> Value {
                  // A caret on a page of 10.5-point lines, 90 points from the left edge.
                  const Story& story = s.story();
                  long line = 0, column = 0;
                  for (long p = 0; p < s.span->start; ++p) {
                    bool mark = story.chars[p].ch == u'\r';
                    line += mark, column = mark ? 0 : column + 1;
                  }
                  long type = AsLong(a[0]);
                  double answer = type == word::wdHorizontalPositionRelativeToPage
                                      ? 90 + 10.5 * column
                                      : 72 + 15.75 * line;
                  s.state().answers["Selection.Information(" + Arg(type) + ")"] = answer;
                  return answer;
                })
          .Read(L"Type", "",
                [](SelectionObj& s, Args&) -> Value {
                  if (!s.state().selectedShapes.empty()) return long{word::wdSelectionShape};
                  return long{s.span->start == s.span->end ? word::wdSelectionIP
                                                           : word::wdSelectionNormal};
                })
          .Read(L"ShapeRange", "",
                [](SelectionObj& s, Args&) -> Value {
                  return Make<ShapeObj>(s.state(), "Selection.ShapeRange", s.state().selectedShapes,
                                        true);
                })
          .Read(L"InlineShapes", "",
                [](SelectionObj& s, Args&) -> Value {
                  static const std::vector<Member> members =
                      Table<Object>()
                          .Read(L"Count", "", [](Object&, Args&) -> Value { return 0L; })
                          .Read(L"Item", "l", [](Object&, Args&) -> Value { throw NoSuchMember(); })
                          .Done();
                  return Make<PlainObj>(s.state(), "Selection.InlineShapes", members, "");
                })
          .Read(L"Range", "",
                [](SelectionObj& s, Args&) -> Value {
                  return RangeOf(s.state(), "Selection.Range", *s.span);
                })
          .Done();
  rows.insert(rows.end(), more.begin(), more.end());
  return rows;
}

}  // namespace

const std::vector<Member>& RangeObj::Members() const {
  static const std::vector<Member> members = RangeMembers();
  return members;
}

const std::vector<Member>& SelectionObj::Members() const {
  static const std::vector<Member> members = SelectionMembers();
  return members;
}

// Fonts: a property reads the value all characters share, else wdUndefined.
namespace {

template <class T>
Value ReadFont(const FontObj& f, T Format::*field) {
  const Span& s = *f.span;
  if (s.start == s.end) {
    Format at = f.selection && f.state().typing ? *f.state().typing : FormatAt(*s.story, s.start);
    return at.*field;
  }
  const Format& first = s.story->chars[s.start].format;
  for (long p = s.start; p < s.end; ++p) {
    if (!(s.story->chars[p].format.*field == first.*field)) {
      if constexpr (std::is_same_v<T, Text>)
        return Text();
      else
        return T(word::wdUndefined);
    }
  }
  return first.*field;
}

// Flags take wdTrue, wdFalse or wdToggle; a raised text is no longer lowered.
void SetFlag(Format& format, long Format::*field, long asked, bool allSet) {
  long value = asked == word::wdToggle ? (allSet ? word::wdFalse : word::wdTrue)
                                       : (asked ? word::wdTrue : word::wdFalse);
  format.*field = value;
  if (value == word::wdTrue && field == &Format::superscript) format.subscript = 0;
  if (value == word::wdTrue && field == &Format::subscript) format.superscript = 0;
}

template <class T>
void Assign(Format& format, T Format::*field, const T& value, bool flag, bool allSet) {
  if constexpr (std::is_same_v<T, long>) {
    if (flag) return SetFlag(format, field, value, allSet);
  }
  format.*field = value;
}

template <class T>
void WriteFont(FontObj& f, T Format::*field, const T& value, bool flag) {
  State& st = f.state();
  Span& s = *f.span;
  auto isSet = [&](const Format& format) {
    if constexpr (std::is_same_v<T, long>) return format.*field == word::wdTrue;
    return false;
  };
  if (s.start == s.end) {  // at the caret: what typing continues with
    Format at = f.selection && st.typing ? *st.typing : FormatAt(*s.story, s.start);
    Assign(at, field, value, flag, isSet(at));
    if (f.selection) st.typing = at;
    return;
  }
  bool allSet = true;
  for (long p = s.start; p < s.end; ++p) allSet = allSet && isSet(s.story->chars[p].format);
  for (long p = s.start; p < s.end; ++p)
    Assign(s.story->chars[p].format, field, value, flag, allSet);
}

template <auto F>
Value GetFont(FontObj& f, Args&) {
  return ReadFont(f, F);
}

template <auto F, bool Flag = false>
void PutFont(FontObj& f, Args& a) {
  using T = std::remove_reference_t<decltype(std::declval<Format&>().*F)>;
  WriteFont<T>(f, F, std::get<T>(a[0]), Flag);
}

}  // namespace

const std::vector<Member>& FontObj::Members() const {
  static const std::vector<Member> members =
      Table<FontObj>()
          .Prop(L"Name", "s", &GetFont<&Format::name>, &PutFont<&Format::name>)
          .Prop(L"NameFarEast", "s", &GetFont<&Format::nameFarEast>, &PutFont<&Format::nameFarEast>)
          .Prop(L"Size", "f", &GetFont<&Format::size>, &PutFont<&Format::size>)
          .Prop(L"Bold", "l", &GetFont<&Format::bold>, &PutFont<&Format::bold, true>)
          .Prop(L"Italic", "l", &GetFont<&Format::italic>, &PutFont<&Format::italic, true>)
          .Prop(L"Superscript", "l", &GetFont<&Format::superscript>,
                &PutFont<&Format::superscript, true>)
          .Prop(L"Subscript", "l", &GetFont<&Format::subscript>, &PutFont<&Format::subscript, true>)
          .Prop(L"Scaling", "l", &GetFont<&Format::scaling>, &PutFont<&Format::scaling>)
          .Prop(L"Color", "l", &GetFont<&Format::color>, &PutFont<&Format::color>)
          .Done();
  return members;
}

namespace {

template <const char* Name, char Type>
Value SpecGet(FontSpecObj& f, Args&) {
  auto it = f.find->replacementFont.find(Name);
  if (it == f.find->replacementFont.end()) {
    if constexpr (Type == 's') return Text();
    return long{word::wdUndefined};
  }
  return std::visit([](const auto& v) -> Value { return v; }, it->second);
}

template <const char* Name>
void SpecPut(FontSpecObj& f, Args& a) {
  f.find->replacementFont[Name] = std::visit(
      [](const auto& v) -> Kept {
        if constexpr (std::is_constructible_v<Kept, decltype(v)>) return v;
        return 0L;
      },
      a[0]);
}

constexpr char kName[] = "Name", kNameFarEast[] = "NameFarEast", kSize[] = "Size", kBold[] = "Bold",
               kItalic[] = "Italic", kSuperscript[] = "Superscript", kSubscript[] = "Subscript",
               kScaling[] = "Scaling", kColor[] = "Color";

}  // namespace

const std::vector<Member>& FontSpecObj::Members() const {
  static const std::vector<Member> members =
      Table<FontSpecObj>()
          .Prop(L"Name", "s", &SpecGet<kName, 's'>, &SpecPut<kName>)
          .Prop(L"NameFarEast", "s", &SpecGet<kNameFarEast, 's'>, &SpecPut<kNameFarEast>)
          .Prop(L"Size", "f", &SpecGet<kSize, 'f'>, &SpecPut<kSize>)
          .Prop(L"Bold", "l", &SpecGet<kBold, 'l'>, &SpecPut<kBold>)
          .Prop(L"Italic", "l", &SpecGet<kItalic, 'l'>, &SpecPut<kItalic>)
          .Prop(L"Superscript", "l", &SpecGet<kSuperscript, 'l'>, &SpecPut<kSuperscript>)
          .Prop(L"Subscript", "l", &SpecGet<kSubscript, 'l'>, &SpecPut<kSubscript>)
          .Prop(L"Scaling", "l", &SpecGet<kScaling, 'l'>, &SpecPut<kScaling>)
          .Prop(L"Color", "l", &SpecGet<kColor, 'l'>, &SpecPut<kColor>)
          .Done();
  return members;
}

const std::vector<Member>& ParagraphObj::Members() const {
  // A paragraph's alignment is kept on its mark.
  static const std::vector<Member> members =
      Table<ParagraphObj>()
          .Prop(
              L"Alignment", "l",
              [](ParagraphObj& p, Args&) -> Value {
                const auto& chars = p.span->story->chars;
                for (size_t i = p.span->start; i < chars.size(); ++i) {
                  if (chars[i].ch == u'\r') return chars[i].alignment;
                }
                return long{word::wdAlignParagraphLeft};
              },
              [](ParagraphObj& p, Args& a) {
                auto& chars = p.span->story->chars;
                for (size_t i = p.span->start; i < chars.size(); ++i) {
                  if (chars[i].ch != u'\r') continue;
                  chars[i].alignment = AsLong(a[0]);
                  if (static_cast<long>(i) >= p.span->end) break;
                }
              })
          .Done();
  return members;
}

const std::vector<Member>& FindObj::Members() const {
  static const std::vector<Member> members =
      Table<FindObj>()
          .Method(L"ClearFormatting", "",
                  [](FindObj& f, Args&) -> Value {
                    f.find->font.clear();
                    return {};
                  })
          .Prop(
              L"Text", "s", [](FindObj& f, Args&) -> Value { return f.find->text; },
              [](FindObj& f, Args& a) { f.find->text = AsText(a[0]); })
          .Prop(
              L"Forward", "b", [](FindObj& f, Args&) -> Value { return f.find->forward; },
              [](FindObj& f, Args& a) { f.find->forward = AsBool(a[0]); })
          .Prop(
              L"Wrap", "l", [](FindObj& f, Args&) -> Value { return f.find->wrap; },
              [](FindObj& f, Args& a) { f.find->wrap = AsLong(a[0]); })
          .Prop(
              L"MatchWildcards", "b", [](FindObj& f, Args&) -> Value { return f.find->wildcards; },
              [](FindObj& f, Args& a) { f.find->wildcards = AsBool(a[0]); })
          .Prop(
              L"MatchByte", "b", [](FindObj& f, Args&) -> Value { return f.find->matchByte; },
              [](FindObj& f, Args& a) { f.find->matchByte = AsBool(a[0]); })
          .Read(L"Replacement", "",
                [](FindObj& f, Args&) -> Value {
                  return Make<ReplacementObj>(f.state(), f.Child("Replacement"), f.find);
                })
          // FindText, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike,
          // MatchAllWordForms, Forward, Wrap, Format, ReplaceWith, Replace, and four more.
          .Method(L"Execute", "|sbbbbbbbbslbbbb",
                  [](FindObj& f, Args& a) -> Value { return Execute(f, a); })
          .Records([](const Args& a) { return Arg(Given(a[10]) ? AsLong(a[10]) : 0L); })
          .Read(L"Found", "", [](FindObj& f, Args&) -> Value { return f.find->found; })
          .Done();
  return members;
}

const std::vector<Member>& ReplacementObj::Members() const {
  static const std::vector<Member> members =
      Table<ReplacementObj>()
          .Method(L"ClearFormatting", "",
                  [](ReplacementObj& r, Args&) -> Value {
                    r.find->replacementFont.clear();
                    return {};
                  })
          .Prop(
              L"Text", "s",
              [](ReplacementObj& r, Args&) -> Value { return r.find->replacementText; },
              [](ReplacementObj& r, Args& a) { r.find->replacementText = AsText(a[0]); })
          .Read(L"Font", "",
                [](ReplacementObj& r, Args&) -> Value {
                  return Make<FontSpecObj>(r.state(), r.Child("Font"), r.find);
                })
          .Done();
  return members;
}

// Fields: a field is its begin mark, its code and its end mark (an EQ field's
// result is empty).
std::vector<FieldState*> FieldsObj::InSpan() const {
  Story& story = *span->story;
  long from = whole ? 0 : span->start,
       to = whole ? static_cast<long>(story.chars.size()) : span->end;
  std::vector<FieldState*> found;
  for (FieldState& f : story.fields) {
    for (long p = from; p < to; ++p) {
      if (story.chars[p].field == f.id) {
        found.push_back(&f);
        break;
      }
    }
  }
  return found;
}

namespace {

long IndexInStory(const Story& story, long id) {
  for (size_t i = 0; i < story.fields.size(); ++i) {
    if (story.fields[i].id == id) return static_cast<long>(i) + 1;
  }
  return 0;
}

void SortFields(Story& story) {
  auto first = [&](const FieldState& f) {
    for (size_t p = 0; p < story.chars.size(); ++p) {
      if (story.chars[p].field == f.id) return p;
    }
    return story.chars.size();
  };
  std::stable_sort(story.fields.begin(), story.fields.end(),
                   [&](const FieldState& a, const FieldState& b) { return first(a) < first(b); });
}

// Word pads a code given to Add with a blank each side; with no code given,
// the range's own text becomes the code, as selected text does under Ctrl+F9.
Value AddField(FieldsObj& fields, Args& a) {
  State& st = fields.state();
  auto& where = AsObject<RangeObj>(a[0]);
  Span& s = *where.span;
  Story& story = *s.story;
  const Text code = Given(a[2]) ? AsText(a[2]) : Text();
  const bool fromRange = code.empty() && s.end > s.start;
  long id = st.nextField++;
  Format format = FormatAt(story, s.start);
  std::vector<Char> chars = Chars(u"\x13", format);
  std::vector<Char> inner =
      fromRange ? std::vector<Char>(story.chars.begin() + s.start, story.chars.begin() + s.end)
                : Chars(u" " + code + u" ", format);
  chars.insert(chars.end(), inner.begin(), inner.end());
  chars.push_back(Char{u'\x15', format});
  for (Char& c : chars) c.field = id;
  story.fields.push_back(
      FieldState{id, Given(a[1]) ? AsLong(a[1]) : long{word::wdFieldEmpty}, false});
  const bool overSelection =
      st.selection->story == &story && st.selection->start == s.start && st.selection->end == s.end;
  long start = s.start;
  st.Replace(story, s.start, s.end, chars);
  SortFields(story);
  // Over the selection, an empty field takes the caret between the blanks of
  // its code, so that typing writes the code; any other goes on behind it.
  if (overSelection) {
    long caret = code.empty() && !fromRange ? start + 2 : start + static_cast<long>(chars.size());
    SelectSpan(st, &story, caret, caret);
  }
  return Make<FieldObj>(st, "Fields(" + Arg(IndexInStory(story, id)) + ")", story, id);
}

}  // namespace

const std::vector<Member>& FieldsObj::Members() const {
  static const std::vector<Member> members =
      Table<FieldsObj>()
          .Read(L"Count", "",
                [](FieldsObj& f, Args&) -> Value { return static_cast<long>(f.InSpan().size()); })
          .Read(L"Item", "l",
                [](FieldsObj& f, Args& a) -> Value {
                  auto found = f.InSpan();
                  long i = AsLong(a[0]);
                  if (i < 1 || i > static_cast<long>(found.size())) throw NoSuchMember();
                  return Make<FieldObj>(f.state(), f.Path() + "(" + Arg(i) + ")", *f.span->story,
                                        found[i - 1]->id);
                })
          .Method(L"Add", "o|lsb", &AddField)
          .Method(L"ToggleShowCodes", "",
                  [](FieldsObj& f, Args&) -> Value {
                    auto found = f.InSpan();
                    bool anyResult = std::any_of(found.begin(), found.end(),
                                                 [](FieldState* s) { return !s->showCodes; });
                    for (FieldState* s : found) s->showCodes = anyResult;
                    return {};
                  })
          .Done();
  return members;
}

std::pair<long, long> FieldObj::Extent() const {
  long first = -1, last = -1;
  for (size_t p = 0; p < story.chars.size(); ++p) {
    if (story.chars[p].field != id) continue;
    if (first < 0) first = static_cast<long>(p);
    last = static_cast<long>(p);
  }
  if (first < 0) throw WordFault{5825, "对象已被删除。"};
  return {first, last + 1};
}

const std::vector<Member>& FieldObj::Members() const {
  static const std::vector<Member> members =
      Table<FieldObj>()
          .Read(L"Code", "",
                [](FieldObj& f, Args&) -> Value {
                  auto [from, to] = f.Extent();
                  auto* code = new RangeObj(f.state(), f.Path() + ".Code",
                                            f.state().Hold(&f.story, from + 1, to - 1));
                  code->wholeCode = true;
                  return code;
                })
          .Read(L"Result", "",
                [](FieldObj& f, Args&) -> Value {
                  auto [from, to] = f.Extent();
                  return Make<RangeObj>(f.state(), f.Path() + ".Result",
                                        f.state().Hold(&f.story, to - 1, to - 1));
                })
          .Method(L"Select", "",
                  [](FieldObj& f, Args&) -> Value {
                    auto [from, to] = f.Extent();
                    SelectSpan(f.state(), &f.story, from, to);
                    return {};
                  })
          .Method(L"Delete", "",
                  [](FieldObj& f, Args&) -> Value {
                    auto [from, to] = f.Extent();
                    f.state().Replace(f.story, from, to, {});
                    return {};
                  })
          .Done();
  return members;
}

const std::vector<Member>& CharactersObj::Members() const {
  static const std::vector<Member> members =
      Table<CharactersObj>()
          .Read(L"Count", "",
                [](CharactersObj& c, Args&) -> Value {
                  return static_cast<long>(
                      VisiblePositions(*c.span->story, c.span->start, c.span->end).size());
                })
          .Read(L"Item", "l",
                [](CharactersObj& c, Args& a) -> Value {
                  auto positions = VisiblePositions(*c.span->story, c.span->start, c.span->end);
                  long i = AsLong(a[0]);
                  if (i < 1 || i > static_cast<long>(positions.size())) throw NoSuchMember();
                  long p = positions[i - 1];
                  return Make<RangeObj>(c.state(), c.Path() + "(" + Arg(i) + ")",
                                        c.state().Hold(c.span->story, p, p + 1));
                })
          .Done();
  return members;
}

}  // namespace comdouble
