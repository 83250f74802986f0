#pragma once

#include "velm/velm_export.h"

#include <QObject>

#include <memory>

class QWindow;
class wxWindow;

Q_DECLARE_OPAQUE_POINTER(wxWindow*)

namespace velm {
/// The host window and the Qt window that a page passes on when the host is to open a dialog above it. Neither is
/// owned.
class VELM_EXPORT QtWindowParent : public QObject
{
    Q_OBJECT
public:
    explicit QtWindowParent(QObject* parent);
    QtWindowParent(wxWindow* wxParent, QWindow* qtParent);
    ~QtWindowParent() override;

public Q_SLOTS:
    wxWindow* getWxParent() const;
    void setWxParent(wxWindow* wxparent);
    QWindow* getQtParent() const;
    void setQtParent(QWindow* qtparent);

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
