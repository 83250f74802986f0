#include "velm/services/webdocutils.h"

#include "velm/bridge/externalfunctions.h"

namespace velm {
WebDocUtils::WebDocUtils(QObject* parent) : QObject(parent)
{}

WebDocUtils::~WebDocUtils() = default;

void WebDocUtils::open(QString componentName) const
{
    openWebDoc(componentName);
}

QString WebDocUtils::getUrl(QString componentName) const
{
    return getWebDocUrl(componentName);
}
} // namespace velm
