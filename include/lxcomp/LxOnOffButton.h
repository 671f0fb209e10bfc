// A push button that toggles between on and off on every press: a styled check button.
#pragma once

#include <QFont>
#include <QWidget>

#include "lxcomp/LxPlatform.h"

namespace lx {

class TLxOnOffButton : public QWidget {
  Q_OBJECT
  Q_PROPERTY(bool TabStop READ GetTabStop WRITE SetTabStop)
  Q_PROPERTY(int TabOrder READ GetTabOrder WRITE SetTabOrder)
  Q_PROPERTY(QString Caption READ GetCaption WRITE SetCaption)
  Q_PROPERTY(bool Down READ GetDown WRITE SetDown)
  Q_PROPERTY(QFont Font READ GetFont WRITE SetFont)

 public:
  explicit TLxOnOffButton(QWidget* parent = nullptr);

  bool GetTabStop() const;
  void SetTabStop(bool value);
  int GetTabOrder() const;
  void SetTabOrder(int value);
  QString GetCaption() const { return Caption; }
  void SetCaption(const QString& value);
  bool GetDown() const { return Down; }
  // Repaints only when the value changes.
  void SetDown(bool value);
  QFont GetFont() const { return font(); }
  void SetFont(const QFont& value) { setFont(value); }

  // True while the mouse is over the button.
  bool GetHot() const { return Hot; }
  // 0 paints the style's face colour behind the button.
  TColor GetBackColor() const { return BackColor; }
  void SetBackColor(TColor value);

  QSize sizeHint() const override;

  void Paint();
  void MouseMove(Qt::KeyboardModifiers shift, int x, int y);
  void MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
  void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
  void CMMouseExit();
  // Space toggles; every key that reaches the button is consumed (set to 0).
  void KeyDown(int& key, Qt::KeyboardModifiers shift);
  void LxEnter();
  void LxExit();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Toggle();

  QString Caption;
  bool Down = false;
  bool Hot = false;
  TColor BackColor = 0;
};

namespace LxOnOffButton {
void Register();
}

}  // namespace lx
