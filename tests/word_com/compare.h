#pragma once
// One tool script run twice: on the recording fake, and through the COM back
// end on the Word double; then the two are compared.

#include <string>

#include "harness.h"
#include "session/session.h"

namespace comtest {

// The document a script starts from: the body reads before + selected +
// after, the selection holding selected.
struct Scene {
  std::u16string before, selected, after;
};

// How far the fake can follow a script. The fake keeps less of a document
// than Word: a field's code without Word's marks and blanks, typing that
// never enters a field's code, a selection whose text does not change as it
// moves. A script whose reads or state depend on those is checked on the
// double alone.
enum class Fake { kFollows, kCannotFollow };

struct Script {
  const char* name;
  Scene scene;
  void (*run)(lp::Session& session);
  // The double's body afterwards, as WordDouble::Dump writes it.
  const char* expected;
  Fake fake = Fake::kFollows;
  // What differs from run to run by design (a random colour), as a regular
  // expression over the calls; matches are left out of the comparison.
  const char* varies = "";
};

// Runs the script both ways and counts the checks: the same calls in the same
// order, the same boxes shown, the same fields and shapes read back through
// the API, the double's body as expected, references and allocations balanced,
// and no member the double lacks.
void Compare(const Script& script, AllocationSpy& spy, Checks& checks);

}  // namespace comtest
