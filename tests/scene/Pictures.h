#pragma once

#include <QColor>
#include <QImage>

namespace testsupport {

/// Number of pixels that differ.
int differences(const QImage& a, const QImage& b);

/// Number of colours in a picture.
int coloursIn(const QImage& image);

/// Number of pixels that have a colour.
int pixelsOf(const QColor& colour, const QImage& image);

} // namespace testsupport
