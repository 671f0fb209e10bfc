#include "lxcomp/UnitFloatingWindow.h"

#include <QCloseEvent>
#include <QCursor>

#include "lxcomp/DockPanel.h"
#include "lxcomp/LxPlatform.h"
#include "lxcomp/LxRegistry.h"

namespace lx {

TLxFloatingToolWindow::TLxFloatingToolWindow(TLxButtonPanel* strip)
    : QWidget(strip, Qt::Tool | Qt::WindowCloseButtonHint | Qt::WindowTitleHint), Strip(strip) {
  setAttribute(Qt::WA_DeleteOnClose, false);
  setAutoFillBackground(true);
  Settle.setSingleShot(true);
  Settle.setInterval(250);
  connect(&Settle, &QTimer::timeout, this, [this] { DockWhereDropped(QCursor::pos()); });
  // As a child of the strip, Qt makes it a transient of the main form: it floats above it.
}

void TLxFloatingToolWindow::SetClientSize(int width, int height) {
  setFixedSize(std::max(width, 1), std::max(height, 1));
}

void TLxFloatingToolWindow::moveEvent(QMoveEvent*) {
  // The window manager moves the window while the user drags its title bar; the toolbar docks
  // when the moves stop with the mouse over a dock.
  if (Strip && !Strip->GetDragging() && isVisible()) Settle.start();
}

void TLxFloatingToolWindow::DockWhereDropped(QPoint cursor) {
  if (!Strip || Strip->GetDragging() || !Strip->IsFloating() || !isVisible()) return;
  // Only a drop by the user: the mouse holds the window (its title bar or its body).
  if (!frameGeometry().adjusted(-8, -8, 8, 8).contains(cursor)) return;
  TLxDockPanel* dock = TLxButtonPanel::FindDock(cursor.x(), cursor.y());
  if (dock && dock->GetIsLoaded()) Strip->MakeDocked(dock, cursor.x(), cursor.y());
}

void TLxFloatingToolWindow::closeEvent(QCloseEvent* event) {
  // Closing the window hides the toolbar; the host can show it again by name.
  if (Strip && Strip->GetToolBar()) {
    event->ignore();
    Strip->GetToolBar()->SetVisible(false);
    return;
  }
  event->accept();
}

namespace UnitFloatingWindow {

void Register() {
  RegisterComponents(
      QStringLiteral("Quarnel"),
      {{QStringLiteral("TLxFloatingToolWindow"), QStringLiteral("lxcomp/UnitFloatingWindow.h"),
        QStringLiteral("Floating tool window of a toolbar"), nullptr}});
}

}  // namespace UnitFloatingWindow

}  // namespace lx
