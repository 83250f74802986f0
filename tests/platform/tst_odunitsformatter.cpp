#include <QTest>

#include "od/odunitsformatter.h"
#include "support/table.h"

#include <cmath>
#include <numbers>
#include <random>

using std::numbers::pi;

// With nine precisions a hundred thousand a kind; fewer where a sanitizer makes each one slow.
#ifdef __SANITIZE_ADDRESS__
constexpr int valuesAPrecision = 1200;
#else
constexpr int valuesAPrecision = 11200;
#endif

static OdUnitsFormatter linear(int kind, int precision)
{
    OdUnitsFormatter formatter;
    OdUnits units;
    units.linearKind = static_cast<OdUnits::LinearKind>(kind);
    units.linearPrecision = precision;
    formatter.setUnits(units);
    return formatter;
}

static OdUnitsFormatter angular(int kind, int precision)
{
    OdUnitsFormatter formatter;
    OdUnits units;
    units.angularKind = static_cast<OdUnits::AngularKind>(kind);
    units.angularPrecision = precision;
    formatter.setUnits(units);
    return formatter;
}

static QString text(const OdString& string)
{
    return QString::fromStdWString(string.wide());
}

class tst_OdUnitsFormatter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatsLengths_data()
    {
        const auto row = velmtest::columns<int, int, double, QString>("kind", "precision", "value", "expected");
        row("scientific", OdUnits::kScientific, 2, 15.5, "1.55E+01");
        row("a small scientific value", OdUnits::kScientific, 3, -0.00015, "-1.500E-04");
        row("decimal", OdUnits::kDecimal, 4, 15.5, "15.5000");
        row("a negative value that rounds to zero has no sign", OdUnits::kDecimal, 2, -0.001, "0.00");
        row("engineering", OdUnits::kEngineering, 4, 15.5, "1'-3.5000\"");
        row("engineering without feet", OdUnits::kEngineering, 1, -3.5, "-3.5\"");
        row("inches round up to the next foot", OdUnits::kEngineering, 2, 23.999, "2'-0.00\"");
        row("less than a foot rounds up to one", OdUnits::kEngineering, 0, 11.7, "1'-0\"");
        row("architectural", OdUnits::kArchitectural, 4, 15.5, "1'-3 1/2\"");
        row("a negative length as a whole", OdUnits::kArchitectural, 4, -15.5, "-1'-3 1/2\"");
        row("feet and a fraction keep the zero", OdUnits::kArchitectural, 3, 12.125, "1'-0 1/8\"");
        row("a fraction alone", OdUnits::kArchitectural, 3, 0.375, "3/8\"");
        row("whole feet", OdUnits::kArchitectural, 3, 36, "3'-0\"");
        row("11 31.99/32 is the next foot", OdUnits::kArchitectural, 5, 11.99969, "1'-0\"");
        row("fractional", OdUnits::kFractional, 4, 15.5, "15 1/2");
        row("a fraction rounds up to the next whole", OdUnits::kFractional, 2, 15.9, "16");
        row("a fraction is cancelled down", OdUnits::kFractional, 8, 0.75, "3/4");
        row("no fraction at precision 0", OdUnits::kFractional, 0, 2.6, "3");
        row("a precision below all is the lowest", OdUnits::kDecimal, -3, 2.4, "2");
    }
    void formatsLengths()
    {
        QFETCH(int, kind);
        QFETCH(int, precision);
        QFETCH(double, value);
        QFETCH(QString, expected);
        QCOMPARE(text(linear(kind, precision).formatLinear(value)), expected);
    }

    void formatsAngles_data()
    {
        const auto row = velmtest::columns<int, int, double, QString>("kind", "precision", "degrees", "expected");
        const int dms = OdUnits::kDegreesMinutesSeconds;
        row("degrees", OdUnits::kDecimalDegrees, 4, 45, "45.0000°");
        row("no sign of zero", OdUnits::kDecimalDegrees, 0, -0.2, "0°");
        row("grads", OdUnits::kGrads, 4, 45, "50.0000g");
        row("radians", OdUnits::kRadians, 4, -45, "-0.7854r");
        row("whole degrees", dms, 0, 45.5, "46d");
        row("degrees and minutes", dms, 1, 45.5, "45d30'");
        row("degrees, minutes and seconds", dms, 4, 45.5, "45d30'0\"");
        row("decimals of a second", dms, 6, -45.5, "-45d30'0.00\"");
        row("59.9999 seconds are the next minute", dms, 4, 10 + 29.99999 / 60, "10d30'0\"");
        row("59 minutes and 59.999 seconds are the next degree", dms, 6, 11 - 0.001 / 3600, "11d0'0.00\"");
        row("north east", OdUnits::kSurveyors, 4, 45, "N 45d0'0\" E");
        row("north west", OdUnits::kSurveyors, 4, 100.5, "N 10d30'0\" W");
        row("south west", OdUnits::kSurveyors, 1, 200.25, "S 69d45' W");
        row("south east of a negative angle", OdUnits::kSurveyors, 0, -30, "S 60d E");
        row("east", OdUnits::kSurveyors, 4, 0, "E");
        row("north after rounding", OdUnits::kSurveyors, 1, 89.9999, "N");
        row("west", OdUnits::kSurveyors, 4, -180, "W");
        row("south of more than a turn", OdUnits::kSurveyors, 4, 630, "S");
        row("a full turn after rounding is east", OdUnits::kSurveyors, 3, -1e-9, "E");
    }
    void formatsAngles()
    {
        QFETCH(int, kind);
        QFETCH(int, precision);
        QFETCH(double, degrees);
        QFETCH(QString, expected);
        QCOMPARE(text(angular(kind, precision).formatAngle(degrees * pi / 180)), expected);
    }

    void parsesLengths_data()
    {
        velmtest::columns<QString, double>("input", "expected");
        const auto row = [](const char* input, double expected) {
            QTest::newRow(input) << QString::fromUtf8(input) << expected;
        };
        row("1e3", 1000);
        row("1.55E+01", 15.5);
        row(" + 2.5 ", 2.5);
        row(".5", 0.5);
        row("5.", 5);
        row("1/2", 0.5);
        row("-15 1/2", -15.5);
        row("3-1/2", 3.5);
        row("1'", 12);
        row("1.5'", 18);
        row("3\"", 3);
        row("1'3", 15);
        row("1' 3\"", 15);
        row("1'-3.5000\"", 15.5);
        row("-1'-3 1/2\"", -15.5);
        row("- 1 ' - 3 1/2 \"", -15.5);
        row("1'-3-1/2\"", 15.5);
        row("1'1/2", 12.5);
        row("1'-15\"", 27);
        row("1\u20323\u2033", 15);
        row("\u22122\u00a01/2", -2.5);
    }
    void parsesLengths()
    {
        QFETCH(QString, input);
        QFETCH(double, expected);
        for (int kind = OdUnits::kScientific; kind <= OdUnits::kFractional; ++kind)
            QCOMPARE(linear(kind, 0).unformatLinear(input.toStdWString()), expected);
    }

    void parsesAngles_data()
    {
        velmtest::columns<int, QString, double>("kind", "input", "degrees");
        const auto row = [](const char* input, double degrees, int kind = OdUnits::kDecimalDegrees) {
            QTest::addRow("%s in kind %d", input, kind) << kind << QString::fromUtf8(input) << degrees;
        };
        row("45", 45);
        row("50", 45, OdUnits::kGrads);
        row("50", 50 * 180 / pi, OdUnits::kRadians);
        row("45", 45, OdUnits::kSurveyors);
        row("45°", 45, OdUnits::kRadians);
        row("50.0G", 45);
        row("1R", 180 / pi);
        row("-45D30'", -45.5);
        row("45° 30' 36\"", 45.51);
        row("45d30", 45.5);
        row("45d30'36", 45.51);
        row("30'", 0.5);
        row("36\"", 0.01);
        row("45d36\"", 45.01);
        row("1e1d", 10);
        row("n", 90);
        row(" W ", 180);
        row("N 45d0'0\" E", 45);
        row("n45w", 135);
        row("S 30°30'W", 239.5);
        row("s 30 e", 300);
        row("N 90d W", 180);
    }
    void parsesAngles()
    {
        QFETCH(int, kind);
        QFETCH(QString, input);
        QFETCH(double, degrees);
        QCOMPARE(angular(kind, 0).unformatAngle(input.toStdWString()) * 180 / pi, degrees);
    }

    void rejectsWhatIsNoValue_data()
    {
        const auto row = velmtest::columns<QString>("input");
        for (const char* input :
             {"",         " ",      "-",       "+",           ".",      "'",       "\"",    "/",    "1/0",
              "1/",       "/2",     "--1",     "1 2",         "1,5",    "1.5 1/2", "12x",   "inf",  "nan",
              "infinity", "0x10",   "1e",      "1e999",       "-1e999", "1'-",     "1'-3'", "1''",  "5 -1/2",
              "1'--3",    "d",      "45dd",    "45d30'10\"5", "10g5",   "1r2",     "N 45",  "45 E", "N E",
              "E 45 N",   "N 91 E", "-N 45 E", "N -45 E",     "NN",     "٣",       "1\n2",  "1\n",  "1,000",
              "1.2.3",    "1e5e5",  "1 1/2/3", "1/2/3",       "+-1",    "1'2'3",   "1\"2'", "३४",   "１２",
              "1½",       "1/0.5",  "1e400",   "inf'",        "nan\""})
            row(*input ? input : "an empty text", QString::fromUtf8(input));
        row("a zero character inside", QStringLiteral("1") + QChar(0) + QStringLiteral("2"));
        row("400 nines", QString(400, u'9'));
        row("a fraction of 400 digits", QStringLiteral("1/") + QString(400, u'9'));
        row("400 dashes", QString(400, u'-'));
    }
    void rejectsWhatIsNoValue()
    {
        QFETCH(QString, input);
        const OdUnitsFormatter formatter;
        const double length = formatter.unformatLinear(input.toStdWString());
        QVERIFY2(std::isnan(length), qPrintable(QString::number(length)));
        const double angle = formatter.unformatAngle(input.toStdWString());
        QVERIFY2(std::isnan(angle), qPrintable(QString::number(angle)));
    }

    void everyLengthTextParsesToWhatItShows()
    {
        std::mt19937 random(20);
        // A third lies next to where the rounding carries.
        std::uniform_real_distribution<double> exponent(-12, 12);
        std::uniform_int_distribution<int> inches(0, 600);
        std::uniform_real_distribution<double> nearly(-0.01, 0.01);
        for (int kind = OdUnits::kScientific; kind <= OdUnits::kFractional; ++kind) {
            for (int precision = 0; precision <= 8; ++precision) {
                const OdUnitsFormatter formatter = linear(kind, precision);
                for (int i = 0; i < valuesAPrecision; ++i) {
                    const double magnitude =
                        i % 3 ? std::pow(10, exponent(random)) : std::abs(inches(random) + nearly(random));
                    const double value = i % 2 ? magnitude : -magnitude;
                    const OdString shown = formatter.formatLinear(value);
                    const double parsed = formatter.unformatLinear(shown);
                    double step = kind >= OdUnits::kArchitectural ? std::pow(2, -precision) : std::pow(10, -precision);
                    if (kind == OdUnits::kScientific)
                        step *= std::pow(10, std::floor(std::log10(magnitude)));
                    // The numbers of a double lie further apart than a small step.
                    if (!(std::abs(parsed - value) <= step * 0.500001 + magnitude * 1e-15))
                        QFAIL(qPrintable(QStringLiteral("%1 gives %2").arg(value, 0, 'g', 17).arg(text(shown))));
                    if (formatter.formatLinear(parsed) != shown)
                        QCOMPARE(text(formatter.formatLinear(parsed)), text(shown));
                }
            }
        }
    }

    void everyAngleTextParsesToWhatItShows()
    {
        std::mt19937 random(21);
        std::uniform_real_distribution<double> degreesOf(-800, 800);
        std::uniform_int_distribution<int> quarterMinutes(-4000, 4000);
        std::uniform_real_distribution<double> nearly(-0.001, 0.001);
        for (int kind = OdUnits::kDecimalDegrees; kind <= OdUnits::kSurveyors; ++kind) {
            for (int precision = 0; precision <= 8; ++precision) {
                const OdUnitsFormatter formatter = angular(kind, precision);
                const double dmsStep = precision == 0   ? 1
                                       : precision <= 2 ? 1 / 60.0
                                                        : std::pow(10, -std::max(precision - 4, 0)) / 3600;
                const double decimalStep = std::pow(10, -precision);
                const double steps[] = {decimalStep, dmsStep, decimalStep * 0.9, decimalStep * 180 / pi, dmsStep};
                for (int i = 0; i < valuesAPrecision; ++i) {
                    const double degrees = i % 3 ? degreesOf(random) : quarterMinutes(random) / 4.0 + nearly(random);
                    const double value = degrees * pi / 180;
                    const OdString shown = formatter.formatAngle(value);
                    const double parsed = formatter.unformatAngle(shown);
                    // A bearing says nothing about full turns.
                    const double off =
                        kind == OdUnits::kSurveyors ? std::remainder(parsed - value, 2 * pi) : parsed - value;
                    if (!(std::abs(off) * 180 / pi <= steps[kind] * 0.500001 + 1e-12))
                        QFAIL(qPrintable(QStringLiteral("%1 gives %2").arg(degrees, 0, 'g', 17).arg(text(shown))));
                    if (formatter.formatAngle(parsed) != shown)
                        QCOMPARE(text(formatter.formatAngle(parsed)), text(shown));
                }
            }
        }
    }

    void valuesBeyondAllMeasure()
    {
        constexpr double largest = std::numeric_limits<double>::max();
        const double values[] = {largest, 1.2e308, 1e300, 9007199254740993.0, 5e-324, 0.0};
        for (int precision : {0, 4, 8}) {
            for (int kind = OdUnits::kScientific; kind <= OdUnits::kFractional; ++kind) {
                const OdUnitsFormatter formatter = linear(kind, precision);
                for (double value : values) {
                    const double parsed = formatter.unformatLinear(formatter.formatLinear(-value));
                    // The scientific form shortens a large number, and only it shows the smallest.
                    if (kind != OdUnits::kScientific && value != 5e-324)
                        QCOMPARE(parsed, -value);
                    else
                        QVERIFY(kind != OdUnits::kScientific || std::abs(parsed + value) <= value / 2);
                }
                QVERIFY(formatter.formatLinear(std::numeric_limits<double>::infinity()).isEmpty());
                QVERIFY(formatter.formatLinear(std::nan("")).isEmpty());
            }
            for (int kind = OdUnits::kDecimalDegrees; kind <= OdUnits::kSurveyors; ++kind) {
                const OdUnitsFormatter formatter = angular(kind, precision);
                for (double value : values)
                    QVERIFY(formatter.formatAngle(value).isEmpty() ||
                            !std::isnan(formatter.unformatAngle(formatter.formatAngle(value))));
                QVERIFY(formatter.formatAngle(std::nan("")).isEmpty());
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_OdUnitsFormatter)
#include "tst_odunitsformatter.moc"
