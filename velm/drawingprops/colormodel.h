#pragma once

#include "velm/drawingprops/colorobject.h"
#include "velm/drawingprops/icolormodel.h"

#include <optional>

namespace velm {
/// The model under a colour combo: a custom row if there is one, the standard rows, the varies row while the selection
/// varies, and the row that opens the colour dialog. Only getOrAddColor() and setIsVaries() change the rows: a colour
/// that another model added is shown when this one is asked for it.
class VELM_EXPORT ColorModel : public IColorModel
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ getCurrentIndex NOTIFY currentItemChanged)
    Q_PROPERTY(QColor byLayerColor READ byLayerColor NOTIFY byLayerColorChanged)
    Q_PROPERTY(QString tooltip READ tooltip CONSTANT)
    Q_PROPERTY(QSize size READ size CONSTANT)
    Q_PROPERTY(bool byLayerAsBlack READ byLayerAsBlack CONSTANT)
public:
    /// As createColorModel().
    ColorModel(IGuiController& gui, IDialogFactory& dialogs, int flags, bool varies, QSize size, QColor customColor,
               QString customName);
    ~ColorModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    /// The row's object, in role 0 "object" and in role 1 "modelData".
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int getOrAddColor(const OdCmColor& color) override;
    OdCmColor color(int index) const override;
    void setColor(const OdCmColor& color) override;
    void setCustomColor() override;
    const ColorObject* getColorObject(int index) const override;
    ColorObject* getColorObject(int index);
    void setIsVaries(bool varies) override;
    bool hasFlag(int flag) const override;
    void setFlag(int flag) override;
    void clearFlag(int flag) override;
    void setByLayer(const OdDbObjectId& layerId) override;

    /// -1 until a row was made current.
    int getCurrentIndex() const;
    /// A bad row, -1 too, is ignored; a good one is told even when it is current already.
    void setCurrentIndex(int index);
    QColor byLayerColor() const;
    bool byLayerAsBlack() const;
    bool isVaries() const;
    QString tooltip() const;
    QSize size() const;
    /// The packed colour of a row; 0 for a bad row.
    int getColor(int index) const;
    int flags() const;
    IGuiController& gui() const;
    /// Asks for a colour, beginning with that of a row, and gives the row of the answer; empty when it was cancelled.
    std::optional<int> showColorDialog(int index);

Q_SIGNALS:
    void byLayerColorChanged();
    void currentItemChanged();

public Q_SLOTS:
    /// What a person does: chooses the row, or a colour in the dialog that the last row opens.
    void onClicked(int index);
    /// As showColorDialog(), but gives `currentIndex` when it was cancelled.
    int doShowColorDialog(int currentIndex);
    /// Invalid for a bad row.
    QColor getQColor(int index) const;

private:
    struct Pimpl;
    std::unique_ptr<Pimpl> m_pimpl;
};
} // namespace velm
