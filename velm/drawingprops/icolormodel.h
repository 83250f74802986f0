#pragma once

#include "od/odcmcolor.h"
#include "od/oddbobjectid.h"
#include "velm/velm_export.h"

#include <QAbstractListModel>
#include <QColor>
#include <QSize>

#include <memory>

namespace velm {
class ColorObject;
class IDialogFactory;
class IGuiController;

/// The rows of a colour combo, as the host sees them. Its last row opens the colour dialog. The host tells it the
/// colour, the layer and whether the selection varies; it doesn't watch the drawing. Combo flags: 1 true colours, 2 by
/// layer and by block, 4 by layer as black, 8 none, 32 white mode.
class VELM_EXPORT IColorModel : public QAbstractListModel
{
    Q_OBJECT
public:
    IColorModel();
    ~IColorModel() override;

    /// The row of a colour, which is added when the combo's flags allow it; row 0 when they don't. While the model
    /// varies, the varies row.
    virtual int getOrAddColor(const OdCmColor& color) = 0;
    /// The colour of a row; none for a bad row.
    virtual OdCmColor color(int index) const = 0;
    virtual void setColor(const OdCmColor& color) = 0;
    /// Makes the custom row current, when there is one.
    virtual void setCustomColor() = 0;
    /// Null for a bad row.
    virtual const ColorObject* getColorObject(int index) const = 0;
    /// Adds or takes away the row that stands for several colours. The current row then moves to it, but stays where it
    /// is when the row goes.
    virtual void setIsVaries(bool varies) = 0;
    virtual bool hasFlag(int flag) const = 0;
    // Changed flags count from the next call on; the rows stay as they are.
    virtual void setFlag(int flag) = 0;
    virtual void clearFlag(int flag) = 0;
    /// Takes over what "by layer" looks like; black for an id that is no layer.
    virtual void setByLayer(const OdDbObjectId& layerId) = 0;

Q_SIGNALS:
    /// A person chose another colour.
    void colorChanged(int index);
};

/// A model with rows for the standard colours and those that were picked in any combo of `gui`; a custom row in front
/// when `customColor` is valid. `size` is for the page. `gui` and `dialogs` outlive the model.
VELM_EXPORT std::unique_ptr<IColorModel> createColorModel(IGuiController& gui, IDialogFactory& dialogs, int flags,
                                                          bool varies, QSize size, QColor customColor,
                                                          QString customName);
} // namespace velm
