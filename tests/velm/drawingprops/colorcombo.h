#pragma once

#include "support/fakehost.h"
#include "velm/drawingprops/colormodel.h"

/// What the tests of colour combos share.
namespace colorcombo {
using namespace velm;

inline const OdCmColor byLayer(OdCmColor::kByLayer);
inline const OdCmColor byBlock(OdCmColor::kByBlock);
inline const OdCmColor none(OdCmColor::kNone);
inline const OdCmColor rose = OdCmColor::fromRGB(250, 1, 2);
inline const OdCmColor orange = OdCmColor::fromIndex(30);

inline QString nameOf(const OdCmColor& color)
{
    return QString::number(color.color(), 16);
}

/// A host whose names of rows are the colours' packed values, with a true colour and an index that were picked before.
struct Fixture
{
    velmtest::FakeGuiController gui;
    velmtest::FakeDialogFactory dialogs;
    QStringList described; ///< by layer colour and override of each description

    explicit Fixture(bool whiteFirst = false)
    {
        gui.initColorIndices(whiteFirst ? 32 : 0);
        gui.describe = [this](const OdCmColor& color, wxColour byLayerColor, bool layerOverride, int) {
            described += QString("%1 %2")
                             .arg(byLayerColor.GetAsString(wxC2S_HTML_SYNTAX).utf8_string().c_str())
                             .arg(layerOverride);
            return ColorDescription{color.isByACI(), wxString(nameOf(color).toStdWString()), wxColour(1, 2, 3)};
        };
        gui.tryAddColor(rose, 1);
        gui.tryAddColor(orange, 0);
    }

    std::unique_ptr<ColorModel> model(int flags, bool varies = false, QColor customColor = {})
    {
        return std::make_unique<ColorModel>(gui, dialogs, flags, varies, QSize(40, 20), customColor, "mine");
    }
};

/// "c3000001 varies load", the custom row by its name.
inline QString text(const ColorModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const auto* object = model.index(row, 0).data(0).value<ColorObject*>();
        rows += object->getType().isEmpty() ? object->name() : object->getType() + object->name();
    }
    return rows.join(' ');
}
} // namespace colorcombo
