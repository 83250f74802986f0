#pragma once

/// A point on a device, in its pixels.
struct OdGsDCPoint
{
    long x = 0;
    long y = 0;

    friend bool operator==(const OdGsDCPoint&, const OdGsDCPoint&) = default;
};

/// A rectangle on a device by two corners: `m_min` is left and top, `m_max` right and bottom.
struct OdGsDCRect
{
    OdGsDCPoint m_min;
    OdGsDCPoint m_max;

    friend bool operator==(const OdGsDCRect&, const OdGsDCRect&) = default;
};
