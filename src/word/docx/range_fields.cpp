#include <cctype>

#include "word/docx/selection.h"
#include "word/errors.h"

namespace word::docx {
namespace {

pugi::xml_node FieldCharRun(pugi::xml_document& proto, pugi::xml_node rPr, const char* type) {
  proto.reset();
  pugi::xml_node run = proto.append_child("w:r");
  if (rPr) run.append_copy(rPr);
  run.append_child("w:fldChar").append_attribute("w:fldCharType") = type;
  return run;
}

FieldSpan SpanOf(Story& story, pugi::xml_node begin) {
  for (const FieldSpan& f : story.Index().fields)
    if (f.begin == begin) return f;
  throw ObjectNotAvailable();
}

}  // namespace

pugi::xml_node AddField(DocxDocument& doc, Story& story, long start, long end, const Text& code,
                        const CharFormat& typing) {
  pugi::xml_document keep;
  if (pugi::xml_node source = story.ReplacementFormat(start, end)) keep.append_copy(source);
  pugi::xml_node rPr = keep.first_child();
  pugi::xml_document proto;
  if (code.empty() && start < end) {
    // The stretch itself becomes the code.
    story.TextToCode(start, end);
    story.InsertInline(end, FieldCharRun(proto, rPr, "end"), 1);
    return story.InsertInline(start, FieldCharRun(proto, rPr, "begin"), 1).child("w:fldChar");
  }
  story.Delete(start, end);
  const Text text = code.empty() ? Text(u"  ") : u" " + code + u" ";
  pugi::xml_node begin =
      story.InsertInline(start, FieldCharRun(proto, rPr, "begin"), 1).child("w:fldChar");
  story.InsertText(start + 1, text, TypingFormat{rPr, typing}, true);
  story.InsertInline(start + 1 + static_cast<long>(text.size()), FieldCharRun(proto, rPr, "end"),
                     1);
  doc.SetShowCode(begin, code.empty());
  return begin;
}

std::vector<FieldSpan> RangeFields::InRange() const {
  const StoryIndex& ix = place_.story->Index();
  if (wholeStory_) return ix.fields;
  const long s = place_.Start(), e = place_.End();
  std::vector<FieldSpan> out;
  for (const FieldSpan& f : ix.fields) {
    bool in = s < e ? (f.beginPos < e && f.endPos >= s) : (f.beginPos < s && s <= f.endPos);
    if (in) out.push_back(f);
  }
  return out;
}

long RangeFields::Count() const {
  return static_cast<long>(InRange().size());
}

std::unique_ptr<word::Field> RangeFields::Item(long index) {
  auto fields = InRange();
  if (index < 1 || index > static_cast<long>(fields.size())) throw ItemNotFound();
  return std::make_unique<FieldImpl>(*place_.doc, *place_.story,
                                     fields[static_cast<size_t>(index - 1)].begin);
}

std::unique_ptr<word::Field> RangeFields::Add(word::Range& where, long type, const Text& text,
                                              bool preserveFormatting) {
  DocxDocument& doc = *place_.doc;
  DocxSelection& selection = doc.Selection();
  auto* holder = dynamic_cast<const PlaceHolder*>(&where);
  Story& story = holder ? *holder->GetPlace().story : *place_.story;
  const long start = where.Start(), end = where.End();
  const bool caretHere =
      &selection.CurrentStory() == &story && selection.Start() == start && selection.End() == start;
  Text code = text;
  if (preserveFormatting && !code.empty()) code += u" \\* MERGEFORMAT";
  pugi::xml_node begin =
      AddField(doc, story, start, end, code, caretHere ? selection.PendingFormat() : CharFormat());
  if (code.empty() && start == end && caretHere) selection.SetPlace(story, start + 2, start + 2);
  return std::make_unique<FieldImpl>(doc, story, begin);
}

void RangeFields::ToggleShowCodes() {
  auto fields = InRange();
  bool anyResult = false;
  for (const FieldSpan& f : fields) anyResult = anyResult || !place_.doc->ShowsCode(f.begin);
  for (const FieldSpan& f : fields) place_.doc->SetShowCode(f.begin, anyResult);
  if (!anyResult) place_.doc->Selection().LeaveHiddenCodes(*place_.story, fields);
}

FieldSpan FieldImpl::Span() const {
  return SpanOf(*story_, begin_);
}

std::unique_ptr<word::Range> FieldImpl::Code() {
  FieldSpan f = Span();
  long end = f.sepPos >= 0 ? f.sepPos : f.endPos;
  return std::make_unique<DocxRange>(doc_.MakePlace(*story_, f.beginPos + 1, end));
}

std::unique_ptr<word::Range> FieldImpl::Result() {
  FieldSpan f = Span();
  long start = f.sepPos >= 0 ? f.sepPos + 1 : f.endPos;
  return std::make_unique<DocxRange>(doc_.MakePlace(*story_, start, f.endPos));
}

void FieldImpl::Select() {
  FieldSpan f = Span();
  doc_.Selection().SetPlace(*story_, f.beginPos, f.endPos + 1);
}

void FieldImpl::Delete() {
  FieldSpan f = Span();
  story_->Delete(f.beginPos, f.endPos + 1);
}

}  // namespace word::docx
