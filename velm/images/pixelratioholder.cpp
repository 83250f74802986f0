#include "velm/images/pixelratioholder.h"

#include <QWindow>

#include <wx/window.h>

namespace velm {
namespace {
constexpr double noRatio = -1.0;
}

struct PixelRatioHolder::Pimpl
{
    const wxWindow* wxSource = nullptr; // not owned
    const QWindow* qtSource = nullptr;  // not owned
    double ratio = noRatio;
};

PixelRatioHolder::PixelRatioHolder(double ratio) : m_pimpl(new Pimpl{nullptr, nullptr, ratio})
{}

PixelRatioHolder::PixelRatioHolder(const wxWindow* window)
    : m_pimpl(new Pimpl{window, nullptr, window ? window->FromDIP(100) / 100.0 : noRatio})
{}

PixelRatioHolder::PixelRatioHolder(const QWindow* window)
    : m_pimpl(new Pimpl{nullptr, window, window ? window->devicePixelRatio() : noRatio})
{}

PixelRatioHolder::PixelRatioHolder(const PixelRatioHolder& other) : m_pimpl(new Pimpl(*other.m_pimpl))
{}

PixelRatioHolder::PixelRatioHolder(PixelRatioHolder&&) noexcept = default;

PixelRatioHolder& PixelRatioHolder::operator=(const PixelRatioHolder& other)
{
    m_pimpl = std::make_unique<Pimpl>(*other.m_pimpl);
    return *this;
}

PixelRatioHolder& PixelRatioHolder::operator=(PixelRatioHolder&&) noexcept = default;
PixelRatioHolder::~PixelRatioHolder() = default;

double PixelRatioHolder::devicePixelRatio() const
{
    return m_pimpl->ratio == noRatio ? 1.0 : m_pimpl->ratio;
}
} // namespace velm
