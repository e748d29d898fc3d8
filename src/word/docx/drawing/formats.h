#pragma once
// The format objects of a Shape: each edits the DrawingML of every shape in
// its ShapeSet and reads the first one.

#include <functional>

#include "word/docx/drawing/shape_set.h"
#include "word/shapes.h"

namespace word::docx::drawing {

// A colour reached through a getter and a setter of its owner.
class ColorSlot : public ColorFormat {
 public:
  ColorSlot(std::function<long()> get, std::function<void(long)> set)
      : get_(std::move(get)), set_(std::move(set)) {}
  long RGB() const override { return get_(); }
  void SetRGB(long rgb) override { set_(rgb); }

 private:
  std::function<long()> get_;
  std::function<void(long)> set_;
};

class DocxLineFormat : public LineFormat {
 public:
  explicit DocxLineFormat(const ShapeSet& shapes);
  bool Visible() const override;
  void SetVisible(bool visible) override;
  ColorFormat& ForeColor() override { return foreColor_; }
  float Weight() const override;
  void SetWeight(float points) override;
  MsoLineDashStyle DashStyle() const override;
  void SetDashStyle(MsoLineDashStyle style) override;
  void SetBeginArrowheadStyle(MsoArrowheadStyle style) override;
  void SetEndArrowheadStyle(MsoArrowheadStyle style) override;
  void SetBeginArrowheadLength(MsoArrowheadLength length) override;
  void SetBeginArrowheadWidth(MsoArrowheadWidth width) override;
  void SetEndArrowheadLength(MsoArrowheadLength length) override;
  void SetEndArrowheadWidth(MsoArrowheadWidth width) override;

 private:
  pugi::xml_node FirstLine() const;
  // Applies edit to the a:ln of every shape, creating it where missing.
  void EditLines(const std::function<void(pugi::xml_node)>& edit);
  void SetEndAttribute(const char* end, const char* attribute, std::string_view value);

  const ShapeSet& shapes_;
  ColorSlot foreColor_;
};

class DocxFillFormat : public FillFormat {
 public:
  explicit DocxFillFormat(const ShapeSet& shapes);
  bool Visible() const override;
  void SetVisible(bool visible) override;
  ColorFormat& ForeColor() override { return foreColor_; }
  ColorFormat& BackColor() override { return backColor_; }
  void Solid() override;
  void Patterned(long pattern) override;
  float Transparency() const override;
  void SetTransparency(float fraction) override;

 private:
  pugi::xml_node FirstFill() const;
  void EditFills(const std::function<void(pugi::xml_node spPr, pugi::xml_node fill)>& edit);
  long Fore() const;
  void SetFore(long bgr);
  long Back() const;
  void SetBack(long bgr);

  const ShapeSet& shapes_;
  ColorSlot foreColor_;
  ColorSlot backColor_;
};

class DocxTextFrame : public TextFrame {
 public:
  explicit DocxTextFrame(const ShapeSet& shapes) : shapes_(shapes) {}
  std::unique_ptr<Range> TextRange() override;
  void SetMarginLeft(float points) override { SetInset("lIns", points); }
  void SetMarginRight(float points) override { SetInset("rIns", points); }
  void SetMarginTop(float points) override { SetInset("tIns", points); }
  void SetMarginBottom(float points) override { SetInset("bIns", points); }
  void SetAutoSize(bool on) override;

 private:
  void SetInset(const char* attribute, float points);
  const ShapeSet& shapes_;
};

class DocxWrapFormat : public WrapFormat {
 public:
  explicit DocxWrapFormat(const ShapeSet& shapes) : shapes_(shapes) {}
  WdWrapType Type() const override;
  void SetType(WdWrapType type) override;

 private:
  const ShapeSet& shapes_;
};

}  // namespace word::docx::drawing
