#include "lxcomp/LxDlgCancel.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QTimer>

#include "lxcomp/LxProgress.h"
#include "ui_LxDlgCancel.h"

namespace lx {
namespace {

constexpr int kHelpContext = 232;
constexpr int kTickMs = 1000;

QString ElapsedText(int seconds) {
  const int hours = seconds / 3600;
  const int minutes = seconds / 60 - hours * 60;
  return QString::asprintf("%d:%02d:%02d", hours, minutes, seconds % 60);
}

}  // namespace

TDlgCancel::TDlgCancel(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgCancel) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgCancel"));
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  setWindowTitle(QStringLiteral("Executing script - please wait"));
  SetHelpContext(kHelpContext);
  ui_->ProgressIndicator->SetAutonomous(true);
  for (QPushButton* hidden : {OkButton(), HelpButton()}) {
    hidden->hide();
    hidden->setEnabled(false);
  }
  CancelButton()->setDefault(true);
  // The box sits centred under the indicator and the texts, as a lone Cancel button should.
  static_cast<QBoxLayout*>(BottomPanel()->layout())->addStretch();
  timer1_ = new QTimer(this);
  timer1_->setObjectName(QStringLiteral("Timer1"));
  timer1_->setInterval(kTickMs);
  connect(timer1_, &QTimer::timeout, this, [this] { Timer1Timer(timer1_); });
  timer1_->start();
  resize(283, 121);
}

TDlgCancel::~TDlgCancel() = default;

QLabel* TDlgCancel::NumObjects() const {
  return ui_->NumObjects;
}
QLabel* TDlgCancel::Time() const {
  return ui_->Time;
}
TLxProgress* TDlgCancel::ProgressIndicator() const {
  return ui_->ProgressIndicator;
}

void TDlgCancel::Timer1Timer(QObject*) {
  ++seconds_;
  ui_->Time->setText(ElapsedText(seconds_));
  if (objectCounter_)
    ui_->NumObjects->setText(QString::asprintf("%lli", static_cast<long long>(*objectCounter_)));
  if (isSignalConnected(QMetaMethod::fromSignal(&TDlgCancel::OnTick))) emit OnTick(this);
}

void TDlgCancel::CancelButtonClick(QObject*) {
  if (isSignalConnected(QMetaMethod::fromSignal(&TDlgCancel::OnCancel))) emit OnCancel(this);
  setResult(mrNone);
}

}  // namespace lx
