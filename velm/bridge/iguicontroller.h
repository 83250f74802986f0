#pragma once

#include "od/odarray.h"
#include "od/odcmcolor.h"
#include "od/oddbobjectid.h"
#include "od/odstring.h"
#include "velm/velm_export.h"

#include <QUrl>

#include <wx/bitmap.h>
#include <wx/colour.h>
#include <wx/string.h>

#include <cstdint>
#include <memory>
#include <optional>

class QObject;
class wxWindow;

namespace velm {
class BaseDialogController;
class IHostDialog;

/// How the host is to build a dialog; the default is what the library itself asks for.
struct DialogOptions
{
    bool resizable = false;
    bool modal = true;
};

/// How one row of a colour combo is shown.
struct ColorDescription
{
    bool drawDiagonal = false;
    wxString name;
    wxColour color;
};

/// What the host found when it listed the linetypes of a drawing.
struct LoadedLineTypes
{
    OdArray<OdDbObjectId> ids;
    std::shared_ptr<void> keepAlive; ///< whatever must live as long as the ids are used
};

/// A record that the host passes through the library.
struct VELM_EXPORT HostRecord
{
    virtual ~HostRecord();
};

/// The host's GUI service. The order of the operations is part of the interface. Those whose names begin with "host"
/// are called by the host and the plugins only, which give them their meaning.
class VELM_EXPORT IGuiController
{
public:
    virtual ~IGuiController();
    /// A host dialog that shows `page` with `controller` as its context; it becomes the caller's. Null: there is no
    /// dialog.
    virtual std::unique_ptr<IHostDialog> createDialog(const QUrl& page, BaseDialogController* controller,
                                                      wxWindow* parent, const DialogOptions& options,
                                                      void* context) = 0;
    virtual bool hostQuery1() = 0;
    virtual void hostAction1() = 0;
    virtual void hostAction2() = 0;
    virtual void hostOpenUrl(QUrl url) = 0;
    /// Takes note of a dialog that stays open for the length of a command. Not owned.
    virtual void addContextDialog(IHostDialog* dialog) = 0;
    virtual void removeContextDialog(IHostDialog* dialog) = 0;
    virtual std::shared_ptr<void> hostCreateShared1(const QUrl& page, std::unique_ptr<QObject> controller) = 0;
    virtual std::intptr_t hostQuery2() = 0;
    virtual std::shared_ptr<void> hostCreateShared2() = 0;
    virtual void hostAction3() = 0;
    virtual bool hostQuery3() = 0;
    virtual bool hostQuery4() = 0;
    // The shared colours of all colour combos; `flags` are a combo's flags.
    virtual bool shouldInitColor(const OdCmColor& color, int flags) = 0;
    virtual OdArray<int> initColorIndices(int flags) = 0;
    virtual std::optional<int> tryAddColor(const OdCmColor& color, int flags) = 0;
    virtual OdCmColor& getArrayColor(int index, int flags) = 0;
    virtual ColorDescription describeColor(const OdCmColor& color, wxColour byLayerColor, bool layerOverride,
                                           int flags) = 0;
    virtual int colorComboFlagsToDialog(int comboFlags, bool varies) = 0;
    /// The local name of a linetype's stored name.
    virtual OdString linetypeLocalName(const OdString& storedName) const = 0;
    /// Lists the linetypes of `database`; `id` goes in and comes out.
    virtual bool loadLineTypes(OdDbDatabase* database, bool noSecondOption, OdDbObjectId& id, bool noFirstOption,
                               LoadedLineTypes& lineTypes) = 0;
    virtual bool drawLineTypeBitmap(int width, int height, wxBitmap& bitmap, OdDbObjectId lineType, OdDbObjectId second,
                                    const wxColour& background) const = 0;
    /// The lineweight table, in hundredths of a millimetre.
    virtual int lineWeightCount() const = 0;
    virtual int lineWeightAt(int index) const = 0;
    virtual OdString lineWeightName(int lineWeight) const = 0;
    virtual std::intptr_t hostValue() = 0;
    virtual void hostAction4() = 0;
    virtual void hostAction5() = 0;
    virtual void hostAction6() = 0;
    virtual void hostTakeShared(std::shared_ptr<void> value) = 0;
    virtual void hostAction7() = 0;
    virtual void hostTakeString1(wxString text) = 0;
    virtual void hostTakeStrings(wxString first, wxString second) = 0;
    virtual void hostTakeString2(wxString text) = 0;
    virtual std::intptr_t hostQuery7() = 0;
    virtual void hostAction8() = 0;
    virtual void hostTakeOwned(std::unique_ptr<HostRecord> record) = 0;
    virtual bool hostQuery8() = 0;
};
} // namespace velm
