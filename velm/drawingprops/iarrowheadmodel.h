#pragma once

#include "od/odapdocmanager.h"
#include "velm/velm_export.h"

#include <QAbstractListModel>
#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace velm {
class IDialogFactory;
class IGuiController;

struct VELM_EXPORT ArrowHeadRecord
{
    QString internalName;
    QString shownName;
    QImage preview;
};

/// What an arrowhead combo begins with.
struct VELM_EXPORT ArrowHeadModelParams
{
    std::vector<ArrowHeadRecord> records;
    ArrowHeadRecord extra; ///< one that isn't among the records; none while its internal name is empty
    int currentIndex = 0;
    std::function<ArrowHeadRecord()> chooser; ///< asks a person; a record without an internal name is no answer
};

/// The rows of an arrowhead combo, as the host sees them. Its last row is there to choose another arrowhead.
class VELM_EXPORT IArrowHeadModel : public QAbstractListModel, public OdApDocManagerReactor
{
    Q_OBJECT
public:
    IArrowHeadModel();
    ~IArrowHeadModel() override;

    /// The record of the current row, the extra one behind the others. A negative current row throws std::out_of_range.
    virtual const ArrowHeadRecord& currentArrowHead() const = 0;
    /// Makes the row of an internal name current; a name that no row has changes nothing.
    virtual void selectArrowHead(const QString& internalName) = 0;
    /// A row behind the last is ignored, a negative one is not. Told even when it is current already.
    virtual void setCurrentIndex(int index) = 0;

Q_SIGNALS:
    void currentArrowHeadChanged();
};

/// A model that is a reactor of the document manager, when the function gives one, as long as it lives. `size` is what
/// a preview takes in the page. `gui` and `dialogs` outlive the model.
VELM_EXPORT std::unique_ptr<IArrowHeadModel> createArrowHeadModel(const ArrowHeadModelParams& params,
                                                                  IGuiController& gui, IDialogFactory& dialogs,
                                                                  const QSize& size,
                                                                  std::function<OdApDocManager*()> docManager);
} // namespace velm
