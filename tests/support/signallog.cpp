#include "support/signallog.h"

#include <QModelIndex>
#include <QVariant>

#include <utility>

namespace velmtest {
namespace {
QString rendered(QMetaType type, const void* value)
{
    const QVariant variant(type, value);
    if (type == QMetaType::fromType<QModelIndex>()) {
        const auto index = variant.toModelIndex();
        return index.isValid() ? QString("%1,%2").arg(index.row()).arg(index.column()) : QString("-");
    }
    if (type == QMetaType::fromType<QList<int>>()) {
        QStringList numbers;
        for (const int number : variant.value<QList<int>>())
            numbers += QString::number(number);
        return '[' + numbers.join(' ') + ']';
    }
    return variant.canConvert<QString>() ? variant.toString() : QString(type.name());
}
} // namespace

SignalLog::SignalLog(const QObject& sender)
{
    const QMetaObject* metaObject = sender.metaObject();
    for (int index = QObject::staticMetaObject.methodCount(); index < metaObject->methodCount(); ++index) {
        const QMetaMethod method = metaObject->method(index);
        // A signal with default arguments counts once.
        if (method.methodType() != QMetaMethod::Signal || (method.attributes() & QMetaMethod::Cloned))
            continue;
        // Connected to methods that only qt_metacall() knows, numbered behind those of QObject.
        const int slot = QObject::staticMetaObject.methodCount() + static_cast<int>(m_signals.size());
        QMetaObject::connect(&sender, index, this, slot, Qt::DirectConnection);
        m_signals.push_back(method);
    }
}

QString SignalLog::take()
{
    return std::exchange(m_log, {}).join(' ');
}

int SignalLog::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    const QMetaMethod& method = m_signals[static_cast<std::size_t>(id)];
    QStringList values;
    for (int index = 0; index < method.parameterCount(); ++index)
        values += rendered(method.parameterMetaType(index), arguments[index + 1]);
    const QString name = QString::fromLatin1(method.name());
    m_log += values.isEmpty() ? name : name + '(' + values.join(", ") + ')';
    return -1;
}
} // namespace velmtest
