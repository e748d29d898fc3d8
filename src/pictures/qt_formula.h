#pragma once
// Formula pictures: a small typesetter for the LaTeX the formula engine
// writes (fractions, radicals with an index, scripts, bars, boxes and
// vectors, Greek letters, relations, the brace of a system, arrays),
// painted with Qt. No TeX installation and no network: boxes of glyphs and
// rules laid out as a printed formula sets them. Unknown commands show as their name, so a
// formula never fails to draw.

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QString>
#include <memory>

namespace lp {

struct FormulaBox;

class FormulaPicture {
 public:
  // latex with or without surrounding "$"; pixelSize is the body text size.
  FormulaPicture(const QString& latex, double pixelSize);
  ~FormulaPicture();
  FormulaPicture(FormulaPicture&&) noexcept;

  QSizeF Size() const;
  // Distance from the top to the baseline of the formula's main line.
  double Baseline() const;
  void Paint(QPainter& painter, QPointF topLeft, const QColor& color = Qt::black) const;
  // The formula on a transparent picture with a small margin.
  QImage Image(const QColor& color = Qt::black) const;

 private:
  std::unique_ptr<FormulaBox> box_;
};

// Writes the formula as a picture file (the format by the file's extension,
// PNG when it has none that Qt writes); false when the file can't be written.
bool SaveFormulaPicture(const QString& latex, const QString& path, double pixelSize = 20);

}  // namespace lp
