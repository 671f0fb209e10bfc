// Draws the sample layout with y pointing up; wheel zooms about the cursor, the middle or right
// button pans, and a double-click asks the host to edit the object under the cursor.
#pragma once

#include <QPointF>
#include <QWidget>

class SampleLayout;

class LayoutCanvas : public QWidget {
  Q_OBJECT
 public:
  LayoutCanvas(SampleLayout& layout, QWidget* parent = nullptr);
  QPointF ToLayout(QPointF widgetPoint) const;  // nanometres
  QPointF ToWidget(QPointF layoutPoint) const;
  void ZoomToFit();

 signals:
  void CursorMoved(QPointF nanometres);
  void ObjectActivated(int index);

 protected:
  void paintEvent(QPaintEvent*) override;
  void wheelEvent(QWheelEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mouseReleaseEvent(QMouseEvent*) override;
  void mouseDoubleClickEvent(QMouseEvent*) override;
  void resizeEvent(QResizeEvent*) override;

 private:
  void DrawObjects(QPainter& painter) const;
  SampleLayout& layout_;
  double scale_ = 0.01;  // pixels per nanometre
  QPointF origin_;       // widget position of layout (0, 0)
  QPointF panStart_;
  bool panning_ = false;
  bool fitted_ = false;
};
