#pragma once

#include "od/oddbdatabase.h"

#include <string>
#include <vector>

namespace workbench {

/// A rectangle in the drawing that grows around what is added; empty at first.
struct Box
{
    double left = 1e300;
    double bottom = 1e300;
    double right = -1e300;
    double top = -1e300;

    bool isEmpty() const { return left > right; }
    bool intersects(const Box& other) const
    {
        return left <= other.right && other.left <= right && bottom <= other.top && other.bottom <= top;
    }
    bool contains(double x, double y) const { return left <= x && x <= right && bottom <= y && y <= top; }
    Box grown(double margin) const { return {left - margin, bottom - margin, right + margin, top + margin}; }
    void add(double x, double y);
    void add(const Box& other);
};

/// Text where it stands in the drawing.
struct PlacedText
{
    OdGePoint3d position;
    double height = 0.0;
    double rotation = 0.0;
    OdDbText::HorizontalMode horizontalMode = OdDbText::HorizontalMode::Left;
    OdDbText::VerticalMode verticalMode = OdDbText::VerticalMode::Baseline;
    std::vector<std::wstring> lines;
    Box extent; ///< roughly, about its position and as if it weren't turned
};

/// One thing to draw: a chain of points, a point mark (a chain of one), or a text.
struct Piece
{
    std::uint32_t entity = 0; ///< counts the entities of the model space
    std::uint32_t first = 0;  ///< of its points
    std::uint32_t count = 0;
    int text = -1;   ///< its text's index, or -1
    int dashes = -1; ///< its dash pattern's index, or -1 for a continuous line
    bool isFilled = false;
    int lineWeight = OdDb::kLnWtByLwDefault;
    OdCmColor color; ///< an index or an RGB colour
    Box box;
};

/// The model space taken apart into what a canvas draws: blocks resolved, colours, weights and linetypes settled,
/// hidden layers left out. Ends early for drawings whose blocks multiply into more than can be drawn.
struct Tessellation
{
    struct Point
    {
        double x = 0.0;
        double y = 0.0;
    };

    std::vector<Point> points;
    std::vector<Piece> pieces;
    std::vector<PlacedText> texts;
    std::vector<std::vector<double>> dashPatterns;
    Box box;
};

constexpr double lineSpacing = 5.0 / 3.0; // of a text, in its height

Tessellation tessellate(const OdDbDatabase& database);

} // namespace workbench
