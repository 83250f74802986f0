#pragma once

#include "velm/velm_export.h"

#include <memory>

class QUrl;

namespace velm {
/// Behind the title bar of a command's panel.
class VELM_EXPORT ICommandContextPanelTitleController
{
public:
    /// The page of the title bar.
    explicit ICommandContextPanelTitleController(const QUrl& sourceUrl);
    ~ICommandContextPanelTitleController();

    QUrl getSourceUrl() const;

private:
    std::unique_ptr<QUrl> m_sourceUrl;
};
} // namespace velm
