#pragma once
// Formulas into the document: as an EQ field whose code gets its fonts and
// script sizes, or as TeX handed to the TeX-toggle macro. Word failures
// inside a pass are ignored, so one failed call does not stop a formula.

#include <string>
#include <vector>

#include "formula/driver.h"
#include "formula/generators.h"
#include "session/session.h"

namespace lp {

// What the teacher is told when a formula's brackets don't match.
constexpr char16_t kUnbalancedBrackets[] = u"您输入的表达式括号不匹配，请检查您的输入";
// What the teacher is told when a formula does not finish in time.
constexpr char16_t kFormulaTimedOut[] = u"公式转换超时，文档没有改动。";

FormulaSettings SessionFormulaSettings(const Session& session);

// The scripts of an EQ code, in order, each with its head and group, as the
// find-and-shrink pass searches them; a script inside a script is not listed.
std::vector<std::u16string> CollectScripts(const std::u16string& code);

// Checks the brackets (telling the teacher when they don't match) and
// inserts the formula as an EQ field at the selection. FormulaAborted leaves
// the document untouched.
void InsertFormulaAsField(Session& session, const std::u16string& text,
                          const DriverControl& control);
// A formula the program wrote itself (a converted angle, a reduced
// fraction): "/" always puts its first operand on top, whatever the
// teacher's fraction option, so the value cannot turn upside down.
void InsertOwnFormulaAsField(Session& session, const std::u16string& text);
// code begins with "EQ ". The field replaces the selection; its scripts
// shrink to 70 percent, and with EmbellishFormula its characters get fonts.
void InsertEqField(Session& session, const std::u16string& code, const DriverControl& control = {});

// The formula's LaTeX between dollar signs, typed at the selection and
// selected, then the TeX-toggle macro.
void InsertFormulaAsMathType(Session& session, const std::u16string& text,
                             const DriverControl& control);
// The same with the LaTeX already made.
void TypeLatexAndToggle(Session& session, const std::u16string& latex);

// A label of a text box: its "{EQ ...}" text becomes a real field, with
// nested fields for inner braces and SYMBOL fields for "@x" greek keys.
void ExpandSymbolFields(Session& session, word::Range& range);

}  // namespace lp
