#pragma once

#include "velm/drawingprops/ilinetypemodel.h"
#include "velm/drawingprops/linetypeobject.h"

#include <vector>

namespace velm {
class QtWindowParent;
struct LoadedLineTypes;

/// The model under a linetype combo. Without a database it has no rows.
class VELM_EXPORT LineTypeModel : public ILineTypeModel
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ getCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(QString tooltip READ tooltip CONSTANT)
    Q_PROPERTY(QSize size READ size CONSTANT)
public:
    enum Role
    {
        ObjectRole = 0,          ///< "object"
        NameRole = Qt::UserRole, ///< "display"
    };

    /// As createLineTypeModel().
    LineTypeModel(const LineTypeModelParams& params, IGuiController& gui, IDialogFactory& dialogs, const QSize& size,
                  std::function<OdApDocManager*()> docManager);
    ~LineTypeModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setFollowsCurrentDocument(bool follows) override { m_followsCurrentDocument = follows; }
    int getCurrentIndex() const override { return m_currentIndex; }
    bool setCurrentLineType(const OdDbObjectId& lineType) override;
    void selectLineType(const OdDbObjectId& lineType) override;
    void setIsVaries(bool varies) override { m_isVaries = varies; }
    std::optional<int> indexOf(const OdDbObjectId& lineType) const override;
    std::optional<OdDbObjectId> lineTypeId(int index) const override;
    std::optional<QString> lineTypeName(int index) const override;
    bool setDatabase(bool inBatch, OdDbDatabase* database) override;
    bool refresh(bool inBatch, const OdDbObjectId& lineType) override;
    void setPropertiesAction(std::function<void()> action) override { m_propertiesAction = std::move(action); }

    QString tooltip() const;
    QSize size() const { return m_size; }

    // As the manager of the documents calls them.
    void documentBecameCurrent(OdApDocument* document) override;
    void documentToBeDestroyed(OdApDocument* document) override;

Q_SIGNALS:
    void currentIndexChanged();

public Q_SLOTS:
    /// Lets a person load linetypes, and gives the row of the one that was loaded, or where the row `currentIndex` is
    /// now when it were several; -1 when that is gone. The current row when it was cancelled.
    int showLoadLineTypesDialog(int currentIndex, velm::QtWindowParent* pParent);
    int showLoadLineTypesDialog(int currentIndex);
    int getIndexFromLocalName(QString localName) override;
    /// Empty for a bad row.
    QString getLocalName(int index);
    /// What a person does: chooses the row, loads linetypes, or opens their properties.
    void setCurrentIndexOrLoad(int newIndex);

private:
    int count() const { return static_cast<int>(m_rows.size()); }
    bool isRow(int index) const { return index >= 0 && index < count(); }
    const LineTypeObject& row(int index) const { return *m_rows[static_cast<std::size_t>(index)]; }
    void addRow(const QString& name, const OdDbObjectId& id = {});
    void clear();
    bool load(OdDbObjectId lineType, LoadedLineTypes& loaded) const;
    void rebuild(const OdDbObjectId& lineType);
    /// True when the current row changed.
    bool makeCurrent(int index);
    /// A person's choice, which tells of the linetype as well.
    void choose(int index);
    void goBackTo(const OdDbObjectId& lineType);
    std::optional<int> findName(const QString& name) const;
    std::optional<int> loadLineTypes(int index, QtWindowParent* parent);

    IGuiController& m_gui;
    IDialogFactory& m_dialogs;
    int m_currentIndex = 0;
    bool m_isVaries = false;
    bool m_followsCurrentDocument = true;
    QSize m_size;
    std::function<OdApDocManager*()> m_docManager;
    std::vector<std::unique_ptr<LineTypeObject>> m_rows;
    std::function<void()> m_propertiesAction;
    std::shared_ptr<OdDbDatabase> m_database;
    // -1 where there is no such row.
    int m_variesRow = -1;
    int m_loadRow = -1;
    int m_propertiesRow = -1;
    bool m_firstOption;
    bool m_secondOption;
};
} // namespace velm
