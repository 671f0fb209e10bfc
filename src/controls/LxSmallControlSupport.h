// Helpers shared by the small focusable controls: the tab-stop and tab-order properties, the
// keys that belong to the surrounding dialog, and the face colour behind a control.
#pragma once

#include <QColor>

class QKeyEvent;
class QPainter;
class QRect;
class QWidget;

namespace lx::controls {

// A tab stop takes the focus from Tab and from a click; without one only a click focuses it.
bool TabStopOf(const QWidget* widget);
void SetTabStopOf(QWidget* widget, bool stop);

// The position among the parent's child widgets in the focus chain, counted from 0.
int TabOrderOf(const QWidget* widget);
void SetTabOrderOf(QWidget* widget, int order);

// Escape, Return and Enter drive the dialog's cancel and default buttons; a control leaves
// them to the dialog, as it does Tab.
bool IsDialogKey(const QKeyEvent* event);

// The face of a dialog, which the controls paint behind themselves.
QColor ButtonFace(const QWidget* widget);

// A focus rectangle in the selection colour, shown whether the focus came from the keyboard or
// the mouse, so that it reads in light and dark palettes alike.
void DrawFocusRect(QPainter& painter, const QWidget* widget, const QRect& rect);

// A tint of the selection colour over a part under the mouse, for styles whose hover look is
// too faint to tell.
void DrawHotTint(QPainter& painter, const QWidget* widget, const QRect& rect);

}  // namespace lx::controls
