#include "DemoHost.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QGuiApplication>
#include <QMap>
#include <QSettings>
#include <QShortcut>
#include <QTimer>
#include <QWheelEvent>

#include "DemoRegistry.h"
#include "GlyphIcon.h"
#include "LayoutCanvas.h"
#include "lxcomp/DockPanel.h"
#include "lxcomp/MenuPanel.h"

namespace {

const char* const kToolBarNames[] = {"View", "Job", "Draw"};

lx::TLxToolBarPanel* AddToolBar(lx::TLxDockPanel* dock, const QString& name) {
  lx::TLxToolBarPanel* toolBar = dock->GetToolBars()->Add();
  toolBar->SetName(name);
  return toolBar;
}

void AddButton(lx::TLxToolBarPanel* toolBar, lx::TLxButtonType type, QAction* action = nullptr,
               QMenu* menu = nullptr) {
  lx::TLxToolBarButton* button = toolBar->GetButtons()->Add();
  button->SetButtonType(type);
  if (action) button->SetAction(action);
  if (menu) button->SetPopupMenu(menu);
}

// Drawing the gallery or running headless must not read or change the user's saved layout.
bool PersistentLayout() {
  return QGuiApplication::platformName() != QLatin1String("offscreen");
}

}  // namespace

DemoHost::DemoHost(QWidget* parent) : QMainWindow(parent) {
  setWindowTitle(QStringLiteral("LxComp demo layout editor"));
  setObjectName(QStringLiteral("DemoHost"));
  BuildDocks();
  connect(canvas_, &LayoutCanvas::CursorMoved, this, [this](QPointF p) {
    bottom_->SetXY(p.x(), p.y());
    emit CursorMoved(p);
  });
  connect(canvas_, &LayoutCanvas::ObjectActivated, this, &DemoHost::EditObject);
  job_ = new QTimer(this);
  job_->setInterval(60);
  connect(job_, &QTimer::timeout, this, &DemoHost::AdvanceDemoJob);
  messageExpiry_ = new QTimer(this);
  messageExpiry_->setSingleShot(true);
  connect(messageExpiry_, &QTimer::timeout, this, [this] { bottom_->SetStatusMessage(QString()); });
  BuildActions();
  BuildToolBars();
  BuildMenus();
  BuildPanels();
  SetGridStep(10000);
  bottom_->SetXY(0, 0);
  bottom_->SetStatusMessage(tr("Ready"));
  resize(1100, 720);
}

void DemoHost::BuildDocks() {
  auto* body = new QWidget(this);
  body->setObjectName(QStringLiteral("Body"));
  setCentralWidget(body);
  top_ = new lx::TLxDockPanel(body);
  top_->setObjectName(QStringLiteral("TopDock"));
  top_->SetAlign(lx::alTop);
  bottom_ = new lx::TLxDockPanel(body);
  bottom_->setObjectName(QStringLiteral("BottomDock"));
  bottom_->SetAlign(lx::alBottom);
  left_ = new lx::TLxDockPanel(body);
  left_->setObjectName(QStringLiteral("LeftDock"));
  left_->SetAlign(lx::alLeft);
  right_ = new lx::TLxDockPanel(body);
  right_->setObjectName(QStringLiteral("RightDock"));
  right_->SetAlign(lx::alRight);
  canvas_ = new LayoutCanvas(layout_, body);
  lx::SetWidgetAlign(canvas_, lx::alClient);
}

void DemoHost::BuildActions() {
  const QPalette colours = palette();
  zoomFit_ = new QAction(GlyphIcon(QStringLiteral("⤢"), colours), tr("Zoom to &fit"), this);
  zoomFit_->setToolTip(tr("Zoom to fit the whole layout"));
  connect(zoomFit_, &QAction::triggered, canvas_, &LayoutCanvas::ZoomToFit);
  zoomIn_ = new QAction(GlyphIcon(QStringLiteral("+"), colours), tr("Zoom &in"), this);
  zoomIn_->setShortcut(QKeySequence::ZoomIn);
  zoomIn_->setToolTip(tr("Zoom in by two"));
  connect(zoomIn_, &QAction::triggered, this, [this] { Zoom(462); });
  zoomOut_ = new QAction(GlyphIcon(QStringLiteral("−"), colours), tr("Zoom &out"), this);
  zoomOut_->setShortcut(QKeySequence::ZoomOut);
  zoomOut_->setToolTip(tr("Zoom out by two"));
  connect(zoomOut_, &QAction::triggered, this, [this] { Zoom(-462); });
  zoomLevels_ = new QMenu(this);
  for (int steps : {1, 2, 3}) {
    QAction* level = zoomLevels_->addAction(tr("Zoom in %1×").arg(1 << steps));
    connect(level, &QAction::triggered, this, [this, steps] { Zoom(462 * steps); });
  }
  runJob_ = new QAction(GlyphIcon(QStringLiteral("▶"), colours), tr("&Run long operation"), this);
  runJob_->setToolTip(tr("Run a long demo operation and show its progress"));
  connect(runJob_, &QAction::triggered, this, &DemoHost::StartDemoJob);
  fineGrid_ = new QAction(GlyphIcon(QStringLiteral("#"), colours), tr("Fine &grid"), this);
  fineGrid_->setCheckable(true);
  fineGrid_->setToolTip(tr("Snap to a 1 µm grid instead of 10 µm"));
  connect(fineGrid_, &QAction::toggled, this,
          [this](bool fine) { SetGridStep(fine ? 1000 : 10000); });
  auto* group = new QActionGroup(this);
  const std::pair<const char*, const char*> tools[] = {
      {"↖", "Select"}, {"□", "Rectangle"}, {"◇", "Polygon"}, {"~", "Wire"}};
  for (auto [glyph, name] : tools) {
    QAction* tool = group->addAction(GlyphIcon(QString::fromUtf8(glyph), colours), tr(name));
    tool->setCheckable(true);
    tool->setToolTip(tr("%1 tool").arg(tr(name)));
    connect(tool, &QAction::triggered, this,
            [this, name = tr(name)] { ShowStatus(tr("%1 tool chosen").arg(name)); });
    tools_.append(tool);
  }
  tools_.first()->setChecked(true);
}

void DemoHost::BuildToolBars() {
  lx::TLxToolBarPanel* view = AddToolBar(top_, QStringLiteral("View"));
  AddButton(view, lx::lxNormalButton, zoomFit_);
  AddButton(view, lx::lxDropDown, zoomIn_, zoomLevels_);
  AddButton(view, lx::lxNormalButton, zoomOut_);
  lx::TLxToolBarPanel* job = AddToolBar(top_, QStringLiteral("Job"));
  AddButton(job, lx::lxNormalButton, runJob_);
  AddButton(job, lx::lxSeparator);
  AddButton(job, lx::lxCheckButton, fineGrid_);
  lx::TLxToolBarPanel* draw = AddToolBar(left_, QStringLiteral("Draw"));
  for (QAction* tool : tools_)
    AddButton(draw, lx::lxCheckButton, tool);
  for (lx::TLxDockPanel* dock : {top_, bottom_, left_, right_})
    dock->Loaded();
  // No toolbars at the bottom yet: keep only the status line there.
  bottom_->ReleaseIfEmpty();
}

QMenu* DemoHost::AddMenu(const QString& title) {
  auto* popup = new QMenu(this);
  lx::TLxMenu* menu = menuBar_->GetMenus()->Add();
  menu->SetName(title);
  menu->SetPopupMenu(popup);
  // A chosen command ends the hand-over between titles at once.
  connect(popup, &QMenu::triggered, menuBar_, [this] { menuBar_->SetItemSelected(true); });
  const int index = menuBar_->GetMenus()->Count() - 1;
  const int marker = title.indexOf(QLatin1Char('&'));
  if (marker >= 0 && marker + 1 < title.size()) {
    auto* shortcut = new QShortcut(QKeySequence(QStringLiteral("Alt+") + title[marker + 1]), this);
    connect(shortcut, &QShortcut::activated, menuBar_, [this, index] { menuBar_->DoMenu(index); });
  }
  return popup;
}

void DemoHost::BuildMenus() {
  menuBar_ = new lx::TLxMenuPanel(this);
  menuBar_->setObjectName(QStringLiteral("MenuBar"));
  menuBar_->SetShowUnderscores(true);
  setMenuWidget(menuBar_);
  QMap<QString, QMenu*> menus;
  QMenu* file = AddMenu(tr("&File"));
  file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
  QMenu* view = AddMenu(tr("&View"));
  view->addActions({zoomFit_, zoomIn_, zoomOut_});
  view->addSeparator();
  view->addActions({runJob_, fineGrid_});
  view->addSeparator();
  QMenu* toolBars = view->addMenu(tr("&Toolbars"));
  for (const char* name : kToolBarNames) {
    QAction* toggle = toolBars->addAction(QString::fromLatin1(name));
    toggle->setCheckable(true);
    connect(toolBars, &QMenu::aboutToShow, toggle, [toggle, name] {
      const lx::TLxButtonPanel* strip = lx::GetLxToolBar(QString::fromLatin1(name));
      toggle->setChecked(strip && strip->GetToolBar() && strip->GetToolBar()->GetVisible());
    });
    connect(toggle, &QAction::triggered, this, [name](bool visible) {
      if (lx::TLxButtonPanel* strip = lx::GetLxToolBar(QString::fromLatin1(name)))
        if (strip->GetToolBar()) strip->GetToolBar()->SetVisible(visible);
    });
  }
  menus.insert(QStringLiteral("File"), file);
  menus.insert(QStringLiteral("View"), view);
  for (const DemoCommand& command : DemoRegistry::Instance().Commands()) {
    QMenu*& menu = menus[command.menu];
    if (!menu) menu = AddMenu(command.menu);
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

void DemoHost::LayoutChanged() {
  canvas_->update();
}

void DemoHost::ShowStatus(const QString& text) {
  bottom_->SetStatusMessage(text);
  messageExpiry_->start(5000);
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

void DemoHost::Zoom(int wheelDelta) {
  // The canvas zooms about a point by the wheel; the toolbar zooms about its centre.
  const QPointF centre = QRectF(canvas_->rect()).center();
  QWheelEvent wheel(centre, canvas_->mapToGlobal(centre), QPoint(), QPoint(0, wheelDelta),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(canvas_, &wheel);
}

void DemoHost::StartDemoJob() {
  if (job_->isActive()) return;
  jobProgress_ = 0;
  bottom_->SetProgress(0);
  messageExpiry_->stop();
  bottom_->SetStatusMessage(tr("Checking the layout..."));
  job_->start();
}

void DemoHost::AdvanceDemoJob() {
  jobProgress_ = std::min(100, jobProgress_ + 2);
  bottom_->SetProgress(jobProgress_);
  if (jobProgress_ < 100) return;
  job_->stop();
  ShowStatus(tr("Layout check finished: no errors"));
}

void DemoHost::SetGridStep(double nanometres) {
  bottom_->SetGrid(nanometres, nanometres, nanometres, nanometres);
}

void DemoHost::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (restored_) return;
  restored_ = true;
  // After the first layout pass, so that the docks have their lengths.
  QTimer::singleShot(0, this, &DemoHost::RestoreToolBars);
}

void DemoHost::closeEvent(QCloseEvent* event) {
  SaveToolBars();
  QMainWindow::closeEvent(event);
}

void DemoHost::SaveToolBars() {
  if (!PersistentLayout()) return;
  QSettings store;
  for (const char* name : kToolBarNames)
    if (lx::TLxButtonPanel* strip = lx::GetLxToolBar(QString::fromLatin1(name)))
      if (lx::TLxToolBarPanel* toolBar = strip->GetToolBar())
        toolBar->SaveState(store, QStringLiteral("Toolbars/") + QString::fromLatin1(name));
}

void DemoHost::RestoreToolBars() {
  if (!PersistentLayout()) return;
  QSettings store;
  for (const char* name : kToolBarNames) {
    const QString key = QStringLiteral("Toolbars/") + QString::fromLatin1(name);
    lx::TLxButtonPanel* strip = lx::GetLxToolBar(QString::fromLatin1(name));
    if (!strip || !strip->GetToolBar() || !store.childGroups().contains(QStringLiteral("Toolbars")))
      continue;
    const bool show = strip->GetToolBar()->RestoreState(store, key);
    // A layout that names no usable dock also answers false: hide only what was saved hidden.
    const bool hide = !show && store.value(key + QStringLiteral("/visible"), 1).toInt() == 0;
    // The toolbar may now live in another dock: look it up again by name.
    if (lx::TLxButtonPanel* now = lx::GetLxToolBar(QString::fromLatin1(name)))
      if (now->GetToolBar()) now->GetToolBar()->SetVisible(!hide);
  }
}
