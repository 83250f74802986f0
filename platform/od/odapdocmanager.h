#pragma once

#include "od/odapdocument.h"

#include <vector>

/// Hears of the documents' comings and goings. The order of the operations is part of the interface.
class PLATFORM_EXPORT OdApDocManagerReactor
{
public:
    virtual ~OdApDocManagerReactor();

    virtual void documentCreateStarted(OdApDocument*) {}
    virtual void documentCreated(OdApDocument*) {}
    /// `document` is null when the last document went.
    virtual void documentBecameCurrent(OdApDocument* /*document*/) {}
    virtual void documentCreateCanceled(OdApDocument*) {}
    virtual void documentActivated(OdApDocument*) {}
    virtual void documentToBeActivated(OdApDocument*) {}
    virtual void documentToBeDeactivated(OdApDocument*) {}
    virtual void documentDeactivated(OdApDocument*) {}
    virtual void documentTitleUpdated(OdApDocument*) {}
    virtual void documentToBeDestroyed(OdApDocument*) {}
    /// The document is gone; only its file's name is left.
    virtual void documentDestroyed(const OdString& /*fileName*/) {}
    virtual void documentLockModeWillChange(OdApDocument*) {}
    virtual void documentLockModeChanged(OdApDocument*) {}
    virtual void documentLockModeChangeVetoed(OdApDocument*) {}
};

/// The open documents and which of them is current. Reactors are told in the order in which they were added; a reactor
/// may remove itself or others while it is told.
class PLATFORM_EXPORT OdApDocManager
{
public:
    OdApDocManager();
    /// Closes all documents.
    ~OdApDocManager();
    OdApDocManager(const OdApDocManager&) = delete;
    OdApDocManager& operator=(const OdApDocManager&) = delete;

    /// Adds a document and makes it current.
    OdApDocument* open(std::unique_ptr<OdApDocument> document);
    /// Closes a document; when it was current, the one opened last of the rest becomes current. Unknown: nothing.
    void close(OdApDocument* document);
    /// Unknown or current already: nothing.
    void setCurDocument(OdApDocument* document);

    OdApDocument* curDocument() const { return m_current; }
    std::vector<OdApDocument*> documents() const;

    /// The reactor is not owned and stands in the list at most once.
    void addReactor(OdApDocManagerReactor* reactor);
    void removeReactor(OdApDocManagerReactor* reactor);

private:
    template <typename Argument>
    void notify(void (OdApDocManagerReactor::*operation)(Argument), std::decay_t<Argument> argument);
    void makeCurrent(OdApDocument* document);

    std::vector<std::unique_ptr<OdApDocument>> m_documents;
    OdApDocument* m_current = nullptr;              // not owned
    std::vector<OdApDocManagerReactor*> m_reactors; // not owned
};
