#include "tools/tool_table.h"

#include <array>

#include "batch/frmWordBat.h"
#include "charts/frmSXT.h"
#include "charts/frmZFT.h"
#include "figures/frmFangGe.h"
#include "figures/frmSector.h"
#include "figures/frmXDT.h"
#include "formula/commands.h"
#include "formula/frmAngle2Radian.h"
#include "formula/frmFraction.h"
#include "formula/frmGS.h"
#include "formula/frmRadicalExpression.h"
#include "graph/frmGraph.h"
#include "solvers/commands.h"
#include "solvers/frmFactoring.h"

namespace lp::tools {
namespace {

constexpr std::array kRoutines{
    RoutineBinding{u"test", &TestCommand},
    RoutineBinding{u"mhgs", &MhgsCommand},
    RoutineBinding{u"gs", &GsCommand},
    RoutineBinding{u"shushi", &ShuShiCommand},
};

const std::array kForms{
    FormBinding{u"frmWordBat", &ui::MakeForm<frmWordBat>},
    FormBinding{u"frmFactoring", &ui::MakeForm<frmFactoring>},
    FormBinding{u"frmGS", &ui::MakeForm<frmGS>},
    FormBinding{u"frmGraph", &ui::MakeForm<frmGraph>},
    FormBinding{u"frmXDT", &ui::MakeForm<frmXDT>},
    FormBinding{u"frmSector", &ui::MakeForm<frmSector>},
    FormBinding{u"frmFangGe", &ui::MakeForm<frmFangGe>},
    FormBinding{u"frmZFT", &ui::MakeForm<frmZFT>},
    FormBinding{u"frmSXT", &ui::MakeForm<frmSXT>},
    FormBinding{u"frmAngle2Radian", &ui::MakeForm<frmAngle2Radian>},
    FormBinding{u"frmFraction", &ui::MakeForm<frmFraction>},
    FormBinding{u"frmRadicalExpression", &ui::MakeForm<frmRadicalExpression>},
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
