// The common base form of the library's dialogs: the button row (Ok, Cancel, Help), help
// handling, the colours for owner-drawn parts, expression replacement when a numeric field is
// left, the number readers that report with the dialog's help topic, and the layer and font
// pickers.
#pragma once

#include <QDialog>
#include <QIcon>
#include <QList>
#include <QSet>
#include <QString>

#include <initializer_list>
#include <memory>

#include "lxcomp/LxPlatform.h"

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QPainter;
class QPushButton;
class QRect;
class QTabBar;
class QTabWidget;
class QWidget;

namespace Ui {
class TLxDlgBase;
}

namespace lx {

class TK5Layer;

class TLxDlgBase : public QDialog {
  Q_OBJECT
  Q_PROPERTY(int HelpContext READ GetHelpContext WRITE SetHelpContext)

 public:
  explicit TLxDlgBase(QWidget* parent = nullptr);
  ~TLxDlgBase() override;

  int GetHelpContext() const { return helpContext_; }
  void SetHelpContext(int helpContext) { helpContext_ = helpContext; }

  // The area above the button row; a derived dialog sets its own form up in it.
  QWidget* ClientArea() const;
  QWidget* BottomPanel() const;
  QPushButton* OkButton() const;
  QPushButton* CancelButton() const;
  QPushButton* HelpButton() const;

  // Colours for owner-drawn parts: button text and face of the active style, else the form's.
  TColor GetBackgroundColor() const { return backgroundColor_; }
  TColor GetTextColor() const { return textColor_; }
  // True when the text colour is light (R + G + B > 381): the dialog is shown in a dark style.
  bool GetLightText() const { return lightText_; }

  // An object the dialog owns; FormDestroy deletes it.
  QObject* GetOwnedObject() const { return ownedObject_; }
  void SetOwnedObject(QObject* object) { ownedObject_ = object; }

  // The layer swatches of the latest filled layer picker, one per item.
  const QList<QIcon>& GetLyrImages() const { return lyrImages_; }

  // Leaving any of these fields replaces an expression by its value.
  void UseLxExit(std::initializer_list<QLineEdit*> fields);
  void LxExit(QObject* sender = nullptr);

  // The number readers of the dialog: true when the text was no number; the message then
  // carries this dialog's help context.
  void NotAValidNumber(const QString& text);
  bool GetCoordinate(const QString& text, double* nanometres);
  bool GetDouble(const QString& text, double* value);
  bool GetNumber(const QString& text, int* value);
  // The same on a field's text; a field that fails gets the focus back, all selected.
  bool ReadCoordinate(QLineEdit* field, double* nanometres);
  bool ReadDouble(QLineEdit* field, double* value);
  bool ReadNumber(QLineEdit* field, int* value);

  // Fills a layer picker from the list; selects the layer numbered selectedNumber (the last
  // match, or item 0). Returns the item count.
  int FillComboBoxExWithLayers(QComboBox* combo, const TK5Layer* layers, int selectedNumber);
  // The Number of the layer selected in a picker, or -1.
  int GetLayerIndex(QComboBox* combo, const TK5Layer* layers) const;
  void FillComboBoxWithFonts(QComboBox* combo, const wchar_t* selectedName);
  void FillComboBoxWithFonts(QComboBox* combo, const QString& selectedName);

  // Draws a tab caption of a QTabBar or QTabWidget in the dialog's text colour, with a focus
  // rectangle round it for the active tab of a focused control.
  void TabsDrawTab(QPainter* canvas, QWidget* control, int tabIndex, const QRect& rect,
                   bool active);
  // Lets the dialog draw the captions of these tabs.
  void UseOwnerDrawnTabs(QTabWidget* tabs);
  void UseOwnerDrawnTabs(QTabBar* tabs);

  // Validates, writes the record and closes with result 1; the base just accepts.
  virtual void OkButtonClick(QObject* sender = nullptr);
  virtual void CancelButtonClick(QObject* sender = nullptr);
  void HelpButtonClick(QObject* sender = nullptr);
  void FormDestroy(QObject* sender = nullptr);

  // The window's close box, and Escape with no cancel button visible.
  void reject() override;

 protected:
  // Keeps the dialog at least as tall as its wrapped texts need for the current width, and
  // never below minimumHeight.
  void GrowToFitText(int minimumHeight);
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // The visible button that Escape presses, or null.
  virtual QAbstractButton* EscapeButton() const;

 private:
  void ReadColors();
  static bool Refocus(QLineEdit* field, bool failed);
  void OkClicked();
  bool PaintTabs(QTabBar* bar);

  std::unique_ptr<Ui::TLxDlgBase> baseUi_;
  QObject* ownedObject_ = nullptr;
  TColor backgroundColor_ = 0;
  TColor textColor_ = 0;
  bool lightText_ = false;
  int helpContext_ = 0;
  QList<QIcon> lyrImages_;
  QSet<QObject*> exitFields_;
  QSet<QObject*> drawnTabs_;
  bool growing_ = false;
};

}  // namespace lx
