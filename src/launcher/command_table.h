#pragma once
// The command words of lumenpad, in the order they are compared. A run takes
// the first row whose word equals the lower-cased command text exactly; the
// last row takes everything else, the empty word included.
//
// Rows with built = false name tools that have not been written yet: they end
// the run through ExitLumenpad, as an unknown word does, until the tool lands
// and its row is switched on here.

#include <array>
#include <string_view>

#include "launcher/exit_lumenpad.h"
#include "launcher/formula_commands.h"
#include "launcher/frontend.h"
#include "word/session.h"

namespace lp {

enum class How {
  kRoutine,   // runs to its end inside SubMain
  kModeless,  // the form is shown and SubMain returns; its unload ends the run
  kModal,     // the form is shown and SubMain waits for it
};

struct CommandRow {
  std::u16string_view word;
  How how;
  std::u16string_view form;              // the dialog of a kModeless or kModal row
  void (*routine)(Session&, Frontend&);  // the tool of a kRoutine row
  bool built;
};

// test: nothing at all happens.
inline void TestCommand(Session&, Frontend&) {}

// Anything else ends the run.
inline void ExitCommand(Session& session, Frontend&) {
  ExitLumenpad(session);
}

inline constexpr std::array<CommandRow, 41> kCommandTable{{
    {u"test", How::kRoutine, {}, &TestCommand, true},
    {u"dot", How::kModeless, u"frmDot", nullptr, false},
    {u"group", How::kRoutine, {}, nullptr, false},
    {u"mhgs", How::kRoutine, {}, &MhgsCommand, true},
    {u"functiongraph", How::kModeless, u"frmGraph", nullptr, false},
    {u"gs", How::kRoutine, {}, &GsCommand, true},
    {u"shapeselecter", How::kModal, u"frmShapeSelecter", nullptr, false},
    {u"tk", How::kModeless, u"frmTK", nullptr, false},
    {u"kt", How::kModeless, u"frmKT", nullptr, false},
    {u"zft", How::kModeless, u"frmZFT", nullptr, false},
    {u"sxt", How::kModeless, u"frmSXT", nullptr, false},
    {u"sector", How::kModeless, u"frmSector", nullptr, false},
    {u"fangge", How::kModeless, u"frmFangGe", nullptr, false},
    {u"bat", How::kModeless, u"frmWordBat", nullptr, false},
    {u"interval", How::kModeless, u"frmInterval", nullptr, false},
    {u"fcz", How::kRoutine, {}, nullptr, false},
    {u"xl", How::kRoutine, {}, nullptr, false},
    {u"hu", How::kRoutine, {}, nullptr, false},
    {u"a_c", How::kRoutine, {}, nullptr, false},
    {u"xdt", How::kModeless, u"frmXDT", nullptr, false},
    {u"shushi", How::kRoutine, {}, nullptr, false},
    {u"gsms", How::kRoutine, {}, nullptr, false},
    {u"htms", How::kRoutine, {}, nullptr, false},
    {u"factoring", How::kModeless, u"frmFactoring", nullptr, true},
    {u"fraction", How::kRoutine, {}, nullptr, false},
    {u"radicalexpression", How::kRoutine, {}, nullptr, false},
    {u"enlarge", How::kRoutine, {}, nullptr, false},
    {u"angle2radian", How::kModeless, u"frmAngle2Radian", nullptr, false},
    {u"inequality", How::kModeless, u"frmInequality", nullptr, false},
    {u"equation", How::kModeless, u"frmEquation", nullptr, false},
    {u"inequality", How::kModeless, u"frmInequality", nullptr, false},  // never reached
    {u"recurringdecimal", How::kRoutine, {}, nullptr, false},
    {u"drawcenter", How::kRoutine, {}, nullptr, false},
    {u"savepic", How::kModeless, u"frmSavePic", nullptr, false},
    {u"sethotkey", How::kRoutine, {}, nullptr, false},
    {u"join_lr", How::kRoutine, {}, nullptr, false},
    {u"join_ud", How::kRoutine, {}, nullptr, false},
    {u"wbk_b", How::kRoutine, {}, nullptr, false},
    {u"wbk_y", How::kRoutine, {}, nullptr, false},
    {u"wbk_n", How::kRoutine, {}, nullptr, false},
    {{}, How::kRoutine, {}, &ExitCommand, true},  // anything else
}};

// The first row whose word is the text, else the last row.
const CommandRow& FindCommand(std::u16string_view commandText);

// Runs the row's tool; a row not built yet ends through ExitLumenpad.
void RunCommand(const CommandRow& row, Session& session, Frontend& ui);

}  // namespace lp
