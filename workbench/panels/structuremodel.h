#pragma once

#include "od/oddbdatabase.h"
#include "velm/models/treemodel/treemodel.h"

#include <map>

namespace workbench {
/// A row of the tree of a drawing. Rows are known by what they stand for: their kind and their id.
struct StructureRow
{
    enum class Kind
    {
        Layouts,
        Blocks,
        Layers,
        Layout,
        Block,
        Layer,
        Entity,
        More, ///< stands for the entities of a container, its id, that have no row yet
    };

    Kind kind = Kind::Entity;
    OdDbObjectId id;
    std::size_t count = 0; ///< of a container: its entities; of More: those without a row

    bool isContainer() const { return kind == Kind::Layout || kind == Kind::Block || kind == Kind::Layer; }
    bool isSame(const StructureRow& other) const { return kind == other.kind && id == other.id; }
};

/// What is in a drawing: its layouts, blocks and layers, below each of them its entities, and so each entity twice.
/// Texts are read from the drawing when they are asked for, so the drawing must live until another one is built.
/// A container with very many entities shows the first of them and a row that says how many more there are.
class StructureModel : public velm::TreeModel<StructureRow>
{
    Q_OBJECT
public:
    enum Role
    {
        DisabledRole = 356,
        MarkRole = Qt::UserRole, ///< the name of a picture
        CountRole,               ///< entities of a container; 0 for other rows
        HasChildrenRole,
    };

    explicit StructureModel(QObject* parent = nullptr);

    /// Fills the tree anew. Expanded rows stay so when a row of their text is there again. Null empties it.
    void build(OdDbDatabase* database);
    /// From the next build on.
    void setShowsEntities(bool shows) { m_showsEntities = shows; }
    bool showsEntities() const { return m_showsEntities; }
    void setShowsEmpty(bool shows) { m_showsEmpty = shows; }
    bool showsEmpty() const { return m_showsEmpty; }
    /// How many entities get a row before the rest is summed up, in all containers together.
    void setEntityBudget(std::size_t budget) { m_budget = budget; }
    /// At least so many entities of a container get rows from the next build on, as long as the drawing stays open.
    void want(OdDbObjectId container, std::size_t count);

    /// Invalid when there is no such row.
    QModelIndex find(const StructureRow& row) const;
    /// The row of an entity below its layout or block. It is made when there is none yet, and stays until the next
    /// build. Invalid when its container has no row.
    QModelIndex entityRow(OdDbObjectId entity);
    /// Each row with children.
    void expandAll(bool expanded);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant dataImpl(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> customRoleNames() const override;
    /// Rows without children can't be expanded and are all alike here: to write the texts of thousands takes long.
    unsigned long long rowContentId(const QModelIndex& index) const override;

private:
    struct Content
    {
        std::vector<OdDbObjectId> entities; ///< those that get a row
        std::size_t count = 0;
    };
    using Contents = std::map<OdDbObjectId, Content>;

    Contents collect(const OdDbDatabase& database) const;
    void fill(OdDbDatabase& database);
    std::size_t limit(OdDbObjectId container, std::size_t containers) const;
    static QString text(const StructureRow& row);
    static QString mark(const StructureRow& row);
    static bool isHidden(const StructureRow& row);

    OdDbDatabase* m_database = nullptr; // not owned
    std::map<OdDbObjectId, std::size_t> m_wanted;
    std::size_t m_budget = 50'000;
    bool m_showsEntities = true;
    bool m_showsEmpty = true;
};
} // namespace workbench
