#pragma once

#include "od/odapdocmanager.h"
#include "od/oddbobjectid.h"
#include "velm/velm_export.h"

#include <QAbstractListModel>
#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class OdDbDatabase;

namespace velm {
class IDialogFactory;
class IGuiController;

/// What a linetype combo begins with. The host's loadLineTypes() gets each option negated.
struct VELM_EXPORT LineTypeModelParams
{
    OdDbDatabase* database = nullptr; ///< held as OdDbDatabase::keep() does
    int firstOption = 0;
    int secondOption = 0;
};

/// The rows of a linetype combo, as the host sees them: the linetypes of one drawing by their local names, then a row
/// for several linetypes, one to load more, and one for their properties. It follows the current document, but doesn't
/// watch the drawing: the host calls refresh() when linetypes came or went.
class VELM_EXPORT ILineTypeModel : public QAbstractListModel, public OdApDocManagerReactor
{
    Q_OBJECT
public:
    ILineTypeModel();
    ~ILineTypeModel() override;

    /// A picture of a linetype on the ground of a combo, in pixels; null when the host draws none.
    static QImage createBitmap(int width, int height, OdDbObjectId lineType, const IGuiController& gui);
    /// The local name; empty for an id that is no linetype.
    static QString linetypeName(OdDbObjectId lineType, const IGuiController& gui);

public Q_SLOTS:
    /// 0 when no row has the name.
    virtual int getIndexFromLocalName(QString localName) = 0;

public:
    virtual void setFollowsCurrentDocument(bool follows) = 0;
    virtual int getCurrentIndex() const = 0;
    /// Makes the row of a linetype current, or the varies row while the model varies. False when there is no such row.
    virtual bool setCurrentLineType(const OdDbObjectId& lineType) = 0;
    /// As setCurrentLineType(), and tells of a linetype that has a row as if a person had chosen it.
    virtual void selectLineType(const OdDbObjectId& lineType) = 0;
    /// Counts from the next rebuild on.
    virtual void setIsVaries(bool varies) = 0;
    virtual std::optional<int> indexOf(const OdDbObjectId& lineType) const = 0;
    // Empty for a bad row.
    virtual std::optional<OdDbObjectId> lineTypeId(int index) const = 0;
    virtual std::optional<QString> lineTypeName(int index) const = 0;
    // Inside a batch the caller resets the model.
    /// False when nothing changed.
    virtual bool setDatabase(bool inBatch, OdDbDatabase* database) = 0;
    /// Builds the rows anew when the number of linetypes changed; `lineType` goes to the host's loadLineTypes(). False
    /// when nothing changed.
    virtual bool refresh(bool inBatch, const OdDbObjectId& lineType) = 0;
    /// What the row "Properties..." does, which comes with the next rebuild.
    virtual void setPropertiesAction(std::function<void()> action) = 0;

Q_SIGNALS:
    void currentLineTypeChanged();
};

/// A model that is a reactor of the document manager, when the function gives one, as long as it lives. `size` is for
/// the page. `gui` and `dialogs` outlive the model.
VELM_EXPORT std::unique_ptr<ILineTypeModel> createLineTypeModel(const LineTypeModelParams& params, IGuiController& gui,
                                                                IDialogFactory& dialogs, const QSize& size,
                                                                std::function<OdApDocManager*()> docManager);
} // namespace velm
