#pragma once
// The command words of lumenpad, in the order they are compared. A run takes
// the first row whose word equals the lower-cased command text exactly; the
// last row takes everything else, the empty word included.
//
// The table says how each word runs; which routine or dialog serves it is
// bound above the tools, in src/tools. Rows with built = false name tools
// that have not been written yet: they end the run through ExitLumenpad, as
// an unknown word does, until the tool lands and its row is switched on here.

#include <array>
#include <span>
#include <string_view>

#include "session/frontend.h"
#include "session/session.h"

namespace lp {

enum class How {
  kRoutine,   // runs to its end inside SubMain
  kModeless,  // the form is shown and SubMain returns; its unload ends the run
  kModal,     // the form is shown and SubMain waits for it
};

struct CommandRow {
  std::u16string_view word;
  How how;
  std::u16string_view form;  // the dialog of the row, or the one its routine may open
  bool built;
};

// The tool of a kRoutine row, bound to its word.
using Routine = void (*)(Session&, Frontend&);
struct RoutineBinding {
  std::u16string_view word;
  Routine routine;
};

inline constexpr std::array<CommandRow, 41> kCommandTable{{
    {u"test", How::kRoutine, {}, true},
    {u"dot", How::kModeless, u"frmDot", true},
    {u"group", How::kRoutine, {}, true},
    {u"mhgs", How::kRoutine, {}, true},
    {u"functiongraph", How::kModeless, u"frmGraph", true},
    {u"gs", How::kRoutine, u"frmGS", true},
    {u"shapeselecter", How::kModal, u"frmShapeSelecter", true},
    {u"tk", How::kModeless, u"frmTK", true},
    {u"kt", How::kModeless, u"frmKT", true},
    {u"zft", How::kModeless, u"frmZFT", true},
    {u"sxt", How::kModeless, u"frmSXT", true},
    {u"sector", How::kModeless, u"frmSector", true},
    {u"fangge", How::kModeless, u"frmFangGe", true},
    {u"bat", How::kModeless, u"frmWordBat", true},
    {u"interval", How::kModeless, u"frmInterval", true},
    {u"fcz", How::kRoutine, {}, true},
    {u"xl", How::kRoutine, {}, true},
    {u"hu", How::kRoutine, {}, true},
    {u"a_c", How::kRoutine, u"frmA_C", true},
    {u"xdt", How::kModeless, u"frmXDT", true},
    {u"shushi", How::kRoutine, {}, true},
    {u"gsms", How::kRoutine, {}, true},
    {u"htms", How::kRoutine, {}, true},
    {u"factoring", How::kModeless, u"frmFactoring", true},
    {u"fraction", How::kRoutine, u"frmFraction", true},
    {u"radicalexpression", How::kRoutine, u"frmRadicalExpression", true},
    {u"enlarge", How::kRoutine, {}, true},
    {u"angle2radian", How::kModeless, u"frmAngle2Radian", true},
    {u"inequality", How::kModeless, u"frmInequality", true},
    {u"equation", How::kModeless, u"frmEquation", true},
    {u"inequality", How::kModeless, u"frmInequality", true},  // never reached
    {u"recurringdecimal", How::kRoutine, {}, true},
    {u"drawcenter", How::kRoutine, {}, true},
    {u"savepic", How::kModeless, u"frmSavePic", true},
    {u"sethotkey", How::kRoutine, {}, true},
    {u"join_lr", How::kRoutine, {}, true},
    {u"join_ud", How::kRoutine, {}, true},
    {u"wbk_b", How::kRoutine, {}, true},
    {u"wbk_y", How::kRoutine, {}, true},
    {u"wbk_n", How::kRoutine, {}, true},
    {{}, How::kRoutine, {}, false},  // anything else ends the run
}};

// The first row whose word is the text, else the last row.
const CommandRow& FindCommand(std::u16string_view commandText);

// The routine bound to word, or null.
Routine FindRoutine(std::span<const RoutineBinding> routines, std::u16string_view word);

// Runs the row's tool: its routine from routines, or its form through ui. A
// row not built yet ends through ExitLumenpad, and so does the last row.
void RunCommand(const CommandRow& row, Session& session, Frontend& ui,
                std::span<const RoutineBinding> routines);

// test: nothing at all happens.
void TestCommand(Session& session, Frontend& ui);

}  // namespace lp
