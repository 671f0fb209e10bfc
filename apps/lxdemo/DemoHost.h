// The demo's main window: the library's menu bar, four dock panels with toolbars and the status
// line, the sample layout on a canvas, the menus of every registered command, and the registered
// side panels. The toolbar layout is saved on exit and restored on start.
#pragma once

#include <QMainWindow>

#include "SampleLayout.h"

class LayoutCanvas;
class QAction;
class QMenu;
class QTimer;

namespace lx {
class TLxDockPanel;
class TLxMenuPanel;
}  // namespace lx

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

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildDocks();
  void BuildActions();
  void BuildToolBars();
  void BuildMenus();
  void BuildPanels();
  QMenu* AddMenu(const QString& title);
  void EditObject(int index);
  void Zoom(int wheelDelta);
  void StartDemoJob();
  void AdvanceDemoJob();
  void SetGridStep(double nanometres);
  void SaveToolBars();
  void RestoreToolBars();

  SampleLayout layout_;
  LayoutCanvas* canvas_ = nullptr;
  lx::TLxMenuPanel* menuBar_ = nullptr;
  lx::TLxDockPanel* top_ = nullptr;
  lx::TLxDockPanel* bottom_ = nullptr;
  lx::TLxDockPanel* left_ = nullptr;
  lx::TLxDockPanel* right_ = nullptr;
  QAction* zoomFit_ = nullptr;
  QAction* zoomIn_ = nullptr;
  QAction* zoomOut_ = nullptr;
  QAction* runJob_ = nullptr;
  QAction* fineGrid_ = nullptr;
  QList<QAction*> tools_;
  QMenu* zoomLevels_ = nullptr;
  QTimer* job_ = nullptr;
  QTimer* messageExpiry_ = nullptr;
  int jobProgress_ = 100;
  bool restored_ = false;
};
