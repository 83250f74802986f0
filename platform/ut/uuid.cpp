#include "ut/uuid.h"

#include <QUuid>

#include <algorithm>

namespace ut {
static std::array<std::uint8_t, 16> bytesOf(const QUuid& uuid)
{
    std::array<std::uint8_t, 16> result;
    const QByteArray bytes = uuid.toRfc4122();
    std::copy(bytes.begin(), bytes.end(), result.begin());
    return result;
}

const UUID UUID::s_cNil;

UUID::UUID(const OdString& text)
{
    const QString given = QString::fromStdWString(text.wide());
    const QUuid uuid(given);
    // QUuid lets some texts pass that merely begin like an identifier.
    if (given.compare(uuid.toString(QUuid::WithBraces), Qt::CaseInsensitive) == 0 ||
        given.compare(uuid.toString(QUuid::WithoutBraces), Qt::CaseInsensitive) == 0)
        m_bytes = bytesOf(uuid);
}

UUID UUID::create()
{
    UUID result;
    result.m_bytes = bytesOf(QUuid::createUuid());
    return result;
}

OdString UUID::toString() const
{
    const QByteArray bytes(reinterpret_cast<const char*>(m_bytes.data()), static_cast<qsizetype>(m_bytes.size()));
    return QUuid::fromRfc4122(bytes).toString(QUuid::WithoutBraces).toStdWString();
}
} // namespace ut
