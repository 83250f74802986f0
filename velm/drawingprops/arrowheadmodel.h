#pragma once

#include "velm/drawingprops/arrowheadobject.h"
#include "velm/drawingprops/iarrowheadmodel.h"

namespace velm {
class QtWindowParent;

/// The model under an arrowhead combo: the records, the extra record if there is one, and a row to choose another.
class VELM_EXPORT ArrowHeadModel : public IArrowHeadModel
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ getCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(QString tooltip READ tooltip CONSTANT)
    Q_PROPERTY(QSize size READ size CONSTANT)
public:
    enum Role
    {
        ObjectRole = 0,             ///< "object", null for the extra row. This must stay.
        GuiNameRole = Qt::UserRole, ///< "guiname"
        InternalNameRole,           ///< "internalname"
        ImageRole,                  ///< "image"
    };

    /// As createArrowHeadModel().
    ArrowHeadModel(const ArrowHeadModelParams& params, IGuiController& gui, IDialogFactory& dialogs, const QSize& size,
                   std::function<OdApDocManager*()> docManager);
    ~ArrowHeadModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const ArrowHeadRecord& currentArrowHead() const override;
    void selectArrowHead(const QString& internalName) override;
    void setCurrentIndex(int index) override;

    QString tooltip() const;
    QSize size() const;

Q_SIGNALS:
    void currentIndexChanged();

public Q_SLOTS:
    // Lets a person choose another arrowhead and gives the current row; the arguments don't count.
    int showArrowHeadsDialog(int currentIndex, velm::QtWindowParent* pParent);
    int showArrowHeadsDialog(int currentIndex);
    int getCurrentIndex() const;

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
