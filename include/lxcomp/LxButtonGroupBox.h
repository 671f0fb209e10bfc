// A framed container for the host's mutually exclusive speed buttons (checkable, auto-exclusive
// QToolButton children): it adds keyboard navigation among them and a hot-tracked frame.
#pragma once

#include <QWidget>

class QTimer;
class QToolButton;

namespace lx {

class TLxButtonGroup : public QWidget {
  Q_OBJECT
  Q_PROPERTY(bool TabStop READ GetTabStop WRITE SetTabStop)
  Q_PROPERTY(int TabOrder READ GetTabOrder WRITE SetTabOrder)

 public:
  static constexpr int HotTimerInterval = 300;  // ms

  explicit TLxButtonGroup(QWidget* parent = nullptr);

  bool GetTabStop() const;
  void SetTabStop(bool value);
  int GetTabOrder() const;
  void SetTabOrder(int value);

  // True while the mouse is over the group.
  bool GetHot() const { return Hot; }
  // Repaints only when the value changes.
  void SetHot(bool value);
  // The timer that follows the mouse while the group is visible.
  const QTimer* GetTimer() const { return Timer; }
  // The last speed-button child, in child order, that is down; null when none is.
  QToolButton* CurrentButton() const;

  void DoTimer();
  void Paint();
  // Moves among the speed buttons; a key that puts one down is consumed (set to 0).
  void KeyDown(int& key, Qt::KeyboardModifiers shift);
  void CMMouseExit();
  void LxEnter();
  void LxExit();

 signals:
  // The sender is the speed button that has just been put down.
  void OnChange(QObject* sender);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QList<QWidget*> ChildControls() const;
  QToolButton* TargetOf(int key) const;
  void PutDown(QToolButton* button);

  bool Hot = false;
  QTimer* Timer = nullptr;
};

namespace LxButtonGroupBox {
void Register();
}

}  // namespace lx
