// Entry points through which a host shows the library's messages and input boxes, and the
// modal pattern that every dialog entry point shares.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>

#include "lxcomp/LxPlatform.h"

namespace lx {

// Shows an error box with the dialog's help topic; nothing while the main form is not showing.
void ShowK6Error(const wchar_t* text, int helpContext);
void ShowK6Error(const QString& text, int helpContext);

// Shows a message box of the given kind and returns its modal result. Kinds: -1 error (OK),
// 0 OK/Cancel, 1 Yes/No, 2 Yes/No/Cancel, others OK. While the main form is not showing:
// 6 (Yes) for kinds 1 and 2, otherwise 1 (this form) or 0 (the QString form).
int ShowK6Message(const wchar_t* text, int kind, int helpContext);
int ShowK6Message(const QString& text, int kind, int helpContext);

// One-line input: true when OK was pressed, and only then are the outputs written. `allowed`,
// when not empty, is the set of characters that typing accepts.
bool ShowK6InputDlg(QString* text, const wchar_t* title, const wchar_t* question, int helpContext,
                    const wchar_t* allowed);
bool ShowK6InputDlgWithCheckBox(QString* text, bool* checked, const wchar_t* title,
                                const wchar_t* question, const wchar_t* checkCaption,
                                int helpContext, const wchar_t* allowed);
// A choice from a list (item 0 preselected); false also when anything went wrong.
bool ShowK6InputDlgComboBox(QString* text, QStringList* items, const wchar_t* title,
                            const wchar_t* question, int helpContext);
// Asks whether the listed symbol definitions may be replaced; returns the modal result.
int ShowOverwriteMessage(QStringList* names, int helpContext);

// The common modal pattern of the Do...Dlg entry points: create the dialog with the main form
// as parent, DlgInit(record), show it modally, destroy it. True when the dialog closed with OK
// (its OkButtonClick has then written the record). Nothing escapes: any failure gives false.
template <class TDlg, class TRecord>
bool RunModal(TRecord* record) noexcept {
  try {
    std::unique_ptr<TDlg> dialog(new TDlg(MainForm()));
    if (!dialog) return false;
    dialog->DlgInit(record);
    return dialog->exec() == mrOk;
  } catch (...) {
    return false;
  }
}

}  // namespace lx
