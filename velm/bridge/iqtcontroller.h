#pragma once

#include "velm/velm_export.h"

#include <QString>

#include <vector>

class QObject;
class wxAcceleratorTable;

namespace velm {
/// Common base of what a hosted page can do besides being shown.
class VELM_EXPORT IQtControllerInterface
{
public:
    virtual ~IQtControllerInterface();
};

/// The page is a sheet-set panel. What its operations do is the host's.
class VELM_EXPORT ISheetSetPanel : public IQtControllerInterface
{
public:
    ~ISheetSetPanel() override;
    virtual void hostOperation1() = 0;
    virtual void hostOperation2() = 0;
    virtual void hostOperation3() = 0;
};

/// The page has a "look from" control.
class VELM_EXPORT ILookFrom : public IQtControllerInterface
{
public:
    ~ILookFrom() override;
};

/// The controller of a window of its own. What its operation does is the host's.
class VELM_EXPORT ITopLevelWindowController
{
public:
    virtual ~ITopLevelWindowController();
    virtual void hostOperation1() = 0;
};

/// Drives one page in a host window; the host implements one for each page. The order of the operations is part of the
/// interface. Those whose names begin with "host" are the host's own.
class VELM_EXPORT IQtController
{
public:
    virtual ~IQtController();
    virtual void hostOperation1() = 0;
    virtual void hostOperation2() = 0;
    virtual void hostOperation3() = 0;
    virtual void hostOperation4() = 0;
    virtual void hostOperation5() = 0;
    virtual void hostOperation6() = 0;
    virtual void hostOperation7() = 0;
    /// Loads the page anew.
    virtual void reload(int reason) = 0;
    virtual void hostOperation8() = 0;
    virtual void hostOperation9() = 0;
    virtual void hostOperation10() = 0;
    virtual void hostOperation11() = 0;
    virtual void hostOperation12() = 0;
    virtual void hostOperation13() = 0;
    virtual void setAcceleratorTable(const wxAcceleratorTable& table);
    /// The QML object of that name in the page's transient popups, or null.
    virtual QObject* findInTransientPopups(const QString& objectName) = 0;
    /// Appends what the page can do; the objects stay the page's.
    virtual void getInterfaces(std::vector<IQtControllerInterface*>& interfaces) const = 0;

    /// The first of the page's interfaces that is one, or null.
    ISheetSetPanel* getISheetSetPanel() const;
    ILookFrom* getLookFrom() const;
};
} // namespace velm
