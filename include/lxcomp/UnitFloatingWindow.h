// The small tool window that holds the buttons of a toolbar torn off its dock.
#pragma once

#include <QTimer>
#include <QWidget>

namespace lx {

class TLxButtonPanel;

class TLxFloatingToolWindow : public QWidget {
  Q_OBJECT
 public:
  // `strip` is the toolbar strip whose buttons the window shows while floating.
  explicit TLxFloatingToolWindow(TLxButtonPanel* strip);
  TLxButtonPanel* GetStrip() const { return Strip; }
  // Sets the client area and keeps it from being resized by the user.
  void SetClientSize(int width, int height);
  // Docks the toolbar when the window was dropped with the mouse (screen point) over a dock.
  void DockWhereDropped(QPoint mouse);

 protected:
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  TLxButtonPanel* Strip;
  QTimer Settle;  // a move has ended when no other follows within its interval
};

namespace UnitFloatingWindow {
void Register();
}

}  // namespace lx
