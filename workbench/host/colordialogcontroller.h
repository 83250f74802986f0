#pragma once

#include "od/odcmcolor.h"
#include "velm/bridge/iguicontroller.h"
#include "velm/dialogs/basedialogcontroller.h"

#include <QColor>

#include <optional>

namespace workbench {
/// What the page of the colour dialog talks to: the colour that is chosen, and which ones its flags let a person
/// choose. Flags: 1 by layer and by block, 2 by layer that is called black, 8 no true colours, 16 the selection has
/// several colours, 64 none. While none that may be chosen is, the dialog can only be cancelled.
class ColorDialogController : public velm::BaseDialogController
{
    Q_OBJECT
    Q_PROPERTY(bool hasByLayer READ hasByLayer CONSTANT)
    Q_PROPERTY(bool hasByBlock READ hasByBlock CONSTANT)
    Q_PROPERTY(bool hasNone READ hasNone CONSTANT)
    Q_PROPERTY(bool hasTrueColors READ hasTrueColors CONSTANT)
    /// What the choice of by layer is called.
    Q_PROPERTY(QString byLayerName READ byLayerName CONSTANT)
    /// What the dialog began with.
    Q_PROPERTY(QString formerName READ formerName CONSTANT)
    Q_PROPERTY(QColor formerColor READ formerColor CONSTANT)
    Q_PROPERTY(bool hasChoice READ hasChoice NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    /// What the chosen colour looks like: transparent when that isn't known.
    Q_PROPERTY(QColor color READ color NOTIFY changed)
    /// From 1 to 255, 0 by block, 256 by layer, 257 none; -1 for a true colour, and without a choice.
    Q_PROPERTY(int index READ index WRITE setIndex NOTIFY changed)
public:
    /// Null: no colour is chosen yet.
    ColorDialogController(const OdCmColor* initial, unsigned flags);

    /// Empty without a choice.
    const std::optional<OdCmColor>& chosen() const { return m_chosen; }

    bool hasByLayer() const;
    bool hasByBlock() const;
    bool hasNone() const;
    bool hasTrueColors() const;
    QString byLayerName() const;
    QString formerName() const { return m_formerName; }
    QColor formerColor() const { return m_formerColor; }
    bool hasChoice() const { return m_chosen.has_value(); }
    QString name() const;
    QColor color() const;
    int index() const;
    /// An index that can't be chosen is ignored.
    void setIndex(int index);
    /// Chooses a true colour, its channels forced into 0 to 255.
    Q_INVOKABLE void setChannels(int red, int green, int blue);
    /// The same from "#ff8000" or "ff8000"; false for any other text.
    Q_INVOKABLE bool setHex(const QString& text);
    // Of any index that `index` may have.
    Q_INVOKABLE QColor colorOf(int index) const;
    Q_INVOKABLE QString nameOf(int index) const;

Q_SIGNALS:
    void changed();

private:
    bool beforeOk() override { return hasChoice(); }
    bool allows(const OdCmColor& color) const;
    void choose(const OdCmColor& color);
    velm::ColorDescription describe(const OdCmColor& color) const;

    const unsigned m_flags;
    std::optional<OdCmColor> m_chosen;
    QString m_formerName;
    QColor m_formerColor;
};
} // namespace workbench
