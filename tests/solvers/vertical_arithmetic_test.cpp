#include "solvers/vertical_arithmetic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace lp {
namespace {

// The cells of a row read as one line, blanks for empty places.
std::u16string Row(const ColumnLayout& layout, int row) {
  std::u16string text;
  for (int c = 1; c <= layout.cols; ++c) {
    auto cell = layout.cells.find({row, c});
    text += cell == layout.cells.end() ? u" " : cell->second;
  }
  return text;
}

// Digit at place value 10^place of the number standing in row, ending at col.
char16_t DigitAt(int64_t value, int place) {
  for (int i = 0; i < place; ++i) value /= 10;
  return static_cast<char16_t>(u'0' + value % 10);
}

void ExpectNumber(const ColumnLayout& layout, int row, int lastCol, int64_t value) {
  const int width = static_cast<int>(std::to_string(value).size());
  for (int place = 0; place < width; ++place) {
    auto cell = layout.cells.find({row, lastCol - place});
    ASSERT_NE(cell, layout.cells.end()) << "row " << row << " place " << place;
    EXPECT_EQ(cell->second, std::u16string(1, DigitAt(value, place)))
        << "row " << row << " place " << place;
  }
}

ColumnLayout Lay(const std::u16string& text) {
  std::optional<ColumnSum> sum = ReadColumnSum(OperatorsToStar(text));
  EXPECT_TRUE(sum.has_value());
  return LayOutColumnSum(sum.value_or(ColumnSum{}));
}

TEST(ColumnArithmetic, ReadsTwoPositiveOperands) {
  struct Case {
    const char* name;
    std::u16string text;
    bool accepted;
    char16_t op;
  };
  const Case cases[] = {
      {"sum", u"123+45", true, u'+'},
      {"zero operand", u"0+3", false, 0},
      {"three operands", u"1+2+3", false, 0},
      {"division sign reads as multiplication", u"6÷2", true, u'*'},
      {"times sign", u"6×2", true, u'*'},
      {"slash divides", u"6/2", true, u'/'},
      {"letter x stays", u"6x2", false, 0},
      {"plus found before minus", u"12-3+4", true, u'+'},
  };
  for (const Case& c : cases) {
    std::u16string text = OperatorsToStar(c.text);
    std::optional<ColumnSum> sum = ReadColumnSum(text);
    EXPECT_EQ(sum.has_value(), c.accepted) << c.name;
    if (sum) {
      EXPECT_EQ(sum->op, c.op) << c.name;
    }
  }
  EXPECT_FALSE(HasArithmeticOperator(u"6x2"));
  EXPECT_TRUE(HasArithmeticOperator(OperatorsToStar(u"6÷2")));
}

TEST(ColumnArithmetic, SumsAndDifferencesInThreeRows) {
  ColumnLayout sum = Lay(u"123+45");
  EXPECT_EQ(sum.rows, 3);
  EXPECT_EQ(sum.cols, 4);
  EXPECT_EQ(Row(sum, 1), u" 123");
  EXPECT_EQ(Row(sum, 2), u"＋ 45");
  EXPECT_EQ(Row(sum, 3), u" 168");
  ColumnLayout carry = Lay(u"99+1");
  EXPECT_EQ(carry.rows, 3);
  EXPECT_EQ(carry.cols, 4);
  EXPECT_EQ(Row(carry, 3), u" 100");
  ASSERT_EQ(carry.rules.size(), 1u);
  EXPECT_EQ(carry.rules[0].row, 3);
  EXPECT_EQ(Row(Lay(u"45-123"), 3), u" －78");
}

TEST(ColumnArithmetic, MultiplicationDigitsStandAtTheirPlaceValues) {
  ColumnLayout small = Lay(u"12*3");
  EXPECT_EQ(small.rows, 3);
  EXPECT_EQ(Row(small, 2), u"× 3");
  ExpectNumber(small, 3, small.cols, 36);

  ColumnLayout two = Lay(u"12*34");
  EXPECT_EQ(two.rows, 5);
  ASSERT_EQ(two.rules.size(), 2u);
  EXPECT_EQ(two.rules[0].row, 3);
  EXPECT_EQ(two.rules[1].row, 5);
  ExpectNumber(two, 3, two.cols, 12 * 4);
  ExpectNumber(two, 4, two.cols - 1, 12 * 3);
  ExpectNumber(two, 5, two.cols, 12 * 34);

  const int64_t a = 9876, b = 5409;
  ColumnLayout big = Lay(u"9876*5409");
  for (int j = 0; j < 4; ++j) {
    int64_t digit = (b / static_cast<int64_t>(std::pow(10, j))) % 10;
    ExpectNumber(big, 3 + j, big.cols - j, a * digit);
  }
  ExpectNumber(big, big.rows, big.cols, a * b);
  EXPECT_EQ(big.cols, 9);  // 53419284 and the sign
}

TEST(ColumnArithmetic, LongDivisionStepsUnderTheDividend) {
  ColumnLayout d = Lay(u"618/3");
  EXPECT_EQ(Row(d, 1), u" 206");
  EXPECT_EQ(Row(d, 2), u"3618");
  EXPECT_EQ(Row(d, 3), u" 6  ");
  EXPECT_EQ(Row(d, 4), u"  18");  // 0 remainder, 1 and 8 brought down
  EXPECT_EQ(Row(d, 5), u"  18");
  EXPECT_EQ(Row(d, 6), u"   0");
  EXPECT_EQ(d.bracket, (std::pair{2, 2}));

  // Every quotient digit over its dividend digit, the remainder last.
  const int64_t a = 987654, b = 37;
  ColumnLayout long_ = Lay(u"987654/37");
  ExpectNumber(long_, 1, long_.cols, a / b);
  ExpectNumber(long_, 2, 2, b);
  ExpectNumber(long_, 2, long_.cols, a);
  ExpectNumber(long_, long_.rows, long_.cols, a % b);
  EXPECT_EQ(long_.rows % 2, 0);
  EXPECT_EQ(long_.rules.front().base, u"竖式横线1");

  ColumnLayout below = Lay(u"3/5");
  EXPECT_EQ(Row(below, 1), u" 0");
  EXPECT_EQ(Row(below, 4), u" 3");
}

TEST(ColumnArithmetic, ShapesNameEveryCellOfTheGrid) {
  figures::ShapeList shapes = ColumnSumShapes(Lay(u"123+45"));
  ASSERT_EQ(shapes.size(), 3u * 4 + 1);
  EXPECT_EQ(shapes[5].name, u"ss_(2,2)");
  EXPECT_FLOAT_EQ(shapes[5].left, 70);
  EXPECT_FLOAT_EQ(shapes[5].top, 70);
  EXPECT_EQ(shapes.back().name, u"竖式横线");
  EXPECT_FLOAT_EQ(shapes.back().points[0].y, 90);
  EXPECT_FLOAT_EQ(shapes.back().points[1].x, 50 + 4 * 20);
  figures::ShapeList division = ColumnSumShapes(Lay(u"84/4"));
  EXPECT_EQ(division.back().name, u"除法竖式括号");
  EXPECT_FLOAT_EQ(division.back().points[0].x, 70);
  EXPECT_FLOAT_EQ(division.back().points[0].y, 70);
}

}  // namespace
}  // namespace lp
