#pragma once

#include <QMetaMethod>
#include <QMetaProperty>
#include <QStringList>

namespace velmtest {
/// What a class itself adds to the meta-object, in order: "signal: a() slot: b() method: c(int) property: d e= f!", "="
/// for a property that can be written, "!" for one without the signal of its name.
inline QString members(const QMetaObject& meta)
{
    QStringList result;
    const auto add = [&result](const char* kind, const QString& name) {
        if (!result.contains(kind))
            result += kind;
        result += name;
    };
    const char* const kinds[] = {"method:", "signal:", "slot:"};
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
        add(kinds[meta.method(index).methodType()], meta.method(index).methodSignature());
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        const QMetaProperty property = meta.property(index);
        const bool hasSignal = property.notifySignal().name() == property.name() + QByteArray("Changed");
        add("property:", property.name() + QString(property.isWritable() ? "=" : "") + (hasSignal ? "" : "!"));
    }
    return result.join(' ');
}
} // namespace velmtest
