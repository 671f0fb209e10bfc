#include "lxcomp/LxLayer.h"

#include <QImage>
#include <QPainter>

namespace lx {
namespace {

// Indexed by (number AND 15) XOR 8, so that layers 0, 16, 32 ... take entry 8.
constexpr TColor kLayerColors[16] = {0x808080, 0xff0000, 0x00ff00, 0xffff00, 0x0000ff, 0xff00ff,
                                     0x00ffff, 0xe0e0e0, 0x808000, 0xe08080, 0x60e060, 0xa0a020,
                                     0xb9bcc6, 0x800080, 0x008080, 0xc0c0c0};
constexpr int kSolidFill = -1;
constexpr unsigned kFillStyleCount = 7;
constexpr unsigned kLineStyleCount = 5;

QString DefaultLongName(int index, int datatype) {
  return datatype != 0 ? QStringLiteral("Layer %1 Datatype %2").arg(index).arg(datatype)
                       : QStringLiteral("Layer %1").arg(index);
}

QString DefaultShortName(int index, int datatype) {
  return datatype != 0 ? QStringLiteral("L%1D%2").arg(index).arg(datatype)
                       : QStringLiteral("L%1").arg(index);
}

Qt::PenStyle PenStyleOf(int lineStyle) {
  switch (lineStyle) {
    case 1:
      return Qt::DashLine;
    case 2:
      return Qt::DotLine;
    case 3:
      return Qt::DashDotLine;
    case 4:
      return Qt::DashDotDotLine;
    default:
      return Qt::SolidLine;
  }
}

Qt::BrushStyle BrushStyleOf(int fillStyle) {
  switch (fillStyle) {
    case 0:
      return Qt::HorPattern;
    case 1:
      return Qt::VerPattern;
    case 2:
      return Qt::FDiagPattern;
    case 3:
      return Qt::BDiagPattern;
    case 4:
      return Qt::CrossPattern;
    case 5:
      return Qt::DiagCrossPattern;
    case 6:
      return Qt::NoBrush;
    default:
      return Qt::SolidPattern;
  }
}

// Fills the whole bitmap white, then draws the inset rectangle (2, 2) .. (w - 2, h - 2), the
// right and bottom edges excluded, with the pen and brush given.
void DrawSwatch(QImage* target, int w, int h, const QPen& pen, const QBrush& brush) {
  QPainter painter(target);
  painter.fillRect(0, 0, w, h, Qt::white);
  if (w < 5 || h < 5) return;
  painter.setPen(pen);
  painter.setBrush(brush);
  painter.drawRect(2, 2, w - 5, h - 5);
}

}  // namespace

TK5Layer::TK5Layer(int number, int index, int datatype, const QString& longName, int fillColor,
                   int lineColor, char fillStyle, char lineStyle, bool clearField)
    : LongName(longName.isEmpty() ? DefaultLongName(index, datatype) : longName),
      ShortName(DefaultShortName(index, datatype)),
      Number(number),
      Index(index),
      Datatype(datatype),
      FillColor(fillColor),
      LineColor(lineColor),
      FillStyle(static_cast<std::int8_t>(fillStyle)),
      LineStyle(static_cast<std::int8_t>(lineStyle)),
      IsClearField(clearField) {
  if (fillColor == -1) {
    FillColor = LineColor = DefaultColor(number);
    FillStyle = kSolidFill;
    LineStyle = 0;
  } else {
    NormaliseStyles();
  }
}

TK5Layer::TK5Layer(const TK5Layer* other) {
  if (other) {
    *this = *other;
    NormaliseStyles();
  } else {
    *this = TK5Layer();
  }
  Next = nullptr;
  LinkT = 0;
}

void TK5Layer::NormaliseStyles() {
  if (LineColor < 0) LineColor = FillColor;
  if (static_cast<std::uint8_t>(FillStyle) >= kFillStyleCount) FillStyle = kSolidFill;
  if (static_cast<std::uint8_t>(LineStyle) >= kLineStyleCount) LineStyle = 0;
}

TColor TK5Layer::DefaultColor(int number) {
  if (number == 254) return 0xf616ba;
  return kLayerColors[(number & 15) ^ 8];
}

bool TK5Layer::operator==(const TK5Layer&) const {
  return false;
}

void TK5Layer::SetLongName(const QString& name) {
  LongName = name;
}

void TK5Layer::SetShortName(const QString& name) {
  ShortName = name;
}

void TK5Layer::DrawBitmap(QImage* image, QImage* mask) const {
  if (!image || image->isNull()) return;
  const int w = image->width(), h = image->height();
  const Qt::PenStyle penStyle = PenStyleOf(LineStyle);
  const Qt::BrushStyle brushStyle = BrushStyleOf(FillStyle);
  DrawSwatch(image, w, h, QPen(ToQColor(LineColor), 1, penStyle),
             QBrush(ToQColor(FillColor), brushStyle));
  if (mask && !mask->isNull())
    DrawSwatch(mask, w, h, QPen(Qt::black, 1, penStyle), QBrush(Qt::black, brushStyle));
}

}  // namespace lx
