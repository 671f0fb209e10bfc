#include "dialogs/LxOwnerDrawMenu.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

namespace lx {
namespace {

// Hands the measuring and drawing of the items of an owner-drawn menu to its owner; frames,
// margins and everything else stay the application style's.
class OwnerDrawStyle : public QProxyStyle {
 public:
  OwnerDrawStyle() : QProxyStyle(QStyleFactory::create(QApplication::style()->name())) {}

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    const auto* menu = qobject_cast<const TLxOwnerDrawMenu*>(widget);
    if (type != CT_MenuItem || !menu || !menu->StyledItem() || !menu->Measure())
      return QProxyStyle::sizeFromContents(type, option, size, widget);
    int width = 0, height = 0;
    menu->Measure()(menu->StyledItem(), width, height);
    return {width, height};
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* menu = qobject_cast<const TLxOwnerDrawMenu*>(widget);
    if (element != CE_MenuItem || !menu || !menu->StyledItem() || !menu->Draw()) {
      QProxyStyle::drawControl(element, option, painter, widget);
      return;
    }
    painter->save();
    menu->Draw()(menu->StyledItem(), painter, option->rect, option->state & State_Selected);
    painter->restore();
  }
};

}  // namespace

TLxOwnerDrawMenu::TLxOwnerDrawMenu(QWidget* parent, MeasureItem measure, DrawItem draw)
    : QMenu(parent), measure_(std::move(measure)), draw_(std::move(draw)) {
  auto* style = new OwnerDrawStyle;
  style->setParent(this);
  setStyle(style);
}

void TLxOwnerDrawMenu::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const {
  QMenu::initStyleOption(option, action);
  styledItem_ = const_cast<QAction*>(action);
}

}  // namespace lx
