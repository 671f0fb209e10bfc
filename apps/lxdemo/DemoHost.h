// The demo's main window: the sample layout on a canvas, the menus of every registered command,
// and the registered side panels.
#pragma once

#include <QMainWindow>

#include "SampleLayout.h"

class LayoutCanvas;
class QLabel;

class DemoHost : public QMainWindow {
  Q_OBJECT
 public:
  explicit DemoHost(QWidget* parent = nullptr);
  SampleLayout& Layout() { return layout_; }
  LayoutCanvas* Canvas() const { return canvas_; }
  // Redraws the layout after a command changed it.
  void LayoutChanged();
  void ShowStatus(const QString& text);

 signals:
  void CursorMoved(QPointF nanometres);

 private:
  void BuildMenus();
  void BuildPanels();
  void EditObject(int index);
  SampleLayout layout_;
  LayoutCanvas* canvas_ = nullptr;
  QLabel* position_ = nullptr;
};
