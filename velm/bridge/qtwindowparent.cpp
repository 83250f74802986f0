#include "velm/bridge/qtwindowparent.h"

#include <QWindow>

namespace velm {
struct QtWindowParent::Pimpl
{
    wxWindow* wxParent = nullptr; // not owned
    QWindow* qtParent = nullptr;  // not owned
};

QtWindowParent::QtWindowParent(QObject* parent) : QObject(parent), m_pimpl(new Pimpl)
{}

QtWindowParent::QtWindowParent(wxWindow* wxParent, QWindow* qtParent) : m_pimpl(new Pimpl{wxParent, qtParent})
{}

QtWindowParent::~QtWindowParent() = default;

wxWindow* QtWindowParent::getWxParent() const
{
    return m_pimpl->wxParent;
}

void QtWindowParent::setWxParent(wxWindow* wxparent)
{
    m_pimpl->wxParent = wxparent;
}

QWindow* QtWindowParent::getQtParent() const
{
    return m_pimpl->qtParent;
}

void QtWindowParent::setQtParent(QWindow* qtparent)
{
    m_pimpl->qtParent = qtparent;
}
} // namespace velm
