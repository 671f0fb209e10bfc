#include "lxcomp/UnitFloatingWindow.h"

#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QTimer>

#include "lxcomp/DockPanel.h"
#include "lxcomp/LxPlatform.h"
#include "lxcomp/LxRegistry.h"

namespace lx {

TLxFloatingToolWindow::TLxFloatingToolWindow(TLxButtonPanel* strip)
    : QWidget(strip, Qt::Tool | Qt::WindowCloseButtonHint | Qt::WindowTitleHint), Strip(strip) {
  setAttribute(Qt::WA_DeleteOnClose, false);
  setAutoFillBackground(true);
  // As a child of the strip, Qt makes it a transient of the main form: it floats above it.
}

void TLxFloatingToolWindow::SetClientSize(int width, int height) {
  setFixedSize(std::max(width, 1), std::max(height, 1));
}

void TLxFloatingToolWindow::moveEvent(QMoveEvent*) {
  // The user drags the window by its title bar: over a dock, the toolbar docks there.
  if (!Strip || Strip->GetDragging() || !isVisible()) return;
  if (!(QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
  const QPoint cursor = QCursor::pos();
  TLxDockPanel* dock = TLxButtonPanel::FindDock(cursor.x(), cursor.y());
  if (!dock || !dock->GetIsLoaded()) return;
  QPointer<TLxButtonPanel> strip = Strip;
  QTimer::singleShot(0, strip, [strip, dock = QPointer<TLxDockPanel>(dock), cursor] {
    if (strip && dock && strip->IsFloating()) strip->MakeDocked(dock, cursor.x(), cursor.y());
  });
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
