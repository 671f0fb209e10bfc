// Toolbar pictures of the demo, drawn from a glyph.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

// The glyph in the palette's button-text colour, so the picture reads in dark themes too.
QIcon GlyphIcon(const QString& glyph, const QPalette& palette);
