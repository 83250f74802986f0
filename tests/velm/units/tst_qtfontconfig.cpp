#include "velm/units/qtfontconfig.h"

#include "support/table.h"

#include <QGuiApplication>
#include <QTest>

using namespace velm;

class TestQtFontConfig : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { QtFontConfig::destroyInstance(); }

    void renderingFollowsThePixelRatio_data()
    {
        const auto row = velmtest::columns<QByteArray, QQuickWindow::TextRenderType>("scale", "renderType");
        row("ratio 1 renders natively", "1", QQuickWindow::NativeTextRendering);
        row("ratio 2 renders natively", "2", QQuickWindow::NativeTextRendering);
        row("a fraction is left to Qt", "1.25", QQuickWindow::QtTextRendering);
    }
    void renderingFollowsThePixelRatio()
    {
        QFETCH(QByteArray, scale);
        QFETCH(QQuickWindow::TextRenderType, renderType);
        qputenv("QT_SCALE_FACTOR", scale);
        int count = 1;
        char name[] = "tst_qtfontconfig";
        char* arguments[] = {name, nullptr};
        const QGuiApplication application(count, arguments);
        QCOMPARE(QtFontConfig::instance()->defaultRenderType(), renderType);
        QCOMPARE(QtFontConfig::instance()->property("defaultRenderType").value<QQuickWindow::TextRenderType>(),
                 renderType);
        QtFontConfig::destroyInstance();
    }

    void withoutAScreenQtRenders()
    {
        QCOMPARE(QtFontConfig::instance()->defaultRenderType(), QQuickWindow::QtTextRendering);
        QCOMPARE(QtFontConfig::instance()->property("defaultHintingPreference").value<QFont::HintingPreference>(),
                 QFont::PreferFullHinting);
    }
};

QTEST_APPLESS_MAIN(TestQtFontConfig)
#include "tst_qtfontconfig.moc"
