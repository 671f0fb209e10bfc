// Colour choice by mouse: a colour box that shows one colour, and the borderless colour popup
// that opens below such a box, previews the colour under the mouse in the box and picks the
// colour where the button is released.
#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>

#include <optional>

#include "lxcomp/LxPlatform.h"

class QLabel;

namespace lx {

// True when the colour counts as light, so that dark text is the readable contrast over it:
// red + green + blue above 381. System colours are resolved through the application palette.
bool IsLightColor(TColor color);

// The plain red-green-blue value of a colour; system colour values (high bit set) are resolved
// through the application palette.
TColor ColorToRGB(TColor color);

// A paint box that holds a colour and fills itself with it. While a colour popup previews a
// colour, the box shows the preview instead of its stored colour.
class TLxColorBox : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int Color READ GetColor WRITE SetColor)
 public:
  explicit TLxColorBox(QWidget* parent = nullptr);
  TColor GetColor() const { return color_; }
  // Stores the colour and repaints when it changed.
  void SetColor(TColor color);
  // The colour painted now: the preview while there is one, else the stored colour.
  TColor GetShownColor() const { return preview_.value_or(color_); }
  void ShowPreview(TColor color);
  void HidePreview();
  QSize sizeHint() const override { return {40, 22}; }

 signals:
  // After the box has painted itself, so that an owner can follow its colour.
  void OnPaint(QObject* sender);
  // The stored colour changed.
  void OnChange(QObject* sender);
  // A left-button click (press and release inside the box).
  void OnClick(QObject* sender);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  TColor color_ = 0xffffff;
  std::optional<TColor> preview_;
  bool pressed_ = false;
};

// The colour popup: a 128 x 128 colour picture in a borderless popup window. It owns the mouse
// and the keyboard while it is open: moving over the picture previews the colour in the target
// box, releasing a button picks it and closes; Escape, a click outside or losing the keyboard
// closes it without a pick. Closing hides it, so its owner can aim it at another box and reuse it.
class TLxColorPopup : public QWidget {
  Q_OBJECT
 public:
  TLxColorPopup(QWidget* parent, TLxColorBox* target);
  ~TLxColorPopup() override;

  TLxColorBox* GetTarget() const { return target_; }
  void SetTarget(TLxColorBox* target);
  // The colour under the mouse (the last previewed one).
  TColor GetCurrentColor() const { return current_; }
  // Opens the popup with its top-left corner at a screen position.
  void PopupAt(const QPoint& screenPosition);
  // Opens the popup directly below the target box, left edges aligned.
  void PopupBelowTarget();

  // The popup that is open now, or null.
  static TLxColorPopup* Active();
  // The colour picture, 128 x 128: rows of hues from light to dark and a row of greys.
  static const QImage& ColorPicture();

  // Sets the window kind: a borderless popup that stays on top.
  void CreateParams();
  // Positions in ColorImage's own coordinates.
  void ColorImageMouseMove(const QPoint& position);
  void ColorImageMouseUp(const QPoint& position);
  void FormShow();
  void FormClose();
  // The keyboard went elsewhere: close, after the current event has been handled.
  void WmKillFocus();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  TColor ColorAt(const QPoint& position) const;
  QPointer<TLxColorBox> target_;
  QLabel* colorImage_ = nullptr;
  TColor current_ = 0;
};

}  // namespace lx
