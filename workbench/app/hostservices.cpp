#include "app/hostservices.h"

#include "command/commandline.h"
#include "filter/entityfilterfactories.h"
#include "filter/entityfilterproperties.h"
#include "filter/filterstore.h"
#include "od/oddbdatabase.h"
#include "ut/environment.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/engine.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <wx/utils.h>

#include <utility>

namespace workbench {
namespace {
constexpr int lineWeightWithoutDrawing = 25;

/// The documentation lies in the folder "docs" beside the program, a page a key.
QString documentationFile(const QString& key)
{
    return velm::toQt(ut::getExecutableFolder(true)) + "docs/" + key + ".html";
}

QString filterFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Tandolin/Filters");
}
} // namespace

HostServices::HostServices(PageGroup& pages) : m_gui(pages), m_dialogs(pages)
{
    velm::IEntityFilterPropertiesModel::setCreateFunc([](const velm::IEntityFilterPropertiesModel::Manager& manager) {
        const auto factories = std::dynamic_pointer_cast<EntityFilterFactories>(manager);
        return factories ? std::make_shared<EntityFilterProperties>(factories) : nullptr;
    });
    velm::IFilterManagerFileIO::setCreateFileIOFunc([this](const oc::PropertyFilterFactoriesManager&) {
        return std::make_unique<FilterStore>(filterFolder(), [this](const QString& message) { tell(message); });
    });
}

HostServices::~HostServices()
{
    velm::IEntityFilterPropertiesModel::setCreateFunc({});
    velm::IFilterManagerFileIO::setCreateFileIOFunc({});
}

void HostServices::setCommandLine(CommandLine* commandLine)
{
    m_commandLine = commandLine;
    if (m_commandLine)
        for (const QString& message : std::exchange(m_untold, {}))
            tell(message);
}

void HostServices::tell(const QString& message)
{
    if (m_commandLine)
        m_commandLine->log(velm::wxFromQt(message));
    else
        m_untold.append(message);
}

velm::IUnitFormatter* HostServices::formatterFor(double value)
{
    OdApDocument* document = m_documents.curDocument();
    if (!document)
        return nullptr;
    m_formatter = UnitFormatter(document->database()->formatter(), value);
    return &m_formatter;
}

velm::ExternalFunctions HostServices::functions()
{
    velm::ExternalFunctions functions;
    functions.plotStyleColorDependent = [] { return true; };
    functions.currentDatabase = [this]() -> OdDbDatabase* {
        OdApDocument* document = m_documents.curDocument();
        return document ? document->database() : nullptr;
    };
    functions.processEnter = [this] {
        if (m_commandLine)
            m_commandLine->processEnter();
    };
    functions.processEscape = [this] {
        if (m_commandLine)
            m_commandLine->processEscape();
    };
    functions.processCommand = [this](const OdString& command) {
        if (m_commandLine)
            m_commandLine->processCommand(command.c_str());
    };
    functions.guiController = [this] { return &m_gui; };
    functions.dlgFactory = [this] { return &m_dialogs; };
    functions.docManager = [this] { return &m_documents; };
    functions.getUIFullUrl = [](const QString& page) { return velm::getQUrl(page, "Tandolin.UI", {}); };
    functions.defaultLineWeight = [this] {
        OdApDocument* document = m_documents.curDocument();
        return document ? document->database()->getLWDEFAULT() : lineWeightWithoutDrawing;
    };
    functions.getUnitFormatter = [this](double value) { return formatterFor(value); };
    functions.openWebDoc = [this](const QString& key) {
        const QString file = documentationFile(key);
        if (QFileInfo::exists(file))
            wxLaunchDefaultBrowser(velm::wxFromQt(QUrl::fromLocalFile(file).toString()));
        else if (m_commandLine)
            m_commandLine->log(velm::wxFromQt(QStringLiteral("There is no documentation page \"%1\".").arg(key)));
    };
    functions.getWebDocUrl = [](const QString& key) { return QUrl::fromLocalFile(documentationFile(key)).toString(); };
    return functions;
}
} // namespace workbench
