// The menu bar: a strip of titles drawn by the control itself, each opening a popup menu below
// it, scaled with the editor's text size. Once a menu is open, moving the mouse onto another
// title closes it and opens that title's menu, as in a native menu bar.
#pragma once

#include <QMenu>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

#include "lxcomp/LxPlatform.h"

class QTimer;

namespace lx {

class TLxMenuPanel;

// One title of the bar.
class TLxMenu {
 public:
  explicit TLxMenu(TLxMenuPanel* panel = nullptr) : Panel(panel) {}
  QString GetName() const { return Name; }
  // The title text; "&" marks the accelerator.
  void SetName(const QString& name);
  QMenu* GetPopupMenu() const { return PopupMenu; }
  void SetPopupMenu(QMenu* menu) { PopupMenu = menu; }
  float GetTitleWidth() const { return TitleWidth; }
  void SetTitleWidth(float width) { TitleWidth = width; }

 private:
  TLxMenuPanel* Panel;
  QString Name;
  QPointer<QMenu> PopupMenu;  // not owned
  float TitleWidth = 0.0f;
};

class TLxMenuCollection {
 public:
  explicit TLxMenuCollection(TLxMenuPanel* owner = nullptr) : Owner(owner) {}
  TLxMenu* Add();
  int Count() const { return static_cast<int>(Items_.size()); }
  TLxMenu* Items(int index) const;
  void Delete(int index);
  int IndexOf(const TLxMenu* menu) const;

 private:
  TLxMenuPanel* Owner;
  std::vector<std::unique_ptr<TLxMenu>> Items_;
};

class TLxMenuPanel : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int HotColor READ GetHotColor WRITE SetHotColor)
 public:
  explicit TLxMenuPanel(QWidget* parent = nullptr);
  ~TLxMenuPanel() override;

  TLxMenuCollection* GetMenus() const { return Menus.get(); }
  TLxMenuCollection* GetCollection() const { return Menus.get(); }
  // Replaces the titles by copies of `menus`' titles (names and popups).
  void SetCollection(TLxMenuCollection* menus);
  TColor GetHotColor() const { return HotColor; }
  void SetHotColor(TColor color);
  float GetTextScaleFactor() const { return TextScaleFactor; }
  void SetTextScaleFactor(float factor);
  bool GetShowUnderscores() const { return ShowUnderscores; }
  void SetShowUnderscores(bool show);

  float GetEffectiveScale() const { return EffectiveScale; }
  int GetTitleGap() const { return TitleGap; }
  int GetOpenIndex() const { return OpenIndex; }
  TLxMenu* GetOpenMenu() const { return OpenMenu; }
  bool GetOverOpenTitle() const { return OverOpenTitle; }
  int GetNextIndex() const { return NextIndex; }
  TLxMenu* GetNextMenu() const { return NextMenu; }
  TLxMenu* GetHotMenu() const { return HotMenu; }
  QTimer* GetTimer() const { return Timer; }
  // Whether title `menu` shows its selected look.
  bool IsTitleSelected(const TLxMenu* menu) const;

  // Opens menu `index` as if its title were clicked with the left button.
  void DoMenu(int index);
  // The host chose a command of the open popup: the hand-over timer stops.
  void SetItemSelected(bool selected);
  void DrawMenuTitle(TLxMenu* menu, bool selected);

  // Title geometry in client coordinates.
  int TitleAt(int x) const;
  int TitleLeft(int index) const;
  QRect TitleRect(int index) const;
  // Measures font, bar height and title widths when the scale changed.
  void Measure();
  // Measures one title in the current font.
  void MeasureTitle(TLxMenu* menu) const;

  void MouseMove(QPoint local);
  void MouseDown(Qt::MouseButton button, QPoint local);
  void CMMouseExit();
  void Paint(QPainter& painter, const QRect& area);
  void OnTimer();
  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  std::vector<float> TitleWidths() const;
  float Gap() const { return static_cast<float>(TitleGap) * EffectiveScale; }
  void ResetOpenState();
  void RunOpenLoop(Qt::MouseButton button);
  void DrawTitle(QPainter& painter, int index);

  std::unique_ptr<TLxMenuCollection> Menus;
  TColor HotColor;
  float TextScaleFactor = 1.0f;
  bool ShowUnderscores = false;
  float EffectiveScale = 0.0f;
  int TitleGap = 10;
  int OpenIndex = -1;
  TLxMenu* OpenMenu = nullptr;
  bool OverOpenTitle = false;
  int NextIndex = -1;
  TLxMenu* NextMenu = nullptr;
  TLxMenu* HotMenu = nullptr;
  QTimer* Timer;
  Qt::MouseButton TrackButton = Qt::LeftButton;
  bool LoopRunning = false;
  std::vector<const TLxMenu*> Selected;
};

namespace MenuPanel {
void Register();
}

}  // namespace lx
