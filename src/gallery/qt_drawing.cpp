#include "gallery/qt_drawing.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "pictures/qt_formula.h"

namespace lp::gallery {
namespace {

constexpr double kMarginPoints = 4;
constexpr double kWrapSlack = 1.15;

QColor ColorOf(long rgb) {
  return QColor((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

// A run laid out at a scale: its font or formula, and its size in pixels.
struct RunBox {
  const TextRun* run = nullptr;
  QString text;  // the part of the run's text on this line
  QFont font;
  std::unique_ptr<FormulaPicture> formula;
  double width = 0, ascent = 0, descent = 0;
};

struct LineBox {
  std::vector<RunBox> runs;
  double width = 0, ascent = 0, descent = 0;
  int alignment = 0;
};

RunBox LayOut(const TextRun& run, double scale, const QString& text) {
  RunBox box;
  box.run = &run;
  box.text = text;
  const double pixels = run.size * scale * (run.script != 0 && !run.formula ? 0.65 : 1.0);
  if (run.formula) {
    box.formula = std::make_unique<FormulaPicture>(QString::fromStdU16String(run.text), pixels);
    box.width = box.formula->Size().width();
    box.ascent = box.formula->Baseline();
    box.descent = box.formula->Size().height() - box.ascent;
    return box;
  }
  box.font = QFont(QStringLiteral("Times New Roman"));
  box.font.setFamilies({QStringLiteral("Times New Roman"), QStringLiteral("SimSun"),
                        QStringLiteral("Noto Serif CJK SC"), QStringLiteral("serif")});
  box.font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
  box.font.setItalic(run.italic);
  box.font.setBold(run.bold);
  const QFontMetricsF metrics(box.font);
  box.width = metrics.horizontalAdvance(text);
  const double shift = run.script * run.size * scale * 0.35;
  box.ascent = metrics.ascent() + shift;
  box.descent = metrics.descent() - shift;
  return box;
}

// Lines of a text box wrap at its width (maxWidth > 0), after a blank
// where the line has one, else after the last character that fits.
class LineBreaker {
 public:
  LineBreaker(double scale, double maxWidth, int alignment)
      : scale_(scale), maxWidth_(maxWidth), alignment_(alignment) {
    Start();
  }

  void Add(const TextRun& run) {
    if (run.formula) return Place(LayOut(run, scale_, {}));
    QString rest = QString::fromStdU16String(run.text);
    while (!rest.isEmpty()) {
      RunBox piece = LayOut(run, scale_, rest);
      if (Fits(piece.width)) return Place(std::move(piece));
      const int n = Fitting(run, rest);
      if (n == 0) {
        Break();
        continue;
      }
      Place(LayOut(run, scale_, rest.left(n)));
      Break();
      rest = rest.mid(n);
    }
  }

  std::vector<LineBox> Finish() {
    Break();
    return std::move(lines_);
  }

 private:
  void Start() {
    line_ = LineBox();
    line_.alignment = alignment_;
  }
  // A label sized to its text in another font may run a little wider than
  // its box; only what clearly overflows wraps.
  bool Fits(double width) const {
    return maxWidth_ <= 0 || line_.width + width <= maxWidth_ * kWrapSlack + 2;
  }
  void Place(RunBox piece) {
    if (!Fits(piece.width) && !line_.runs.empty()) Break();
    line_.width += piece.width;
    line_.ascent = std::max(line_.ascent, piece.ascent);
    line_.descent = std::max(line_.descent, piece.descent);
    line_.runs.push_back(std::move(piece));
  }
  void Break() {
    if (line_.runs.empty()) line_.ascent = 10.5 * scale_;  // an empty line keeps its height
    lines_.push_back(std::move(line_));
    Start();
  }
  // How many characters of the text fit the rest of the line; at least one
  // on an empty line.
  int Fitting(const TextRun& run, const QString& text) const {
    int n = 0;
    while (n < text.size() && Fits(LayOut(run, scale_, text.left(n + 1)).width)) ++n;
    if (n == 0) return line_.runs.empty() ? 1 : 0;
    const int blank = text.lastIndexOf(u' ', n - 1);
    return n < text.size() && blank > 0 ? blank + 1 : n;
  }

  double scale_, maxWidth_;
  int alignment_;
  LineBox line_;
  std::vector<LineBox> lines_;
};

std::vector<LineBox> LayOutLines(const std::vector<TextLine>& lines, double scale,
                                 double maxWidth = 0) {
  std::vector<LineBox> boxes;
  for (const TextLine& line : lines) {
    LineBreaker breaker(scale, maxWidth, line.alignment);
    for (const TextRun& run : line.runs) breaker.Add(run);
    for (LineBox& box : breaker.Finish()) boxes.push_back(std::move(box));
  }
  return boxes;
}

// Lines stand 1.15 times their height apart.
double HeightOf(const std::vector<LineBox>& lines) {
  double height = 0;
  for (const LineBox& line : lines) height += (line.ascent + line.descent) * 1.15;
  return height;
}

void PaintLines(QPainter& painter, const std::vector<LineBox>& lines, QPointF topLeft,
                double boxWidth, double scale) {
  double y = topLeft.y();
  for (const LineBox& line : lines) {
    double x = topLeft.x();
    if (line.alignment == 1) x += (boxWidth - line.width) / 2;
    if (line.alignment == 2) x += boxWidth - line.width;
    const double baseline = y + line.ascent;
    for (const RunBox& run : line.runs) {
      const QColor color = ColorOf(run.run->rgb);
      if (run.formula) {
        run.formula->Paint(painter, QPointF(x, baseline - run.ascent), color);
      } else {
        painter.setFont(run.font);
        painter.setPen(color);
        const double shift = run.run->script * run.run->size * scale * 0.35;
        painter.drawText(QPointF(x, baseline - shift), run.text);
      }
      x += run.width;
    }
    y = baseline + line.descent + 0.15 * (line.ascent + line.descent);
  }
}

QPen PenOf(const Stroke& stroke, double scale) {
  QPen pen(ColorOf(stroke.rgb), std::max(1.0, stroke.width * scale));
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::MiterJoin);
  if (stroke.dashed) pen.setStyle(Qt::DashLine);
  return pen;
}

QPainterPath PathOf(const std::vector<PathStep>& steps, double scale, QPointF origin) {
  QPainterPath path;
  const auto at = [&](const Point& p) { return origin + QPointF(p.x * scale, p.y * scale); };
  for (const PathStep& step : steps) {
    if (step.kind == PathStep::kMove && !step.points.empty()) path.moveTo(at(step.points[0]));
    if (step.kind == PathStep::kLine)
      for (const Point& p : step.points) path.lineTo(at(p));
    if (step.kind == PathStep::kCubic && step.points.size() == 3)
      path.cubicTo(at(step.points[0]), at(step.points[1]), at(step.points[2]));
    if (step.kind == PathStep::kClose) path.closeSubpath();
  }
  return path;
}

// A filled arrowhead at `tip`, pointing away from `from`.
void Arrowhead(QPainter& painter, QPointF from, QPointF tip, const Stroke& stroke, double scale) {
  const QPointF d = tip - from;
  const double length = std::hypot(d.x(), d.y());
  if (length <= 0) return;
  const QPointF u = d / length, n(-u.y(), u.x());
  const double size = (3 + 3 * stroke.width) * scale;
  QPolygonF head{tip, tip - u * size + n * size * 0.45, tip - u * size - n * size * 0.45};
  painter.setPen(Qt::NoPen);
  painter.setBrush(ColorOf(stroke.rgb));
  painter.drawPolygon(head);
}

void PaintArrows(QPainter& painter, const QPainterPath& path, const Stroke& stroke, double scale) {
  const int n = path.elementCount();
  if (n < 2) return;
  if (stroke.beginArrow) Arrowhead(painter, path.elementAt(1), path.elementAt(0), stroke, scale);
  if (stroke.endArrow)
    Arrowhead(painter, path.elementAt(n - 2), path.elementAt(n - 1), stroke, scale);
}

void PaintItem(QPainter& painter, const Item& item, double scale, QPointF origin) {
  const QRectF box(origin + QPointF(item.topLeft.x * scale, item.topLeft.y * scale),
                   origin + QPointF(item.bottomRight.x * scale, item.bottomRight.y * scale));
  painter.save();
  if (item.rotation != 0) {
    painter.translate(box.center());
    painter.rotate(item.rotation);
    painter.translate(-box.center());
  }
  painter.setPen(item.stroke.visible ? PenOf(item.stroke, scale) : QPen(Qt::NoPen));
  painter.setBrush(item.fill.visible ? QBrush(ColorOf(item.fill.rgb)) : QBrush(Qt::NoBrush));
  if (item.kind == Item::kEllipse) {
    painter.drawEllipse(box);
  } else if (item.kind == Item::kPicture) {
    // A format Qt cannot read (a metafile) leaves its place blank.
    const QImage picture =
        QImage::fromData(QByteArray::fromRawData(item.picture.data(),
                                                 static_cast<qsizetype>(item.picture.size())))
            .mirrored(item.mirrorH, item.mirrorV);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!picture.isNull()) painter.drawImage(box, picture);
  } else if (item.kind == Item::kPath) {
    const QPainterPath path = PathOf(item.path, scale, origin);
    painter.drawPath(path);
    if (item.stroke.visible) PaintArrows(painter, path, item.stroke, scale);
  } else {
    const double inner = box.width() - 2 * item.insetLeft * scale;
    const std::vector<LineBox> lines = LayOutLines(item.lines, scale, inner);
    const double room = box.height() - (item.insetTop + item.insetBottom) * scale - HeightOf(lines);
    const QPointF start(item.insetLeft * scale, item.insetTop * scale + room * item.anchor / 2);
    PaintLines(painter, lines, box.topLeft() + start, inner, scale);
  }
  painter.restore();
}

// A list of text alone (a formula) has no size of its own: its lines give it.
DrawingList Measured(const DrawingList& drawing, double scale) {
  DrawingList sized = drawing;
  if (sized.width > 0 || sized.items.empty()) return sized;
  const std::vector<LineBox> lines = LayOutLines(sized.items[0].lines, scale);
  double width = 0;
  for (const LineBox& line : lines) width = std::max(width, line.width);
  sized.width = width / scale;
  sized.height = HeightOf(lines) / scale;
  sized.items[0].bottomRight = {sized.width, sized.height};
  return sized;
}

}  // namespace

QImage RenderDrawing(const DrawingList& drawing, double dpi) {
  const double scale = dpi / 72.0;
  const DrawingList sized = Measured(drawing, scale);
  const double margin = kMarginPoints * scale;
  const int width = std::max(1, static_cast<int>(std::ceil(sized.width * scale + 2 * margin)));
  const int height = std::max(1, static_cast<int>(std::ceil(sized.height * scale + 2 * margin)));
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  for (const Item& item : sized.items) PaintItem(painter, item, scale, QPointF(margin, margin));
  return image;
}

}  // namespace lp::gallery
