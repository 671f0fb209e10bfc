#include "lxcomp/LxColorPopup.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <cstdint>

namespace lx {
namespace {

constexpr int kPictureSize = 128;
constexpr int kGreyRows = 16;

// The one popup that is open now; popups own the mouse and keyboard, so there is at most one.
QPointer<TLxColorPopup>& ActivePopup() {
  static QPointer<TLxColorPopup> active;
  return active;
}

// System colour values carry the high bit and a system colour number in the low byte.
QPalette::ColorRole SystemColorRole(int index) {
  switch (index) {
    case 5:  // window
      return QPalette::Base;
    case 8:  // window text
      return QPalette::Text;
    case 13:  // highlight
      return QPalette::Highlight;
    case 14:  // highlight text
      return QPalette::HighlightedText;
    case 18:  // button text
      return QPalette::ButtonText;
    case 15:  // button face
    default:
      return QPalette::Button;
  }
}

// Hue across, and down the rows: pale tints to the pure hue, then darker shades.
QColor PictureColor(int x, int y) {
  const int hue = x * 360 / kPictureSize;
  const int hueRows = kPictureSize - kGreyRows;
  const int half = hueRows / 2;
  if (y < half) return QColor::fromHsv(hue, 40 + 215 * y / (half - 1), 255);
  return QColor::fromHsv(hue, 255, 255 - 200 * (y - half) / (hueRows - half - 1));
}

QImage MakePicture() {
  QImage picture(kPictureSize, kPictureSize, QImage::Format_RGB32);
  for (int y = 0; y < kPictureSize - kGreyRows; ++y)
    for (int x = 0; x < kPictureSize; ++x)
      picture.setPixelColor(x, y, PictureColor(x, y));
  for (int y = kPictureSize - kGreyRows; y < kPictureSize; ++y)
    for (int x = 0; x < kPictureSize; ++x) {
      const int grey = x * 255 / (kPictureSize - 1);
      picture.setPixelColor(x, y, QColor(grey, grey, grey));
    }
  return picture;
}

}  // namespace

TColor ColorToRGB(TColor color) {
  const auto value = static_cast<std::uint32_t>(color);
  if (color < 0) {
    const int index = static_cast<int>(value & 0xff);
    return FromQColor(QApplication::palette().color(SystemColorRole(index)));
  }
  return static_cast<TColor>(value & 0xffffff);
}

bool IsLightColor(TColor color) {
  const auto rgb = static_cast<std::uint32_t>(ColorToRGB(color));
  const int sum = static_cast<int>((rgb & 0xff) + ((rgb >> 8) & 0xff) + ((rgb >> 16) & 0xff));
  return sum > 381;
}

// ---------------------------------------------------------------------------------------------

TLxColorBox::TLxColorBox(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::PointingHandCursor);
}

void TLxColorBox::SetColor(TColor color) {
  if (color == color_) return;
  color_ = color;
  update();
  emit OnChange(this);
}

void TLxColorBox::ShowPreview(TColor color) {
  preview_ = color;
  repaint();
}

void TLxColorBox::HidePreview() {
  if (!preview_) return;
  preview_.reset();
  repaint();
}

void TLxColorBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ToQColor(ColorToRGB(GetShownColor())));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.end();
  emit OnPaint(this);
}

void TLxColorBox::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton;
  QWidget::mousePressEvent(event);
}

void TLxColorBox::mouseReleaseEvent(QMouseEvent* event) {
  const bool click =
      pressed_ && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
  pressed_ = false;
  if (click) emit OnClick(this);
  QWidget::mouseReleaseEvent(event);
}

// ---------------------------------------------------------------------------------------------

TLxColorPopup::TLxColorPopup(QWidget* parent, TLxColorBox* target)
    : QWidget(parent), target_(target) {
  setObjectName(QStringLiteral("LxColorPopup"));
  CreateParams();
  colorImage_ = new QLabel(this);
  colorImage_->setObjectName(QStringLiteral("ColorImage"));
  colorImage_->setPixmap(QPixmap::fromImage(ColorPicture()));
  colorImage_->setScaledContents(true);
  colorImage_->setFixedSize(kPictureSize, kPictureSize);
  colorImage_->setMouseTracking(true);
  colorImage_->setCursor(Qt::CrossCursor);
  colorImage_->installEventFilter(this);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->addWidget(colorImage_);
  setFocusPolicy(Qt::StrongFocus);
}

TLxColorPopup::~TLxColorPopup() {
  if (ActivePopup() == this) ActivePopup() = nullptr;
}

void TLxColorPopup::CreateParams() {
  setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
  setAttribute(Qt::WA_ShowWithoutActivating);
}

void TLxColorPopup::SetTarget(TLxColorBox* target) {
  if (target_ == target) return;
  if (target_) target_->HidePreview();
  target_ = target;
}

void TLxColorPopup::PopupAt(const QPoint& screenPosition) {
  move(screenPosition);
  show();
}

void TLxColorPopup::PopupBelowTarget() {
  if (!target_) return;
  PopupAt(target_->mapToGlobal(QPoint(0, target_->height())));
}

TLxColorPopup* TLxColorPopup::Active() {
  return ActivePopup().data();
}

const QImage& TLxColorPopup::ColorPicture() {
  static const QImage picture = MakePicture();
  return picture;
}

TColor TLxColorPopup::ColorAt(const QPoint& position) const {
  const QImage& picture = ColorPicture();
  const int w = std::max(1, colorImage_->width());
  const int h = std::max(1, colorImage_->height());
  const int x = std::clamp(position.x() * picture.width() / w, 0, picture.width() - 1);
  const int y = std::clamp(position.y() * picture.height() / h, 0, picture.height() - 1);
  return FromQColor(picture.pixelColor(x, y));
}

void TLxColorPopup::ColorImageMouseMove(const QPoint& position) {
  current_ = ColorAt(position);
  if (target_) target_->ShowPreview(current_);
}

void TLxColorPopup::ColorImageMouseUp(const QPoint& position) {
  current_ = ColorAt(position);
  if (target_) target_->SetColor(current_);
  close();
}

void TLxColorPopup::FormShow() {
  ActivePopup() = this;
  setFocus(Qt::PopupFocusReason);
}

void TLxColorPopup::FormClose() {
  if (ActivePopup() == this) ActivePopup() = nullptr;
  if (target_) target_->HidePreview();
}

void TLxColorPopup::WmKillFocus() {
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

bool TLxColorPopup::eventFilter(QObject* watched, QEvent* event) {
  if (watched == colorImage_) {
    if (event->type() == QEvent::MouseMove) {
      auto* mouse = static_cast<QMouseEvent*>(event);
      // While a button is held outside the picture Qt still reports moves here; only the
      // picture itself previews.
      if (colorImage_->rect().contains(mouse->position().toPoint()))
        ColorImageMouseMove(mouse->position().toPoint());
      return true;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
      auto* mouse = static_cast<QMouseEvent*>(event);
      if (colorImage_->rect().contains(mouse->position().toPoint()))
        ColorImageMouseUp(mouse->position().toPoint());
      else
        close();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void TLxColorPopup::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  FormShow();
}

void TLxColorPopup::hideEvent(QHideEvent* event) {
  FormClose();
  QWidget::hideEvent(event);
}

void TLxColorPopup::keyPressEvent(QKeyEvent* event) {
  // Every key is swallowed while the popup is open; Escape closes it.
  event->accept();
  if (event->key() == Qt::Key_Escape) close();
}

void TLxColorPopup::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  if (isVisible() && event->reason() == Qt::ActiveWindowFocusReason) WmKillFocus();
}

void TLxColorPopup::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Shadow));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace lx
