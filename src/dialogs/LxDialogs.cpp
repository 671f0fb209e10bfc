#include "lxcomp/LxDialogs.h"

#include <QMessageBox>

#include "lxcomp/LxPlatform.h"

namespace lx {
namespace {

QString FromWide(const wchar_t* text) {
  return text ? QString::fromWCharArray(text) : QString();
}

// Shows the box (or hands it to the host's hook) and returns its modal result.
int ShowBox(const QString& text, int kind, int helpContext) {
  if (const MessageHook& hook = GetMessageHook()) return hook(text, kind, helpContext);
  QMessageBox box(MainForm());
  box.setWindowTitle(kind < 0 ? QStringLiteral("Korvet 6 - Error") : QStringLiteral("Korvet 6"));
  box.setText(text);
  box.setIcon(kind < 0 ? QMessageBox::Critical : QMessageBox::Warning);
  switch (kind) {
    case 2:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
      break;
    case 1:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      break;
    case 0:
      box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      break;
    default:
      box.setStandardButtons(QMessageBox::Ok);
      break;
  }
  switch (box.exec()) {
    case QMessageBox::Ok:
      return mrOk;
    case QMessageBox::Yes:
      return mrYes;
    case QMessageBox::No:
      return mrNo;
    default:
      return mrCancel;
  }
}

int Unattended(int kind, int otherwise) {
  return (kind == 1 || kind == 2) ? mrYes : otherwise;
}

}  // namespace

void ShowK6Error(const wchar_t* text, int helpContext) {
  ShowK6Error(FromWide(text), helpContext);
}

void ShowK6Error(const QString& text, int helpContext) {
  if (!MainFormShowing()) return;
  ShowBox(text, -1, helpContext);
}

int ShowK6Message(const wchar_t* text, int kind, int helpContext) {
  if (!MainFormShowing()) return Unattended(kind, mrOk);
  return ShowBox(FromWide(text), kind, helpContext);
}

int ShowK6Message(const QString& text, int kind, int helpContext) {
  if (!MainFormShowing()) return Unattended(kind, mrNone);
  return ShowBox(text, kind, helpContext);
}

}  // namespace lx
