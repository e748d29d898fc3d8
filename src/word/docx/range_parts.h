#pragma once
// The objects a range hands out: Font, ParagraphFormat, Characters, Fields
// and Find. Each refers to its range's Place, so it follows the range.

#include <memory>
#include <vector>

#include "word/api.h"
#include "word/docx/docx_document.h"

namespace word::docx {

class RangeFont : public word::Font {
 public:
  // pending: the selection's format for what is typed next, null for a range.
  RangeFont(const Place& place, CharFormat* pending) : place_(place), pending_(pending) {}
  Text Name() const override;
  void SetName(const Text& name) override;
  Text NameFarEast() const override;
  void SetNameFarEast(const Text& name) override;
  float Size() const override;
  void SetSize(float points) override;
  long Bold() const override;
  void SetBold(long value) override;
  long Italic() const override;
  void SetItalic(long value) override;
  long Superscript() const override;
  void SetSuperscript(long value) override;
  long Subscript() const override;
  void SetSubscript(long value) override;
  long Scaling() const override;
  void SetScaling(long percent) override;
  long Color() const override;
  void SetColor(long rgb) override;

 private:
  CharFormat Common() const;  // fields left unset are mixed
  void Apply(const CharFormat& format);
  bool Flag(long value, long current) const;

  const Place& place_;
  CharFormat* pending_;
};

class RangeParagraphFormat : public word::ParagraphFormat {
 public:
  explicit RangeParagraphFormat(const Place& place) : place_(place) {}
  WdParagraphAlignment Alignment() const override;
  void SetAlignment(WdParagraphAlignment alignment) override;

 private:
  std::vector<pugi::xml_node> Paragraphs() const;
  const Place& place_;
};

class RangeCharacters : public word::Characters {
 public:
  explicit RangeCharacters(const Place& place) : place_(place) {}
  long Count() const override;
  std::unique_ptr<word::Range> Item(long index) override;

 private:
  std::vector<long> Positions() const;
  const Place& place_;
};

class RangeFields : public word::Fields {
 public:
  // wholeStory: the document's Fields, which always cover the whole story.
  RangeFields(const Place& place, bool wholeStory) : place_(place), wholeStory_(wholeStory) {}
  long Count() const override;
  std::unique_ptr<word::Field> Item(long index) override;
  std::unique_ptr<word::Field> Add(word::Range& where, long type, const Text& text,
                                   bool preserveFormatting) override;
  void ToggleShowCodes() override;

 private:
  std::vector<FieldSpan> InRange() const;
  const Place& place_;
  bool wholeStory_;
};

// A Font that only records what is set: the replacement's format.
class RecordedFont : public word::Font {
 public:
  CharFormat format;
  Text Name() const override { return format.ascii.value_or(Text()); }
  void SetName(const Text& name) override { format.ascii = name; }
  Text NameFarEast() const override { return format.eastAsia.value_or(Text()); }
  void SetNameFarEast(const Text& name) override { format.eastAsia = name; }
  float Size() const override;
  void SetSize(float points) override;
  long Bold() const override { return Tri(format.bold); }
  void SetBold(long value) override { format.bold = value != wdFalse; }
  long Italic() const override { return Tri(format.italic); }
  void SetItalic(long value) override { format.italic = value != wdFalse; }
  long Superscript() const override;
  void SetSuperscript(long value) override;
  long Subscript() const override;
  void SetSubscript(long value) override;
  long Scaling() const override { return format.scaling.value_or(wdUndefined); }
  void SetScaling(long percent) override { format.scaling = static_cast<int>(percent); }
  long Color() const override { return format.color.value_or(wdUndefined); }
  void SetColor(long rgb) override { format.color = rgb; }

 private:
  static long Tri(const std::optional<bool>& b) { return !b ? wdUndefined : *b ? wdTrue : wdFalse; }
};

class RangeReplacement : public word::Replacement {
 public:
  void ClearFormatting() override { font_.format = CharFormat(); }
  void SetText(const Text& text) override { text_ = text; }
  word::Font& Font() override { return font_; }
  const Text& GetText() const { return text_; }
  const CharFormat& Format() const { return font_.format; }

 private:
  Text text_;
  RecordedFont font_;
};

class RangeFind : public word::Find {
 public:
  explicit RangeFind(Place& place) : place_(place) {}
  void ClearFormatting() override {}
  void SetText(const Text& text) override { text_ = text; }
  void SetForward(bool forward) override { forward_ = forward; }
  void SetWrap(WdFindWrap wrap) override { wrap_ = wrap; }
  void SetMatchWildcards(bool on) override { wildcards_ = on; }
  void SetMatchByte(bool on) override { matchByte_ = on; }
  word::Replacement& Replacement() override { return replacement_; }
  bool Execute(WdReplace replace) override;
  bool Found() const override { return found_; }

 private:
  struct Hit {
    long start, end;
  };
  // Matches within [from, to) of the shown text, in order.
  std::vector<Hit> Search(long from, long to, bool all) const;
  std::vector<Hit> SearchWrapping(bool all) const;
  void Replace(const Hit& hit);

  Place& place_;
  Text text_;
  bool forward_ = true, wildcards_ = false, matchByte_ = true, found_ = false;
  WdFindWrap wrap_ = wdFindStop;
  RangeReplacement replacement_;
};

class FieldImpl : public word::Field {
 public:
  FieldImpl(DocxDocument& doc, Story& story, pugi::xml_node begin)
      : doc_(doc), story_(story.shared_from_this()), begin_(begin) {}
  std::unique_ptr<word::Range> Code() override;
  std::unique_ptr<word::Range> Result() override;
  void Select() override;
  void Delete() override;

 private:
  FieldSpan Span() const;
  DocxDocument& doc_;
  std::shared_ptr<Story> story_;
  pugi::xml_node begin_;
};

// Makes a field of the given code over [start, end); returns its begin mark.
// typing: the format set at the caret, which the field's code takes.
pugi::xml_node AddField(DocxDocument& doc, Story& story, long start, long end, const Text& code,
                        const CharFormat& typing = {});

}  // namespace word::docx
