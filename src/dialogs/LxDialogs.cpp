#include "lxcomp/LxDialogs.h"

#include <QListWidget>
#include <QPushButton>

#include "lxcomp/LxDlgError.h"
#include "lxcomp/LxDlgInput.h"
#include "lxcomp/LxDlgOverwrite.h"

namespace lx {
namespace {

QString FromWide(const wchar_t* text) {
  return text ? QString::fromWCharArray(text) : QString();
}

// Hands the box to the host's hook when one is set, otherwise shows it; returns its result.
int ShowBox(const QString& text, int kind, int helpContext) {
  if (const MessageHook& hook = GetMessageHook()) return hook(text, kind, helpContext);
  TLxDlgError box(MainForm(), text, kind, helpContext);
  return box.exec();
}

int Unattended(int kind, int otherwise) {
  return (kind == 1 || kind == 2) ? mrYes : otherwise;
}

// Runs one of the input box's modes; nothing escapes.
template <class Mode>
bool RunInput(const wchar_t* title, const wchar_t* question, int helpContext, Mode mode) noexcept {
  try {
    TLxDlgInput box(MainForm());
    box.SetTitleQuestionHelp(title, question, helpContext);
    return mode(box);
  } catch (...) {
    return false;
  }
}

}  // namespace

void ShowK6Error(const wchar_t* text, int helpContext) {
  ShowK6Error(FromWide(text), helpContext);
}

void ShowK6Error(const QString& text, int helpContext) {
  if (!MainFormShowing()) return;
  try {
    ShowBox(text, -1, helpContext);
  } catch (...) {
  }
}

int ShowK6Message(const wchar_t* text, int kind, int helpContext) {
  if (!MainFormShowing()) return Unattended(kind, mrOk);
  try {
    return ShowBox(FromWide(text), kind, helpContext);
  } catch (...) {
    return mrNone;
  }
}

int ShowK6Message(const QString& text, int kind, int helpContext) {
  if (!MainFormShowing()) return Unattended(kind, mrNone);
  try {
    return ShowBox(text, kind, helpContext);
  } catch (...) {
    return mrNone;
  }
}

bool ShowK6InputDlg(QString* text, const wchar_t* title, const wchar_t* question, int helpContext,
                    const wchar_t* allowed) {
  return RunInput(title, question, helpContext,
                  [&](TLxDlgInput& box) { return box.SimpleTextInput(text, allowed); });
}

bool ShowK6InputDlgWithCheckBox(QString* text, bool* checked, const wchar_t* title,
                                const wchar_t* question, const wchar_t* checkCaption,
                                int helpContext, const wchar_t* allowed) {
  return RunInput(title, question, helpContext, [&](TLxDlgInput& box) {
    return box.TextInputWithCheckbox(text, checked, checkCaption, allowed);
  });
}

bool ShowK6InputDlgComboBox(QString* text, QStringList* items, const wchar_t* title,
                            const wchar_t* question, int helpContext) {
  return RunInput(title, question, helpContext,
                  [&](TLxDlgInput& box) { return box.ComboBoxInput(text, items); });
}

int ShowOverwriteMessage(QStringList* names, int helpContext) {
  try {
    TDlgOverwrite box(MainForm());
    box.SetHelpContext(helpContext);
    if (helpContext == 0) {
      box.HelpButton()->hide();
      box.HelpButton()->setEnabled(false);
    }
    if (names) box.SetNames(*names);
    return box.exec();
  } catch (...) {
    return mrNone;
  }
}

}  // namespace lx
