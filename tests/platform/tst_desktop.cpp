#include "desktop/desktop.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QTest>

#include <memory>

class tst_Desktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nativeContextBecomesQts();
    void textsCompareWithoutCase();
};

void tst_Desktop::nativeContextBecomesQts()
{
    QCOMPARE(desktop::openGlContextFromNative(nullptr, nullptr), nullptr);
#if QT_CONFIG(xcb_glx_plugin)
    QOpenGLContext maker;
    QVERIFY(maker.create());
    QVERIFY2(maker.nativeInterface<QNativeInterface::QGLXContext>(), "the private X server offers GLX");
    const GLXContext native = maker.nativeInterface<QNativeInterface::QGLXContext>()->nativeContext();
    std::unique_ptr<QOpenGLContext> context(desktop::openGlContextFromNative(reinterpret_cast<HGLRC>(native), nullptr));
    QVERIFY(context);
    QCOMPARE(context->nativeInterface<QNativeInterface::QGLXContext>()->nativeContext(), native);
    context.reset();
    // The native context stays its maker's.
    QOffscreenSurface surface;
    surface.create();
    QVERIFY(maker.makeCurrent(&surface));
#endif
}

void tst_Desktop::textsCompareWithoutCase()
{
    QCOMPARE(_wcsicoll(L"MaßÄ", L"maßä"), 0);
    QVERIFY(_wcsicoll(L"a", L"B") < 0 && _wcsicoll(L"B", L"a") > 0);
    QVERIFY(_wcsicoll(L"", L"A") < 0);
}

QTEST_MAIN(tst_Desktop)
#include "tst_desktop.moc"
