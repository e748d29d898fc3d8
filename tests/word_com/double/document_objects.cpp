// The application, its documents and the application-wide objects.
#include "double/objects.h"
#include "word/fake/record.h"

namespace comdouble {

using word::fake::Arg;

namespace {

SpanPtr WholeStory(State& st, Story& story) {
  return st.Hold(&story, 0, static_cast<long>(story.chars.size()));
}

Object* Plain(Object& parent, const std::string& path, const std::vector<Member>& members,
              std::string childPrefix) {
  return Make<PlainObj>(parent.state(), path, members, std::move(childPrefix));
}

const std::vector<Member>& OptionsMembers() {
  static const std::vector<Member> members = Table<Object>()
                                                 .Keep(L"AutoCreateNewDrawings", "b", true)
                                                 .Keep(L"AutoFormatMatchParentheses", "b", true)
                                                 .Keep(L"CorrectSentenceCaps", "b", true)
                                                 .Done();
  return members;
}

const std::vector<Member>& AddInsMembers() {
  static const std::vector<Member> members =
      Table<Object>().Method(L"Add", "s|b", [](Object&, Args&) -> Value { return {}; }).Done();
  return members;
}

// Bindings of macros: KeyBindings.Add(KeyCategory, Command, KeyCode, ...).
const std::vector<Member>& KeyBindingsMembers() {
  static const std::vector<Member> members =
      Table<Object>()
          .Method(L"Add", "lsl|lv", [](Object&, Args&) -> Value { return {}; })
          .Records([](const Args& a) { return Arg(AsLong(a[2])) + "," + Arg(AsText(a[1])); })
          .Done();
  return members;
}

// CommandBars("bar").Controls(n).Caption, kept under that path.
const std::vector<Member>& ControlMembers() {
  static const std::vector<Member> members = Table<Object>().Keep(L"Caption", "s", Text()).Done();
  return members;
}

const std::vector<Member>& ControlsMembers() {
  static const std::vector<Member> members =
      Table<Object>()
          .Read(L"Item", "v",
                [](Object& o, Args& a) -> Value {
                  std::string path = o.Path() + "(" + Written(a[0]) + ")";
                  return Plain(o, path, ControlMembers(), path + ".");
                })
          .Done();
  return members;
}

const std::vector<Member>& CommandBarsMembers() {
  static const std::vector<Member> controls =
      Table<Object>()
          .Read(L"Controls", "",
                [](Object& o, Args&) -> Value {
                  return Plain(o, o.Path() + ".Controls", ControlsMembers(), "");
                })
          .Done();
  static const std::vector<Member> members =
      Table<Object>()
          .Read(L"Item", "v",
                [](Object& o, Args& a) -> Value {
                  std::string path = o.Path() + "(" + Written(a[0]) + ")";
                  return Plain(o, path, controls, path + ".");
                })
          .Done();
  return members;
}

// The entry's name, from the end of its path: ...AutoTextEntries("fz").
Text EntryName(const Object& o) {
  const std::string& path = o.Path();
  size_t open = path.rfind("(\"");
  return lp::FromUtf8(path.substr(open + 2, path.size() - open - 4));
}

// An entry goes in with the formatting it was taken with, replacing the
// range; inside a field's code it becomes part of that code. Put in at the
// selection, it leaves the caret behind it, as typing does.
Value InsertEntry(Object& o, Args& a) {
  State& st = o.state();
  Span& s = *AsObject<RangeObj>(a[0]).span;
  Story& story = *s.story;
  std::vector<Char> chars = st.autoTextEntries.at(EntryName(o));
  const long start = s.start;
  long field = start > 0 && story.chars[start - 1].ch != u'\x15' ? story.chars[start - 1].field : 0;
  for (Char& c : chars) c.field = field;
  const bool atSelection =
      st.selection->story == &story && st.selection->start == start && st.selection->end == s.end;
  st.Replace(story, start, s.end, chars);
  if (atSelection)
    SelectSpan(st, &story, start + static_cast<long>(chars.size()),
               start + static_cast<long>(chars.size()));
  return {};
}

const std::vector<Member>& AutoTextEntryMembers() {
  static const std::vector<Member> members =
      Table<Object>()
          .Method(L"Insert", "o|b", &InsertEntry)
          .Method(L"Delete", "",
                  [](Object& o, Args&) -> Value {
                    o.state().autoTextEntries.erase(EntryName(o));
                    return {};
                  })
          .Done();
  return members;
}

const std::vector<Member>& AutoTextEntriesMembers() {
  static const std::vector<Member> members =
      Table<Object>()
          .Method(L"Add", "so",
                  [](Object& o, Args& a) -> Value {
                    Span& s = *AsObject<RangeObj>(a[1]).span;
                    o.state().autoTextEntries[AsText(a[0])] = std::vector<Char>(
                        s.story->chars.begin() + s.start, s.story->chars.begin() + s.end);
                    return {};
                  })
          .Read(L"Item", "s",
                [](Object& o, Args& a) -> Value {
                  if (!o.state().autoTextEntries.count(AsText(a[0]))) throw NoSuchMember();
                  return Plain(o, o.Path() + "(" + Arg(AsText(a[0])) + ")", AutoTextEntryMembers(),
                               "");
                })
          .Done();
  return members;
}

const std::vector<Member>& NormalTemplateMembers() {
  static const std::vector<Member> members =
      Table<Object>()
          .Read(L"AutoTextEntries", "",
                [](Object& o, Args&) -> Value {
                  return Plain(o, "NormalTemplate.AutoTextEntries", AutoTextEntriesMembers(), "");
                })
          .Done();
  return members;
}

// The application's children go bare in the records: Selection, Options, ...
template <const std::vector<Member>& (*M)()>
Value PlainChild(Object& o, const char* name) {
  return Plain(o, name, M(), std::string(name) + ".");
}

}  // namespace

const std::vector<Member>& ApplicationObj::Members() const {
  static const std::vector<Member> members =
      Table<ApplicationObj>()
          .Keep(L"Visible", "b", true)
          .Read(L"Version", "", [](ApplicationObj&, Args&) -> Value { return Text(u"11.0"); })
          .Keep(L"ScreenUpdating", "b", true)
          .Read(L"Documents", "",
                [](ApplicationObj& a, Args&) -> Value {
                  static const std::vector<Member> documents =
                      Table<Object>()
                          .Read(L"Count", "",
                                [](Object& o, Args&) -> Value {
                                  return static_cast<long>(o.state().documents.size());
                                })
                          .Method(L"Add", "|s",
                                  [](Object& o, Args& a) -> Value {
                                    State& st = o.state();
                                    Text name = u"Document" +
                                                lp::FromUtf8(std::to_string(st.madeDocuments + 1));
                                    auto& d = st.AddDocument(
                                        name, Given(a[0]) ? AsText(a[0]) : u"Normal.dot");
                                    return Make<DocumentObj>(st, d);
                                  })
                          .Method(L"Open", "s",
                                  [](Object& o, Args& a) -> Value {
                                    State& st = o.state();
                                    return Make<DocumentObj>(
                                        st, st.AddDocument(AsText(a[0]), u"Normal.dot"));
                                  })
                          .Done();
                  return Plain(a, "Documents", documents, "");
                })
          .Read(L"ActiveDocument", "",
                [](ApplicationObj& a, Args&) -> Value {
                  return Make<DocumentObj>(a.state(), a.state().ActiveDocument());
                })
          .Read(L"Selection", "",
                [](ApplicationObj& a, Args&) -> Value { return Make<SelectionObj>(a.state()); })
          .Method(L"Run", "s", [](ApplicationObj&, Args&) -> Value { return {}; })
          .Read(L"AddIns", "",
                [](ApplicationObj& a, Args&) { return PlainChild<AddInsMembers>(a, "AddIns"); })
          .Read(L"CommandBars", "",
                [](ApplicationObj& a, Args&) {
                  return PlainChild<CommandBarsMembers>(a, "CommandBars");
                })
          .Read(L"KeyBindings", "",
                [](ApplicationObj& a, Args&) {
                  return PlainChild<KeyBindingsMembers>(a, "KeyBindings");
                })
          .Read(L"Options", "",
                [](ApplicationObj& a, Args&) { return PlainChild<OptionsMembers>(a, "Options"); })
          .Read(
              L"AutoCorrect", "",
              [](ApplicationObj& a, Args&) { return PlainChild<OptionsMembers>(a, "AutoCorrect"); })
          .Read(L"NormalTemplate", "",
                [](ApplicationObj& a, Args&) {
                  return PlainChild<NormalTemplateMembers>(a, "NormalTemplate");
                })
          .Done();
  return members;
}

DocumentObj::DocumentObj(State& state, DocumentState& document)
    : Object(state,
             document.number == 1 ? "ActiveDocument" : "Documents(" + Arg(document.number) + ")"),
      document(document),
      prefix(document.number == 1 ? "" : path_ + ".") {}

namespace {

// A4 in points with Word's default margins.
const std::vector<Member>& PageSetupMembers() {
  static const std::vector<Member> members =
      Table<Object>()
          .Read(L"PageWidth", "", [](Object&, Args&) -> Value { return 595.3f; })
          .Read(L"PageHeight", "", [](Object&, Args&) -> Value { return 841.9f; })
          .Read(L"TopMargin", "", [](Object&, Args&) -> Value { return 72.0f; })
          .Read(L"BottomMargin", "", [](Object&, Args&) -> Value { return 72.0f; })
          .Read(L"LeftMargin", "", [](Object&, Args&) -> Value { return 90.0f; })
          .Read(L"RightMargin", "", [](Object&, Args&) -> Value { return 90.0f; })
          .Done();
  return members;
}

class BookmarkObj : public Object {
 public:
  BookmarkObj(State& state, std::string path, SpanPtr span)
      : Object(state, std::move(path)), span(std::move(span)) {}
  const std::vector<Member>& Members() const override {
    static const std::vector<Member> members =
        Table<BookmarkObj>()
            .Read(L"Range", "",
                  [](BookmarkObj& b, Args&) -> Value {
                    const Span& s = *b.span;
                    return Make<RangeObj>(b.state(), b.Child("Range"),
                                          b.state().Hold(s.story, s.start, s.end));
                  })
            .Done();
    return members;
  }
  SpanPtr span;
};

// "\Page" is the page of the selection: the whole of a one-page body.
class BookmarksObj : public Object {
 public:
  BookmarksObj(State& state, std::string path, DocumentState& document)
      : Object(state, std::move(path)), document(document) {}
  SpanPtr Find(const Text& name) const {
    if (name == u"\\Page") return WholeStory(st_, document.body);
    auto it = document.bookmarks.find(name);
    return it == document.bookmarks.end() ? nullptr : it->second;
  }
  const std::vector<Member>& Members() const override {
    static const std::vector<Member> members =
        Table<BookmarksObj>()
            .Read(L"Exists", "s",
                  [](BookmarksObj& b, Args& a) -> Value { return b.Find(AsText(a[0])) != nullptr; })
            .Read(L"Item", "s",
                  [](BookmarksObj& b, Args& a) -> Value {
                    SpanPtr span = b.Find(AsText(a[0]));
                    if (!span) throw NoSuchMember();
                    return Make<BookmarkObj>(b.state(), b.Path() + "(" + Arg(AsText(a[0])) + ")",
                                             span);
                  })
            .Done();
    return members;
  }
  DocumentState& document;
};

}  // namespace

const std::vector<Member>& DocumentObj::Members() const {
  static const std::vector<Member> members =
      Table<DocumentObj>()
          .Read(L"FullName", "", [](DocumentObj& d, Args&) -> Value { return d.document.fullName; })
          .Read(L"Range", "|ll",
                [](DocumentObj& d, Args& a) -> Value {
                  long size = static_cast<long>(d.document.body.chars.size());
                  long start = Given(a[0]) ? std::clamp(AsLong(a[0]), 0L, size) : 0;
                  long end = Given(a[1]) ? std::clamp(AsLong(a[1]), start, size) : size;
                  return Make<RangeObj>(d.state(), d.Child("Range(" + WrittenList(a) + ")"),
                                        d.state().Hold(&d.document.body, start, end));
                })
          .Read(L"Content", "",
                [](DocumentObj& d, Args&) -> Value {
                  return Make<RangeObj>(d.state(), d.Child("Content"),
                                        WholeStory(d.state(), d.document.body));
                })
          .Read(L"Shapes", "",
                [](DocumentObj& d, Args&) -> Value {
                  return Make<ShapesObj>(d.state(), d.Child("Shapes"), d.document);
                })
          .Read(L"Fields", "",
                [](DocumentObj& d, Args&) -> Value {
                  return Make<FieldsObj>(d.state(), d.Child("Fields"),
                                         WholeStory(d.state(), d.document.body), true);
                })
          .Read(L"PageSetup", "",
                [](DocumentObj& d, Args&) -> Value {
                  return Plain(d, d.Child("PageSetup"), PageSetupMembers(), "");
                })
          .Read(L"Bookmarks", "",
                [](DocumentObj& d, Args&) -> Value {
                  return Make<BookmarksObj>(d.state(), d.Child("Bookmarks"), d.document);
                })
          .Prop(
              L"AttachedTemplate", "s",
              [](DocumentObj& d, Args&) -> Value {
                static const std::vector<Member> members =
                    Table<Object>()
                        .Read(L"FullName", "",
                              [](Object& o, Args&) -> Value {
                                return o.state().ActiveDocument().attachedTemplate;
                              })
                        .Done();
                return Plain(d, d.Path() + ".AttachedTemplate", members, "");
              },
              [](DocumentObj& d, Args& a) { d.document.attachedTemplate = AsText(a[0]); })
          .Keep(L"EmbedTrueTypeFonts", "b", false)
          .Keep(L"SaveSubsetFonts", "b", false)
          .Keep(L"DoNotEmbedSystemFonts", "b", true)
          .Keep(L"SnapToGrid", "b", true)
          .Keep(L"SnapToShapes", "b", false)
          .Read(L"BuiltInDocumentProperties", "s",
                [](DocumentObj& d, Args& a) -> Value {
                  static const std::vector<Member> members =
                      Table<Object>().Keep(L"Value", "s", Text()).Bare().Done();
                  std::string path =
                      d.Path() + ".BuiltInDocumentProperties(" + Arg(AsText(a[0])) + ")";
                  return Plain(d, path, members, path + ".");
                })
          .Method(L"Save", "", [](DocumentObj&, Args&) -> Value { return {}; })
          .Method(L"SaveAs", "s",
                  [](DocumentObj& d, Args& a) -> Value {
                    d.document.fullName = AsText(a[0]);
                    return {};
                  })
          .Method(L"Close", "|b",
                  [](DocumentObj& d, Args&) -> Value {
                    auto& open = d.state().documents;
                    for (auto it = open.begin(); it != open.end(); ++it) {
                      if (it->get() != &d.document) continue;
                      d.state().closed.push_back(std::move(*it));
                      open.erase(it);
                      break;
                    }
                    d.state().active = open.empty() ? 0 : open.size() - 1;
                    return {};
                  })
          .Done();
  return members;
}

}  // namespace comdouble
