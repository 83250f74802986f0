#include "velm/dialogs/messagebuttons.h"

#include "velm/bridge/strings.h"

#include <QObject>

#include <wx/defs.h>
#include <wx/string.h>

namespace velm {
namespace {
MessageButtonInfo button(const char* label, int id)
{
    return {OdString(hostTranslation(label).wc_str()), id};
}
} // namespace

std::vector<MessageButtonInfo> buttonsFromButtonStyle(MessageButtonStyle style)
{
    switch (style) {
    case MessageButtonStyle::OKCancel:
        return {button("&OK", wxOK), button("&Cancel", wxCANCEL)};
    case MessageButtonStyle::YesNo:
        return {button("&Yes", wxYES), button("&No", wxNO)};
    case MessageButtonStyle::YesNoCancel:
        return {button("&Yes", wxYES), button("&No", wxNO), button("&Cancel", wxCANCEL)};
    case MessageButtonStyle::OK:
        break;
    }
    return {button("&OK", wxOK)};
}

QString getDefaultActionName(EDefaultAction action)
{
    switch (action) {
    case EDefaultAction::Clone:
        return QObject::tr("Clone");
    case EDefaultAction::Remove:
        return QObject::tr("Remove");
    case EDefaultAction::Rename:
        return QObject::tr("Rename");
    }
    return {};
}
} // namespace velm
