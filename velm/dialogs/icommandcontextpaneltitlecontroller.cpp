#include "velm/dialogs/icommandcontextpaneltitlecontroller.h"

#include <QUrl>

namespace velm {
ICommandContextPanelTitleController::ICommandContextPanelTitleController(const QUrl& sourceUrl)
    : m_sourceUrl(std::make_unique<QUrl>(sourceUrl))
{}

ICommandContextPanelTitleController::~ICommandContextPanelTitleController() = default;

QUrl ICommandContextPanelTitleController::getSourceUrl() const
{
    return *m_sourceUrl;
}
} // namespace velm
