// The one-line input box: a question above an edit field (or a drop-down list), optionally
// with a check box, and an allowed-character filter for typing.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

#include "lxcomp/LxDlgBase.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace Ui {
class TLxDlgInput;
}

namespace lx {

class TLxDlgInput : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TLxDlgInput(QWidget* owner = nullptr);
  ~TLxDlgInput() override;

  QLabel* Content() const;
  QLineEdit* EditBox() const;
  QComboBox* ComboBox() const;
  QCheckBox* CB() const;
  QString GetAllowed() const { return allowed_; }

  // Caption, question and help topic; help context 0 hides the Help button.
  void SetTitleQuestionHelp(const wchar_t* title, const wchar_t* question, int helpContext);
  // Each shows the box modally and returns true on OK, when the outputs are written.
  bool SimpleTextInput(QString* text, const wchar_t* allowed);
  bool TextInputWithCheckbox(QString* text, bool* checked, const wchar_t* checkCaption,
                             const wchar_t* allowed);
  // A choice from `items` (item 0 preselected); OK is the only button besides the close box.
  bool ComboBoxInput(QString* text, QStringList* items);

  // Enter presses OK; with an allowed set, other characters outside it are swallowed (key 0).
  void EditBoxKeyPress(QObject* sender, wchar_t& key);
  void FormResize(QObject* sender = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  std::unique_ptr<Ui::TLxDlgInput> ui_;
  QString allowed_;
  int designMinHeight_ = 0;
};

}  // namespace lx
