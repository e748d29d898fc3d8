#include "solvers/vertical_arithmetic.h"

#include <algorithm>

#include "runtime/convert.h"
#include "runtime/text.h"

namespace lp {
namespace {

constexpr float kCell = 20;
constexpr float kGridLeft = 50;
constexpr float kGridTop = 50;

std::u16string Digits(int64_t value) {
  std::string narrow = std::to_string(value);
  std::u16string text(narrow.begin(), narrow.end());
  return Replace(text, u"-", u"－");
}

int Width(int64_t value) {
  return static_cast<int>(Digits(value).size());
}

// The digits of value one to a cell, the last in column lastCol.
void PutNumber(ColumnLayout& layout, int row, int lastCol, int64_t value) {
  std::u16string text = Digits(value);
  int first = lastCol - static_cast<int>(text.size()) + 1;
  for (size_t k = 0; k < text.size(); ++k)
    layout.cells[{row, first + static_cast<int>(k)}] = std::u16string(1, text[k]);
}

void ClearRow(ColumnLayout& layout, int row) {
  std::erase_if(layout.cells, [row](const auto& cell) { return cell.first.first == row; });
}

// Operands, sign and one result under a rule: sums, differences and
// products by one digit.
ColumnLayout ThreeRows(int64_t a, int64_t b, int64_t result, const char16_t* sign) {
  ColumnLayout layout;
  layout.rows = 3;
  layout.cols = std::max({Width(a), Width(b), Width(result)}) + 1;
  PutNumber(layout, 1, layout.cols, a);
  layout.cells[{2, 1}] = sign;
  PutNumber(layout, 2, layout.cols, b);
  PutNumber(layout, 3, layout.cols, result);
  layout.rules.push_back({u"竖式横线", 3, 1, layout.cols});
  return layout;
}

// One partial product per digit of b, from the right, each ending one
// column further left, then their sum.
ColumnLayout LongMultiplication(int64_t a, int64_t b) {
  std::u16string digitsB = Digits(b);
  int k = static_cast<int>(digitsB.size());
  std::vector<int64_t> partials;
  int cols = std::max({Width(a), k, Width(a * b)});
  for (int j = 0; j < k; ++j) {
    partials.push_back(a * (digitsB[k - 1 - j] - u'0'));
    cols = std::max(cols, Width(partials.back()) + j);
  }
  ColumnLayout layout;
  layout.cols = cols + 1;
  layout.rows = k + 3;
  PutNumber(layout, 1, layout.cols, a);
  layout.cells[{2, 1}] = u"×";
  PutNumber(layout, 2, layout.cols, b);
  for (int j = 0; j < k; ++j) PutNumber(layout, 3 + j, layout.cols - j, partials[j]);
  PutNumber(layout, layout.rows, layout.cols, a * b);
  layout.rules.push_back({u"竖式横线1", 3, 1, layout.cols});
  layout.rules.push_back({u"竖式横线2", layout.rows, 1, layout.cols});
  return layout;
}

// Divisor and dividend share row 2, the quotient stands above the dividend
// digit that gave it. Each step writes the product of a quotient digit and,
// under a rule, the remainder with the next digits brought down; a digit
// that gives a quotient digit 0 is brought down into the same row.
ColumnLayout LongDivision(int64_t a, int64_t b) {
  std::u16string dividend = Digits(a);
  const int base = Width(b);
  const int n = static_cast<int>(dividend.size());
  ColumnLayout layout;
  layout.cols = base + n;
  PutNumber(layout, 2, base, b);
  PutNumber(layout, 2, layout.cols, a);
  layout.rules.push_back({u"竖式横线1", 2, base + 1, layout.cols});
  layout.bracket = std::pair{2, base + 1};
  int pos = 0;
  int64_t current = 0;
  while (pos < n && (current < b || pos == 0)) current = current * 10 + (dividend[pos++] - u'0');
  int row = 2;
  for (bool first = true;; first = false) {
    int64_t digit = current / b;
    layout.cells[{1, base + pos}] = Digits(digit);
    if (digit > 0 || first) {
      int64_t product = digit * b;
      PutNumber(layout, ++row, base + pos, product);
      int span = std::max(Width(product), Width(current));
      layout.rules.push_back({u"竖式横线", ++row, base + pos - span + 1, base + pos});
      current -= product;
    }
    if (pos == n) {
      ClearRow(layout, row);
      PutNumber(layout, row, base + pos, current);
      break;
    }
    current = current * 10 + (dividend[pos++] - u'0');
    ClearRow(layout, row);
    PutNumber(layout, row, base + pos, current);
  }
  layout.rows = row;
  return layout;
}

figures::FigureShape Cell(int row, int col, const std::u16string& text) {
  figures::FigureShape cell =
      figures::Label(u"ss_(" + Trim(Str(row)) + u"," + Trim(Str(col)) + u")", text,
                     kGridLeft + (col - 1) * kCell, kGridTop + (row - 1) * kCell, kCell, kCell);
  cell.kind = figures::ShapeKind::kRectangle;
  cell.naming = figures::Naming::kExact;
  cell.textStyle = {12, false, u"Times New Roman", u"宋体", true, true, false, {}};
  return cell;
}

// A round bracket ")" down the left edge of the dividend's first cell,
// bulging a sixth of the cell into it, as two curved halves.
figures::FigureShape DivisionBracket(std::pair<int, int> cell) {
  const float left = kGridLeft + (cell.second - 1) * kCell;
  const float top = kGridTop + (cell.first - 1) * kCell;
  const float bulge = kCell / 6;
  figures::FigureShape bracket;
  bracket.kind = figures::ShapeKind::kFreeform;
  bracket.curvedSegments = true;
  bracket.name = u"除法竖式括号";
  bracket.naming = figures::Naming::kUniqueName;
  bracket.points = {{left, top},
                    {left + bulge, top + kCell / 6},
                    {left + bulge, top + kCell / 3},
                    {left + bulge, top + kCell / 2},
                    {left + bulge, top + 2 * kCell / 3},
                    {left + bulge, top + 5 * kCell / 6},
                    {left, top + kCell}};
  return bracket;
}

}  // namespace

bool HasArithmeticOperator(const std::u16string& text) {
  return text.find_first_of(u"+-*/") != std::u16string::npos;
}

std::u16string OperatorsToStar(const std::u16string& text) {
  return Replace(Replace(text, u"×", u"*"), u"÷", u"*");
}

std::optional<ColumnSum> ReadColumnSum(const std::u16string& text) {
  for (char16_t op : std::u16string_view(u"+-*/")) {
    if (text.find(op) == std::u16string::npos) continue;
    std::vector<std::u16string> pieces = Split(text, std::u16string(1, op));
    if (pieces.size() != 2) return std::nullopt;
    double a = Val(pieces[0]);
    double b = Val(pieces[1]);
    if (a < 1 || b < 1) return std::nullopt;
    return ColumnSum{op, CLng(a), CLng(b)};
  }
  return std::nullopt;
}

ColumnLayout LayOutColumnSum(const ColumnSum& sum) {
  const int64_t a = sum.a;
  const int64_t b = sum.b;
  switch (sum.op) {
    case u'+':
      return ThreeRows(a, b, a + b, u"＋");
    case u'-':
      return ThreeRows(a, b, a - b, u"－");
    case u'*':
      return b < 10 ? ThreeRows(a, b, a * b, u"×") : LongMultiplication(a, b);
    default:
      return LongDivision(a, b);
  }
}

figures::ShapeList ColumnSumShapes(const ColumnLayout& layout) {
  figures::ShapeList shapes;
  for (int r = 1; r <= layout.rows; ++r) {
    for (int c = 1; c <= layout.cols; ++c) {
      auto cell = layout.cells.find({r, c});
      shapes.push_back(Cell(r, c, cell == layout.cells.end() ? u"" : cell->second));
    }
  }
  for (const ColumnRule& rule : layout.rules) {
    float y = kGridTop + (rule.row - 1) * kCell;
    shapes.push_back(figures::Line(rule.base, kGridLeft + (rule.firstCol - 1) * kCell, y,
                                   kGridLeft + rule.lastCol * kCell, y));
    shapes.back().naming = figures::Naming::kUniqueName;
  }
  if (layout.bracket) shapes.push_back(DivisionBracket(*layout.bracket));
  return shapes;
}

}  // namespace lp
