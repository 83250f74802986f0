#include "hintedsvg.h"

#include <QPointF>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

namespace {
constexpr double units = 24.0;

/// From the units of the drawing to the pixels of one size.
class Hinter
{
public:
    explicit Hinter(int size) : m_scale(size / units), m_lineWidth(std::max(1, qRound(size / 14.0))) {}

    int lineWidth() const { return m_lineWidth; }
    double scaled(double length) const { return length * m_scale; }
    /// The nearest place where a line fills whole pixels.
    double snapped(double place) const
    {
        const double offset = m_lineWidth % 2 ? 0.5 : 0.0;
        return std::floor(scaled(place) - offset + 0.5) + offset;
    }
    QPointF snapped(QPointF point) const { return {snapped(point.x()), snapped(point.y())}; }

private:
    double m_scale;
    int m_lineWidth;
};

QString text(double number)
{
    return QString::number(number, 'g', 8);
}

QString text(QPointF point)
{
    return text(point.x()) + QLatin1Char(' ') + text(point.y());
}

/// Control points move as far as the end of the curve that they belong to.
QString hintedPath(const QString& path, const Hinter& hinter)
{
    static const QRegularExpression token(QStringLiteral("[A-Za-z]|[-0-9.]+"));
    static const std::map<QChar, int> counts = {{u'M', 2}, {u'L', 2}, {u'H', 1}, {u'V', 1},
                                                {u'C', 6}, {u'A', 7}, {u'Z', 0}};
    QString result;
    QPointF at;
    for (auto matches = token.globalMatch(path); matches.hasNext();) {
        const QString command = matches.next().captured();
        const auto known = counts.find(command.front());
        if (known == counts.end())
            throw std::runtime_error("unknown path command " + command.toStdString());
        double numbers[7] = {};
        for (int index = 0; index < known->second; ++index) {
            if (!matches.hasNext())
                throw std::runtime_error("a path ends early");
            numbers[index] = matches.next().captured().toDouble();
        }
        const QPointF start = at;
        const double* last = numbers + std::max(0, known->second - 2);
        result += command + QLatin1Char(' ');
        switch (command.front().unicode()) {
        case u'Z':
            continue;
        case u'H':
            at.setX(numbers[0]);
            result += text(hinter.snapped(at.x()));
            break;
        case u'V':
            at.setY(numbers[0]);
            result += text(hinter.snapped(at.y()));
            break;
        default:
            at = QPointF(last[0], last[1]);
            if (command == QLatin1String("C")) {
                const double scale = hinter.scaled(1.0);
                const QPointF first = QPointF(numbers[0], numbers[1]) - start;
                const QPointF second = QPointF(numbers[2], numbers[3]) - at;
                result += text(hinter.snapped(start) + first * scale) + QLatin1Char(' ') +
                          text(hinter.snapped(at) + second * scale) + QLatin1Char(' ');
            } else if (command == QLatin1String("A")) {
                result += text(QPointF(hinter.scaled(numbers[0]), hinter.scaled(numbers[1]))) +
                          QStringLiteral(" %1 %2 %3 ").arg(numbers[2]).arg(numbers[3]).arg(numbers[4]);
            }
            result += text(hinter.snapped(at));
        }
        result += QLatin1Char(' ');
    }
    return result;
}

/// The attributes of an element that say where it is, hinted.
std::map<QString, QString> hintedPlace(const QString& element, const QXmlStreamAttributes& attributes,
                                       const Hinter& hinter)
{
    const auto number = [&attributes](const char* name) { return attributes.value(QLatin1String(name)).toDouble(); };
    if (element == QLatin1String("svg")) {
        const QString size = text(hinter.scaled(units));
        return {{QStringLiteral("viewBox"), QStringLiteral("0 0 %1 %1").arg(size)},
                // A pen of just one pixel would take the painter's hairlines, which lean to one side.
                {QStringLiteral("stroke-width"), text(hinter.lineWidth() + 0.01)}};
    }
    if (element == QLatin1String("path"))
        return {{QStringLiteral("d"), hintedPath(attributes.value(QLatin1String("d")).toString(), hinter)}};
    if (element == QLatin1String("rect")) {
        const QPointF from = hinter.snapped(QPointF(number("x"), number("y")));
        const QPointF to = hinter.snapped(QPointF(number("x") + number("width"), number("y") + number("height")));
        return {{QStringLiteral("x"), text(from.x())},
                {QStringLiteral("y"), text(from.y())},
                {QStringLiteral("width"), text(to.x() - from.x())},
                {QStringLiteral("height"), text(to.y() - from.y())}};
    }
    if (element != QLatin1String("circle"))
        throw std::runtime_error("unknown element " + element.toStdString());
    const QPointF centre(number("cx"), number("cy"));
    const QPointF radii(number("r"), number("r"));
    QPointF middle = (hinter.snapped(centre - radii) + hinter.snapped(centre + radii)) / 2;
    double radius = hinter.snapped(centre.x() + radii.x()) - middle.x();
    if (attributes.value(QLatin1String("stroke")) == QLatin1String("none")) {
        // A dot stands on the middle of a line or of a pixel's edge, whatever is nearer.
        middle = QPointF(qRound(hinter.scaled(centre.x()) * 2), qRound(hinter.scaled(centre.y()) * 2)) / 2;
        radius = hinter.scaled(radii.x());
    }
    return {{QStringLiteral("cx"), text(middle.x())},
            {QStringLiteral("cy"), text(middle.y())},
            {QStringLiteral("r"), text(radius)}};
}
} // namespace

QByteArray hintedSvg(const QByteArray& svg, int size)
{
    const Hinter hinter(size);
    QByteArray result;
    QXmlStreamReader reader(svg);
    QXmlStreamWriter writer(&result);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement()) {
            if (reader.isEndElement())
                writer.writeEndElement();
            continue;
        }
        const std::map<QString, QString> place = hintedPlace(reader.name().toString(), reader.attributes(), hinter);
        writer.writeStartElement(reader.name().toString());
        if (reader.name() == QLatin1String("svg"))
            writer.writeDefaultNamespace(reader.namespaceUri().toString());
        for (const QXmlStreamAttribute& attribute : reader.attributes())
            if (!place.contains(attribute.name().toString()))
                writer.writeAttribute(attribute.name().toString(), attribute.value().toString());
        for (const auto& [name, value] : place)
            writer.writeAttribute(name, value);
    }
    if (reader.hasError())
        throw std::runtime_error(reader.errorString().toStdString());
    return result;
}
