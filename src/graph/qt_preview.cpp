#include "graph/qt_preview.h"

#include <QPainter>
#include <QPainterPath>

#include "formula/generators.h"
#include "graph/canvas.h"

namespace lp::graph {
namespace {

QColor ColorOf(long rgb) {
  return QColor(rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF);
}

// The picture's draw style: 0 for style 1, else the style value itself.
Qt::PenStyle PenStyleOf(int style) {
  switch (style == 1 ? 0 : style) {
    case 1:
      return Qt::DashLine;
    case 2:
      return Qt::DotLine;
    case 3:
      return Qt::DashDotLine;
    case 4:
      return Qt::DashDotDotLine;
    case 5:
      return Qt::NoPen;
    default:
      return Qt::SolidLine;
  }
}

QPen PenOf(const Look& look, bool dashed = false) {
  QPen pen(ColorOf(look.color), std::max(1.0, std::round(double(look.weight))));
  pen.setCosmetic(true);
  pen.setStyle(dashed ? Qt::DashLine : PenStyleOf(look.style));
  return pen;
}

// Paints in world units; text goes through the map to stay upright.
class WorldPainter {
 public:
  WorldPainter(QPainter& p, const QRectF& target, const View& view)
      : p_(p), scale_(PreviewScaleOf(view)) {
    map_ = QTransform::fromTranslate(target.left(), target.top());
    map_.scale(target.width() / (scale_.right - scale_.left),
               target.height() / (scale_.bottom - scale_.top));
    map_.translate(-scale_.left, -scale_.top);
    p_.setTransform(map_);
  }
  double u() const { return scale_.pvu; }
  void Line(double x1, double y1, double x2, double y2) {
    p_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
  }
  // Text with its reference corner at the world point, aligned by flags.
  void Text(double x, double y, const QString& text, int flags) {
    QPointF at = map_.map(QPointF(x, y));
    p_.save();
    p_.resetTransform();
    QRectF box(at.x() - 200, at.y() - 200, 400, 400);
    if (flags & Qt::AlignLeft) box.moveLeft(at.x());
    if (flags & Qt::AlignRight) box.moveRight(at.x());
    if (flags & Qt::AlignTop) box.moveTop(at.y());
    if (flags & Qt::AlignBottom) box.moveBottom(at.y());
    p_.drawText(box, flags, text);
    p_.restore();
  }
  // A formula picture placed as Text places its text.
  void Formula(double x, double y, const FormulaPicture& formula, int flags) {
    QPointF at = map_.map(QPointF(x, y));
    QSizeF size = formula.Size();
    double left = flags & Qt::AlignLeft    ? at.x()
                  : flags & Qt::AlignRight ? at.x() - size.width()
                                           : at.x() - size.width() / 2;
    double top = flags & Qt::AlignTop      ? at.y()
                 : flags & Qt::AlignBottom ? at.y() - size.height()
                                           : at.y() - size.height() / 2;
    p_.save();
    p_.resetTransform();
    formula.Paint(p_, QPointF(left, top));
    p_.restore();
  }
  QPainter& painter() { return p_; }

 private:
  QPainter& p_;
  PreviewScale scale_;
  QTransform map_;
};

void PaintAxes(WorldPainter& w, const AxesDrawing& a, const AxisOptions& o) {
  const View& v = a.range;
  double u = w.u();
  w.painter().setPen(PenOf(a.look));
  w.Line(v.xmin, 0, v.xmax, 0);
  w.Line(0, v.ymin, 0, v.ymax);
  w.Line(v.xmax - 3 * u, u, v.xmax, 0);
  w.Line(v.xmax - 3 * u, -u, v.xmax, 0);
  w.Line(-u, v.ymax - 3 * u, 0, v.ymax);
  w.Line(u, v.ymax - 3 * u, 0, v.ymax);
  for (double x : a.xTicks) w.Line(x, 0, x, o.xkdUp ? u : -1.5 * u);
  for (double y : a.yTicks) w.Line(0, y, o.ykdLeft ? -u : 1.5 * u, y);
  QFont italic(QStringLiteral("Times New Roman"));
  italic.setItalic(true);
  italic.setPixelSize(13);
  w.painter().setFont(italic);
  w.Text(v.xmax - u, o.xtxtUp ? u : -u, QStringLiteral("x"),
         Qt::AlignRight | (o.xtxtUp ? Qt::AlignBottom : Qt::AlignTop));
  w.Text(o.ytxtLeft ? -2 * u : 2 * u, v.ymax, QStringLiteral("y"),
         (o.ytxtLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop);
  w.Text(-u, -u, QStringLiteral("O"), Qt::AlignRight | Qt::AlignTop);
}

void PaintItem(WorldPainter& w, const Item& item, const Look& look) {
  QPainter& p = w.painter();
  if (auto* c = std::get_if<CurveItem>(&item)) {
    QPainterPath path(QPointF(c->nodes[0].x, c->nodes[0].y));
    for (size_t i = 1; i < c->nodes.size(); ++i) path.lineTo(c->nodes[i].x, c->nodes[i].y);
    p.setPen(PenOf(look));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
  } else if (auto* l = std::get_if<LineItem>(&item)) {
    p.setPen(PenOf(look, l->dashed));
    w.Line(l->from.x, l->from.y, l->to.x, l->to.y);
  } else if (auto* o = std::get_if<OvalItem>(&item)) {
    p.setPen(PenOf(look));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(o->centre.x, o->centre.y), o->rx, o->ry);
  } else if (auto* d = std::get_if<DotItem>(&item)) {
    p.setPen(PenOf(look));
    p.setBrush(ColorOf(look.color));
    p.drawEllipse(QPointF(d->at.x, d->at.y), w.u(), w.u());
    p.setBrush(Qt::NoBrush);
  } else if (auto* t = std::get_if<LabelItem>(&item)) {
    p.setPen(ColorOf(look.color));
    w.Text(t->at.x + w.u(), t->at.y + w.u(), QString::fromStdU16String(t->text),
           Qt::AlignLeft | Qt::AlignBottom);
  }
}

void PaintLabels(WorldPainter& w, const TickLabels& labels, const AxisOptions& o) {
  double u = w.u();
  QFont font(QStringLiteral("Times New Roman"));
  font.setPixelSize(11);
  w.painter().setFont(font);
  w.painter().setPen(Qt::black);
  int xFlags = Qt::AlignHCenter | (o.xtxtUp ? Qt::AlignBottom : Qt::AlignTop);
  int yFlags = Qt::AlignVCenter | (o.ytxtLeft ? Qt::AlignRight : Qt::AlignLeft);
  double xAt = o.xtxtUp ? 2 * u : -2 * u, yAt = o.ytxtLeft ? -2 * u : 2 * u;
  for (const Tick& t : labels.plainX)
    w.Text(t.value, xAt, QString::fromStdU16String(t.text), xFlags);
  for (const Tick& t : labels.plainY)
    w.Text(yAt, t.value, QString::fromStdU16String(t.text), yFlags);
  // Formula labels are typeset, as the formula engine writes them in LaTeX.
  for (const Tick& t : labels.formulaX) w.Formula(t.value, xAt, LabelFormula(t.text), xFlags);
  for (const Tick& t : labels.formulaY) w.Formula(yAt, t.value, LabelFormula(t.text), yFlags);
}

}  // namespace

FormulaPicture LabelFormula(const std::u16string& text) {
  try {
    std::u16string latex = FormulaToFinishedLatex(text, FormulaSettings{}, DriverControl{});
    return FormulaPicture(QString::fromStdU16String(latex), 14);
  } catch (const std::exception&) {
    return FormulaPicture(ReadableLabel(text), 12);
  }
}

QString ReadableLabel(const std::u16string& text) {
  QString s = QString::fromStdU16String(text);
  s.replace(QStringLiteral("@p"), QStringLiteral("π"));
  s.replace(QStringLiteral("sqr"), QStringLiteral("√"));
  s.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
  return s;
}

GraphPreview::GraphPreview(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void GraphPreview::Show(Scene scene, const View& view, const AxisOptions& options) {
  scene_ = std::move(scene);
  view_ = view;
  options_ = options;
  update();
}

void GraphPreview::Paint(QPainter& painter, const QRectF& target) const {
  painter.fillRect(target, Qt::white);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.save();
  painter.setClipRect(target);
  WorldPainter w(painter, target, view_);
  for (const SceneEntry& entry : scene_.entries) {
    if (auto* axes = std::get_if<AxesDrawing>(&entry)) {
      PaintAxes(w, *axes, options_);
    } else {
      const DrawnObject& object = std::get<DrawnObject>(entry);
      for (const Item& item : object.items) PaintItem(w, item, object.look);
    }
  }
  // A number needs about 16 pixels of its own on the picture.
  double pixelsPerUnit =
      target.width() / (PreviewScaleOf(view_).right - PreviewScaleOf(view_).left);
  PaintLabels(w, Thinned(scene_.labels, 16 / pixelsPerUnit), options_);
  painter.restore();
}

void GraphPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint(painter, QRectF(rect()));
}

}  // namespace lp::graph
