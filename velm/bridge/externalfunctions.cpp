#include "velm/bridge/externalfunctions.h"

#include "ut/environment.h"

#include <QDebug>
#include <QMessageLogger>

namespace velm {
namespace {
ExternalFunctions theFunctions;

/// What the host's callback answers, or the empty value of its result when the host set none.
template <typename Result, typename... Arguments>
Result ask(const std::function<Result(Arguments...)>& callback, Arguments... arguments)
{
    return callback ? callback(arguments...) : Result();
}
} // namespace

ExternalFunctions::ExternalFunctions() = default;
ExternalFunctions::ExternalFunctions(const ExternalFunctions&) = default;
ExternalFunctions::ExternalFunctions(ExternalFunctions&&) noexcept = default;
ExternalFunctions& ExternalFunctions::operator=(const ExternalFunctions&) = default;
ExternalFunctions& ExternalFunctions::operator=(ExternalFunctions&&) noexcept = default;
ExternalFunctions::~ExternalFunctions() = default;

void setVELMExternalFunction(const ExternalFunctions& functions)
{
    theFunctions = functions;
}

const ExternalFunctions& externalFunctions()
{
    return theFunctions;
}

bool plotStyleColorDependent()
{
    return ask(theFunctions.plotStyleColorDependent);
}

OdDbDatabase* currentDatabase()
{
    return ask(theFunctions.currentDatabase);
}

void processEnter()
{
    ask(theFunctions.processEnter);
}

void processEscape()
{
    ask(theFunctions.processEscape);
}

void processCommand(const OdString& command)
{
    ask<void, const OdString&>(theFunctions.processCommand, command);
}

IGuiController* guiController()
{
    return ask(theFunctions.guiController);
}

IDialogFactory* dlgFactory()
{
    return ask(theFunctions.dlgFactory);
}

OdApDocManager* docManager()
{
    return ask(theFunctions.docManager);
}

QUrl getUIFullUrl(const QString& page)
{
    return ask<QUrl, const QString&>(theFunctions.getUIFullUrl, page);
}

IUnitFormatter* getUnitFormatter(double value)
{
    return ask(theFunctions.getUnitFormatter, value);
}

void openWebDoc(const QString& key)
{
    ask<void, const QString&>(theFunctions.openWebDoc, key);
}

QString getWebDocUrl(const QString& key)
{
    return ask<QString, const QString&>(theFunctions.getWebDocUrl, key);
}

OdString getFullQtTestResourcesPath(const OdString& relative)
{
    const OdString folder = ut::getEnvironment(L"DRAWINGS_PATH");
    if (folder.isEmpty())
        QMessageLogger(nullptr, 0, nullptr).warning().noquote()
            << "Wasn't able to find the local drawings folder: DRAWINGS_PATH env var wasn't set.";
    return ut::correctSlashes(folder + L"/Qt/" + relative);
}
} // namespace velm
