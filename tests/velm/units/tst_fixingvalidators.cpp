#include "velm/units/fixingdoublevalidator.h"
#include "velm/units/fixingintvalidator.h"

#include "support/members.h"
#include "support/scopes.h"

#include <QTest>

#include <limits>

using namespace velm;

class TestFixingValidators : public QObject
{
    Q_OBJECT
    // The default locale is never the validator's.
    const velmtest::ScopedLocale m_french{QLocale(QLocale::French, QLocale::France)};

    template <typename Validator, typename Base>
    void checkEmptyTexts(Validator& validator, const Base& base)
    {
        QCOMPARE(velmtest::members(*validator.metaObject()),
                 QString("slot: isEmptyAcceptable() setEmptyAcceptable(bool) property: isEmptyAcceptable=!"));
        QString text;
        int position = 0;
        QCOMPARE(validator.property("isEmptyAcceptable"), QVariant(false));
        QCOMPARE(validator.validate(text, position), base.validate(text, position));
        QVERIFY(validator.setProperty("isEmptyAcceptable", true));
        QVERIFY(validator.isEmptyAcceptable());
        QCOMPARE(validator.validate(text, position), QValidator::Acceptable);
        validator.fixup(text);
        QVERIFY(text.isEmpty());
        for (QString other : {"5", " ", "-", "99999", "x", "1e5"})
            QCOMPARE(validator.validate(other, position), base.validate(other, position));
    }

private Q_SLOTS:
    void anEmptyTextIsTheBasesUnlessItIsAcceptable()
    {
        FixingIntValidator integers(1, 10, nullptr);
        checkEmptyTexts(integers, QIntValidator(1, 10));
        FixingDoubleValidator reals(0.5, 2.5, 2, nullptr);
        checkEmptyTexts(reals, QDoubleValidator(0.5, 2.5, 2));
        QCOMPARE(FixingIntValidator(nullptr).top(), std::numeric_limits<int>::max());
        QCOMPARE(FixingDoubleValidator(nullptr).decimals(), QDoubleValidator().decimals());
    }

    void wholeNumbersAreMended()
    {
        const auto mended = [](QString text, int bottom, int top) {
            FixingIntValidator validator(bottom, top, nullptr);
            validator.setLocale(QLocale(QLocale::German, QLocale::Germany));
            validator.fixup(text);
            return validator.bottom() == bottom && validator.top() == top ? text : "other bounds";
        };
        constexpr int least = std::numeric_limits<int>::min();
        constexpr int most = std::numeric_limits<int>::max();
        QCOMPARE(mended("", 1, 10), QString("1"));
        QCOMPARE(mended("", -10, -1), QString("-1"));
        QCOMPARE(mended("", -5, 5), QString("0"));
        QCOMPARE(mended("", 7, -7), QString("7"));
        QCOMPARE(mended("5", 9, 1), QString("9"));
        QCOMPARE(mended("9999999999999", 0, 100), QString("100"));
        QCOMPARE(mended("-9999999999999", -3, 100), QString("-3"));
        QCOMPARE(mended("2147483648", least, most), QString("2.147.483.647"));
        QCOMPARE(mended("99999999999999999999", 0, 100), QString("99999999999999999999")); // no number any more
        QCOMPARE(mended("+04", 2, 5), QString("4"));
        QCOMPARE(mended("1.234", 0, 5000), QString("1.234"));
        QCOMPARE(mended("12a", 2, 5), QString("12a"));
    }

    void realNumbersAreMended()
    {
        const auto mended = [](QString text, double bottom, double top) {
            FixingDoubleValidator validator(bottom, top, 2, nullptr);
            validator.setLocale(QLocale(QLocale::German, QLocale::Germany));
            validator.fixup(text);
            return validator.bottom() == bottom && validator.top() == top ? text : "other bounds";
        };
        QCOMPARE(mended("", 0.5, 2.5), QString("0,5"));
        QCOMPARE(mended("", -2.5, -0.25), QString("-0,25"));
        QCOMPARE(mended("1,5", 0.5, 20.0), QString("1,5"));
        QCOMPARE(mended("1.000", 0.5, 2000.0), QString("1.000"));
        QCOMPARE(mended("7", 0.5, 2.5), QString("2,5"));
        QCOMPARE(mended("1", 2.5, 0.5), QString("2,5"));
        QCOMPARE(mended("1x", 0.0, 1.0), QString("1x"));
    }

    void digitsGoBeyondTheDecimals()
    {
        FixingDoubleValidator validator(0.5, 2.5, 2, nullptr);
        validator.setLocale(QLocale::c());
        QString text = "1.23456789";
        validator.fixup(text);
        QCOMPARE(text, QString("1.23457"));
        validator.setRange(-1e9, 1e9, 2);
        text = "1234567.5";
        validator.fixup(text);
        QCOMPARE(text.toLower(), QString("1.23457e+06"));
    }
};

QTEST_APPLESS_MAIN(TestFixingValidators)
#include "tst_fixingvalidators.moc"
