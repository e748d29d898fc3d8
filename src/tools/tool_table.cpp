#include "tools/tool_table.h"

#include <array>

#include "batch/frmWordBat.h"
#include "charts/frmSXT.h"
#include "charts/frmZFT.h"
#include "figures/frmDot.h"
#include "figures/frmFangGe.h"
#include "figures/frmInterval.h"
#include "figures/frmKT.h"
#include "figures/frmSector.h"
#include "figures/frmShapeSelecter.h"
#include "figures/frmXDT.h"
#include "formula/commands.h"
#include "formula/frmAngle2Radian.h"
#include "formula/frmFraction.h"
#include "formula/frmGS.h"
#include "formula/frmRadicalExpression.h"
#include "gallery/frmSavePic.h"
#include "gallery/frmTK.h"
#include "graph/frmGraph.h"
#include "inserts/commands.h"
#include "solvers/commands.h"
#include "solvers/frmA_C.h"
#include "solvers/frmEquation.h"
#include "solvers/frmFactoring.h"
#include "solvers/frmInequality.h"

namespace lp::tools {
namespace {

constexpr std::array kRoutines{
    RoutineBinding{u"test", &TestCommand},
    RoutineBinding{u"mhgs", &MhgsCommand},
    RoutineBinding{u"gs", &GsCommand},
    RoutineBinding{u"shushi", &ShuShiCommand},
    RoutineBinding{u"a_c", &PermutationCommand},
    RoutineBinding{u"group", &GroupCommand},
    RoutineBinding{u"fcz", &EquationSystemCommand},
    RoutineBinding{u"xl", &VectorCommand},
    RoutineBinding{u"hu", &ArcCommand},
    RoutineBinding{u"gsms", &FormulaModeCommand},
    RoutineBinding{u"htms", &DrawingModeCommand},
    RoutineBinding{u"fraction", &FractionCommand},
    RoutineBinding{u"radicalexpression", &RadicalExpressionCommand},
    RoutineBinding{u"enlarge", &EnlargeCommand},
    RoutineBinding{u"recurringdecimal", &RecurringDecimalCommand},
    RoutineBinding{u"drawcenter", &DrawCenterCommand},
    RoutineBinding{u"sethotkey", &SetHotKeyCommand},
    RoutineBinding{u"join_lr", &JoinLRCommand},
    RoutineBinding{u"join_ud", &JoinUDCommand},
    RoutineBinding{u"wbk_b", &BlankBoxCommand},
    RoutineBinding{u"wbk_y", &YesBoxCommand},
    RoutineBinding{u"wbk_n", &NoBoxCommand},
};

const std::array kForms{
    FormBinding{u"frmWordBat", &ui::MakeForm<frmWordBat>},
    FormBinding{u"frmFactoring", &ui::MakeForm<frmFactoring>},
    FormBinding{u"frmGS", &ui::MakeForm<frmGS>},
    FormBinding{u"frmGraph", &ui::MakeForm<frmGraph>},
    FormBinding{u"frmXDT", &ui::MakeForm<frmXDT>},
    FormBinding{u"frmSector", &ui::MakeForm<frmSector>},
    FormBinding{u"frmFangGe", &ui::MakeForm<frmFangGe>},
    FormBinding{u"frmDot", &ui::MakeForm<frmDot>},
    FormBinding{u"frmShapeSelecter", &ui::MakeForm<frmShapeSelecter>},
    FormBinding{u"frmKT", &ui::MakeForm<frmKT>},
    FormBinding{u"frmZFT", &ui::MakeForm<frmZFT>},
    FormBinding{u"frmSXT", &ui::MakeForm<frmSXT>},
    FormBinding{u"frmAngle2Radian", &ui::MakeForm<frmAngle2Radian>},
    FormBinding{u"frmFraction", &ui::MakeForm<frmFraction>},
    FormBinding{u"frmRadicalExpression", &ui::MakeForm<frmRadicalExpression>},
    FormBinding{u"frmInterval", &ui::MakeForm<frmInterval>},
    FormBinding{u"frmInequality", &ui::MakeForm<frmInequality>},
    FormBinding{u"frmEquation", &ui::MakeForm<frmEquation>},
    FormBinding{u"frmA_C", &ui::MakeForm<frmA_C>},
    FormBinding{u"frmSavePic", &ui::MakeForm<frmSavePic>},
    FormBinding{u"frmTK", &ui::MakeForm<frmTK>},
};

}  // namespace

std::span<const RoutineBinding> Routines() {
  return kRoutines;
}

std::span<const FormBinding> Forms() {
  return kForms;
}

ui::FormMaker FindForm(std::u16string_view name) {
  for (const FormBinding& form : kForms)
    if (form.name == name) return form.make;
  return nullptr;
}

}  // namespace lp::tools
