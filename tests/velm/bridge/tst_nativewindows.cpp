#include "velm/bridge/nativewindows.h"

#include <QOpenGLContext>
#include <QPointer>
#include <QTest>
#include <QWindow>

#include <QtGui/qopenglcontext_platform.h>

using namespace velm;

class TestNativeWindows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aNativeWindowBecomesTheTransientParentOfAPopup()
    {
        QWindow host;
        host.setGeometry(100, 120, 300, 200);
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        const std::unique_ptr<QWindow> wrapper(getQtWrapper(reinterpret_cast<HWND>(host.winId())));
        QVERIFY(wrapper);
        QCOMPARE(wrapper->type(), Qt::ForeignWindow);
        QCOMPARE(wrapper->winId(), host.winId());
        QWindow popup;
        popup.setFlags(Qt::Popup);
        popup.setTransientParent(wrapper.get());
        popup.show();
        QVERIFY(QTest::qWaitForWindowExposed(&popup));
    }

    void aContextSharesWithTheNativeOneAndTakesItsWrapperAlong()
    {
        QWindow window;
        window.setSurfaceType(QSurface::OpenGLSurface);
        window.create();
        QOpenGLContext host;
        QVERIFY(host.create());
        auto* glx = host.nativeInterface<QNativeInterface::QGLXContext>();
        QVERIFY(glx);
        auto context = getQGLContextFromNative(reinterpret_cast<HGLRC>(glx->nativeContext()),
                                               reinterpret_cast<HWND>(window.winId()));
        QVERIFY(context->isValid());
        const QPointer<QOpenGLContext> wrapper = context->shareContext();
        QVERIFY(wrapper);
        QVERIFY(QOpenGLContext::areSharing(context.get(), wrapper));
        QVERIFY(context->makeCurrent(&window));
        context->doneCurrent();
        context.reset();
        QTRY_VERIFY(!wrapper);
    }
};

QTEST_MAIN(TestNativeWindows)
#include "tst_nativewindows.moc"
