#include "od/odapdocmanager.h"

#include <algorithm>

OdApDocManagerReactor::~OdApDocManagerReactor() = default;

OdApDocManager::OdApDocManager() = default;

OdApDocManager::~OdApDocManager()
{
    while (!m_documents.empty())
        close(m_documents.back().get());
}

OdApDocument* OdApDocManager::open(std::unique_ptr<OdApDocument> document)
{
    if (!document)
        return nullptr;
    OdApDocument* opened = document.get();
    notify(&OdApDocManagerReactor::documentCreateStarted, opened);
    m_documents.push_back(std::move(document));
    notify(&OdApDocManagerReactor::documentCreated, opened);
    makeCurrent(opened);
    return opened;
}

void OdApDocManager::close(OdApDocument* document)
{
    const auto find = [&] { return std::ranges::find(m_documents, document, &std::unique_ptr<OdApDocument>::get); };
    if (find() == m_documents.end())
        return;
    notify(&OdApDocManagerReactor::documentToBeDestroyed, document);
    if (document == m_current) {
        const auto next = std::find_if(m_documents.rbegin(), m_documents.rend(),
                                       [&](const auto& other) { return other.get() != document; });
        if (next != m_documents.rend()) {
            makeCurrent(next->get());
        } else {
            m_current = nullptr;
            notify(&OdApDocManagerReactor::documentBecameCurrent, m_current);
        }
    }
    const OdString fileName = document->fileName();
    m_documents.erase(find());
    notify(&OdApDocManagerReactor::documentDestroyed, fileName);
}

void OdApDocManager::setCurDocument(OdApDocument* document)
{
    const auto isDocument = [&](const auto& open) { return open.get() == document; };
    if (document != m_current && std::ranges::any_of(m_documents, isDocument))
        makeCurrent(document);
}

std::vector<OdApDocument*> OdApDocManager::documents() const
{
    std::vector<OdApDocument*> result;
    result.reserve(m_documents.size());
    for (const auto& document : m_documents)
        result.push_back(document.get());
    return result;
}

void OdApDocManager::addReactor(OdApDocManagerReactor* reactor)
{
    if (reactor && std::ranges::find(m_reactors, reactor) == m_reactors.end())
        m_reactors.push_back(reactor);
}

void OdApDocManager::removeReactor(OdApDocManagerReactor* reactor)
{
    std::erase(m_reactors, reactor);
}

template <typename Argument>
void OdApDocManager::notify(void (OdApDocManagerReactor::*operation)(Argument), std::decay_t<Argument> argument)
{
    // A reactor may remove, and thereby free, one that has not been told yet.
    const std::vector<OdApDocManagerReactor*> reactors = m_reactors;
    for (OdApDocManagerReactor* reactor : reactors)
        if (std::ranges::find(m_reactors, reactor) != m_reactors.end())
            (reactor->*operation)(argument);
}

void OdApDocManager::makeCurrent(OdApDocument* document)
{
    OdApDocument* former = m_current;
    if (former)
        notify(&OdApDocManagerReactor::documentToBeDeactivated, former);
    notify(&OdApDocManagerReactor::documentToBeActivated, document);
    m_current = document;
    if (former)
        notify(&OdApDocManagerReactor::documentDeactivated, former);
    notify(&OdApDocManagerReactor::documentActivated, document);
    notify(&OdApDocManagerReactor::documentBecameCurrent, document);
}
