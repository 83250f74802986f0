#pragma once

#include "velm/velm_export.h"

#include <QUrl>

#include <map>
#include <vector>

namespace velm {
/// Hears when a panel is shown or hidden.
class VELM_EXPORT QtPanelActivateListener
{
public:
    virtual ~QtPanelActivateListener();
    virtual void activatePanel(bool active) = 0;
    /// Called when the panel's page has been loaded.
    virtual void postLoaderActivation(bool active);
};

/// The listeners of each panel, by the URL of its page. They are not owned: whoever dies removes itself first. A
/// listener that changes the list of its own URL while it is told is not supported.
class VELM_EXPORT PanelListenerHandler
{
public:
    PanelListenerHandler();
    PanelListenerHandler(const PanelListenerHandler&);
    PanelListenerHandler(PanelListenerHandler&&) noexcept;
    PanelListenerHandler& operator=(const PanelListenerHandler&);
    PanelListenerHandler& operator=(PanelListenerHandler&&) noexcept;
    ~PanelListenerHandler();

    /// A listener stands at most once under a URL.
    void addPanelListener(QtPanelActivateListener* listener, const QUrl& url);
    void removePanelListener(QtPanelActivateListener* listener, const QUrl& url);
    void activatePanel(bool active, const QUrl& url);
    void postLoaderActivation(bool active, const QUrl& url);

private:
    std::map<QUrl, std::vector<QtPanelActivateListener*>> m_listeners; // not owned
};
} // namespace velm
