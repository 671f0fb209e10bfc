// Gallery pictures of the window furniture: docks with toolbars, a floating tool window, the
// status line and the menu bar.
#include <QAction>
#include <QMenu>

#include "DemoRegistry.h"
#include "GlyphIcon.h"
#include "lxcomp/DockPanel.h"
#include "lxcomp/MenuPanel.h"

namespace {

void AddToolBar(lx::TLxDockPanel* dock, const QString& name, const QStringList& glyphs) {
  lx::TLxToolBarPanel* toolBar = dock->GetToolBars()->Add();
  toolBar->SetName(name);
  for (const QString& glyph : glyphs) {
    lx::TLxToolBarButton* button = toolBar->GetButtons()->Add();
    if (glyph == QLatin1String("|")) {
      button->SetButtonType(lx::lxSeparator);
      continue;
    }
    auto* action = new QAction(GlyphIcon(glyph, dock->palette()), glyph, dock);
    button->SetAction(action);
    if (glyph == QLatin1String("+")) {
      button->SetButtonType(lx::lxDropDown);
      button->SetPopupMenu(new QMenu(dock));
    }
  }
}

// A window body with docks on all sides and an empty canvas.
QWidget* DockedWindow(QWidget* parent) {
  auto* body = new QWidget(parent);
  body->resize(560, 200);
  body->setAutoFillBackground(true);
  body->setBackgroundRole(QPalette::Base);
  auto* top = new lx::TLxDockPanel(body);
  top->SetAlign(lx::alTop);
  auto* bottom = new lx::TLxDockPanel(body);
  bottom->SetAlign(lx::alBottom);
  auto* left = new lx::TLxDockPanel(body);
  left->SetAlign(lx::alLeft);
  AddToolBar(top, QStringLiteral("View"),
             {QStringLiteral("⤢"), QStringLiteral("+"), QStringLiteral("−")});
  AddToolBar(top, QStringLiteral("Job"),
             {QStringLiteral("▶"), QStringLiteral("|"), QStringLiteral("#")});
  AddToolBar(left, QStringLiteral("Draw"),
             {QStringLiteral("↖"), QStringLiteral("□"), QStringLiteral("◇")});
  for (lx::TLxDockPanel* dock : {top, bottom, left})
    dock->Loaded();
  bottom->SetStatusMessage(QStringLiteral("Ready"));
  bottom->SetXY(12500, -3000);
  bottom->SetGrid(10000, 10000, 10000, 10000);
  return body;
}

LXDEMO_REGISTER(Docking) {
  DemoRegistry::Instance().Add(GalleryEntry{QStringLiteral("dock-panels"), DockedWindow});
  DemoRegistry::Instance().Add(
      GalleryEntry{QStringLiteral("floating-tool-window"), [](QWidget*) -> QWidget* {
                     // The window belongs to a toolbar of a dock that lives as long as the picture.
                     QWidget* body = DockedWindow(nullptr);
                     lx::TLxButtonPanel* strip = lx::GetLxToolBar(QStringLiteral("Job"));
                     if (!strip) return body;
                     strip->MakeFloating(120, 120, false);
                     QWidget* window = strip->GetFloatingWindow();
                     QObject::connect(window, &QObject::destroyed, body, &QObject::deleteLater);
                     return window;
                   }});
  DemoRegistry::Instance().Add(
      GalleryEntry{QStringLiteral("status-line"), [](QWidget* parent) -> QWidget* {
                     auto* body = new QWidget(parent);
                     body->resize(900, 19);
                     auto* bottom = new lx::TLxDockPanel(body);
                     bottom->SetAlign(lx::alBottom);
                     bottom->Loaded();
                     bottom->SetSize(-1);
                     bottom->SetStatusMessage(QStringLiteral("Layout check finished: no errors"));
                     bottom->SetXY(1234567, -500);
                     bottom->SetGrid(1000, 500, 2000, 3000);
                     return body;
                   }});
  DemoRegistry::Instance().Add(
      GalleryEntry{QStringLiteral("status-line-progress"), [](QWidget* parent) -> QWidget* {
                     auto* body = new QWidget(parent);
                     body->resize(900, 19);
                     auto* bottom = new lx::TLxDockPanel(body);
                     bottom->SetAlign(lx::alBottom);
                     bottom->Loaded();
                     bottom->SetSize(-1);
                     bottom->SetProgress(60);
                     bottom->SetXY(250000, 125000);
                     bottom->SetGrid(10000, 10000, 10000, 10000);
                     return body;
                   }});
  DemoRegistry::Instance().Add(GalleryEntry{
      QStringLiteral("menu-bar"), [](QWidget* parent) -> QWidget* {
        auto* bar = new lx::TLxMenuPanel(parent);
        bar->resize(520, 24);
        bar->SetShowUnderscores(true);
        for (const char* title : {"&File", "&Edit", "&View", "&Objects", "&Tools", "&Help"}) {
          lx::TLxMenu* menu = bar->GetMenus()->Add();
          menu->SetName(QString::fromLatin1(title));
        }
        return bar;
      }});
}

}  // namespace
