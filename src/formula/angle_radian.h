#pragma once
// Angles between degrees-minutes-seconds and radians as exact multiples of
// pi, written in the formula notation so that the formula engine types them:
// 135° is "(3@p)/4", 1°30′ is "(@p)/120".

#include <string>

#include "formula/exact_forms.h"

namespace lp {

using AngleConversion = ExactForm;

// Degrees, minutes and seconds as typed (whole numbers or finite decimals;
// a blank minute or second is 0) to a multiple of pi.
AngleConversion DegreesToRadians(const std::u16string& degrees, const std::u16string& minutes,
                                 const std::u16string& seconds);

// A multiple of pi ("3π/4", "3pi/4", "-π/6", "2π", "0.5π") to degrees,
// minutes and seconds ("135°", "1°30′"); seconds that do not come out whole
// are rounded to two places.
AngleConversion RadiansToDegrees(const std::u16string& radians);

}  // namespace lp
