#include "Gallery.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTextStream>
#include <QWidget>

#include <memory>

#include "DemoHost.h"
#include "DemoRegistry.h"
#include "lxcomp/LxPlatform.h"

namespace {

QPalette DarkPalette() {
  QPalette p;
  const QColor window(45, 45, 48), base(30, 30, 32), text(230, 230, 230), mid(90, 90, 96);
  p.setColor(QPalette::Window, window);
  p.setColor(QPalette::WindowText, text);
  p.setColor(QPalette::Base, base);
  p.setColor(QPalette::AlternateBase, window);
  p.setColor(QPalette::Text, text);
  p.setColor(QPalette::Button, QColor(58, 58, 62));
  p.setColor(QPalette::ButtonText, text);
  p.setColor(QPalette::Highlight, QColor(42, 130, 218));
  p.setColor(QPalette::HighlightedText, Qt::white);
  p.setColor(QPalette::ToolTipBase, window);
  p.setColor(QPalette::ToolTipText, text);
  p.setColor(QPalette::PlaceholderText, mid);
  p.setColor(QPalette::Mid, mid);
  p.setColor(QPalette::Dark, QColor(20, 20, 22));
  p.setColor(QPalette::Light, QColor(80, 80, 85));
  p.setColor(QPalette::Disabled, QPalette::Text, mid);
  p.setColor(QPalette::Disabled, QPalette::WindowText, mid);
  p.setColor(QPalette::Disabled, QPalette::ButtonText, mid);
  return p;
}

bool Render(QWidget* widget, const QString& file) {
  widget->show();
  for (int i = 0; i < 5; ++i)
    QApplication::processEvents();
  const bool saved = widget->grab().save(file);
  widget->hide();
  return saved;
}

}  // namespace

int RenderGallery(const QString& dir) {
  QDir().mkpath(dir);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  const QString suffix = qgetenv("QT_SCALE_FACTOR") == "2" ? QStringLiteral("@2x") : QString();
  const QPalette light = QApplication::style()->standardPalette();
  const std::pair<QString, QPalette> themes[] = {{QStringLiteral("light"), light},
                                                 {QStringLiteral("dark"), DarkPalette()}};
  int written = 0;
  for (const auto& [theme, palette] : themes) {
    QApplication::setPalette(palette);
    auto host = std::make_unique<DemoHost>();
    lx::SetMainForm(host.get());
    host->resize(1100, 720);
    if (Render(host.get(), QDir(dir).filePath("main-window-" + theme + suffix + ".png"))) ++written;
    for (const GalleryEntry& entry : DemoRegistry::Instance().Gallery()) {
      std::unique_ptr<QWidget> widget(entry.create(nullptr));
      if (!widget) continue;
      if (Render(widget.get(), QDir(dir).filePath(entry.name + "-" + theme + suffix + ".png")))
        ++written;
    }
    lx::SetMainForm(nullptr);
  }
  return written;
}
