#pragma once
// TeX as the LaTeX generator writes it, turned into an Office Math equation,
// so that the TeX route ends in a native equation where no outside macro is
// installed: fractions, roots with and without index, scripts, overlines,
// vector arrows, the braced system of equations, greek letters and the
// comparison signs.

#include <optional>
#include <string>

namespace lp {

// "<m:oMath>...</m:oMath>" in UTF-8 (the m prefix is the document's math
// namespace), or nothing when the text is no TeX this converter reads, such
// as one with unbalanced braces. Surrounding dollar signs are ignored.
std::optional<std::string> LatexToOmml(const std::u16string& tex);

}  // namespace lp
