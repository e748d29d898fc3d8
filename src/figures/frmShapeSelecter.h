#pragma once
// Selects the figures of the caret's page by kind (lines, curves, text
// boxes, groups, pictures, other shapes) so that grouping or joining can
// follow. The one modal dialog; its choice comes back from record slot 15.

#include <QCheckBox>
#include <QLabel>

#include "figures/shape_selecter.h"
#include "ui/form.h"

namespace lp {

class frmShapeSelecter : public ui::Form {
  Q_OBJECT
 public:
  explicit frmShapeSelecter(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();
  void cmdAll_Click();

  QCheckBox* chkKind[figures::kShapeFamilyCount];  // owned by the dialog
  QLabel* lblCount;
};

}  // namespace lp
