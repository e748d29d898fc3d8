#pragma once
// The figure gallery: figures kept in the settings store, browsed as
// thumbnails, inserted at the caret; the selection added as a new figure;
// figures renamed and deleted. The chosen figure comes back from record
// slot 3; slot 2 says whether the seed figures were taken in.

#include <QListWidget>
#include <vector>

#include "gallery/gallery_store.h"
#include "ui/form.h"

namespace lp {

class frmTK : public ui::Form {
  Q_OBJECT
 public:
  explicit frmTK(Session& session);

 protected:
  void Unload() override;

 private:
  void Form_Load();
  void cmdInsert_Click();
  void cmdAdd_Click();
  void cmdRename_Click();
  void cmdDelete_Click();
  // Lists the gallery again, the figure of `id` chosen (the row when 0).
  void Refresh(long id, int row);
  // The chosen figure; null (after telling the teacher) when none is.
  const gallery::GalleryEntry* Chosen();

  QListWidget* lstFigures;
  std::vector<gallery::GalleryEntry> entries_;
};

}  // namespace lp
