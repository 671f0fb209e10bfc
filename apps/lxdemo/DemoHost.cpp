#include "DemoHost.h"

#include <QDockWidget>
#include <QLabel>
#include <QMap>
#include <QMenuBar>
#include <QStatusBar>

#include "DemoRegistry.h"
#include "LayoutCanvas.h"

DemoHost::DemoHost(QWidget* parent) : QMainWindow(parent) {
  setWindowTitle(QStringLiteral("LxComp demo layout editor"));
  setObjectName(QStringLiteral("DemoHost"));
  canvas_ = new LayoutCanvas(layout_, this);
  setCentralWidget(canvas_);
  position_ = new QLabel(this);
  statusBar()->addPermanentWidget(position_);
  connect(canvas_, &LayoutCanvas::CursorMoved, this, [this](QPointF p) {
    position_->setText(QStringLiteral("x %1 µm  y %2 µm")
                           .arg(p.x() / 1000.0, 0, 'f', 3)
                           .arg(p.y() / 1000.0, 0, 'f', 3));
    emit CursorMoved(p);
  });
  connect(canvas_, &LayoutCanvas::ObjectActivated, this, &DemoHost::EditObject);
  BuildMenus();
  BuildPanels();
  resize(1100, 720);
}

void DemoHost::LayoutChanged() {
  canvas_->update();
}

void DemoHost::ShowStatus(const QString& text) {
  statusBar()->showMessage(text, 5000);
}

void DemoHost::BuildMenus() {
  QMap<QString, QMenu*> menus;
  QMenu* file = menuBar()->addMenu(tr("&File"));
  file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->addAction(tr("Zoom to &fit"), canvas_, &LayoutCanvas::ZoomToFit);
  menus.insert(QStringLiteral("File"), file);
  menus.insert(QStringLiteral("View"), view);
  for (const DemoCommand& command : DemoRegistry::Instance().Commands()) {
    QMenu*& menu = menus[command.menu];
    if (!menu) menu = menuBar()->addMenu(command.menu);
    auto run = command.run;
    menu->addAction(command.text, this, [this, run] { run(*this); });
  }
}

void DemoHost::BuildPanels() {
  for (const DemoPanel& panel : DemoRegistry::Instance().Panels()) {
    auto* dock = new QDockWidget(panel.title, this);
    dock->setObjectName(panel.title);
    dock->setWidget(panel.create(*this, dock));
    addDockWidget(Qt::RightDockWidgetArea, dock);
  }
}

void DemoHost::EditObject(int index) {
  SampleObject& object = layout_.Objects()[static_cast<size_t>(index)];
  for (const DemoObjectEditor& editor : DemoRegistry::Instance().Editors()) {
    if (editor.kind != object.kind) continue;
    if (editor.edit(*this, object)) LayoutChanged();
    return;
  }
  ShowStatus(tr("No dialog edits this kind of object yet"));
}
