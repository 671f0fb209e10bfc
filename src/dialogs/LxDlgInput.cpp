#include "lxcomp/LxDlgInput.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include "ui_LxDlgInput.h"

namespace lx {
namespace {

constexpr int kDesignWidth = 399;
constexpr int kDesignHeight = 131;
constexpr int kMinimumWidth = 384;
constexpr int kIconSize = 32;
constexpr wchar_t kEnter = 13;

QString FromWide(const wchar_t* text) {
  return text ? QString::fromWCharArray(text) : QString();
}

bool IsControl(wchar_t key) {
  return key < 32 || key == 127;
}

}  // namespace

TLxDlgInput::TLxDlgInput(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TLxDlgInput) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("LxDlgInput"));
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  setWindowTitle(QStringLiteral("Korvet 6"));
  designMinHeight_ = kDesignHeight;
  const QIcon icon = style()->standardIcon(QStyle::SP_MessageBoxQuestion, nullptr, this);
  ui_->Image1->setPixmap(icon.pixmap(kIconSize, kIconSize));
  ui_->EditBox->installEventFilter(this);
  setMinimumWidth(kMinimumWidth);
  resize(kDesignWidth, kDesignHeight);
  FormResize(this);
}

TLxDlgInput::~TLxDlgInput() = default;

QLabel* TLxDlgInput::Content() const {
  return ui_->Content;
}
QLineEdit* TLxDlgInput::EditBox() const {
  return ui_->EditBox;
}
QComboBox* TLxDlgInput::ComboBox() const {
  return ui_->ComboBox;
}
QCheckBox* TLxDlgInput::CB() const {
  return ui_->CB;
}

void TLxDlgInput::SetTitleQuestionHelp(const wchar_t* title, const wchar_t* question,
                                       int helpContext) {
  setWindowTitle(FromWide(title));
  ui_->Content->setText(FromWide(question));
  SetHelpContext(helpContext);
  if (helpContext == 0) {
    HelpButton()->hide();
    HelpButton()->setEnabled(false);
  }
  FormResize(this);
}

bool TLxDlgInput::SimpleTextInput(QString* text, const wchar_t* allowed) {
  if (allowed && *allowed) allowed_ = QString::fromWCharArray(allowed);
  ui_->EditBox->setText(text ? *text : QString());
  ui_->EditBox->setFocus();
  const bool confirmed = exec() == mrOk;
  if (confirmed && text) *text = ui_->EditBox->text();
  return confirmed;
}

bool TLxDlgInput::TextInputWithCheckbox(QString* text, bool* checked, const wchar_t* checkCaption,
                                        const wchar_t* allowed) {
  ui_->CB->setText(FromWide(checkCaption));
  ui_->CB->setChecked(checked && *checked);
  ui_->CB->show();
  FormResize(this);
  const bool confirmed = SimpleTextInput(text, allowed);
  if (confirmed && checked) *checked = ui_->CB->isChecked();
  return confirmed;
}

bool TLxDlgInput::ComboBoxInput(QString* text, QStringList* items) {
  ui_->EditBox->clear();
  ui_->EditBox->hide();
  ui_->ComboBox->show();
  CancelButton()->hide();
  CancelButton()->setEnabled(false);
  ui_->ComboBox->clear();
  if (items) ui_->ComboBox->addItems(*items);
  ui_->ComboBox->setCurrentIndex(ui_->ComboBox->count() > 0 ? 0 : -1);
  ui_->ComboBox->setFocus();
  FormResize(this);
  const int result = exec();
  if (text) *text = ui_->ComboBox->currentText();
  return result == mrOk;
}

void TLxDlgInput::EditBoxKeyPress(QObject*, wchar_t& key) {
  if (key == kEnter) {
    key = 0;
    OkButton()->click();
    return;
  }
  if (IsControl(key)) return;
  if (!allowed_.isEmpty() && !allowed_.contains(QChar(static_cast<char32_t>(key)))) key = 0;
}

bool TLxDlgInput::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_->EditBox && event->type() == QEvent::KeyPress) {
    auto* press = static_cast<QKeyEvent*>(event);
    const bool enter = press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
    const QString typed = press->text();
    if (enter || !typed.isEmpty()) {
      wchar_t key = enter ? kEnter : static_cast<wchar_t>(typed.toUcs4().value(0));
      EditBoxKeyPress(ui_->EditBox, key);
      if (key == 0) return true;
    }
  }
  return TLxDlgBase::eventFilter(watched, event);
}

void TLxDlgInput::FormResize(QObject*) {
  GrowToFitText(designMinHeight_);
}

void TLxDlgInput::resizeEvent(QResizeEvent* event) {
  TLxDlgBase::resizeEvent(event);
  FormResize(this);
}

}  // namespace lx
