#pragma once

#include <QAbstractItemModel>

#include <map>

namespace velmtest {
/// All roles of a row by number, with name, type and value: "256 text QString(A), 257 checked bool(false)". An empty
/// variant reads as "nothing".
inline QString roleText(const QAbstractItemModel& model, int row)
{
    const QHash<int, QByteArray> names = model.roleNames();
    std::map<int, QString> texts;
    for (auto name = names.cbegin(); name != names.cend(); ++name) {
        const QVariant value = model.index(row, 0).data(name.key());
        const QString text =
            value.metaType() == QMetaType::fromType<QStringList>() ? value.toStringList().join('/') : value.toString();
        const QString typed = QString("%1(%2)").arg(value.typeName(), text);
        texts[name.key()] =
            QString("%1 %2 %3").arg(name.key()).arg(QString::fromLatin1(*name), value.isValid() ? typed : "nothing");
    }
    QStringList result;
    for (const auto& [role, text] : texts)
        result += text;
    return result.join(", ");
}
} // namespace velmtest
