// Entry points through which a host shows the library's messages and dialogs.
#pragma once

#include <QString>

namespace lx {

// Shows an error box with the dialog's help topic; nothing while the main form is not showing.
void ShowK6Error(const wchar_t* text, int helpContext);
void ShowK6Error(const QString& text, int helpContext);

// Shows a message box of the given kind and returns its modal result. While the main form is
// not showing: 6 (Yes) for kinds 1 and 2, otherwise 1 (this form) or 0 (the QString form).
int ShowK6Message(const wchar_t* text, int kind, int helpContext);
int ShowK6Message(const QString& text, int kind, int helpContext);

}  // namespace lx
