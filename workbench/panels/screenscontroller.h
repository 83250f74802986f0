#pragma once

#include "host/popupanchor.h"

#include <QPoint>
#include <QRect>
#include <QVariantList>

namespace workbench {
/// What the page about screens shows: the monitors, where the program's window stands on them, and the cursor as each
/// toolkit counts it. It follows windows that move, and monitors that come and go.
class ScreensController : public QObject, private velm::Positioner
{
    Q_OBJECT
    Q_PROPERTY(QVariantList monitors READ monitors NOTIFY changed)
    Q_PROPERTY(QVariantList monitorRows READ monitorRows NOTIFY changed)
    Q_PROPERTY(QVariantList windowRows READ windowRows NOTIFY changed)
    Q_PROPERTY(QRect desktop READ desktop NOTIFY changed)
    Q_PROPERTY(QRect window READ window NOTIFY changed)
    Q_PROPERTY(QPoint cursor READ cursor NOTIFY cursorChanged)
    Q_PROPERTY(QVariantList cursorRows READ cursorRows NOTIFY cursorChanged)
    Q_PROPERTY(workbench::PopupAnchor* popup READ popup CONSTANT)
public:
    ScreensController();
    ~ScreensController() override;

    /// The window that the page lies in. It is not owned and outlives the page.
    void setWindow(wxWindow* page);
    PopupAnchor* popup() { return &m_popup; }

    /// Of each its "name", its "rect" in physical pixels and whether it is "primary".
    const QVariantList& monitors() const { return m_monitors; }
    // Rows of "label" and "value".
    const QVariantList& monitorRows() const { return m_monitorRows; }
    const QVariantList& windowRows() const { return m_windowRows; }
    const QVariantList& cursorRows() const { return m_cursorRows; }
    // In physical pixels.
    QRect desktop() const { return m_desktop; }
    QRect window() const { return m_frameRect; }
    QPoint cursor() const { return m_cursor; }

    /// A length in pixels of 96 to the inch, in those of each monitor: rows as above.
    Q_INVOKABLE QVariantList inEachMonitor(int value) const;
    /// Nothing tells of a cursor that moves elsewhere: the page asks again and again while it is seen.
    Q_INVOKABLE void followCursor();

Q_SIGNALS:
    void changed();
    void cursorChanged();

private:
    void update() override;
    void readMonitors();
    void readWindow();

    wxWindow* m_page = nullptr; // not owned
    PopupAnchor m_popup;
    QVariantList m_monitors;
    QVariantList m_monitorRows;
    QVariantList m_windowRows;
    QVariantList m_cursorRows;
    QRect m_desktop;
    QRect m_frameRect;
    QPoint m_cursor;
};
} // namespace workbench
