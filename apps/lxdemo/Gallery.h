// Renders every registered gallery picture, and the main window, into PNG files.
#pragma once

#include <QString>

// Renders at the current scale into dir; returns the number of files written.
int RenderGallery(const QString& dir);
