#pragma once

#include "velm/velm_export.h"

#include <memory>

class QWindow;
class wxWindow;

namespace velm {
/// How many physical pixels a logical one has, given or asked of a window of either toolkit at once.
class VELM_EXPORT PixelRatioHolder
{
public:
    PixelRatioHolder(double ratio);
    // A null window gives no ratio.
    PixelRatioHolder(const wxWindow* window);
    PixelRatioHolder(const QWindow* window);
    PixelRatioHolder(const PixelRatioHolder& other);
    PixelRatioHolder(PixelRatioHolder&&) noexcept;
    PixelRatioHolder& operator=(const PixelRatioHolder& other);
    PixelRatioHolder& operator=(PixelRatioHolder&&) noexcept;
    ~PixelRatioHolder();

    /// 1.0 when there is none.
    double devicePixelRatio() const;

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
