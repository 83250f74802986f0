#include <QTest>

#include "support/table.h"
#include "ut/names.h"

#include <random>

class tst_Names : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ordersNaturally_data()
    {
        const auto row = velmtest::columns<QStringList>("ascending");
        row("digit runs by value", {"a2", "a10", "a10b", "b1"});
        row("runs longer than any integer",
            {"x" + QString(60, u'8'), "x" + QString(59, u'8') + u'9', "x1" + QString(60, u'0')});
        row("of equal values the one with fewer zeros", {"a1", "a01", "a001", "a2"});
        row("zeros count only when all else is equal", {"a01b", "a1c", "a01d"});
        row("zero alone", {"a", "a0", "a00", "a1"});
        row("case only when all else is equal", {"ab1", "AB2", "Ab2", "ab2", "AB3"});
        row("zeros before case", {"A1", "a1", "A01", "a01"});
        row("letters beyond ASCII", {"z", "Äa", "äB", "Äc"});
        row("a digit against a letter and a sign", {"a-", "a1", "aa"});
        row("the empty text first", {"", " ", "0"});
    }
    void ordersNaturally()
    {
        QFETCH(QStringList, ascending);
        for (qsizetype i = 0; i < ascending.size(); ++i) {
            for (qsizetype j = 0; j < ascending.size(); ++j) {
                const int expected = i < j ? -1 : i > j ? 1 : 0;
                const int actual =
                    ut::strCmpAlphanum(ascending[i].toStdWString().c_str(), ascending[j].toStdWString().c_str(), 0);
                QVERIFY2(actual == expected, qPrintable(ascending[i] + u'|' + ascending[j]));
            }
        }
        QCOMPARE(ut::strCmpAlphanum(nullptr, L"", 0), 0);
    }

    void orderIsStrictAndTransitive()
    {
        std::mt19937 random(1);
        const std::wstring alphabet = L"0012aAbB.éÉ";
        std::vector<std::wstring> texts(120);
        for (std::wstring& text : texts)
            for (auto length = random() % 6; length > 0; --length)
                text += alphabet[random() % alphabet.size()];
        const auto compare = [&](std::size_t a, std::size_t b) {
            return ut::strCmpAlphanum(texts[a].c_str(), texts[b].c_str(), 0);
        };
        for (std::size_t a = 0; a < texts.size(); ++a) {
            for (std::size_t b = 0; b < texts.size(); ++b) {
                QCOMPARE(compare(a, b), -compare(b, a));
                QCOMPARE(compare(a, b) == 0, texts[a] == texts[b]);
                for (std::size_t c = 0; c < texts.size(); ++c)
                    if (compare(a, b) <= 0 && compare(b, c) <= 0 && compare(a, c) > 0)
                        QFAIL(qPrintable(QString::fromStdWString(texts[a] + L'|' + texts[b] + L'|' + texts[c])));
            }
        }
    }

    void uniqueName_data()
    {
        const auto row =
            velmtest::columns<QString, QStringList, bool, QString>("name", "taken", "replaceNumber", "expected");
        const QStringList layers = {"Layer", "Layer_1", "Layer_9", "Layer_099", "_5", "Layer1"};
        row("a free name stays", "Wall", layers, false, "Wall");
        row("the first free number is added", "Layer", layers, false, "Layer_2");
        row("a number is added to a number", "Layer_1", layers, false, "Layer_1_1");
        row("or counted on from", "Layer_9", layers, true, "Layer_10");
        row("leading zeros stay", "Layer_099", layers, true, "Layer_100");
        row("a name without a number gets one", "Layer", layers, true, "Layer_2");
        row("a number without the separator is part of the name", "Layer1", layers, true, "Layer1_1");
        row("nothing but a number", "_5", layers, true, "_6");
        const QString endless = u'_' + QString(40, u'9');
        row("a number beyond any integer", endless, {endless}, true, QString(QStringLiteral("_1") + QString(40, u'0')));
    }
    void uniqueName()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, taken);
        QFETCH(bool, replaceNumber);
        QFETCH(QString, expected);
        const auto isUnique = [&](const OdString& candidate) {
            return !taken.contains(QString::fromStdWString(candidate.wide()));
        };
        const OdString result = ut::makeUniqueName(name.toStdWString(), isUnique, replaceNumber, L'_');
        QCOMPARE(QString::fromStdWString(result.wide()), expected);
    }
};

QTEST_APPLESS_MAIN(tst_Names)
#include "tst_names.moc"
