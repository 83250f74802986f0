#pragma once

#include <limits>
#include <memory>

class OdDbEvalVariant;
using OdDbEvalVariantPtr = std::shared_ptr<OdDbEvalVariant>;

/// A value that a dialog takes in and gives back; of the SDK's types only the double is needed.
class OdDbEvalVariant
{
public:
    static OdDbEvalVariantPtr init(double value)
    {
        auto result = std::make_shared<OdDbEvalVariant>();
        result->m_value = value;
        return result;
    }

    /// NaN when it holds no number.
    double getAsDouble() const { return m_value; }

private:
    double m_value = std::numeric_limits<double>::quiet_NaN();
};
