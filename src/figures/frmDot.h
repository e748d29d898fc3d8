#pragma once
// Point labels: one lettered point at the caret, or a row of them spread
// along a segment, each a dot with its italic name at one of eight places.
// Its state comes back from record slot 4.

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>

#include "ui/form.h"

namespace lp {

class frmDot : public ui::Form {
  Q_OBJECT
 public:
  explicit frmDot(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();
  int PlaceIndex() const;

  QRadioButton* optMode[2];  // owned by the dialog
  QRadioButton* optPlace[8];
  QLineEdit* txtNames;
  QLineEdit* txtCount;
  QLineEdit* txtLength;
  QCheckBox* chkSegment;
  QLineEdit* txtDx;
  QLineEdit* txtDy;
  QLineEdit* txtSize;
};

}  // namespace lp
