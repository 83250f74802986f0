#pragma once

#include <QByteArray>

/// An SVG file of 24 by 24 units, written anew for a picture of `size` pixels: the lines become whole pixels wide, and
/// what they go through is moved to where they fill whole pixels. Known are the elements "path", with the absolute
/// commands M, L, H, V, C, A and Z, "rect" and "circle". Throws std::runtime_error when the file has others.
QByteArray hintedSvg(const QByteArray& svg, int size);
