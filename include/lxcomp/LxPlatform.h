// The ground every unit of the library stands on: colour values, modal results, screen scale,
// visual styles, the host's main form, and the hooks through which a host takes over messages
// and help.
#pragma once

#include <QColor>
#include <QString>

#include <cstdint>
#include <functional>

class QWidget;

namespace lx {

// A colour value: red in the low byte, green in the second, blue in the third.
using TColor = std::int32_t;

QColor ToQColor(TColor color);
TColor FromQColor(const QColor& color);

// Modal results, as QDialog::exec() returns them.
inline constexpr int mrNone = 0;
inline constexpr int mrOk = 1;
inline constexpr int mrCancel = 2;
inline constexpr int mrYes = 6;
inline constexpr int mrNo = 7;

// The widget's screen's logical DPI over 96 (1.0 when there is no widget or screen).
double ScaleFactor(const QWidget* widget);

// Visual styles are active unless the host turns them off; controls then draw plain.
void SetVisualStyles(bool active);
bool VisualStylesActive();

// The host's main window: dialogs are created with it as parent, and no message is shown
// while it is not showing.
void SetMainForm(QWidget* form);
QWidget* MainForm();
bool MainFormShowing();

// While a hook is set, every message box goes to it instead of the screen; its return value is
// the box's modal result. kind is -1 for the error box.
using MessageHook = std::function<int(const QString& text, int kind, int helpContext)>;
void SetMessageHook(MessageHook hook);
const MessageHook& GetMessageHook();

// The Help button and F1 call the handler with the form's help context.
using HelpHandler = std::function<void(int helpContext)>;
void SetHelpHandler(HelpHandler handler);
const HelpHandler& GetHelpHandler();

}  // namespace lx
