#include "bench/comparison.h"

#include "velm/sheetset/filesystem.h"
#include "velm/sheetset/filesystemwatcher.h"
#include "velm/sheetset/sheetsetfilesystemtreemodel.h"

#include <QCoreApplication>
#include <QFileSystemModel>
#include <QTemporaryDir>

#include <fcntl.h>
#include <set>
#include <unistd.h>

namespace velmbench {
namespace {
constexpr int entryCount = 100'000;
constexpr int renameCount = 5'000; // each makes an entry go and another one come
constexpr int repetitions = 3;

std::string entryName(const char* kind, int number)
{
    return kind + std::to_string(number) + ".dwg";
}

/// A folder of empty files.
class BigFolder
{
public:
    BigFolder()
    {
        for (int number = 0; number < entryCount; ++number)
            ::close(::open(file("sheet", number).c_str(), O_CREAT | O_WRONLY, 0600));
    }

    QString path() const { return m_folder.path(); }
    /// Every twentieth file gets another name.
    void rename()
    {
        for (int number = 0; number < renameCount; ++number)
            verify(std::rename(file("sheet", 20 * number).c_str(), file("plan", number).c_str()) == 0, "renaming");
    }
    static std::set<QString> namesAfterwards()
    {
        std::set<QString> names;
        for (int number = 0; number < entryCount; ++number)
            if (number % 20 != 0 || number >= 20 * renameCount)
                names.insert(QString::fromStdString(entryName("sheet", number)));
        for (int number = 0; number < renameCount; ++number)
            names.insert(QString::fromStdString(entryName("plan", number)));
        return names;
    }

private:
    std::string file(const char* kind, int number) const
    {
        return m_folder.path().toStdString() + "/" + entryName(kind, number);
    }

    QTemporaryDir m_folder;
};

class SheetTree : public velm::SheetSetFileSystemTreeModel
{
public:
    SheetTree()
        : SheetSetFileSystemTreeModel(std::make_unique<velm::FileSystem>(), std::make_unique<velm::FileSystemWatcher>())
    {}
    bool isModelViewDropValid() override { return false; }
    QList<QString> getModelViewNames(const QString&) override { return {}; }

    QModelIndex begin(const QString& path)
    {
        fetchMore(addDirectory(path));
        return index(path);
    }
};

class DiskModel : public QFileSystemModel
{
public:
    QModelIndex begin(const QString& path)
    {
        // A model of files alone needs nothing of what these cost.
        setOptions(DontUseCustomDirectoryIcons | DontResolveSymlinks);
        const QModelIndex folder = setRootPath(path);
        fetchMore(folder);
        return folder;
    }
};

template <typename Condition>
void processUntil(Condition condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
}

void verifyNames(const QAbstractItemModel& model, const QModelIndex& folder, const std::set<QString>& expected)
{
    std::set<QString> names;
    for (int row = 0; row < model.rowCount(folder); ++row)
        names.insert(model.index(row, 0, folder).data().toString());
    verify(names == expected && model.rowCount(folder) == entryCount, "following the folder");
}

template <typename Model>
void measureOpen(benchmark::State& state)
{
    static const BigFolder folder;
    Model model;
    for (auto _ : state) {
        const QPersistentModelIndex index = model.begin(folder.path());
        processUntil([&] { return model.rowCount(index) == entryCount; });
    }
}

template <typename Model>
void measureFollow(benchmark::State& state)
{
    BigFolder folder;
    Model model;
    const QPersistentModelIndex index = model.begin(folder.path());
    processUntil([&] { return model.rowCount(index) == entryCount; });
    int come = 0;
    int gone = 0;
    QObject::connect(&model, &QAbstractItemModel::rowsInserted,
                     [&](const QModelIndex&, int first, int last) { come += last - first + 1; });
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved,
                     [&](const QModelIndex&, int first, int last) { gone += last - first + 1; });
    for (auto _ : state) {
        folder.rename();
        processUntil([&] { return come == renameCount && gone == renameCount; });
    }
    verifyNames(model, index, BigFolder::namesAfterwards());
}
} // namespace

void addSheetSet()
{
    compare("sheet set: open a folder of 100000 entries", measureOpen<SheetTree>, measureOpen<DiskModel>, repetitions);
    compare("sheet set: follow ten thousand changes in it", measureFollow<SheetTree>, measureFollow<DiskModel>,
            repetitions);
}
} // namespace velmbench
