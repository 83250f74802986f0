#include "linetypes/linetypefile.h"

#include "od/oddbdatabase.h"
#include "ut/environment.h"
#include "ut/names.h"
#include "velm/bridge/conversions.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>

#include <cmath>
#include <optional>

namespace workbench {
namespace {
constexpr qint64 largestFile = 4 * 1024 * 1024;
constexpr int mostDashes = 12; // of a linetype in drawing files
constexpr double longestDash = 1e6;

QString decoded(const QByteArray& text)
{
    QStringDecoder decoder(QStringDecoder::encodingForData(text).value_or(QStringDecoder::Utf8));
    const QString result = decoder.decode(text);
    return decoder.hasError() ? QString::fromLatin1(text) : result;
}

/// Reads line by line; whatever can't be used throws the reason, as a text.
class LineTypeParser
{
    Q_DECLARE_TR_FUNCTIONS(LineTypeParser)
public:
    LineTypeFile parse(const QByteArray& text);

private:
    /// What the next pattern belongs to.
    struct Header
    {
        int line;
        LineType lineType;
        bool isUsable;
    };

    void parseLine(const QString& line);
    void takeHeader(const QString& text);
    void takePattern(const QString& text);
    void endHeader();
    OdArray<double> dashesOf(const QString& text) const;
    void note(int line, const QString& reason) { m_file.problems += tr("Line %1: %2").arg(line).arg(reason); }

    LineTypeFile m_file;
    int m_line = 0;
    std::optional<Header> m_header;
    QSet<QString> m_names; // in lower case
};

LineTypeFile LineTypeParser::parse(const QByteArray& text)
{
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    for (const QString& line : decoded(text).split(lineEnd)) {
        ++m_line;
        try {
            parseLine(line.trimmed());
        } catch (const QString& reason) {
            note(m_line, reason);
        }
    }
    endHeader();
    if (m_file.lineTypes.empty())
        m_file.error = tr("The file defines no linetype.");
    return std::move(m_file);
}

void LineTypeParser::parseLine(const QString& line)
{
    if (line.isEmpty() || line.startsWith(u';'))
        return;
    if (line.startsWith(u'*')) {
        endHeader();
        takeHeader(line.mid(1));
    } else {
        takePattern(line);
    }
}

void LineTypeParser::takeHeader(const QString& text)
{
    const qsizetype comma = text.indexOf(u',');
    LineType& lineType = m_header.emplace(Header{m_line, {}, false}).lineType;
    lineType.name = text.left(comma).trimmed();
    lineType.description = comma < 0 ? QString() : text.mid(comma + 1).trimmed();
    if (lineType.name.isEmpty())
        throw tr("the linetype has no name.");
    const QString forbidden = velm::toQt(ut::getForbiddenCharacters());
    for (const QChar character : lineType.name)
        if (!character.isPrint() || forbidden.contains(character))
            throw tr("the name \"%1\" has a character that names can't contain.").arg(lineType.name);
    const QString key = lineType.name.toLower();
    if (key == u"bylayer" || key == u"byblock" || key == u"continuous")
        throw tr("the linetype \"%1\" can't be defined.").arg(lineType.name);
    if (m_names.contains(key))
        throw tr("the linetype \"%1\" is defined already.").arg(lineType.name);
    m_header->isUsable = true;
}

void LineTypeParser::takePattern(const QString& text)
{
    if (!m_header)
        throw tr("this isn't understood.");
    Header header = std::move(*m_header);
    m_header.reset();
    if (!header.isUsable)
        return; // its name was reported
    header.lineType.dashes = dashesOf(text);
    m_names += header.lineType.name.toLower();
    m_file.lineTypes.push_back(std::move(header.lineType));
}

void LineTypeParser::endHeader()
{
    if (m_header && m_header->isUsable)
        note(m_header->line, tr("the linetype \"%1\" has no dashes.").arg(m_header->lineType.name));
    m_header.reset();
}

OdArray<double> LineTypeParser::dashesOf(const QString& text) const
{
    if (text.contains(u'['))
        throw tr("linetypes with shapes or texts aren't supported.");
    QStringList parts = text.split(u',');
    if (parts.takeFirst().trimmed().toLower() != u"a")
        throw tr("dashes begin with \"A,\".");
    if (parts.size() < 2 || parts.size() > mostDashes)
        throw tr("a linetype has 2 to %1 dashes, gaps and dots.").arg(mostDashes);
    OdArray<double> dashes;
    bool hasGap = false;
    for (const QString& part : parts) {
        bool isNumber = false;
        const double dash = part.trimmed().toDouble(&isNumber);
        if (!isNumber || !(std::abs(dash) <= longestDash))
            throw tr("\"%1\" is no length.").arg(part.trimmed());
        hasGap = hasGap || dash < 0;
        dashes.append(dash);
    }
    if (dashes.first() < 0)
        throw tr("a linetype begins with a dash or a dot.");
    if (!hasGap)
        throw tr("the linetype has no gap.");
    return dashes;
}
} // namespace

LineTypeFile parseLineTypes(const QByteArray& text)
{
    return LineTypeParser().parse(text);
}

LineTypeFile readLineTypes(const QString& path)
{
    const auto failed = [&path](const char* reason) {
        return LineTypeFile{{}, {}, QCoreApplication::translate("LineTypeFile", reason).arg(path)};
    };
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly))
        return failed(QT_TRANSLATE_NOOP("LineTypeFile", "The file \"%1\" can't be read."));
    if (file.size() > largestFile)
        return failed(QT_TRANSLATE_NOOP("LineTypeFile", "The file \"%1\" is too large to be one of linetypes."));
    return parseLineTypes(file.readAll());
}

QString standardLineTypes()
{
    return velm::toQt(ut::getExecutableFolder(true)) + QStringLiteral("linetypes/standard.lin");
}

OdDbLinetypeTableRecord* loadLineType(OdDbDatabase& database, const LineType& lineType)
{
    OdDbLinetypeTableRecord* record = database.addLinetype(velm::odFromQt(lineType.name));
    record->setComments(velm::odFromQt(lineType.description));
    record->setDashes(lineType.dashes);
    return record;
}
} // namespace workbench
