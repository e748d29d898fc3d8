#include "double/word_double.h"

#include "runtime/utf8.h"
#include "word/fake/record.h"

namespace comdouble {

WordDouble::WordDouble() : app_(new ApplicationObj(state_)) {
  state_.AddDocument(u"Document1", u"Normal.dot");
}

WordDouble::~WordDouble() {
  app_->Release();
}

void WordDouble::SetScene(const Text& before, const Text& selected, const Text& after) {
  Story& body = state_.ActiveDocument().body;
  body.chars = Chars(before + selected + after + u"\r", Format{});
  long start = static_cast<long>(before.size());
  SelectSpan(state_, &body, start, start + static_cast<long>(selected.size()));
}

namespace {

std::string FormatName(const Format& f) {
  using word::fake::Arg;
  const Format plain;
  std::string out;
  auto add = [&](const std::string& part) { out += (out.empty() ? "" : ",") + part; };
  if (f.superscript) add("sup");
  if (f.subscript) add("sub");
  if (f.bold) add("b");
  if (f.italic) add("i");
  if (f.name != plain.name) add("font=" + lp::ToUtf8(f.name));
  if (f.size != plain.size) add("size=" + Arg(f.size));
  if (f.scaling != plain.scaling) add("scale=" + Arg(f.scaling));
  if (f.color != plain.color) add("color=" + Arg(f.color));
  return out;
}

std::string Shown(char16_t c) {
  if (c == 0x13) return "{";
  if (c == 0x15) return "}";
  if (c == u'\r') return "¶";
  return lp::ToUtf8(Text(1, c));
}

}  // namespace

std::string WordDouble::Dump() const {
  const auto& chars = state_.documents.at(state_.active)->body.chars;
  std::string out, run, runFormat;
  auto flush = [&] {
    out += runFormat.empty() ? run : "[" + runFormat + ":" + run + "]";
    run.clear();
  };
  for (size_t i = 0; i + 1 < chars.size(); ++i) {
    std::string format = FormatName(chars[i].format);
    if (format != runFormat) flush(), runFormat = format;
    run += Shown(chars[i].ch);
  }
  flush();
  return out;
}

}  // namespace comdouble
