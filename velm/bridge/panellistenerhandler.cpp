#include "velm/bridge/panellistenerhandler.h"

#include <algorithm>

namespace velm {
QtPanelActivateListener::~QtPanelActivateListener() = default;

void QtPanelActivateListener::postLoaderActivation(bool)
{}

PanelListenerHandler::PanelListenerHandler() = default;
PanelListenerHandler::PanelListenerHandler(const PanelListenerHandler&) = default;
PanelListenerHandler::PanelListenerHandler(PanelListenerHandler&&) noexcept = default;
PanelListenerHandler& PanelListenerHandler::operator=(const PanelListenerHandler&) = default;
PanelListenerHandler& PanelListenerHandler::operator=(PanelListenerHandler&&) noexcept = default;
PanelListenerHandler::~PanelListenerHandler() = default;

void PanelListenerHandler::addPanelListener(QtPanelActivateListener* listener, const QUrl& url)
{
    auto& listeners = m_listeners[url];
    if (listener != nullptr && std::find(listeners.begin(), listeners.end(), listener) == listeners.end())
        listeners.push_back(listener);
}

void PanelListenerHandler::removePanelListener(QtPanelActivateListener* listener, const QUrl& url)
{
    if (const auto entry = m_listeners.find(url); entry != m_listeners.end())
        std::erase(entry->second, listener);
}

void PanelListenerHandler::activatePanel(bool active, const QUrl& url)
{
    if (const auto entry = m_listeners.find(url); entry != m_listeners.end())
        for (QtPanelActivateListener* listener : entry->second)
            listener->activatePanel(active);
}

void PanelListenerHandler::postLoaderActivation(bool active, const QUrl& url)
{
    if (const auto entry = m_listeners.find(url); entry != m_listeners.end())
        for (QtPanelActivateListener* listener : entry->second)
            listener->postLoaderActivation(active);
}
} // namespace velm
