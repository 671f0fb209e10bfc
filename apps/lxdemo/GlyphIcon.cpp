#include "GlyphIcon.h"

#include <QPainter>
#include <QPixmap>

QIcon GlyphIcon(const QString& glyph, const QPalette& palette) {
  QPixmap pixmap(40, 40);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont font = painter.font();
  font.setPixelSize(32);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(palette.color(QPalette::ButtonText));
  painter.drawText(pixmap.rect(), Qt::AlignCenter, glyph);
  return QIcon(pixmap);
}
