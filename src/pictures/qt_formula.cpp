#include "pictures/qt_formula.h"

#include <QFontMetricsF>
#include <QHash>
#include <QImageWriter>
#include <QPainterPath>
#include <algorithm>
#include <vector>

namespace lp {

// One laid-out piece of a formula: glyphs, a rule or a drawn sign, placed
// relative to its box's origin (left end of the baseline, y downward).
struct Piece {
  enum Kind { kText, kRule, kPath } kind = kText;
  QString text;
  QFont font;
  QPointF at;
  QLineF rule;
  QPainterPath path;
  double pen = 1;
};

struct FormulaBox {
  double width = 0, ascent = 0, descent = 0;
  std::vector<Piece> pieces;

  void Append(const FormulaBox& b, double dy = 0) {
    for (Piece p : b.pieces) {
      QPointF shift(width, dy);
      p.at += shift;
      p.rule.translate(shift);
      p.path.translate(shift);
      pieces.push_back(std::move(p));
    }
    ascent = std::max(ascent, b.ascent - dy);
    descent = std::max(descent, b.descent + dy);
    width += b.width;
  }
  void Space(double w) { width += w; }
};

namespace {

QFont FontOf(double size, bool italic) {
  // Times as the printed page has it; where it is missing, its metric twin or any serif.
  QFont f(QStringLiteral("Times New Roman"));
  f.setStyleHint(QFont::Serif);
  f.setPixelSize(std::max(1, qRound(size)));
  f.setItalic(italic);
  return f;
}

const QHash<QString, QString>& Symbols() {
  static const QHash<QString, QString> symbols = [] {
    QHash<QString, QString> s;
    const char* greek[] = {"alpha", "beta",    "gamma",   "delta", "epsilon", "zeta",
                           "eta",   "theta",   "iota",    "kappa", "lambda",  "mu",
                           "nu",    "xi",      "omicron", "pi",    "rho",     "sigma",
                           "tau",   "upsilon", "phi",     "chi",   "psi",     "omega"};
    for (int i = 0; i < 24; ++i) {
      char16_t lower = static_cast<char16_t>(0x3B1 + i + (i >= 17 ? 1 : 0));  // skip final sigma
      char16_t upper = static_cast<char16_t>(0x391 + i + (i >= 17 ? 1 : 0));
      QString name = QString::fromLatin1(greek[i]);
      s.insert(name, QString(QChar(lower)));
      name[0] = name[0].toUpper();
      s.insert(name, QString(QChar(upper)));
    }
    s.insert(QStringLiteral("varphi"), QStringLiteral("φ"));
    s.insert(QStringLiteral("varepsilon"), QStringLiteral("ε"));
    const char* pairs[][2] = {
        {"le", "≤"},         {"leq", "≤"},        {"ge", "≥"},         {"geq", "≥"},
        {"ne", "≠"},         {"neq", "≠"},        {"approx", "≈"},     {"pm", "±"},
        {"mp", "∓"},         {"times", "×"},      {"cdot", "·"},       {"div", "÷"},
        {"infty", "∞"},      {"in", "∈"},         {"notin", "∉"},      {"cup", "∪"},
        {"cap", "∩"},        {"subset", "⊂"},     {"subseteq", "⊆"},   {"emptyset", "∅"},
        {"varnothing", "∅"}, {"angle", "∠"},      {"triangle", "△"},   {"circ", "°"},
        {"parallel", "∥"},   {"perp", "⊥"},       {"therefore", "∴"},  {"because", "∵"},
        {"to", "→"},         {"rightarrow", "→"}, {"Rightarrow", "⇒"}, {"Leftrightarrow", "⇔"},
        {"cong", "≅"},       {"sim", "∽"},        {"prime", "′"},      {"lbrace", "{"},
        {"rbrace", "}"},     {"{", "{"},          {"}", "}"},          {"%", "%"},
        {"ldots", "…"},      {"cdots", "⋯"},      {"odot", "⊙"},       {"neg", "¬"},
        {"forall", "∀"},     {"exists", "∃"},     {"sum", "∑"},        {"int", "∫"},
        {"prod", "∏"},       {"oint", "∮"},       {"iint", "∬"},       {"iiint", "∭"},
        {"partial", "∂"},    {"nabla", "∇"},      {"backslash", "\\"}};
    for (auto& p : pairs) s.insert(QString::fromLatin1(p[0]), QString::fromUtf8(p[1]));
    return s;
  }();
  return symbols;
}

bool IsRelation(const QString& s) {
  static const QString relations = QStringLiteral("=<>≤≥≠≈∈∉⊂⊆→⇒⇔≅∽∥⊥");
  return s.size() == 1 && relations.contains(s[0]);
}
bool IsBinary(const QString& s) {
  static const QString binary = QStringLiteral("+-±∓×·÷∪∩");
  return s.size() == 1 && binary.contains(s[0]);
}

class Typesetter {
 public:
  explicit Typesetter(const QString& tex) : s_(tex) {}

  FormulaBox Row(double size) {
    FormulaBox row;
    bool operand = false;  // a binary sign after an operand gets room
    for (;;) {
      Blank();
      if (AtEnd() || Peek() == u'}' || Peek() == u'&' || At(QStringLiteral("\\\\")) ||
          At(QStringLiteral("\\right")) || At(QStringLiteral("\\end")))
        break;
      QString sign;
      FormulaBox atom = Scripts(Atom(size, sign), size);
      double gap = IsRelation(sign) ? 0.28 * size : IsBinary(sign) && operand ? 0.22 * size : 0;
      row.Space(gap);
      row.Append(atom);
      row.Space(gap);
      operand = sign.isEmpty() || !(IsRelation(sign) || IsBinary(sign));
    }
    if (row.ascent == 0 && row.descent == 0) row.ascent = 0.7 * size;
    return row;
  }

  bool AtEnd() const { return i_ >= s_.size(); }
  void Skip(const QString& what) {
    Blank();
    if (At(what)) i_ += what.size();
  }

 private:
  QChar Peek() const { return AtEnd() ? QChar() : s_[i_]; }
  bool At(const QString& what) const { return s_.mid(i_, what.size()) == what; }
  void Blank() {
    while (!AtEnd() && s_[i_].isSpace()) ++i_;
  }
  QString Command() {
    ++i_;  // the backslash
    int start = i_;
    while (!AtEnd() && s_[i_].isLetter()) ++i_;
    if (i_ == start && !AtEnd()) ++i_;  // \{ \, \\ and the like
    return s_.mid(start, i_ - start);
  }
  QString Argument() {
    Blank();
    if (Peek() != u'{') return AtEnd() ? QString() : QString(s_[i_++]);
    int depth = 0, start = ++i_;
    for (; !AtEnd(); ++i_) {
      if (s_[i_] == u'{') ++depth;
      if (s_[i_] == u'}' && depth-- == 0) break;
    }
    return s_.mid(start, i_++ - start);
  }

  static FormulaBox Glyphs(const QString& text, double size, bool italic) {
    QFont font = FontOf(size, italic);
    QFontMetricsF m(font);
    FormulaBox b;
    b.width = m.horizontalAdvance(text) + (italic ? 0.06 * size : 0);
    b.ascent = m.ascent() * 0.8;
    b.descent = m.descent() * 0.8;
    b.pieces.push_back({Piece::kText, text, font, QPointF(0, 0), {}, {}, 1});
    return b;
  }
  FormulaBox Group(double size) {
    FormulaBox b = Row(size);
    Skip(QStringLiteral("}"));
    return b;
  }
  FormulaBox Sub(const QString& tex, double size) {
    Typesetter inner(tex);
    return inner.Row(size);
  }

  FormulaBox Atom(double size, QString& sign);
  FormulaBox CommandBox(const QString& name, double size, QString& sign);
  FormulaBox Scripts(FormulaBox base, double size);
  // display: numerator and denominator at full size, as \dfrac sets them.
  FormulaBox Fraction(double size, bool display);
  FormulaBox Radical(double size);
  FormulaBox Accent(const QString& name, double size);
  FormulaBox Delimited(double size);
  FormulaBox Rows(double size);

  QString s_;
  int i_ = 0;
};

FormulaBox Typesetter::Atom(double size, QString& sign) {
  QChar c = s_[i_];
  if (c == u'{') {
    ++i_;
    return Group(size);
  }
  if (c == u'\\') return CommandBox(Command(), size, sign);
  ++i_;
  sign = QString(c);
  if (c == u'-') sign = QStringLiteral("-");
  return Glyphs(c == u'-' ? QStringLiteral("−") : sign, size, c.isLetter());
}

FormulaBox Typesetter::CommandBox(const QString& name, double size, QString& sign) {
  if (name == u"frac" || name == u"dfrac" || name == u"tfrac")
    return Fraction(size, name == u"dfrac");
  if (name == u"sqrt") return Radical(size);
  if (name == u"overline" || name == u"vec" || name == u"overrightarrow" || name == u"bar" ||
      name == u"overarc" || name == u"dot" || name == u"underline" || name == u"boxed")
    return Accent(name, size);
  if (name == u"left") return Delimited(size);
  if (name == u"begin") {
    Argument();
    if (Peek() == u'{') Argument();  // array column layout
    FormulaBox rows = Rows(size);
    Skip(QStringLiteral("\\end"));
    Argument();
    return rows;
  }
  if (name == u"text" || name == u"mathrm" || name == u"operatorname" || name == u"rm")
    return Glyphs(Argument(), size, false);
  if (name == u"," || name == u";" || name == u"quad" || name == u" " || name == u":") {
    FormulaBox space;
    space.width = size * (name == u"quad" ? 1.0 : name == u"," ? 0.17 : 0.28);
    return space;
  }
  static const QStringList functions = {
      QStringLiteral("sin"), QStringLiteral("cos"), QStringLiteral("tan"), QStringLiteral("cot"),
      QStringLiteral("log"), QStringLiteral("ln"),  QStringLiteral("lg"),  QStringLiteral("lim")};
  if (functions.contains(name)) return Glyphs(name + QChar(0x2006), size, false);
  auto symbol = Symbols().find(name);
  if (symbol == Symbols().end()) return Glyphs(name, size, false);
  sign = *symbol;
  bool lowerGreek =
      symbol->size() == 1 && symbol->at(0) >= QChar(0x3B1) && symbol->at(0) <= QChar(0x3C9);
  return Glyphs(*symbol, size, lowerGreek);
}

FormulaBox Typesetter::Scripts(FormulaBox base, double size) {
  Blank();
  FormulaBox sup, sub;
  bool hasSup = false, hasSub = false;
  while (Peek() == u'^' || Peek() == u'_') {
    bool up = s_[i_++] == u'^';
    FormulaBox script = Sub(Argument(), size * 0.7);
    (up ? sup : sub) = script;
    (up ? hasSup : hasSub) = true;
    Blank();
  }
  if (!hasSup && !hasSub) return base;
  FormulaBox out = base;
  double x = out.width;
  if (hasSup) {
    double lift = std::max(0.45 * size, base.ascent - 0.3 * size) + sup.descent;
    out.width = x;
    out.Append(sup, -lift);
  }
  if (hasSub) {
    double drop = 0.2 * size + sub.ascent * 0.6;
    double end = out.width;
    out.width = x;
    out.Append(sub, drop);
    out.width = std::max(end, out.width);
  }
  return out;
}

FormulaBox Typesetter::Fraction(double size, bool display) {
  double inner = display ? size : size * 0.85;
  FormulaBox num = Sub(Argument(), inner), den = Sub(Argument(), inner);
  double axis = 0.28 * size, gap = 0.12 * size, pad = 0.1 * size;
  double width = std::max(num.width, den.width) + 2 * pad;
  FormulaBox b;
  b.Space((width - num.width) / 2);
  b.Append(num, -(axis + gap + num.descent));
  b.width = (width - den.width) / 2;
  b.Append(den, -(axis - gap - den.ascent));
  b.width = width;
  b.pieces.push_back({Piece::kRule, {}, {}, {}, QLineF(0, -axis, width, -axis), {}, size / 18});
  b.ascent = std::max(b.ascent, axis);
  return b;
}

FormulaBox Typesetter::Radical(double size) {
  Blank();
  QString index;
  if (Peek() == u'[') {
    int close = s_.indexOf(u']', i_);
    index = s_.mid(i_ + 1, close - i_ - 1);
    i_ = close + 1;
  }
  FormulaBox body = Sub(Argument(), size);
  double top = body.ascent + 0.12 * size, bottom = body.descent, sign = 0.55 * size;
  FormulaBox b;
  double lead = 0;
  if (!index.isEmpty()) {
    FormulaBox ix = Sub(index, size * 0.55);
    b.Append(ix, -(top * 0.45 + ix.descent));
    lead = std::max(0.0, ix.width - sign * 0.45);
    b.width = lead;
  }
  QPainterPath path;
  path.moveTo(lead, -top * 0.35);
  path.lineTo(lead + sign * 0.25, -top * 0.45);
  path.lineTo(lead + sign * 0.55, bottom);
  path.lineTo(lead + sign, -top);
  path.lineTo(lead + sign + body.width + 0.08 * size, -top);
  b.pieces.push_back({Piece::kPath, {}, {}, {}, {}, path, size / 18});
  b.width = lead + sign;
  b.Append(body);
  b.Space(0.08 * size);
  b.ascent = std::max(b.ascent, top + size / 18);
  return b;
}

FormulaBox Typesetter::Accent(const QString& name, double size) {
  FormulaBox b = Sub(Argument(), size);
  double y = -(b.ascent + 0.1 * size);
  if (name == u"overarc") {  // the arc over the letters of an arc, AB with ⌒
    QPainterPath arc;
    arc.moveTo(0, y);
    arc.quadTo(b.width / 2, y - 0.35 * size, b.width, y);
    b.pieces.push_back({Piece::kPath, {}, {}, {}, {}, arc, size / 18});
    b.ascent += 0.35 * size;
    return b;
  }
  if (name == u"underline") {
    const double under = b.descent + 0.1 * size;
    b.pieces.push_back({Piece::kRule, {}, {}, {}, QLineF(0, under, b.width, under), {}, size / 18});
    b.descent = under + 0.1 * size;
    return b;
  }
  if (name == u"boxed") {  // a frame a little wider and taller than what it holds
    const double pad = 0.15 * size;
    QPainterPath frame;
    frame.addRect(QRectF(0, -(b.ascent + pad), b.width + 2 * pad, b.ascent + b.descent + 2 * pad));
    FormulaBox framed;
    framed.Space(pad);
    framed.Append(b);
    framed.Space(pad);
    framed.pieces.push_back({Piece::kPath, {}, {}, {}, {}, frame, size / 18});
    framed.ascent = b.ascent + pad + size / 18;
    framed.descent = b.descent + pad + size / 18;
    return framed;
  }
  if (name == u"dot") {  // the dot of a recurring digit
    const double r = size / 30;
    QPainterPath dot;
    dot.addEllipse(QPointF(b.width / 2, y + r), r / 2, r / 2);
    b.pieces.push_back({Piece::kPath, {}, {}, {}, {}, dot, r});
    b.ascent += 0.15 * size;
    return b;
  }
  b.pieces.push_back({Piece::kRule, {}, {}, {}, QLineF(0, y, b.width, y), {}, size / 18});
  if (name == u"vec" || name == u"overrightarrow") {
    QPainterPath head;
    head.moveTo(b.width - 0.2 * size, y - 0.1 * size);
    head.lineTo(b.width, y);
    head.lineTo(b.width - 0.2 * size, y + 0.1 * size);
    b.pieces.push_back({Piece::kPath, {}, {}, {}, {}, head, size / 18});
  }
  b.ascent += 0.25 * size;
  return b;
}

// A delimiter as tall as what it encloses: brackets as stretched glyphs, the
// brace of a system drawn.
FormulaBox Delimiter(const QString& d, double ascent, double descent, double size) {
  FormulaBox b;
  if (d == u"." || d.isEmpty()) return b;
  double h = ascent + descent, mid = (descent - ascent) / 2, w = 0.35 * size;
  if (d == u"\\{" || d == u"{" || d == u"\\lbrace") {
    QPainterPath brace;
    double top = -ascent, bottom = descent;
    brace.moveTo(w, top);
    brace.cubicTo(w * 0.35, top, w * 0.55, mid, 0, mid);
    brace.cubicTo(w * 0.55, mid, w * 0.35, bottom, w, bottom);
    b.pieces.push_back({Piece::kPath, {}, {}, {}, {}, brace, size / 16});
    b.width = w + 0.1 * size;
  } else {
    QString glyph = d.startsWith(u'\\') ? d.mid(1) : d;
    QFont font = FontOf(std::max(size, h * 1.1), false);
    QFontMetricsF m(font);
    b.width = m.horizontalAdvance(glyph);
    double baseline = mid + (m.ascent() - m.descent()) / 2;
    b.pieces.push_back({Piece::kText, glyph, font, QPointF(0, baseline), {}, {}, 1});
  }
  b.ascent = ascent;
  b.descent = descent;
  return b;
}

FormulaBox Typesetter::Delimited(double size) {
  Blank();
  QString open = Peek() == u'\\' ? QStringLiteral("\\") + Command() : QString(s_[i_++]);
  FormulaBox inner = Row(size);
  Skip(QStringLiteral("\\right"));
  Blank();
  QString close = Peek() == u'\\' ? QStringLiteral("\\") + Command() : QString(s_[i_++]);
  FormulaBox b = Delimiter(open, inner.ascent, inner.descent, size);
  b.Append(inner);
  b.Append(Delimiter(close, inner.ascent, inner.descent, size));
  return b;
}

// Lines one under another, left-aligned, centred on the maths axis.
FormulaBox Stacked(const std::vector<FormulaBox>& lines, double size) {
  double lead = 0.25 * size, height = 0;
  for (const FormulaBox& l : lines) height += l.ascent + l.descent + lead;
  height -= lead;
  double y = -(height / 2 + 0.28 * size);
  FormulaBox b;
  double width = 0;
  for (const FormulaBox& l : lines) {
    y += l.ascent;
    b.width = 0;
    b.Append(l, y);
    width = std::max(width, b.width);
    y += l.descent + lead;
  }
  b.width = width;
  return b;
}

// The lines of a system or an array, their cells left-aligned in columns a
// quad apart.
FormulaBox Typesetter::Rows(double size) {
  std::vector<std::vector<FormulaBox>> cells;
  std::vector<double> columns;  // the width of each column
  for (;;) {
    cells.emplace_back(1, Row(size));
    while (Peek() == u'&') {
      ++i_;
      cells.back().push_back(Row(size));
    }
    columns.resize(std::max(columns.size(), cells.back().size()));
    for (size_t c = 0; c < cells.back().size(); ++c)
      columns[c] = std::max(columns[c], cells.back()[c].width);
    if (!At(QStringLiteral("\\\\"))) break;
    i_ += 2;
  }
  std::vector<FormulaBox> lines;
  for (const std::vector<FormulaBox>& line : cells) {
    FormulaBox aligned;
    double x = 0;
    for (size_t c = 0; c < line.size(); x += columns[c++] + size) {
      aligned.width = x;
      aligned.Append(line[c]);
    }
    if (aligned.width > 0) lines.push_back(aligned);
  }
  return Stacked(lines, size);
}

}  // namespace

FormulaPicture::FormulaPicture(const QString& latex, double pixelSize) {
  QString tex = latex.trimmed();
  if (tex.startsWith(u'$')) tex = tex.mid(1);
  if (tex.endsWith(u'$')) tex.chop(1);
  Typesetter t(tex);
  box_ = std::make_unique<FormulaBox>();
  // Stray closing braces and row ends are skipped rather than ending the formula.
  while (!t.AtEnd()) {
    box_->Append(t.Row(pixelSize));
    for (const char* stray : {"}", "&", "\\\\", "\\right", "\\end"})
      t.Skip(QString::fromLatin1(stray));
  }
}

FormulaPicture::~FormulaPicture() = default;
FormulaPicture::FormulaPicture(FormulaPicture&&) noexcept = default;

QSizeF FormulaPicture::Size() const {
  return {box_->width, box_->ascent + box_->descent};
}

double FormulaPicture::Baseline() const {
  return box_->ascent;
}

void FormulaPicture::Paint(QPainter& painter, QPointF topLeft, const QColor& color) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(topLeft + QPointF(0, box_->ascent));
  for (const Piece& p : box_->pieces) {
    QPen pen(color, p.pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    if (p.kind == Piece::kText) {
      painter.setFont(p.font);
      painter.drawText(p.at, p.text);
    } else if (p.kind == Piece::kRule) {
      painter.drawLine(p.rule);
    } else {
      painter.drawPath(p.path);
    }
  }
  painter.restore();
}

QImage FormulaPicture::Image(const QColor& color) const {
  QSizeF size = Size();
  const int margin = 2;
  QImage image(qCeil(size.width()) + 2 * margin, qCeil(size.height()) + 2 * margin,
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  Paint(painter, QPointF(margin, margin), color);
  return image;
}

bool SaveFormulaPicture(const QString& latex, const QString& path, double pixelSize) {
  QImage image = FormulaPicture(latex, pixelSize).Image();
  QByteArray format = QImageWriter::imageFormatsForMimeType("image/png").value(0, "png");
  QString suffix = path.section(u'.', -1).toLower();
  if (QImageWriter::supportedImageFormats().contains(suffix.toLatin1())) format = suffix.toLatin1();
  return image.save(path, format.constData());
}

}  // namespace lp
