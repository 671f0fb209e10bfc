// A popup menu whose items are measured and drawn by their owner, as image-only style menus
// need: the owner gives each item's size and paints it, selected or not.
#pragma once

#include <QMenu>

#include <functional>

class QStyleOptionMenuItem;

namespace lx {

class TLxOwnerDrawMenu : public QMenu {
  Q_OBJECT
 public:
  using MeasureItem = std::function<void(QAction* item, int& width, int& height)>;
  using DrawItem =
      std::function<void(QAction* item, QPainter* canvas, const QRect& rect, bool selected)>;
  TLxOwnerDrawMenu(QWidget* parent, MeasureItem measure, DrawItem draw);

  // The item that the style is measuring or drawing now.
  QAction* StyledItem() const { return styledItem_; }
  const MeasureItem& Measure() const { return measure_; }
  const DrawItem& Draw() const { return draw_; }

 protected:
  // Qt asks for an item's style option right before it measures or draws that item.
  void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;

 private:
  MeasureItem measure_;
  DrawItem draw_;
  mutable QAction* styledItem_ = nullptr;
};

}  // namespace lx
