#pragma once

#include <cmath>

/// A vector in the drawing, in drawing units.
struct OdGeVector3d
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    double length() const { return std::sqrt(x * x + y * y + z * z); }

    friend OdGeVector3d operator+(const OdGeVector3d& a, const OdGeVector3d& b)
    {
        return {a.x + b.x, a.y + b.y, a.z + b.z};
    }
    friend OdGeVector3d operator*(const OdGeVector3d& a, double factor)
    {
        return {a.x * factor, a.y * factor, a.z * factor};
    }
    friend bool operator==(const OdGeVector3d&, const OdGeVector3d&) = default;
};

/// A point in the drawing, in drawing units.
struct OdGePoint3d
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    friend OdGePoint3d operator+(const OdGePoint3d& p, const OdGeVector3d& v)
    {
        return {p.x + v.x, p.y + v.y, p.z + v.z};
    }
    friend OdGeVector3d operator-(const OdGePoint3d& a, const OdGePoint3d& b)
    {
        return {a.x - b.x, a.y - b.y, a.z - b.z};
    }
    friend bool operator==(const OdGePoint3d&, const OdGePoint3d&) = default;
};

/// A 4 by 4 transformation, rows first; the default is the identity.
struct OdGeMatrix3d
{
    double entry[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

    double* operator[](int row) { return entry[row]; }
    const double* operator[](int row) const { return entry[row]; }

    static OdGeMatrix3d translation(const OdGeVector3d& v)
    {
        OdGeMatrix3d result;
        result.entry[0][3] = v.x;
        result.entry[1][3] = v.y;
        result.entry[2][3] = v.z;
        return result;
    }
    static OdGeMatrix3d rotationZ(double radians)
    {
        OdGeMatrix3d result;
        result.entry[0][0] = result.entry[1][1] = std::cos(radians);
        result.entry[1][0] = std::sin(radians);
        result.entry[0][1] = -result.entry[1][0];
        return result;
    }
    static OdGeMatrix3d scaling(double sx, double sy, double sz)
    {
        OdGeMatrix3d result;
        result.entry[0][0] = sx;
        result.entry[1][1] = sy;
        result.entry[2][2] = sz;
        return result;
    }
    friend OdGeMatrix3d operator*(const OdGeMatrix3d& a, const OdGeMatrix3d& b)
    {
        OdGeMatrix3d result;
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column) {
                result.entry[row][column] = 0.0;
                for (int k = 0; k < 4; ++k)
                    result.entry[row][column] += a.entry[row][k] * b.entry[k][column];
            }
        return result;
    }
    friend OdGePoint3d operator*(const OdGeMatrix3d& m, const OdGePoint3d& p)
    {
        const auto row = [&](int i) { return m[i][0] * p.x + m[i][1] * p.y + m[i][2] * p.z + m[i][3]; };
        return {row(0), row(1), row(2)};
    }
    friend bool operator==(const OdGeMatrix3d&, const OdGeMatrix3d&) = default;
};
