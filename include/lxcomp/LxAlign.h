// Alignment of panels inside their parent: an aligned widget places itself along one edge of its
// parent and follows the parent's resizes; a client-aligned one takes the rest.
#pragma once

class QWidget;

namespace lx {

enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom };

// Aligns any child widget (a host's canvas as alClient, for example). Top children are placed
// first, then bottom, left, right and client, each group in the parent's child order; hidden
// children take no room. Each child keeps its own thickness across its edge.
void SetWidgetAlign(QWidget* widget, TAlign align);
TAlign GetWidgetAlign(const QWidget* widget);
// Places every aligned child of `parent` again.
void RealignChildren(QWidget* parent);

}  // namespace lx
