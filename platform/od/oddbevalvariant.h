#pragma once

#include <memory>

/// A value that a dialog takes in and gives back; of the SDK's types only the double is needed.
class OdDbEvalVariant
{
public:
    explicit OdDbEvalVariant(double value = 0.0) : m_value(value) {}
    double getDouble() const { return m_value; }
    void setDouble(double value) { m_value = value; }

private:
    double m_value;
};

using OdDbEvalVariantPtr = std::shared_ptr<OdDbEvalVariant>;
