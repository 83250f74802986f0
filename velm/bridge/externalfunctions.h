#pragma once

#include "od/odstring.h"
#include "velm/velm_export.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class OdApDocManager;
class OdDbDatabase;

namespace velm {
class IDialogFactory;
class IGuiController;
class IUnitFormatter;

/// Everything that the library needs of the host application, filled once at start. Each member may be empty.
struct VELM_EXPORT ExternalFunctions
{
    ExternalFunctions();
    ExternalFunctions(const ExternalFunctions&);
    ExternalFunctions(ExternalFunctions&&) noexcept;
    ExternalFunctions& operator=(const ExternalFunctions&);
    ExternalFunctions& operator=(ExternalFunctions&&) noexcept;
    ~ExternalFunctions();

    /// Whether the current drawing uses colour-dependent plot styles.
    std::function<bool()> plotStyleColorDependent;
    /// The database of the active drawing, or null.
    std::function<OdDbDatabase*()> currentDatabase;
    /// Presses Enter on the host's command line.
    std::function<void()> processEnter;
    /// Presses Escape on the host's command line.
    std::function<void()> processEscape;
    /// Runs a command string through the host's command line.
    std::function<void(const OdString&)> processCommand;
    std::function<IGuiController*()> guiController;
    std::function<IDialogFactory*()> dlgFactory;
    std::function<OdApDocManager*()> docManager;
    /// Turns the name of a page into its full URL.
    std::function<QUrl(const QString&)> getUIFullUrl;
    /// The drawing's default lineweight, in hundredths of a millimetre.
    std::function<int()> defaultLineWeight;
    /// A formatter of the given value.
    std::function<IUnitFormatter*(double)> getUnitFormatter;
    /// Opens a web documentation page by its key.
    std::function<void(const QString&)> openWebDoc;
    /// The URL of a web documentation page by its key.
    std::function<QString(const QString&)> getWebDocUrl;
};

/// Hands the host's callbacks to the library; a later call replaces all of them together.
VELM_EXPORT void setVELMExternalFunction(const ExternalFunctions& functions);
/// The callbacks as they are, for what asks whether one is set.
const ExternalFunctions& externalFunctions();

// The road back to the host. Where the host set no callback, each does nothing or gives the empty value of its type.
VELM_EXPORT bool plotStyleColorDependent();
VELM_EXPORT OdDbDatabase* currentDatabase();
VELM_EXPORT void processEnter();
VELM_EXPORT void processEscape();
VELM_EXPORT void processCommand(const OdString& command);
VELM_EXPORT IGuiController* guiController();
VELM_EXPORT IDialogFactory* dlgFactory();
VELM_EXPORT OdApDocManager* docManager();
VELM_EXPORT QUrl getUIFullUrl(const QString& page);
VELM_EXPORT IUnitFormatter* getUnitFormatter(double value);
VELM_EXPORT void openWebDoc(const QString& key);
VELM_EXPORT QString getWebDocUrl(const QString& key);

/// A GUI controller that does nothing, for programs without a host; only its colours work.
VELM_EXPORT std::unique_ptr<IGuiController> createEmptyGuiController();

/// The path of a test resource, below the folder "Qt" in the one that the environment variable DRAWINGS_PATH names.
/// An unset variable is warned about and taken as empty.
VELM_EXPORT OdString getFullQtTestResourcesPath(const OdString& relative);
} // namespace velm
