#include "figures/point_labels.h"

#include <cmath>

#include "runtime/convert.h"

namespace lp::figures {
namespace {

constexpr double kPointsPerCm = 28.4;
constexpr float kDot = 3;    // the dot's diameter
constexpr float kGap = 1.5;  // between the dot's edge and the name's box

bool IsLatinLetter(char16_t c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

bool IsDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}

// A plain decimal number, signed or not, nothing else around it.
bool IsNumber(const std::u16string& text) {
  size_t i = 0, digits = 0;
  if (i < text.size() && (text[i] == u'+' || text[i] == u'-')) ++i;
  bool point = false;
  for (; i < text.size(); ++i) {
    if (IsDigit(text[i]))
      ++digits;
    else if (text[i] == u'.' && !point)
      point = true;
    else
      return false;
  }
  return digits > 0;
}

std::vector<std::u16string> SplitNames(const std::u16string& typed) {
  std::vector<std::u16string> names(1);
  for (char16_t c : typed) {
    const bool separator = c == u' ' || c == u',' || c == u'，' || c == u'、' || c == u'\u3000';
    if (!separator)
      names.back() += c;
    else if (!names.back().empty())
      names.emplace_back();
  }
  if (names.back().empty()) names.pop_back();
  return names;
}

// The unit step from a dot towards its name.
Point Direction(LabelPlace place) {
  switch (place) {
    case LabelPlace::kAbove:
      return {0, -1};
    case LabelPlace::kBelow:
      return {0, 1};
    case LabelPlace::kLeft:
      return {-1, 0};
    case LabelPlace::kRight:
      return {1, 0};
    case LabelPlace::kAboveLeft:
      return {-1, -1};
    case LabelPlace::kAboveRight:
      return {1, -1};
    case LabelPlace::kBelowLeft:
      return {-1, 1};
    case LabelPlace::kBelowRight:
      break;
  }
  return {1, 1};
}

FigureShape Dot(Point at) {
  FigureShape dot = Rectangle(u"点", at.x - kDot / 2, at.y - kDot / 2, kDot, kDot);
  dot.kind = ShapeKind::kOval;
  dot.fill = FillKind::kColor;
  dot.rgb = 0;
  return dot;
}

// The name's box sits beside the dot so that its nearest edge keeps kGap
// from the dot, then moves by the typed offset.
FigureShape NameBox(Point at, const PointName& name, const PointLabelRequest& r, float size) {
  const float width = size * (0.7f * static_cast<float>(name.text.size()) + 0.8f);
  const float height = size * 1.4f;
  const Point d = Direction(r.place);
  const float cx = at.x + d.x * (width / 2 + kDot / 2 + kGap) + static_cast<float>(Val(r.dx));
  const float cy = at.y + d.y * (height / 2 + kDot / 2 + kGap) + static_cast<float>(Val(r.dy));
  FigureShape box = Label(u"点名", name.text, cx - width / 2, cy - height / 2, width, height);
  box.textStyle.size = size;
  box.textStyle.italic = true;
  // The prime too: an East Asian font would set it full width.
  box.textStyle.latinFont = u"Times New Roman";
  box.textStyle.eastAsianFont = u"Times New Roman";
  box.textStyle.centred = true;
  box.textStyle.subscripts = name.subscripts;
  return box;
}

std::u16string CheckRequest(const PointLabelRequest& r, const std::vector<std::u16string>& names) {
  if (names.empty()) return u"请输入点的名称，如 A 或 A B C。";
  PointName parsed;
  for (const std::u16string& n : names)
    if (!ParsePointName(n, parsed))
      return u"点的名称“" + n + u"”不对：应是一个字母，可带撇号和下标数字，如 A、B'、C1。";
  if (!IsNumber(r.dx) || !IsNumber(r.dy) || std::abs(Val(r.dx)) > 50 || std::abs(Val(r.dy)) > 50)
    return u"偏移应是 -50 到 50 之间的数（磅）。";
  const double size = Val(r.size);
  if (!IsNumber(r.size) || size < 5 || size > 72) return u"字号应在 5 到 72 之间。";
  if (!r.alongSegment) {
    if (names.size() > 1) return u"单个点只能有一个名称。";
    return {};
  }
  const double count = Val(r.count);
  if (!IsNumber(r.count) || count < 2 || count > 26 || count != std::floor(count))
    return u"点数应是 2 到 26 之间的整数。";
  if (names.size() > count) return u"名称比点多。";
  const double length = Val(r.length);
  if (!IsNumber(r.length) || !(length > 0) || length > 20)
    return u"线段长度应大于 0 且不超过 20 厘米。";
  return {};
}

}  // namespace

bool ParsePointName(const std::u16string& typed, PointName& name) {
  name = {};
  if (typed.empty() || !IsLatinLetter(typed[0])) return false;
  name.text = typed.substr(0, 1);
  bool underscore = false;
  for (size_t i = 1; i < typed.size(); ++i) {
    const char16_t c = typed[i];
    if (c == u'_' && !underscore && i + 1 < typed.size() && IsDigit(typed[i + 1])) {
      underscore = true;
    } else if (IsDigit(c)) {
      name.text += c;
      name.subscripts.push_back(static_cast<long>(name.text.size()));
    } else if (c == u'\'' || c == u'′' || c == u'’') {
      name.text += u'′';
    } else {
      return false;
    }
  }
  return true;
}

std::vector<std::u16string> ContinueNames(std::vector<std::u16string> names, size_t n) {
  while (!names.empty() && names.size() < n) {
    std::u16string next = names.back();
    size_t digits = next.find_first_of(u"0123456789");
    if (digits != std::u16string::npos) {
      const size_t end = next.find_first_not_of(u"0123456789", digits);
      const std::u16string number = next.substr(digits, end - digits);
      const std::string bumped =
          std::to_string(std::stoi(std::string(number.begin(), number.end())) + 1);
      next.replace(digits, number.size(), std::u16string(bumped.begin(), bumped.end()));
    } else if (next[0] != u'Z' && next[0] != u'z') {
      ++next[0];
    } else {
      next[0] = next[0] == u'Z' ? u'A' : u'a';
    }
    names.push_back(next);
  }
  return names;
}

PointLabelFigure MakePointLabels(const PointLabelRequest& r) {
  std::vector<std::u16string> names = SplitNames(r.names);
  if (std::u16string error = CheckRequest(r, names); !error.empty()) return {{}, error};
  const size_t count = r.alongSegment ? static_cast<size_t>(Val(r.count)) : 1;
  names = ContinueNames(std::move(names), count);
  const float length = static_cast<float>(Val(r.length) * kPointsPerCm);
  const float size = static_cast<float>(Val(r.size));
  PointLabelFigure figure;
  if (r.alongSegment && r.drawSegment)
    figure.shapes.push_back(Line(u"线段", r.originX, r.originY, r.originX + length, r.originY));
  for (size_t i = 0; i < count; ++i) {
    const float step = count > 1 ? length / static_cast<float>(count - 1) : 0;
    const Point at{r.originX + step * static_cast<float>(i), r.originY};
    PointName name;
    ParsePointName(names[i], name);
    figure.shapes.push_back(Dot(at));
    figure.shapes.push_back(NameBox(at, name, r, size));
  }
  return figure;
}

}  // namespace lp::figures
