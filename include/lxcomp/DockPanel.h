// Dock panels along the edges of a main window, their named toolbars and buttons, docking,
// floating and the saved layout; a bottom dock also shows the status line (message, progress,
// cursor position and grid).
//
// A host creates the docks as children of its window, sets their Align, adds toolbars and
// buttons, and calls Loaded() on each dock once its toolbars are built.
#pragma once

#include <QAction>
#include <QMenu>
#include <QPoint>
#include <QPointer>
#include <QSettings>
#include <QString>
#include <QToolButton>
#include <QWidget>

#include <array>
#include <memory>
#include <vector>

#include "lxcomp/LxAlign.h"
#include "lxcomp/UnitFloatingWindow.h"

class QPainter;
class QStyle;

namespace lx {

class TLxDockPanel;
class TLxButtonPanel;
class TLxToolBarPanel;

enum TLxButtonType { lxNormalButton, lxDropDown, lxSeparator, lxMenu, lxCheckButton };

// One entry of the process-wide list of dock panels.
class TLxDockPanelItem {
 public:
  TLxDockPanel* GetDockPanel() const { return DockPanel; }
  void SetDockPanel(TLxDockPanel* dock) { DockPanel = dock; }

 private:
  TLxDockPanel* DockPanel = nullptr;
};

// Every dock panel of the process, in the order of construction: the order of every search.
class TLxDockCollection {
 public:
  TLxDockPanelItem* Add();
  int Count() const { return static_cast<int>(Items_.size()); }
  TLxDockPanelItem* Items(int index) const;
  void Delete(int index);

 private:
  std::vector<std::unique_ptr<TLxDockPanelItem>> Items_;
};

// The dock collection, created empty on first use.
TLxDockCollection* GetDockCollection();
// The strip of the first toolbar called `name` (exact case) in any dock; null if none.
TLxButtonPanel* GetLxToolBar(const QString& name);

// Status line texts. Values in nanometres are printed in micrometres without trailing zeros.
void PrintMicrons(const wchar_t* prefix, double value, wchar_t* out, int size);
void PrintGridval(const wchar_t* prefix, double a, double b, double c, double d, wchar_t* out,
                  int size);
// Draws a style primitive `length` long and `thickness` thick turned by a quarter turn, for
// elements that a style draws only horizontally.
void DrawRotatedElement(QPainter* painter, const QStyle* style, int primitiveElement, int x, int y,
                        int length, int thickness);

// One button on a toolbar strip.
class TLxButton : public QToolButton {
  Q_OBJECT
  Q_PROPERTY(int ButtonType READ GetButtonTypeCode WRITE SetButtonTypeCode)
 public:
  explicit TLxButton(QWidget* parent = nullptr);
  TLxButtonPanel* GetPanel() const;
  TLxButtonType GetButtonType() const { return ButtonType; }
  void SetButtonType(TLxButtonType type);
  QAction* GetAction() const { return Action; }
  void SetAction(QAction* action);
  QMenu* GetPopupMenu() const { return PopupMenu; }
  void SetPopupMenu(QMenu* menu);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int GetButtonTypeCode() const { return ButtonType; }
  void SetButtonTypeCode(int code);
  void ApplyType();
  TLxButtonType ButtonType = lxNormalButton;
  QPointer<QAction> Action;
  QPointer<QMenu> PopupMenu;
};

// One button definition of a toolbar; it owns the control that shows it.
class TLxToolBarButton {
 public:
  TLxToolBarButton();
  ~TLxToolBarButton();
  TLxToolBarButton(const TLxToolBarButton&) = delete;
  TLxToolBarButton& operator=(const TLxToolBarButton&) = delete;

  TLxButtonType GetButtonType() const { return ButtonType; }
  void SetButtonType(TLxButtonType type);
  QAction* GetAction() const { return Action; }
  void SetAction(QAction* action);
  QMenu* GetPopupMenu() const { return PopupMenu; }
  void SetPopupMenu(QMenu* menu);
  int GetImageChecked() const { return ImageChecked; }
  void SetImageChecked(int index) { ImageChecked = index; }
  int GetImageUnchecked() const { return ImageUnchecked; }
  void SetImageUnchecked(int index) { ImageUnchecked = index; }
  // Copies the definition (not the control).
  void Assign(const TLxToolBarButton& source);
  TLxButton* GetButton() const { return Button; }

 private:
  TLxButtonType ButtonType = lxNormalButton;
  QPointer<QAction> Action;
  QPointer<QMenu> PopupMenu;
  int ImageChecked = -1;
  int ImageUnchecked = -1;
  QPointer<TLxButton> Button;
};

class TLxButtonCollection {
 public:
  TLxToolBarButton* Add();
  int Count() const { return static_cast<int>(Items_.size()); }
  TLxToolBarButton* Items(int index) const;
  void Delete(int index);
  void Clear() { Items_.clear(); }
  // Replaces the definitions by copies of `source`'s.
  void Assign(const TLxButtonCollection& source);

 private:
  std::vector<std::unique_ptr<TLxToolBarButton>> Items_;
};

// The visible strip of a toolbar: a grip, then its buttons in a row (or a column).
class TLxButtonPanel : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int ButtonWidth READ GetButtonWidth WRITE SetButtonWidth)
  Q_PROPERTY(int ButtonHeight READ GetButtonHeight WRITE SetButtonHeight)
  Q_PROPERTY(int GripSize READ GetGripSize WRITE SetGripSize)
  Q_PROPERTY(bool Horizontal READ GetHorizontal WRITE SetHorizontal)
 public:
  explicit TLxButtonPanel(QWidget* parent = nullptr);
  ~TLxButtonPanel() override;

  TLxButtonCollection* GetButtons() const { return Buttons.get(); }
  void SetCollection(TLxButtonCollection* buttons);
  int GetButtonWidth() const { return ButtonWidth; }
  void SetButtonWidth(int width) { ButtonWidth = width; }
  int GetButtonHeight() const { return ButtonHeight; }
  void SetButtonHeight(int height) { ButtonHeight = height; }
  int GetGripSize() const { return GripSize; }
  void SetGripSize(int size) { GripSize = size; }
  bool GetHorizontal() const { return Horizontal; }
  void SetHorizontal(bool horizontal) { Horizontal = horizontal; }

  TLxFloatingToolWindow* GetFloatingWindow() const { return FloatingWindow; }
  bool IsFloating() const { return Floating; }
  TLxDockPanel* GetGuestDock() const { return GuestDock; }
  void SetGuestDock(TLxDockPanel* dock) { GuestDock = dock; }
  bool GetMouseIsDown() const { return MouseIsDown; }
  bool GetDragging() const { return Dragging; }
  // The dock the strip sits in, and the toolbar item it shows.
  TLxDockPanel* GetDock() const;
  TLxToolBarPanel* GetToolBar() const { return ToolBar; }
  void SetToolBar(TLxToolBarPanel* toolBar) { ToolBar = toolBar; }

  int MoveToolBarTo(int pos, bool swap);
  void MoveToGuestDock(int x, int y, bool fromScreen);
  void MakeFloating(int x, int y, bool show);
  void MakeDocked(TLxDockPanel* dock, int x, int y);
  void FreeGuestDock();
  static TLxDockPanel* FindDock(int x, int y);
  void TakeButtons();
  void AdjustSizeToButtons();
  int GetActualButtonSize(int& size) const;
  void InitializeButtons();
  // Length of the grip before the first button.
  int GripLength() const;
  // Lays the buttons of a floating strip out in its window at the given button size; the
  // client area is (buttons x width) x height, or the row's length when that is longer.
  void LayOutFloatingWindow(int buttonWidth, int buttonHeight);

  // Mouse handling; points in screen coordinates.
  void MouseDown(Qt::MouseButton button, QPoint screen);
  void MouseMove(Qt::MouseButtons buttons, QPoint screen);
  void MouseUp(Qt::MouseButton button, QPoint screen);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void UpdateCursor(QPoint local);
  void StartDragFilter();
  void StopDragFilter();
  void DragDocked(QPoint screen);
  void DragFloating(QPoint screen);
  void DragGuest(QPoint screen);
  void LayOutFloatingButtons(int size);
  QList<TLxButton*> ButtonControls() const;
  void RemoveFromOwnDock();

  std::unique_ptr<TLxButtonCollection> Buttons;
  int ButtonWidth = 24;
  int ButtonHeight = 24;
  int GripSize = 8;
  bool Horizontal = true;
  QPointer<TLxFloatingToolWindow> FloatingWindow;
  bool Floating = false;
  QPointer<TLxDockPanel> GuestDock;
  TLxToolBarPanel* ToolBar = nullptr;
  bool MouseIsDown = false;
  bool Dragging = false;
  QPoint DragStartPanel;  // Left/Top at drag start
  QPoint DragStartMouse;  // screen
  QPoint LastMouse;       // screen
  bool Filtering = false;
};

// One named toolbar of a dock.
class TLxToolBarPanel {
 public:
  explicit TLxToolBarPanel(TLxDockPanel* dock);
  ~TLxToolBarPanel();
  TLxToolBarPanel(const TLxToolBarPanel&) = delete;
  TLxToolBarPanel& operator=(const TLxToolBarPanel&) = delete;

  QString GetName() const { return Name; }
  void SetName(const QString& name);
  TLxButtonCollection* GetButtons() const { return Panel->GetButtons(); }
  TLxButtonCollection* GetCollection() const { return GetButtons(); }
  void SetCollection(TLxButtonCollection* buttons) { Panel->SetCollection(buttons); }
  TLxButtonPanel* GetPanel() const { return Panel; }
  TLxDockPanel* GetDock() const { return Dock; }
  bool GetVisible() const { return Visible; }
  void SetVisible(bool visible);
  bool GetWasDocked() const { return WasDocked; }
  QPoint GetHiddenPos() const { return HiddenPos; }

  void DockTo(TLxDockPanel* dock, int pos);
  // Writes the layout values under group `key`; 0 on success, else the QSettings::Status.
  int SaveState(QSettings& store, const QString& key);
  // Restores the layout saved under `key`; returns whether the toolbar should be shown. It may
  // delete this item (when the toolbar belongs in another dock): do not touch it afterwards.
  bool RestoreState(QSettings& store, const QString& key);

 private:
  QString Name;
  TLxDockPanel* Dock;
  TLxButtonPanel* Panel;
  bool Visible = true;
  bool WasDocked = false;
  QPoint HiddenPos;
};

// The toolbars of one dock, in insertion order; owns them.
class TLxToolBarCollection {
 public:
  explicit TLxToolBarCollection(TLxDockPanel* owner) : Owner(owner) {}
  TLxToolBarPanel* Add();
  int Count() const { return static_cast<int>(Items_.size()); }
  TLxToolBarPanel* Items(int index) const;
  void Delete(int index);
  int IndexOf(const TLxToolBarPanel* item) const;
  TLxDockPanel* GetOwner() const { return Owner; }

 private:
  TLxDockPanel* Owner;
  std::vector<std::unique_ptr<TLxToolBarPanel>> Items_;
};

// A panel along one edge of its parent that carries toolbars; aligned to the bottom it also
// shows the status line below them.
class TLxDockPanel : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int ButtonWidth READ GetButtonWidth WRITE SetButtonWidth)
  Q_PROPERTY(int ButtonHeight READ GetButtonHeight WRITE SetButtonHeight)
 public:
  explicit TLxDockPanel(QWidget* parent = nullptr);
  ~TLxDockPanel() override;

  TAlign GetAlign() const { return Align; }
  void SetAlign(TAlign align);
  TLxToolBarCollection* GetToolBars() const { return ToolBars.get(); }
  TLxToolBarCollection* GetCollection() const { return ToolBars.get(); }
  // Replaces the toolbars by toolbars of the same names and buttons as `toolBars`'.
  void SetCollection(TLxToolBarCollection* toolBars);
  int GetButtonWidth() const { return ButtonWidth; }
  void SetButtonWidth(int width) { ButtonWidth = width; }
  int GetButtonHeight() const { return ButtonHeight; }
  void SetButtonHeight(int height) { ButtonHeight = height; }
  bool GetHorizontal() const { return Horizontal; }
  bool GetIsLoaded() const { return IsLoaded; }
  int GetStatusHeight() const { return StatusHeight; }
  TLxButtonPanel* GetGuestPanel() const { return GuestPanel; }
  void SetGuestPanel(TLxButtonPanel* panel) { GuestPanel = panel; }
  // Width of a visible tab strip at the inner edge (no tab strip here: 0).
  int GetTabClientWidth() const { return TabClientWidth; }
  bool TabStripVisible() const { return false; }
  // The length of the dock axis: Width of a horizontal dock, Height of a vertical one.
  int AxisLength() const { return Horizontal ? width() : height(); }
  // The across-axis position of strips: TabClientWidth in a left dock with a tab strip.
  int StripOffset() const;

  TLxToolBarPanel* GetToolBar(const QString& name) const;
  void MakeRoom(int pos, int size);
  bool CanDockAt(int x, int y) const;
  int GetNumVisiblePanels() const;
  void SetSize(int size);
  void Show();
  void Loaded();
  // Collapses (bottom dock) or hides the dock when no toolbar strip is visible.
  void ReleaseIfEmpty();

  // Status line.
  void SetStatusMessage(const QString& text);
  void SetProgress(int percent);
  void SetXY(double x, double y);
  void SetGrid(double a, double b, double c, double d);
  void SetX(const wchar_t* text);
  void SetY(const wchar_t* text);
  void SetGrid(const wchar_t* text);
  void SetScaleFactor(float factor);
  float GetScaleFactor() const { return ScaleFactor; }
  double GetEffectiveScale() const { return EffectiveScale; }
  double GetXValue() const { return XValue; }
  double GetYValue() const { return YValue; }
  std::array<double, 4> GetGridValues() const { return GridValues; }
  QString GetXText() const { return XText; }
  QString GetYText() const { return YText; }
  QString GetGridText() const { return GridText; }
  QString GetStatusMessage() const { return StatusMessage; }
  int GetProgress() const { return Progress; }
  // The status line's fields in client coordinates.
  QRect MessageRect() const;
  QRect GridRect() const;
  QRect XRect() const;
  QRect YRect() const;
  QRect ProgressRect() const;
  void Paint(QPainter& painter);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void UpdateStatusScale();
  void LayOutStrips();
  void PaintStatus(QPainter& painter);
  void PaintProgress(QPainter& painter);

  TAlign Align = alNone;
  std::unique_ptr<TLxToolBarCollection> ToolBars;
  int ButtonWidth = 24;
  int ButtonHeight = 24;
  int Spacing = 8;
  bool Horizontal = true;
  bool IsLoaded = false;
  int StatusHeight = 18;
  TLxButtonPanel* GuestPanel = nullptr;
  int TabClientWidth = 0;
  int LastSize = -1;  // the button size of the last SetSize

  double XValue = 1e6;
  double YValue = 1e6;
  std::array<double, 4> GridValues{1e6, 1e6, 1e6, 1e6};
  QString XText, YText, GridText, StatusMessage;
  int Progress = 100;
  float ScaleFactor = 1.0f;
  double EffectiveScale = 0.0;
};

namespace DockPanel {
void Register();
}

}  // namespace lx
