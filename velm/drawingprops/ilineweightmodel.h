#pragma once

#include "velm/velm_export.h"

#include <QAbstractListModel>
#include <QSize>

#include <memory>
#include <optional>

namespace velm {
class IGuiController;

/// Which of the special lineweights a combo lists.
struct VELM_EXPORT LineWeightModelParams
{
    LineWeightModelParams() = default;
    LineWeightModelParams(bool byBlock, bool byLayer, bool byLwDefault)
        : showByBlock(byBlock), showByLayer(byLayer), showByLwDefault(byLwDefault)
    {}

    bool showByBlock = false;
    bool showByLayer = false;
    bool showByLwDefault = false;
};

/// The rows of a lineweight combo, as the host sees them. Lineweights are in hundredths of a millimetre; -1 stands for
/// by layer, -2 for by block, -3 for by default. The host sets the selection; the model doesn't watch the drawing.
class VELM_EXPORT ILineWeightModel : public QAbstractListModel
{
    Q_OBJECT
public:
    ILineWeightModel();
    ~ILineWeightModel() override;

    virtual int getCurrentIndex() const = 0;
    virtual bool isVaries() const = 0;
    /// Adds or takes away a last row that stands for several lineweights.
    virtual void setIsVaries(bool varies) = 0;
    /// The first row of a lineweight; the varies row counts as -3.
    virtual std::optional<int> indexOf(int lineWeight) const = 0;
    /// Empty for a bad row.
    virtual std::optional<int> lineWeight(int index) const = 0;
    /// False when the row is current already or none.
    virtual bool setCurrentIndex(int index) = 0;

Q_SIGNALS:
    /// A person chose another row.
    void notifyComboUpdateManager();
};

/// Reads the host's table of lineweights once. `size` is for the page. `gui` outlives the model.
VELM_EXPORT std::unique_ptr<ILineWeightModel>
createLineWeightModel(const IGuiController& gui, const LineWeightModelParams& params, const QSize& size);
} // namespace velm
