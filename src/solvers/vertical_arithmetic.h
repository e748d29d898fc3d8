#pragma once
// Column arithmetic as a school exercise book writes it: the digits of the
// operands and results one to a cell of a grid, rules under the operands and,
// for a long division, the bracket between divisor and dividend.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "figures/shape_list.h"

namespace lp {

inline constexpr char16_t kColumnSumRefused[] = u"目前只支持正整数的运算，请检查您输入的数据。";
inline constexpr char16_t kColumnSumPrompt[] = u"请输入正确的四则运算表达式：";
inline constexpr char16_t kColumnSumTitle[] = u"竖式工具：";

// True if the text holds "+", "-", "*" or "/".
bool HasArithmeticOperator(const std::u16string& text);
// "×" and "÷" become "*"; a letter x stays as it is, so a typed division
// must use "/".
std::u16string OperatorsToStar(const std::u16string& text);

struct ColumnSum {
  char16_t op = u'+';  // '+', '-', '*' or '/'
  int32_t a = 0;
  int32_t b = 0;
};

// Splits at the first of "+", "-", "*", "/" that the text holds; nothing
// unless that gives exactly two pieces that both read as 1 or more.
std::optional<ColumnSum> ReadColumnSum(const std::u16string& text);

struct ColumnRule {
  std::u16string base;  // name base
  int row = 0;          // the rule runs along the top edge of this row
  int firstCol = 0;
  int lastCol = 0;
};

struct ColumnLayout {
  int rows = 0;
  int cols = 0;
  std::map<std::pair<int, int>, std::u16string> cells;  // (row, col), 1-based
  std::vector<ColumnRule> rules;
  std::optional<std::pair<int, int>> bracket;  // cell whose left edge holds it
};

ColumnLayout LayOutColumnSum(const ColumnSum& sum);

// The grid as shapes: a transparent 20-point cell "ss_(r,c)" for every place,
// then the rules and the bracket, cell (1,1) at 50, 50.
figures::ShapeList ColumnSumShapes(const ColumnLayout& layout);

}  // namespace lp
