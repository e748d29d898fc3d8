#pragma once
// Find.Execute of the double: Word's search patterns over the visible
// characters of a range or from the selection on, and Replace.

#include "double/objects.h"

namespace comdouble {

Value Execute(FindObj& find, Args& args);

}  // namespace comdouble
