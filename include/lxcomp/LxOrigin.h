// The origin selector: a small grid of equal buttons from which the user picks one reference
// point of a box (by default 3 x 3: corners, edge middles and centre, numbered 1 to 9 row by row
// from the top left).
#pragma once

#include <QWidget>

#include <cstdint>

class QPainter;

namespace lx {

class TLxOrigin : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int Width READ GetWidth WRITE SetWidth)
  Q_PROPERTY(int Height READ GetHeight WRITE SetHeight)
  Q_PROPERTY(int NumRows READ GetNumRows WRITE SetNumRows)
  Q_PROPERTY(int NumCols READ GetNumCols WRITE SetNumCols)
  Q_PROPERTY(int SelectedButton READ GetSelectedButton WRITE SetSelectedButton)
  Q_PROPERTY(bool TabStop READ GetTabStop WRITE SetTabStop)
  Q_PROPERTY(int TabOrder READ GetTabOrder WRITE SetTabOrder)

 public:
  explicit TLxOrigin(QWidget* parent = nullptr);

  int GetWidth() const { return width(); }
  void SetWidth(int value);
  int GetHeight() const { return height(); }
  void SetHeight(int value);
  int GetNumRows() const { return NumRows; }
  // Values of 0 or less are stored as they are; the grid then has no cells.
  void SetNumRows(int value);
  int GetNumCols() const { return NumCols; }
  void SetNumCols(int value);
  // 0 is none. Setting it repaints but sends no OnChange.
  int GetSelectedButton() const { return SelectedButton; }
  void SetSelectedButton(int value);
  bool GetTabStop() const;
  void SetTabStop(bool value);
  int GetTabOrder() const;
  void SetTabOrder(int value);

  // The cell under the mouse and the selected cell; -1 is none.
  int GetHotCol() const { return HotCol; }
  int GetHotRow() const { return HotRow; }
  int GetSelCol() const { return SelCol; }
  int GetSelRow() const { return SelRow; }
  bool GetMouseIsDown() const { return MouseIsDown; }

  QSize sizeHint() const override;

  void Paint();
  void MouseMove(Qt::KeyboardModifiers shift, int x, int y);
  void MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
  void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, int x, int y);
  void CMMouseExit();
  // Handles the key and sets it to 0: every key that reaches the control is consumed.
  void KeyDown(int& key, Qt::KeyboardModifiers shift);
  void LxEnter();
  void LxExit();

 signals:
  void OnChange(QObject* sender);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  enum class CellLook { Normal, Hot, Pressed, Selected };

  bool HasCells() const { return NumRows > 0 && NumCols > 0; }
  int CellWidth() const;
  int CellHeight() const;
  int CellNumber(std::int64_t row, std::int64_t col) const;
  void DeriveSelection();
  int KeyTarget(int key) const;
  CellLook LookOf(int row, int col) const;
  void PaintCell(QPainter& painter, const QRect& cell, CellLook look) const;
  void PaintFocus(QPainter& painter) const;
  void DescribeSelection();

  int NumRows = 3;
  int NumCols = 3;
  int SelectedButton = 0;
  int HotCol = -1;
  int HotRow = -1;
  int SelCol = -1;
  int SelRow = -1;
  bool MouseIsDown = false;
};

namespace LxOrigin {
void Register();
}

}  // namespace lx
