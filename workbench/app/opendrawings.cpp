#include "app/opendrawings.h"

#include "velm/bridge/conversions.h"

#include <algorithm>

namespace workbench {
OpenDrawings::OpenDrawings(OdApDocManager& documents) : m_documents(documents)
{
    m_documents.addReactor(this);
    update();
}

OpenDrawings::~OpenDrawings()
{
    m_documents.removeReactor(this);
}

int OpenDrawings::current() const
{
    const std::vector<OdApDocument*> open = m_documents.documents();
    const auto found = std::ranges::find(open, m_documents.curDocument());
    return found == open.end() ? -1 : static_cast<int>(found - open.begin());
}

void OpenDrawings::activate(int index)
{
    m_documents.setCurDocument(document(index));
}

void OpenDrawings::close(int index)
{
    m_documents.close(document(index));
}

void OpenDrawings::choose(int index)
{
    activate(index);
    if (onChosen)
        onChosen();
}

OdApDocument* OpenDrawings::document(int index) const
{
    const std::vector<OdApDocument*> open = m_documents.documents();
    return index >= 0 && index < static_cast<int>(open.size()) ? open[static_cast<std::size_t>(index)] : nullptr;
}

void OpenDrawings::update()
{
    m_files.clear();
    for (const OdApDocument* document : m_documents.documents())
        m_files << velm::toQt(document->fileName());
    Q_EMIT filesChanged();
    Q_EMIT currentChanged();
}
} // namespace workbench
