// The status line of a bottom dock: message, progress bar, cursor position and grid, and the
// text builders behind them.
#include <QImage>
#include <QPainter>
#include <QStyleOption>
#include <QTimer>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cwchar>

#include "lxcomp/DockPanel.h"
#include "lxcomp/LxPlatform.h"

namespace lx {
namespace {

// Copies at most `size` characters (the last one becoming the terminator).
void CopyOut(const QString& text, wchar_t* out, int size) {
  if (!out || size <= 0) return;
  const std::wstring wide = text.toStdWString();
  const size_t count = std::min(wide.size(), static_cast<size_t>(size - 1));
  std::wmemcpy(out, wide.data(), count);
  out[count] = L'\0';
}

QString Microns(const wchar_t* prefix, double value) {
  wchar_t buffer[64];
  PrintMicrons(prefix, value, buffer, 64);
  return QString::fromWCharArray(buffer);
}

QRect Band(int left, int top, int right, int bottom) {
  return QRect(QPoint(left, top), QPoint(right - 1, bottom - 1));
}

}  // namespace

void PrintMicrons(const wchar_t* prefix, double value, wchar_t* out, int size) {
  if (!out || size <= 0) return;
  const QString head = prefix ? QString::fromWCharArray(prefix) : QString();
  // Six decimals rounded as printf's "%.6f" in the C locale (exact halves to even).
  char digits[400];
  const auto printed =
      std::to_chars(digits, digits + sizeof digits, value / 1000.0, std::chars_format::fixed, 6);
  const qsizetype count = printed.ec == std::errc() ? printed.ptr - digits : 0;
  CopyOut(head + QString::fromLatin1(digits, count), out, size);
  // Trailing zeros of the fraction go, and the decimal point with them when nothing follows.
  const size_t headLength = std::min(static_cast<size_t>(head.size()), std::wcslen(out));
  wchar_t* number = out + headLength;
  if (!std::wcschr(number, L'.') && !std::wcschr(number, L',')) return;
  size_t length = std::wcslen(number);
  while (length > 0 && number[length - 1] == L'0')
    number[--length] = L'\0';
  if (length > 0 && (number[length - 1] == L'.' || number[length - 1] == L','))
    number[--length] = L'\0';
}

void PrintGridval(const wchar_t* prefix, double a, double b, double c, double d, wchar_t* out,
                  int size) {
  QString text = Microns(prefix, a);
  const QString second = Microns(L"", b), third = Microns(L"", c), fourth = Microns(L"", d);
  if (a != c) {
    if (b != a) text += QStringLiteral(" (") + second + QStringLiteral(")");
    text += QStringLiteral(", ") + third;
    const bool showFourth = b != a ? c / 1000.0 != d / 1000.0 : d != c;
    if (showFourth) text += QStringLiteral(" (") + fourth + QStringLiteral(")");
  } else if (b != a) {
    text += QStringLiteral(" (") + second + QStringLiteral(")");
  }
  CopyOut(text, out, size);
}

void DrawRotatedElement(QPainter* painter, const QStyle* style, int primitiveElement, int x, int y,
                        int length, int thickness) {
  if (!painter || !style || length <= 0 || thickness <= 0) return;
  QImage image(length, thickness, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  {
    QPainter imagePainter(&image);
    QStyleOption option;
    option.rect = image.rect();
    option.state = QStyle::State_Enabled | QStyle::State_Horizontal;
    style->drawPrimitive(static_cast<QStyle::PrimitiveElement>(primitiveElement), &option,
                         &imagePainter);
  }
  painter->save();
  painter->translate(x + thickness, y);
  painter->rotate(90);
  painter->drawImage(0, 0, image);
  painter->restore();
}

// ---- dock panel: status line ----

QRect TLxDockPanel::YRect() const {
  const int h = StatusHeight;
  return QRect(width() - 7 * h, height() - h, 7 * h, h);
}

QRect TLxDockPanel::XRect() const {
  const int h = StatusHeight;
  return QRect(width() - 14 * h, height() - h, 7 * h, h);
}

QRect TLxDockPanel::GridRect() const {
  const int h = StatusHeight;
  return QRect(width() - 28 * h, height() - h, 14 * h, h);
}

QRect TLxDockPanel::MessageRect() const {
  const int h = StatusHeight;
  return Band(h / 4, height() - h, GridRect().left() - h / 4, height());
}

QRect TLxDockPanel::ProgressRect() const {
  const int h = StatusHeight;
  return Band(h / 4, height() - h, static_cast<int>(width() - 28.5 * h), height());
}

void TLxDockPanel::SetScaleFactor(float factor) {
  // Beyond a hundredfold text no field fits a screen, and the field arithmetic would overflow.
  if (factor == ScaleFactor || !(factor > 0.0f && factor <= 100.0f)) return;
  ScaleFactor = factor;
  update();
}

void TLxDockPanel::SetStatusMessage(const QString& text) {
  if (text == StatusMessage) return;
  StatusMessage = text;
  // The message field reaches a quarter field height past the progress band: both go.
  update(ProgressRect().united(MessageRect()));
}

void TLxDockPanel::SetProgress(int percent) {
  if (percent == Progress) return;
  Progress = percent;
  update(ProgressRect());
}

void TLxDockPanel::SetXY(double x, double y) {
  if (x == XValue && y == YValue) return;
  XValue = x;
  YValue = y;
  wchar_t buffer[24];
  PrintMicrons(L"x: ", x, buffer, 24);
  XText = QString::fromWCharArray(buffer);
  PrintMicrons(L"y: ", y, buffer, 24);
  YText = QString::fromWCharArray(buffer);
  update(XRect());
  update(YRect());
}

void TLxDockPanel::SetGrid(double a, double b, double c, double d) {
  if (a == GridValues[0] && b == GridValues[1] && c == GridValues[2] && d == GridValues[3]) return;
  GridValues = {a, b, c, d};
  wchar_t buffer[64];
  PrintGridval(L"grid: ", a, b, c, d, buffer, 64);
  GridText = QString::fromWCharArray(buffer);
  update(GridRect());
}

void TLxDockPanel::SetX(const wchar_t* text) {
  const QString value = text ? QString::fromWCharArray(text) : QString();
  if (value == XText) return;
  XText = value;
  XValue = 1.0;
  repaint(XRect());
}

void TLxDockPanel::SetY(const wchar_t* text) {
  const QString value = text ? QString::fromWCharArray(text) : QString();
  if (value == YText) return;
  YText = value;
  YValue = 1.0;
  repaint(XRect().united(YRect()));
}

void TLxDockPanel::SetGrid(const wchar_t* text) {
  const QString value = text ? QString::fromWCharArray(text) : QString();
  if (value == GridText) return;
  GridText = value;
  GridValues = {1.0, 1.0, 1.0, 1.0};
  update(GridRect());
}

void TLxDockPanel::UpdateStatusScale() {
  const double scale = lx::ScaleFactor(this) * ScaleFactor;
  if (scale == EffectiveScale) return;
  EffectiveScale = scale;
  StatusHeight = static_cast<int>(EffectiveScale * 18.0 + 0.5);
  if (!IsLoaded) return;
  // The dock's height follows; not from inside the paint.
  QTimer::singleShot(0, this, [this] { SetSize(LastSize); });
}

void TLxDockPanel::Paint(QPainter& painter) {
  UpdateStatusScale();
  const bool styled = VisualStylesActive();
  painter.fillRect(rect(), palette().color(styled ? QPalette::Window : QPalette::Button));
  if (Align == alBottom) PaintStatus(painter);
}

void TLxDockPanel::PaintStatus(QPainter& painter) {
  const int h = StatusHeight;
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setBackgroundMode(Qt::TransparentMode);
  const auto field = [&](const QRect& area, const QString& text) {
    if (area.left() < 0) return;
    painter.drawText(area.adjusted(h / 4, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
  };
  field(YRect(), YText);
  field(XRect(), XText);
  field(GridRect(), GridText);
  const QRect message = MessageRect();
  if (Progress < 100) {
    PaintProgress(painter);
  } else if (message.width() > 0) {
    const QString line = painter.fontMetrics().elidedText(
        QString(StatusMessage).replace(QLatin1Char('\n'), QLatin1Char(' ')), Qt::ElideRight,
        message.width());
    painter.drawText(message, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
  }
  QWidget* main = MainForm();
  if (VisualStylesActive() && !(main && main->isMaximized()) && h > 0) {
    QStyleOptionSizeGrip grip;
    grip.initFrom(this);
    grip.rect = Band(width() - h, height() - h, width(), height() - h / 8);
    grip.corner = Qt::BottomRightCorner;
    style()->drawControl(QStyle::CE_SizeGrip, &grip, &painter, this);
  }
}

void TLxDockPanel::PaintProgress(QPainter& painter) {
  const QRect area = ProgressRect();
  if (area.width() <= 0) return;
  const bool styled = VisualStylesActive();
  const QColor background = palette().color(styled ? QPalette::Window : QPalette::Button);
  const QColor bar = styled ? palette().color(QPalette::Highlight) : QColor(0, 0, 255);
  const int top = area.top(), bottom = area.bottom() + 1;
  const int right = area.right() + 1;
  const int k = (top + bottom) / 4, mid = (top + bottom) / 2;
  painter.save();
  painter.setClipRect(area);
  painter.fillRect(area, background);
  painter.setPen(QPen(QColor(0x80, 0x80, 0x80), (top + bottom) / 8, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(area.left() + k, mid, right - k, mid);
  // Percentages beyond 0 ... 100 run the bar out of the (clipped) band, and no further.
  const double reach =
      static_cast<double>(right - area.left() - 2 * k) * Progress / 100.0 + area.left() + k;
  const int end = static_cast<int>(std::clamp<double>(reach, area.left() - k, right + k));
  painter.setPen(QPen(bar, k, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(area.left() + k, mid, end, mid);
  painter.restore();
}

}  // namespace lx
