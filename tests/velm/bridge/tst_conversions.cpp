#include "velm/bridge/conversions.h"

#include <QTest>

#include <array>
#include <numeric>

using namespace velm;

class TestConversions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void zerosInsideTextAreKeptOnlyWhereALengthIsKnown()
    {
        const wchar_t text[] = L"a\0b";
        const QString whole = QString("a") + QChar(0) + "b";
        QCOMPARE(toQt(text), QString("a"));
        QCOMPARE(toQt(std::wstring_view(text, 3)), whole);
        QCOMPARE(toQt(std::wstring(text, 3)), whole);
        QCOMPARE(toQt(wxString(text, 3)), QString("a"));
        QCOMPARE(toQt(OdString(text, 3)), QString("a"));
        QCOMPARE(odFromQt(whole).getLength(), 1);
        QCOMPARE(wxFromQt(whole).length(), std::size_t(3));
        // A view's length holds also where no zero stands behind it.
        QCOMPARE(toQt(std::wstring_view(L"abcdef").substr(1, 2)), QString("bc"));
    }

    void charactersBeyondTheBasicPlaneSurviveEveryRoad()
    {
        const QString text = QString::fromUtf8("Größe \xF0\x9F\x93\x90 ⌀");
        QCOMPARE(toQt(wxFromQt(text)), text);
        QCOMPARE(toQt(odFromQt(text)), text);
        QCOMPARE(toQt(text.toStdWString()), text);
        QCOMPARE(fromUtf8toQt(text.toStdString()), text);
    }

    void aNarrowDrawingStringIsMadeWideFirst()
    {
        const OdString narrow("\xE2\x8C\x80 12");
        QVERIFY(!narrow.hasUnicode());
        QCOMPARE(toQt(narrow), QString::fromUtf8("⌀ 12"));
        QVERIFY(narrow.hasUnicode());
    }

    void listsKeepTheirOrder()
    {
        const QList<QString> list{"b", "", "a", "b"};
        QCOMPARE(toQtStringList(odFromQtList(list)), list);
        const std::vector<QString> entries(list.begin(), list.end());
        QCOMPARE(toQt(wxFromQt(entries)), entries);
        QCOMPARE(toQtStringList(wxFromQt(entries)), list);
        QVERIFY(toQtStringList(OdArray<OdString>()).isEmpty());
        QVERIFY(toQt(wxArrayString()).empty());
    }

    void realCoordinatesAreTruncatedTowardZero()
    {
        QVERIFY(wxFromQt(QSizeF(2.9, -2.9)) == wxSize(2, -2));
        QVERIFY(wxFromQt(QPointF(-0.9, 1.999)) == wxPoint(0, 1));
        QVERIFY(wxFromQt(QRectF(-1.5, 1.5, 9.99, 0.99)) == wxRect(-1, 1, 9, 0));
    }

    void wholeRectanglesKeepTheirSize()
    {
        QVERIFY(wxFromQt(QRect(1, 2, 3, 4)) == wxRect(1, 2, 3, 4));
        QVERIFY(wxFromQt(QRect(-5, -6, 0, 1)) == wxRect(-5, -6, 0, 1));
        QCOMPARE(toQt(wxSize(-1, 7)), QSize(-1, 7));
        QCOMPARE(toQt(wxPoint(-1, 7)), QPoint(-1, 7));
    }

    void aMatrixGivesItsRotationRowForRow()
    {
        OdGeMatrix3d matrix;
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column)
                matrix[row][column] = 10 * row + column;
        const QGenericMatrix<3, 3, float> result = toQt(matrix);
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column)
                QCOMPARE(result(row, column), float(10 * row + column));
        QCOMPARE(toQt(OdGeVector3d{1.5, -2.5, 1e-3}), QVector3D(1.5f, -2.5f, 1e-3f));
        QVERIFY((odFromQt(QVector3D(1.5f, -2.5f, 0.25f)) == OdGeVector3d{1.5, -2.5, 0.25}));
    }

    void aColorNumberReadsRedFirst()
    {
        QCOMPARE(toQtColor(0x102030), QColor(0x10, 0x20, 0x30, 255));
        // The high byte is nobody's.
        QCOMPARE(toQtColor(int(0xFF102030)), QColor(0x10, 0x20, 0x30, 255));
    }

    void drawingColorsNeedAPaletteOnlyByIndex()
    {
        std::array<unsigned long, 256> palette;
        std::iota(palette.begin(), palette.end(), 0x00030201UL);
        QCOMPARE(toQtColor(OdCmColor::fromRGB(1, 2, 3), nullptr), QColor(1, 2, 3));
        // Entry index - 1, blue in the high byte.
        QCOMPARE(toQtColor(OdCmColor::fromIndex(1), palette.data()), QColor(1, 2, 3));
        QCOMPARE(toQtColor(OdCmColor::fromIndex(255), palette.data()), QColor(0xFF, 2, 3));
        QVERIFY(!toQtColor(OdCmColor::fromIndex(1), nullptr).isValid());
        for (const OdCmColor::ColorMethod method : {OdCmColor::kByLayer, OdCmColor::kByBlock, OdCmColor::kNone})
            QVERIFY(!toQtColor(OdCmColor(method), palette.data()).isValid());
    }

    void hostColorsKeepAlphaAndLoseBlueOnTheWayBack()
    {
        QCOMPARE(toQt(wxColour(1, 2, 3, 4)), QColor(1, 2, 3, 4));
        QVERIFY(wxFromQt(QColor(10, 20, 30, 40)) == wxColour(10, 20, 10, 40));
        // The channels of a colour that is none count as zero.
        QCOMPARE(toQt(wxColour()), QColor(0, 0, 0, 0));
    }
};

QTEST_APPLESS_MAIN(TestConversions)
#include "tst_conversions.moc"
