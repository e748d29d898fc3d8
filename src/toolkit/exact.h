#pragma once
// Whole-number arithmetic behind the answer texts. Arguments and results keep
// 16- and 32-bit types: a value beyond them raises Overflow (6), a division
// by zero error 11, and the solvers' messages depend on where that happens.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "runtime/prompt.h"
#include "toolkit/answers.h"

namespace lp {

bool IsWhole(double x);
bool IsEven(int16_t n);
bool IsOdd(int16_t n);

// Greatest common divisor by subtraction: equal arguments give themselves,
// sign included; a zero gives 1.
int32_t Gcd(int32_t a, int32_t b);
// value / divisor, computed as a double, is whole.
bool IsDivisible(int32_t divisor, int32_t value);
// The largest k with value / base^k whole, and at least 1 (the callers make
// sure base divides value).
int16_t Multiplicity(int32_t base, int32_t value);

Fraction ReduceFraction(int32_t a, int32_t b);
// "1.25" is 5/4; recurring digits stand in brackets: "0.1(6)" is 1/6. The
// whole part is shifted by the length of the text minus 2, so a text with
// more than one digit (or a blank) before the point reads larger.
Fraction DecimalToFraction(const std::u16string& text);

// n! in double, 1 for 0 and below; a value that is not whole is told to the
// teacher and gives 0.
double Factorial(double n, Prompt& prompt);

// Takes whole powers out of the root: (2, 12) is 2 sqr(3). Values that are
// not whole or a negative radicand are told to the teacher and give nothing.
std::optional<Radical> SimplifyRadical(double index, double radicand, Prompt& prompt);

// Element 0 is never looked at: the callers' arrays count from 1.
void SortAscendingInt(std::vector<int16_t>& values);
void SortAscendingSingle(std::vector<float>& values);
// The first position from 1 up holding value, or 1 if none does.
int16_t IndexOfSingle(float value, const std::vector<float>& values);

}  // namespace lp
