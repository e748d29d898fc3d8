#pragma once
// The live preview of a graph: the scene painted with QPainter in world
// units on a square picture, y growing upward.

#include <QWidget>

#include "graph/axes.h"
#include "graph/scene.h"

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

// A formula label as the preview prints it when typesetting is not at hand:
// "(3@p)/2" reads "3π/2".
QString ReadableLabel(const std::u16string& text);

}  // namespace lp::graph
