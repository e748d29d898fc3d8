#pragma once
// Permutations and combinations of m out of n: the count, and the symbol with
// m above and n below the letter as an EQ field.

#include <optional>
#include <string>

#include "session/session.h"

namespace lp {

struct ACControls {
  std::u16string txtM, txtN;
  bool combination = false;  // optA(1); optA(0) counts permutations
  bool Check1 = false;       // the value after the symbol
};

// "A" for permutations, "C" for combinations: the caption of Label1.
std::u16string ACLetter(bool combination);

// cmdOK: the count, or nothing after telling the teacher why the numbers are
// refused.
std::optional<double> CountOf(const ACControls& controls, Prompt& prompt);
// "运算结果：" and the count as Str writes it.
std::u16string ACResultLabel(double count);

// cmdInsert: the letter, the field, and with Check1 "=" and the count, which
// it returns for the label. A refused input types nothing.
std::optional<double> InsertAC(Session& session, const ACControls& controls);

}  // namespace lp
