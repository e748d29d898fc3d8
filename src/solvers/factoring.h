#pragma once
// Prime factorisation: the state of the factoring dialog, its decomposition,
// the result text of its label, and the typing of the result into Word.

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/prompt.h"
#include "word/api.h"

namespace lp {

struct Factorisation {
  double Number = 0;        // the number last accepted (or rejected)
  int32_t FactorCount = 0;  // distinct primes of the last decomposition
  // Exist only once a decomposition has stored something in them.
  bool haveFactors = false;
  std::vector<int32_t> Factor;    // the distinct primes, ascending
  std::vector<int32_t> Exponent;  // the multiplicity of Factor at the same index
  std::u16string label = u"运算结果：";
};

// Command1: reads the text of Text1, decomposes it and sets the label, or
// tells the teacher why the text is refused.
void Decompose(Factorisation& f, const std::u16string& text, Prompt& prompt);

// cmdInsert: types the stored result at the selection, exponents as real
// superscript. Raises "Subscript out of range" (9) when no decomposition has
// stored factors, after typing the number.
void InsertFactorisation(const Factorisation& f, word::Selection& selection);

}  // namespace lp
