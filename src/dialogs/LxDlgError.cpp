#include "lxcomp/LxDlgError.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QStyle>

#include "ui_LxDlgError.h"

namespace lx {
namespace {

constexpr int kDesignWidth = 444;
constexpr int kDesignHeight = 125;
constexpr int kMinimumWidth = 384;
constexpr int kIconSize = 32;

QPushButton* AddButton(QWidget* panel, QPushButton* before, const char* name, const QString& text,
                       int modalResult, QDialog* dialog) {
  auto* button = new QPushButton(text, panel);
  button->setObjectName(QLatin1String(name));
  button->setMinimumSize(before->minimumSize());
  auto* row = static_cast<QBoxLayout*>(panel->layout());
  row->insertWidget(row->indexOf(before), button);
  QObject::connect(button, &QPushButton::clicked, dialog,
                   [dialog, modalResult] { dialog->done(modalResult); });
  return button;
}

void Show(QPushButton* button, bool visible) {
  button->setVisible(visible);
  button->setEnabled(visible);
}

}  // namespace

TLxDlgError::TLxDlgError(QWidget* owner, const wchar_t* text, int kind, int helpContext)
    : TLxDlgError(owner, text ? QString::fromWCharArray(text) : QString(), kind, helpContext) {}

TLxDlgError::TLxDlgError(QWidget* owner, const QString& text, int kind, int helpContext)
    : TLxDlgBase(owner), ui_(new Ui::TLxDlgError), kind_(kind) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("LxDlgError"));
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  designMinHeight_ = kDesignHeight;
  setWindowTitle(kind >= 0 ? QStringLiteral("Korvet 6") : QStringLiteral("Korvet 6 - Error"));
  yesButton_ =
      AddButton(BottomPanel(), OkButton(), "YesButton", QStringLiteral("Yes"), mrYes, this);
  noButton_ = AddButton(BottomPanel(), OkButton(), "NoButton", QStringLiteral("No"), mrNo, this);
  ArrangeButtons(helpContext);
  const auto icon = kind == -1 ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxWarning;
  ui_->Image1->setPixmap(style()->standardIcon(icon, nullptr, this).pixmap(kIconSize, kIconSize));
  ui_->Content->setText(text);
  setMinimumWidth(kMinimumWidth);
  resize(kDesignWidth, kDesignHeight);
  FormResize(this);
}

TLxDlgError::~TLxDlgError() = default;

QLabel* TLxDlgError::Content() const {
  return ui_->Content;
}

void TLxDlgError::ArrangeButtons(int helpContext) {
  if (helpContext != 0)
    SetHelpContext(helpContext);
  else
    Show(HelpButton(), false);
  const bool yesNo = kind_ == 1 || kind_ == 2;
  Show(yesButton_, yesNo);
  Show(noButton_, yesNo);
  Show(OkButton(), !yesNo);
  Show(CancelButton(), kind_ == 0 || kind_ == 2);
  if (yesNo) {
    OkButton()->setDefault(false);
    yesButton_->setDefault(true);
    yesButton_->setFocus();
  }
}

// The No of a Yes/No box is its cancel button; Yes/No/Cancel keeps Cancel.
QAbstractButton* TLxDlgError::EscapeButton() const {
  if (QAbstractButton* cancel = TLxDlgBase::EscapeButton()) return cancel;
  return noButton_->isEnabled() ? noButton_ : nullptr;
}

void TLxDlgError::FormResize(QObject*) {
  GrowToFitText(designMinHeight_);
}

void TLxDlgError::resizeEvent(QResizeEvent* event) {
  TLxDlgBase::resizeEvent(event);
  FormResize(this);
}

}  // namespace lx
