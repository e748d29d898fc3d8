#pragma once
// Saves the selected figure or formula as a JPEG picture through the
// program's own encoder, at a chosen resolution, on white. Its file name and
// resolution come back from record slot 16.

#include <QLabel>
#include <QLineEdit>
#include <optional>

#include "gallery/drawing_list.h"
#include "ui/form.h"

namespace lp {

class frmSavePic : public ui::Form {
  Q_OBJECT
 public:
  explicit frmSavePic(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdOK_Click();
  void cmdBrowse_Click();
  void ShowPreview();

  QLabel* picPreview;
  QLabel* labSize;
  QLineEdit* txtFile;
  QLineEdit* txtDpi;
  std::u16string selectionError_;
  std::optional<gallery::DrawingList> drawing_;
};

}  // namespace lp
