// The arithmetic of toolbar strips along a dock, on rectangles alone: where a strip ends up when
// it is moved, pushed or swapped, how room is made for an incoming strip, where buttons sit on a
// strip, which points a dock accepts, and how saved positions are rescaled.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

namespace lx::docklayout {

// One toolbar strip of a dock, in the dock's client coordinates.
struct Strip {
  QRect rect;
  bool visible = true;
};

// The strips of one dock in collection order; `length` is the dock's Width (horizontal) or
// Height (vertical).
struct Dock {
  std::vector<Strip> strips;
  bool horizontal = true;
  int length = 0;
};

int Start(const QRect& rect, bool horizontal);
int Length(const QRect& rect, bool horizontal);
void SetStart(QRect& rect, bool horizontal, int start);

// Moves strip `index` along the dock towards `pos`, pushing (or, with `swap`, exchanging with)
// the neighbours it meets; returns the position where it ended up.
int MoveStrip(Dock& dock, int index, int pos, bool swap);
// Clears the stretch [pos, pos + size) of the dock axis for an incoming strip.
void MakeRoom(Dock& dock, int pos, int size);

// The extent of a button along its strip for a button thickness t; `fallback` for an unknown
// button type.
int ButtonExtent(int buttonType, int t, int fallback);

// Buttons placed one after another from a grip of a third of the last button's thickness; the
// strip is one pixel thicker than the buttons. `sizes` are the buttons' current sizes.
struct Placement {
  std::vector<QRect> buttons;
  QSize strip;
};
Placement PlaceButtons(const std::vector<QSize>& sizes, bool horizontal, int emptyThickness);
// Buttons re-sized to a strip of thickness s: each takes thickness s - 1 and the extent of its
// type; `widths` (extents along the strip) are kept for unknown types.
Placement TakeButtons(const std::vector<int>& types, const std::vector<int>& extents, int s,
                      bool horizontal);

// The zone of a dock in which a dragged toolbar docks, in dock coordinates.
struct Zone {
  QSize size;
  bool horizontal = true;
  bool rightAligned = false;
  int buttonWidth = 24;
  int buttonHeight = 24;
  bool tabVisible = false;
  int tabClientWidth = 0;
  QRect tab;
};
bool AcceptsPoint(const Zone& zone, QPoint local);

// A saved position along the axis rescaled by current / saved thickness (unchanged when the
// thicknesses agree or the saved one is not positive).
int Rescale(int value, int current, int saved);

}  // namespace lx::docklayout
