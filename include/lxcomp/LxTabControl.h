// A light, custom-drawn row of tabs that scales with the monitor it is shown on. It holds only
// the tab texts and the selected index; it owns no pages.
#pragma once

#include <QStringList>
#include <QWidget>

#include <vector>

class QPainter;

namespace lx {

class TLxTabControl : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QStringList Tabs READ GetTabs WRITE SetTabs)
  Q_PROPERTY(int TabIndex READ GetTabIndex WRITE SetTabIndex)

 public:
  explicit TLxTabControl(QWidget* parent = nullptr);

  QStringList GetTabs() const { return Tabs; }
  // Copies the texts; a null list clears them.
  void SetTabs(const QStringList* tabs);
  void SetTabs(const QStringList& tabs) { SetTabs(&tabs); }
  // -1 is none. Setting it repaints but sends no OnChange.
  int GetTabIndex() const { return TabIndex; }
  void SetTabIndex(int value);

  // The scale factor of the monitor, used as the tab margin in pixels.
  double GetTabMargin() const { return TabMargin; }
  // One width per tab, in pixels.
  const std::vector<int>& GetTabWidths() const { return TabWidths; }
  // The tab under the mouse; -1 until the mouse has met a tab.
  int GetHotTab() const { return HotTab; }
  double GetScaleFactorFromMonitor() const;
  // The tab at client x: the first whose running sum of widths exceeds x; -1 for none.
  int TabAt(int x) const;

  QSize sizeHint() const override;

  void Paint();
  void MouseMove(Qt::KeyboardModifiers shift, int x, int y);
  void MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
  void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
  void CMMouseExit();

 signals:
  void OnChange(QObject* sender);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Measure();
  void MeasureTabs();
  int TextHeight() const;
  void PaintTab(QPainter& painter, int index, const QRect& area) const;
  void DescribeSelection();

  QStringList Tabs;
  int TabIndex = -1;
  double TabMargin = 0.0;
  std::vector<int> TabWidths;
  int HotTab = -1;
  bool HotShown = false;  // the hot tab shows its hot look until the mouse leaves
};

namespace LxTabControl {
void Register();
}

}  // namespace lx
