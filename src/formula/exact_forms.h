#pragma once
// The fraction and radical dialogs' arithmetic: a reduced fraction, a finite
// or recurring decimal as a fraction, a radical in simplest form, each as
// the formula notation the formula engine types ("25/2", "2g(3)").

#include <string>

#include "runtime/prompt.h"
#include "session/session.h"

namespace lp {

// The notation of the result, or the message telling the teacher why the
// input was refused (then notation is empty).
struct ExactForm {
  std::u16string notation;
  std::u16string error;
};

// numerator / denominator in lowest terms; either may be a finite decimal.
ExactForm ReduceFractionForm(const std::u16string& numerator, const std::u16string& denominator);

// "12.5" is 25/2; recurring digits stand in brackets: "0.1(6)" is 1/6,
// "0.(3)" is 1/3.
ExactForm DecimalToFractionForm(const std::u16string& decimal);

// coefficient times the index-th root of radicand, simplified through
// SimplifyRadical: (1, 2, 12) is "2g(12)" -> 2 sqrt 3, written "2g(3)".
// Refusals SimplifyRadical tells the teacher itself come back with an
// empty error and an empty notation.
ExactForm SimplifyRadicalForm(const std::u16string& coefficient, const std::u16string& index,
                              const std::u16string& radicand, Prompt& prompt);

// Tells the refusal, or types the form at the selection as an EQ field;
// true when it was typed. A refused form leaves the document as it was.
bool InsertExactForm(Session& session, const ExactForm& form);

// The notation as the dialogs show it: "(3@p)/4" reads "3π/4".
std::u16string ReadableForm(const std::u16string& notation);

}  // namespace lp
