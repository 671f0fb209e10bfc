#include "lxcomp/LxPlatform.h"

#include <QPointer>
#include <QScreen>
#include <QWidget>

namespace lx {
namespace {

struct PlatformState {
  bool visualStyles = true;
  QPointer<QWidget> mainForm;
  MessageHook messageHook;
  HelpHandler helpHandler;
};

PlatformState& State() {
  static PlatformState state;
  return state;
}

}  // namespace

QColor ToQColor(TColor color) {
  const auto value = static_cast<std::uint32_t>(color);
  return QColor(value & 0xff, (value >> 8) & 0xff, (value >> 16) & 0xff);
}

TColor FromQColor(const QColor& color) {
  const QColor rgb = color.toRgb();
  return static_cast<TColor>(static_cast<std::uint32_t>(rgb.red()) |
                             (static_cast<std::uint32_t>(rgb.green()) << 8) |
                             (static_cast<std::uint32_t>(rgb.blue()) << 16));
}

double ScaleFactor(const QWidget* widget) {
  const QScreen* screen = widget ? widget->screen() : nullptr;
  if (!screen) return 1.0;
  return screen->logicalDotsPerInch() / 96.0;
}

void SetVisualStyles(bool active) {
  State().visualStyles = active;
}
bool VisualStylesActive() {
  return State().visualStyles;
}

void SetMainForm(QWidget* form) {
  State().mainForm = form;
}
QWidget* MainForm() {
  return State().mainForm.data();
}
bool MainFormShowing() {
  const QWidget* form = MainForm();
  return form && form->isVisible();
}

void SetMessageHook(MessageHook hook) {
  State().messageHook = std::move(hook);
}
const MessageHook& GetMessageHook() {
  return State().messageHook;
}

void SetHelpHandler(HelpHandler handler) {
  State().helpHandler = std::move(handler);
}
const HelpHandler& GetHelpHandler() {
  return State().helpHandler;
}

}  // namespace lx
