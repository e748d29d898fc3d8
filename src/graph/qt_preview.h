#pragma once
// The live preview of a graph: the scene painted with QPainter in world
// units on a square picture, y growing upward.

#include <QWidget>

#include "graph/axes.h"
#include "graph/scene.h"
#include "pictures/qt_formula.h"

namespace lp::graph {

class GraphPreview : public QWidget {
 public:
  explicit GraphPreview(QWidget* parent = nullptr);

  // Shows the scene over the view; an empty scene leaves the picture blank.
  void Show(Scene scene, const View& view, const AxisOptions& options);
  // Paints the scene onto any device, as the widget shows it.
  void Paint(QPainter& painter, const QRectF& target) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Scene scene_;
  View view_;
  AxisOptions options_;
};

// A formula label in answer notation ("(3@p)/2") typeset for the preview.
FormulaPicture LabelFormula(const std::u16string& text);
// The label as plain text, "3π/2", where the formula engine gives up on it.
QString ReadableLabel(const std::u16string& text);

}  // namespace lp::graph
