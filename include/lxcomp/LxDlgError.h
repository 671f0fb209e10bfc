// The message and error box: a word-wrapped text beside the platform's error or warning icon,
// with the button set of its kind. It grows to fit its text.
#pragma once

#include <QString>

#include <memory>

#include "lxcomp/LxDlgBase.h"

class QLabel;

namespace Ui {
class TLxDlgError;
}

namespace lx {

class TLxDlgError : public TLxDlgBase {
  Q_OBJECT

 public:
  // kind -1: error, OK only; 0: OK, Cancel; 1: Yes, No; 2: Yes, No, Cancel; others: OK only.
  // helpContext 0 hides the Help button, and the other buttons close up to the right.
  TLxDlgError(QWidget* owner, const wchar_t* text, int kind, int helpContext);
  TLxDlgError(QWidget* owner, const QString& text, int kind, int helpContext);
  ~TLxDlgError() override;

  QLabel* Content() const;
  QPushButton* YesButton() const { return yesButton_; }
  QPushButton* NoButton() const { return noButton_; }
  int GetKind() const { return kind_; }

  // Re-wraps the text to the width and keeps the box tall enough for it.
  void FormResize(QObject* sender = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  QAbstractButton* EscapeButton() const override;

 private:
  void ArrangeButtons(int helpContext);

  std::unique_ptr<Ui::TLxDlgError> ui_;
  QPushButton* yesButton_ = nullptr;
  QPushButton* noButton_ = nullptr;
  int kind_ = -1;
  int designMinHeight_ = 0;
};

}  // namespace lx
