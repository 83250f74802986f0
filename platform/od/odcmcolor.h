#pragma once

#include "platform_export.h"

#include <cstdint>

/// A colour of the drawing: by layer, by block, an index into the colour table, an RGB value, or none.
/// Colour-book names are not supported.
class PLATFORM_EXPORT OdCmColor
{
public:
    enum ColorMethod : std::uint8_t
    {
        kByLayer = 192,
        kByBlock = 193,
        kByColor = 194,
        kByACI = 195,
        kNone = 200,
    };
    /// The special colour indices.
    enum : std::uint16_t
    {
        kACIbyBlock = 0,
        kACIbyLayer = 256,
        kACInone = 257,
    };

    /// A colour by layer.
    OdCmColor() = default;
    explicit OdCmColor(ColorMethod method);
    /// A colour of the packed form that color() gives.
    explicit OdCmColor(std::uint32_t packed) { setColor(packed); }
    static OdCmColor fromRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    static OdCmColor fromIndex(std::uint16_t index);

    ColorMethod colorMethod() const { return m_method; }
    /// Changes the method; the index and the channels fall back to those of the method (index 7 and black).
    void setColorMethod(ColorMethod method);

    bool isByLayer() const { return m_method == kByLayer; }
    bool isByBlock() const { return m_method == kByBlock; }
    bool isByColor() const { return m_method == kByColor; }
    bool isByACI() const { return m_method == kByACI; }
    bool isNone() const { return m_method == kNone; }

    /// The packed form: the method in the high byte, below it red, green and blue or the index; 257 for none. It is
    /// taken as it stands: a colour by index keeps the indices 0 and 256, and 0 is a colour of no method.
    std::uint32_t color() const;
    void setColor(std::uint32_t packed);

    /// 1 to 255 for a colour by index, 256 by layer, 0 by block, 257 none; 7 for an RGB colour.
    std::uint16_t colorIndex() const;
    /// 256 makes the colour by layer, 0 by block, 257 none; a larger index is by layer.
    void setColorIndex(std::uint16_t index);

    /// The channels: those of an RGB colour, or the table's of a colour by index; 0 for the other methods.
    std::uint8_t red() const;
    std::uint8_t green() const;
    std::uint8_t blue() const;
    void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

    friend bool operator==(const OdCmColor&, const OdCmColor&) = default;

private:
    ColorMethod m_method = kByLayer;
    std::uint16_t m_index = kACIbyLayer;
    std::uint8_t m_red = 0;
    std::uint8_t m_green = 0;
    std::uint8_t m_blue = 0;
};

/// The 256 colours of the colour table as Windows colour values 0x00BBGGRR: entry 0 is index 1, entry 255 is black for
/// index 256. On a light background index 7 is black, on a dark one white.
PLATFORM_EXPORT const unsigned long* odcmIndexPalette(bool darkBackground);
