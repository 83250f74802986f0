#pragma once

#include "sheetset/sheetsetcontroller.h"
#include "support/rowtext.h"
#include "support/scopes.h"
#include "velm/bridge/conversions.h"
#include "workbench/dxftexts.h"

#include <QAbstractItemModelTester>
#include <QAbstractProxyModel>

namespace workbench {
/// A drawing with these layouts, the last with a viewport.
inline QByteArray sheets(const QStringList& layouts)
{
    QByteArray objects;
    for (const QString& name : layouts)
        objects += "0 LAYOUT|100 AcDbLayout|1 " + name.toUtf8() + "|71 0|330 " + name.toUtf8() + "|";
    const QByteArray entities =
        layouts.isEmpty() ? QByteArray()
                          : "0 VIEWPORT|330 " + layouts.last().toUtf8() + "|69 2|40 20|41 10|12 50|22 0|45 10";
    return section("ENTITIES", entities) + section("OBJECTS", objects.chopped(objects.isEmpty() ? 0 : 1)) +
           groups("0 EOF");
}

/// A folder on the disk, and the panel's controller as long as it is started.
class SheetSetHouse
{
public:
    void start(std::unique_ptr<WatchedFolders> watcher = std::make_unique<WatchedFolders>(),
               std::unique_ptr<SheetFiles> files = std::make_unique<SheetFiles>())
    {
        startUntested(std::move(watcher), std::move(files));
        sourceTester = std::make_unique<QAbstractItemModelTester>(controller->source());
        tester = std::make_unique<QAbstractItemModelTester>(controller->tree());
        sourceTester->setUseFetchMore(false);
        tester->setUseFetchMore(false);
    }
    /// Without testers, which take long for many rows.
    void startUntested(std::unique_ptr<WatchedFolders> watcher = std::make_unique<WatchedFolders>(),
                       std::unique_ptr<SheetFiles> files = std::make_unique<SheetFiles>())
    {
        controller = std::make_unique<SheetSetController>(documents, std::move(watcher), std::move(files));
    }
    void stop()
    {
        tester.reset();
        sourceTester.reset();
        controller.reset();
    }

    QString path(const QString& name = {}) const { return QDir::cleanPath(folder.path() + u'/' + name); }
    void makeFolder(const QString& name) const { QVERIFY(QDir().mkpath(path(name))); }
    void write(const QString& name, const QByteArray& text = sheets({})) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), text.size());
    }
    /// "0.dxf" and so on.
    void writeMany(const QString& folderName, int first, int last) const
    {
        for (int number = first; number < last; ++number)
            write(QString("%1/%2.dxf").arg(folderName).arg(number));
    }
    void removeMany(const QString& folderName, int first, int last) const
    {
        for (int number = first; number < last; ++number)
            QVERIFY(QFile::remove(path(QString("%1/%2.dxf").arg(folderName).arg(number))));
    }
    /// Of the sorted tree; invalid while it isn't there.
    QModelIndex row(const QString& name) const
    {
        const auto* sorted = static_cast<const QAbstractProxyModel*>(controller->tree());
        return sorted->mapFromSource(controller->source()->index(path(name)));
    }
    int count(const QString& name) const { return controller->tree()->rowCount(row(name)); }
    /// Opens a row as the page does, as soon as it is there.
    void open(const QString& name) const
    {
        QTRY_VERIFY2(row(name).isValid(), qPrintable(name));
        controller->tree()->setData(row(name), true, velm::getWantsToBeExpandedRole());
        readExpanded(row(name));
    }
    void addAndOpen(const QString& name) const
    {
        QVERIFY(controller->addRoot(path(name)));
        open(name);
    }
    /// From now on what is expanded is read as soon as it is there, as it is by the page.
    void showPage() const
    {
        const auto read = [this](const QModelIndex& first) { readExpanded(first); };
        QObject::connect(controller->tree(), &QAbstractItemModel::dataChanged, controller->tree(), read);
        for (int root = 0; root < controller->tree()->rowCount(); ++root)
            readExpanded(controller->tree()->index(root, 0));
    }
    QString rows() const { return velmtest::rowText(*controller->tree()); }
    QString current() const { return controller->currentIndex().data().toString(); }
    QStringList expanded() const
    {
        QStringList names;
        for (const QString& expandedPath : controller->source()->expandedPaths())
            names += QDir(path()).relativeFilePath(expandedPath);
        return names;
    }

    velmtest::TemporaryConfig config;
    QTemporaryDir folder;
    OdApDocManager documents;
    std::unique_ptr<SheetSetController> controller;

private:
    void readExpanded(const QModelIndex& index) const
    {
        if (index.data(velm::getWantsToBeExpandedRole()).toBool() && controller->tree()->canFetchMore(index))
            controller->tree()->fetchMore(index);
    }

    std::unique_ptr<QAbstractItemModelTester> sourceTester;
    std::unique_ptr<QAbstractItemModelTester> tester;
};
} // namespace workbench
