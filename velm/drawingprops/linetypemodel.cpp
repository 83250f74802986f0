#include "velm/drawingprops/linetypemodel.h"

#include "od/oddbdatabase.h"
#include "velm/bridge/conversions.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/bridge/qtwindowparent.h"
#include "velm/dialogs/idialogfactory.h"

namespace velm {
std::unique_ptr<ILineTypeModel> createLineTypeModel(const LineTypeModelParams& params, IGuiController& gui,
                                                    IDialogFactory& dialogs, const QSize& size,
                                                    std::function<OdApDocManager*()> docManager)
{
    return std::make_unique<LineTypeModel>(params, gui, dialogs, size, std::move(docManager));
}

LineTypeModel::LineTypeModel(const LineTypeModelParams& params, IGuiController& gui, IDialogFactory& dialogs,
                             const QSize& size, std::function<OdApDocManager*()> docManager)
    : m_gui(gui), m_dialogs(dialogs), m_size(size), m_docManager(std::move(docManager)),
      m_database(OdDbDatabase::keep(params.database)), m_firstOption(params.firstOption != 0),
      m_secondOption(params.secondOption != 0)
{
    rebuild({});
    if (OdApDocManager* manager = m_docManager ? m_docManager() : nullptr)
        manager->addReactor(this);
}

LineTypeModel::~LineTypeModel()
{
    if (OdApDocManager* manager = m_docManager ? m_docManager() : nullptr)
        manager->removeReactor(this);
}

int LineTypeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant LineTypeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !isRow(index.row()))
        return {};
    LineTypeObject* object = m_rows[static_cast<std::size_t>(index.row())].get();
    switch (role) {
    case ObjectRole:
        return QVariant::fromValue(object);
    case NameRole:
        return object->name();
    default:
        return {};
    }
}

QHash<int, QByteArray> LineTypeModel::roleNames() const
{
    return {{ObjectRole, "object"}, {NameRole, "display"}};
}

bool LineTypeModel::setCurrentLineType(const OdDbObjectId& lineType)
{
    if (lineType.isNull())
        return false;
    const std::optional<int> index = m_isVaries ? m_variesRow : indexOf(lineType);
    if (index)
        makeCurrent(*index);
    return index.has_value();
}

void LineTypeModel::selectLineType(const OdDbObjectId& lineType)
{
    setCurrentLineType(lineType);
    if (!lineType.isNull() && indexOf(lineType))
        Q_EMIT currentLineTypeChanged();
}

std::optional<int> LineTypeModel::indexOf(const OdDbObjectId& lineType) const
{
    for (int index = 0; index < count(); ++index)
        if (row(index).id() == lineType)
            return index;
    return {};
}

std::optional<OdDbObjectId> LineTypeModel::lineTypeId(int index) const
{
    return isRow(index) ? std::optional(row(index).id()) : std::nullopt;
}

std::optional<QString> LineTypeModel::lineTypeName(int index) const
{
    return isRow(index) ? std::optional(row(index).name()) : std::nullopt;
}

bool LineTypeModel::setDatabase(bool inBatch, OdDbDatabase* database)
{
    if (database == m_database.get())
        return refresh(inBatch, {});
    if (!inBatch)
        beginResetModel();
    clear();
    m_database = OdDbDatabase::keep(database);
    rebuild({});
    if (!inBatch)
        endResetModel();
    return true;
}

bool LineTypeModel::refresh(bool inBatch, const OdDbObjectId& lineType)
{
    LoadedLineTypes loaded;
    if (!m_database || !load(lineType, loaded) || loaded.ids.isEmpty())
        return false;
    const int number = static_cast<int>(loaded.ids.size());
    if (m_isVaries ? number == m_variesRow : number == m_loadRow && lineType.isNull())
        return false;
    if (!inBatch)
        beginResetModel();
    rebuild(lineType);
    if (!inBatch)
        endResetModel();
    return true;
}

QString LineTypeModel::tooltip() const
{
    return tr("Linetype Control");
}

void LineTypeModel::documentBecameCurrent(OdApDocument* document)
{
    if (m_followsCurrentDocument)
        setDatabase(false, document ? document->database() : nullptr);
}

void LineTypeModel::documentToBeDestroyed(OdApDocument* document)
{
    if (!document || !m_database || document->database() != m_database.get())
        return;
    beginResetModel();
    clear();
    m_database.reset();
    endResetModel();
}

int LineTypeModel::showLoadLineTypesDialog(int currentIndex, QtWindowParent* pParent)
{
    return loadLineTypes(currentIndex, pParent).value_or(m_currentIndex);
}

int LineTypeModel::showLoadLineTypesDialog(int currentIndex)
{
    return showLoadLineTypesDialog(currentIndex, nullptr);
}

int LineTypeModel::getIndexFromLocalName(QString localName)
{
    return findName(localName).value_or(0);
}

QString LineTypeModel::getLocalName(int index)
{
    return lineTypeName(index).value_or(QString());
}

void LineTypeModel::setCurrentIndexOrLoad(int newIndex)
{
    if (!isRow(newIndex))
        return;
    const OdDbObjectId former = lineTypeId(m_currentIndex).value_or(OdDbObjectId());
    choose(newIndex);
    if (newIndex == m_loadRow) {
        const std::optional<int> loaded = loadLineTypes(newIndex, nullptr);
        if (loaded && isRow(*loaded) && *loaded != count() - 1)
            choose(*loaded);
        else
            goBackTo(former);
    } else if (newIndex == m_propertiesRow && m_propertiesAction) {
        const auto action = m_propertiesAction; // it may set another one
        action();
        goBackTo(former);
    }
}

void LineTypeModel::addRow(const QString& name, const OdDbObjectId& id)
{
    m_rows.push_back(std::make_unique<LineTypeObject>(name, id, m_gui));
}

void LineTypeModel::clear()
{
    m_rows.clear();
    m_currentIndex = m_variesRow = m_loadRow = m_propertiesRow = -1;
}

bool LineTypeModel::load(OdDbObjectId lineType, LoadedLineTypes& loaded) const
{
    return m_gui.loadLineTypes(m_database.get(), !m_secondOption, lineType, !m_firstOption, loaded);
}

void LineTypeModel::rebuild(const OdDbObjectId& lineType)
{
    const int formerIndex = m_currentIndex;
    const OdDbObjectId former = m_isVaries ? OdDbObjectId() : lineTypeId(formerIndex).value_or(OdDbObjectId());
    clear();
    m_currentIndex = 0;
    LoadedLineTypes loaded;
    if (m_database && load(lineType, loaded)) {
        std::optional<int> formerRow;
        for (const OdDbObjectId& id : loaded.ids) {
            const auto* record = id.open<OdDbLinetypeTableRecord>();
            if (!record)
                continue;
            if (!former.isNull() && id == former && !formerRow)
                formerRow = count();
            addRow(toQt(m_gui.linetypeLocalName(record->getName())), id);
        }
        if (m_isVaries) {
            m_currentIndex = m_variesRow = count();
            addRow(tr("*Varies*"));
        } else if (formerRow) {
            m_currentIndex = *formerRow;
        }
        m_loadRow = count();
        addRow(tr("Load..."));
        if (m_propertiesAction) {
            m_propertiesRow = count();
            addRow(tr("Properties..."));
        }
    }
    if (m_currentIndex != formerIndex)
        Q_EMIT currentIndexChanged();
}

bool LineTypeModel::makeCurrent(int index)
{
    if (!isRow(index))
        return false;
    if (index != m_variesRow)
        m_isVaries = false;
    if (index == m_currentIndex)
        return false;
    m_currentIndex = index;
    Q_EMIT currentIndexChanged();
    return true;
}

void LineTypeModel::choose(int index)
{
    if (makeCurrent(index))
        Q_EMIT currentLineTypeChanged();
}

void LineTypeModel::goBackTo(const OdDbObjectId& lineType)
{
    if (const std::optional<int> index = indexOf(lineType))
        choose(*index);
}

std::optional<int> LineTypeModel::findName(const QString& name) const
{
    for (int index = 0; index < count(); ++index)
        if (row(index).name() == name)
            return index;
    return {};
}

std::optional<int> LineTypeModel::loadLineTypes(int index, QtWindowParent* parent)
{
    const std::shared_ptr<OdDbDatabase> database = m_database; // the document may be closed meanwhile
    if (!database)
        return index;
    OdArray<OdString> loaded;
    if (!m_dialogs.loadLineTypesDialog(parent ? parent->getWxParent() : nullptr, database.get(), loaded, {}, {}))
        return {};
    const QString name = getLocalName(index);
    beginResetModel();
    rebuild({});
    endResetModel();
    return findName(loaded.size() == 1 ? toQt(loaded.first()) : name).value_or(-1);
}
} // namespace velm
