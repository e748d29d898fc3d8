#pragma once
// The graph dialog: a tab for each object type, the list of objects on one
// coordinate system, the live preview, and the insertion of the whole list
// into Word as one group.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabWidget>
#include <array>

#include "graph/axes.h"
#include "graph/frmGraph_tabs.h"
#include "graph/reedit.h"
#include "graph/session.h"
#include "ui/form.h"

namespace lp {

namespace graph {
class GraphPreview;
}

class frmGraph : public ui::Form {
  Q_OBJECT
 public:
  explicit frmGraph(Session& session);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* BuildTab(const graph::GraphTab& tab);
  QLayout* BuildView();
  QLayout* BuildListArea();
  QLayout* BuildLineSettings();
  void Connect();

  void Load();
  void ReopenSelectedGraph();
  void RedrawPreview();
  void ApplyScale();
  void ChangeLength(int axis, int length);
  void Scroll(int axis, int value);
  void ZoomBy(int delta);
  void SyncLengthText(int axis);

  graph::FormState TabState(int tab) const;
  void SetTabState(int tab, const graph::FormState& state);
  void ResetTab(int tab);
  void ShowFormCaptions(int tab);
  void ConfirmObject(int tab, const std::u16string& tag);

  graph::Look LineSettings() const;
  void ShowLook(const graph::Look& look);
  void LineSettingsChanged();

  void cmdOK_Click();
  void cmdChange_Click();
  void List1_Click();
  void cmdResult_Click();
  void cmdReset_Click();
  void cmdCls_Click();
  void SSTab1_Click(int tab);
  void chkWG_Click();
  void PickColour();

  graph::GraphSession graph_;
  graph::AxisOptions options_;
  QTabWidget* SSTab1;
  graph::GraphPreview* Picture1;
  QScrollBar *HScrollx, *HScrolly;
  std::array<QSpinBox*, 2> udLenOfAxis{};
  QLineEdit *txtLenOfAxis_x, *txtLenOfAxis_y;
  QLabel *labZS, *labZX, *labYS, *labYX, *labColor;
  QCheckBox *chkNoCoordinate, *chkDrawScale, *chkWG, *chkMultImage;
  std::array<QRadioButton*, 3> optXTSZ{};
  QComboBox *cmbWidth, *cmbStyle;
  QPushButton *cmdChange, *cmdOK;
  QListWidget* List1;
  std::array<int, 2> lengths_{10, 10};
  std::optional<graph::PlacedGraph> reopened_;  // the group this dialog replaces
  bool loading_ = false;
};

}  // namespace lp
