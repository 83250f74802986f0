#include "velm/drawingprops/arrowheadmodel.h"

#include "velm/bridge/qtwindowparent.h"

#include <algorithm>
#include <stdexcept>

namespace velm {
namespace {
ArrowHeadObject* loadObject()
{
    static const ArrowHeadRecord record{{}, QStringLiteral("Select..."), {}};
    static ArrowHeadObject object(record, QSize(0, 0));
    return &object;
}
} // namespace

struct ArrowHeadModel::Pimpl
{
    QSize size;
    std::function<OdApDocManager*()> docManager;
    ArrowHeadRecord extra;
    int currentIndex;
    std::function<ArrowHeadRecord()> chooser;
    std::vector<ArrowHeadRecord> records;
    std::vector<std::unique_ptr<ArrowHeadObject>> objects = {};

    int count() const { return static_cast<int>(records.size()); }
    int loadRow() const { return count() + (extra.internalName.isEmpty() ? 0 : 1); }
    OdApDocManager* manager() const { return docManager ? docManager() : nullptr; }

    /// The records have an object each, the extra record has none.
    ArrowHeadObject* objectAt(int row) const
    {
        if (row == loadRow())
            return loadObject();
        return row >= 0 && row < count() ? objects[static_cast<std::size_t>(row)].get() : nullptr;
    }

    /// The row of a record; the number of records when none has this internal name.
    int find(const QString& internalName) const
    {
        return static_cast<int>(std::ranges::find(records, internalName, &ArrowHeadRecord::internalName) -
                                records.begin());
    }

    void choose()
    {
        if (!chooser)
            return;
        const ArrowHeadRecord chosen = chooser();
        if (chosen.internalName.isEmpty())
            return;
        currentIndex = find(chosen.internalName);
        if (currentIndex == count())
            extra = chosen;
    }
};

std::unique_ptr<IArrowHeadModel> createArrowHeadModel(const ArrowHeadModelParams& params, IGuiController& gui,
                                                      IDialogFactory& dialogs, const QSize& size,
                                                      std::function<OdApDocManager*()> docManager)
{
    return std::make_unique<ArrowHeadModel>(params, gui, dialogs, size, std::move(docManager));
}

ArrowHeadModel::ArrowHeadModel(const ArrowHeadModelParams& params, IGuiController&, IDialogFactory&, const QSize& size,
                               std::function<OdApDocManager*()> docManager)
    : m_pimpl(new Pimpl{.size = size,
                        .docManager = std::move(docManager),
                        .extra = params.extra,
                        .currentIndex = params.currentIndex,
                        .chooser = params.chooser,
                        .records = params.records})
{
    for (const ArrowHeadRecord& record : m_pimpl->records)
        m_pimpl->objects.push_back(std::make_unique<ArrowHeadObject>(record, size));
    if (OdApDocManager* manager = m_pimpl->manager())
        manager->addReactor(this);
    beginResetModel();
    endResetModel();
}

ArrowHeadModel::~ArrowHeadModel()
{
    if (OdApDocManager* manager = m_pimpl->manager())
        manager->removeReactor(this);
}

int ArrowHeadModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_pimpl->loadRow() + 1;
}

QVariant ArrowHeadModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    ArrowHeadObject* object = m_pimpl->objectAt(index.row());
    if (role == ObjectRole)
        return QVariant::fromValue(object);
    if (!object)
        return {};
    switch (role) {
    case GuiNameRole:
        return object->record().shownName;
    case InternalNameRole:
        return object->record().internalName;
    case ImageRole:
        return object->record().preview;
    default:
        return {};
    }
}

QHash<int, QByteArray> ArrowHeadModel::roleNames() const
{
    return {{ObjectRole, "object"}, {GuiNameRole, "guiname"}, {InternalNameRole, "internalname"}, {ImageRole, "image"}};
}

const ArrowHeadRecord& ArrowHeadModel::currentArrowHead() const
{
    if (m_pimpl->currentIndex > m_pimpl->count() - 1)
        return m_pimpl->extra;
    if (m_pimpl->currentIndex < 0) // which setCurrentIndex() takes. This must stay.
        throw std::out_of_range("invalid vector subscript");
    return m_pimpl->records[static_cast<std::size_t>(m_pimpl->currentIndex)];
}

void ArrowHeadModel::selectArrowHead(const QString& internalName)
{
    const int row = m_pimpl->find(internalName);
    if (row < m_pimpl->count() || internalName == m_pimpl->extra.internalName)
        setCurrentIndex(row);
}

void ArrowHeadModel::setCurrentIndex(int index)
{
    if (index >= rowCount())
        return;
    m_pimpl->currentIndex = index;
    Q_EMIT currentIndexChanged();
    Q_EMIT currentArrowHeadChanged();
}

QString ArrowHeadModel::tooltip() const
{
    return tr("Arrow Head Combo");
}

QSize ArrowHeadModel::size() const
{
    return m_pimpl->size;
}

int ArrowHeadModel::showArrowHeadsDialog(int, QtWindowParent*)
{
    beginResetModel();
    m_pimpl->choose();
    endResetModel();
    Q_EMIT currentIndexChanged();
    Q_EMIT currentArrowHeadChanged();
    return m_pimpl->currentIndex;
}

int ArrowHeadModel::showArrowHeadsDialog(int currentIndex)
{
    return showArrowHeadsDialog(currentIndex, nullptr);
}

int ArrowHeadModel::getCurrentIndex() const
{
    return m_pimpl->currentIndex;
}
} // namespace velm
