#pragma once
// The insert tools: selected text becomes an EQ field that keeps each part's
// own formatting, a mark goes over letters, a brace before equations, dots
// over a recurring decimal. Each works on the selection of the session's
// Word and returns what its command does next.

#include <string>

#include "formula/driver.h"
#include "session/session.h"

namespace lp {

enum class InsertOutcome {
  kDone,        // inserted, or the teacher was told why not
  kShowDialog,  // too little selected: the command opens its dialog
  kToFormula,   // several expressions: the formula command takes over
};

constexpr char16_t kNoSlashForFraction[] = u"没有“/”符号，不能区分分子和分母，请重新选择！";
constexpr char16_t kNoCommaForSystem[] = u"没有“,”符号，不能区各个方程，请重新选择！";
constexpr char16_t kNoSlashForDecimal[] =
    u"没有\"/\"符号,无法确定循环小数部分,请确认您用\"/\"标识出了循环小数部分";
constexpr char16_t kDecimalWithoutPoint[] = u"您选择的小数没有小数点,您还是要生成循环小数吗?";
constexpr char16_t kNoRecurringPart[] = u"没有循环小数部分,程序退出";

// fraction: a selected a/b becomes "EQ \F(a,b)".
InsertOutcome InsertFractionField(Session& session);
// radicalexpression: a selected b, or n/b, becomes "EQ \r(n,b)".
InsertOutcome InsertRadicalField(Session& session);

// hu and xl: an arc or a vector arrow over the selection, or over letters
// asked for when nothing is selected.
void InsertArcMark(Session& session);
void InsertVectorMark(Session& session);
// fcz: a brace before equations separated by commas.
void InsertEquationSystem(Session& session, const DriverControl& control = {});

// recurringdecimal: a selected 0.1/23 gets dots over the digits after "/".
void InsertRecurringDecimal(Session& session);

}  // namespace lp
