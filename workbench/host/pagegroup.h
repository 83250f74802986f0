#pragma once

#include "host/hostpage.h"
#include "host/modalstack.h"

#include <vector>

class QQmlEngine;

namespace workbench {
class PagePanel;
class PagePopup;

/// All pages of the program as one: they share the engine, are reloaded together and are blocked by a modal dialog that
/// they aren't part of. A popup closes then, and when the pages are reloaded.
class PageGroup : public HostPage
{
public:
    PageGroup();
    ~PageGroup() override;

    QQmlEngine* engine() const { return m_engine; }
    /// Null takes all pages down, before the engine goes; an engine loads them again. Not owned.
    void setEngine(QQmlEngine* engine);

    ModalStack& modals() { return m_modals; }
    /// Blocks all pages while the host is busy without a modal dialog.
    void setBusy(bool busy);
    bool isBlocked(const PagePanel& page) const;

    /// The pages' windows follow a change of theme; what is in them does so by itself.
    void applyTheme();

    void add(PagePanel* page);
    void remove(PagePanel* page);
    const std::vector<PagePanel*>& pages() const { return m_pages; }

    /// The popup that has a page, or null. A new one takes the former one down. Not owned.
    PagePopup* popup() const { return m_popup; }
    void setPopup(PagePopup* popup);

    void reload(int reason) override;
    void setAcceleratorTable(const wxAcceleratorTable& table) override;
    QObject* findInTransientPopups(const QString& objectName) override;

private:
    void updateBlocking();

    QQmlEngine* m_engine = nullptr; // not owned
    ModalStack m_modals;
    bool m_busy = false;
    std::vector<PagePanel*> m_pages; // not owned
    PagePopup* m_popup = nullptr;    // not owned
};
} // namespace workbench
