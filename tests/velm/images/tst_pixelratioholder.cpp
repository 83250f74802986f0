#include "velm/images/pixelratioholder.h"

#include "workbench/wxtestmain.h"

#include <QScreen>
#include <QWindow>

#include <wx/frame.h>

using namespace velm;

/// Runs with two and a half physical pixels a logical one of Qt's.
class TestPixelRatioHolder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRatioIsGivenOrAsked()
    {
        QCOMPARE(PixelRatioHolder(1.75).devicePixelRatio(), 1.75);
        QCOMPARE(PixelRatioHolder(0.0).devicePixelRatio(), 0.0);
        QCOMPARE(PixelRatioHolder(-1.0).devicePixelRatio(), 1.0);
        QCOMPARE(PixelRatioHolder(-2.0).devicePixelRatio(), -2.0);
        QCOMPARE(PixelRatioHolder(static_cast<const QWindow*>(nullptr)).devicePixelRatio(), 1.0);
        QCOMPARE(PixelRatioHolder(static_cast<const wxWindow*>(nullptr)).devicePixelRatio(), 1.0);
        const wxFrame frame(nullptr, wxID_ANY, "");
        QCOMPARE(PixelRatioHolder(&frame).devicePixelRatio(), frame.FromDIP(100) / 100.0);
    }

    void copiesKeepTheRatioOfAWindowThatIsGone()
    {
        auto window = std::make_unique<QWindow>();
        PixelRatioHolder original(window.get());
        PixelRatioHolder copy(3.0);
        copy = original;
        window.reset();
        QCOMPARE(PixelRatioHolder(std::move(original)).devicePixelRatio(), 2.5);
        original = copy;
        QCOMPARE(PixelRatioHolder(original).devicePixelRatio(), 2.5);
    }
};

int main(int argc, char** argv)
{
    return runWxTest<TestPixelRatioHolder>(argc, argv);
}
#include "tst_pixelratioholder.moc"
