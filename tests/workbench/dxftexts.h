#pragma once

#include "drawing/dxfreader.h"

#include <QtTest>

namespace workbench {
/// "0 LINE|8 Wall" as the lines of a file.
inline QByteArray groups(const QByteArray& compact)
{
    QByteArray lines;
    for (const QByteArray& group : compact.split('|')) {
        const qsizetype space = group.indexOf(' ');
        lines += "  " + group.left(space) + "\n" + (space < 0 ? QByteArray() : group.mid(space + 1)) + "\n";
    }
    return lines;
}

inline QByteArray section(const QByteArray& name, const QByteArray& content)
{
    return groups("0 SECTION|2 " + name) + (content.isEmpty() ? content : groups(content)) + groups("0 ENDSEC");
}

inline QByteArray drawing(const QByteArray& entities, const QByteArray& blocks = {}, const QByteArray& tables = {},
                          const QByteArray& header = {})
{
    return section("HEADER", header) + section("TABLES", tables) + section("BLOCKS", blocks) +
           section("ENTITIES", entities) + groups("0 EOF");
}

inline QString qt(const OdString& text)
{
    return QString::fromStdWString(text.wide());
}

template <typename T>
const T* entity(const DxfReadResult& result, unsigned int index)
{
    return result.database->modelSpace()->entities()[index].open<T>();
}

/// Reads a text as if it were a file of this name.
inline DxfReadResult readText(const QByteArray& text, const QString& name = "plan.dxf")
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("can't write the test's file");
    file.close();
    return readDxf(file.fileName().toStdWString(), {});
}

inline DxfReadResult readSample(const QString& name)
{
    return readDxf((QString(VELM_SAMPLES "/") + name).toStdWString(), {});
}
} // namespace workbench
