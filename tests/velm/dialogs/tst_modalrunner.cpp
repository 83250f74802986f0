#include "velm/dialogs/modalrunner.h"

#include <QTest>

#include <stdexcept>

using namespace velm;

namespace {
/// What a host's modal run keeps of an exception.
class KeptException : public ICppUnitException
{
public:
    KeptException(std::string what, QStringList& log) : m_what(std::move(what)), m_log(log) {}
    ~KeptException() override { m_log += "deleted " + QString::fromStdString(m_what); }
    void rethrow() override
    {
        m_log += ModalRunner::getActiveRunner() ? "thrown under a runner" : "thrown";
        throw std::runtime_error(m_what);
    }

private:
    std::string m_what;
    QStringList& m_log;
};
} // namespace

class TestModalRunner : public QObject
{
    Q_OBJECT
    qwc::qwxDialog* const m_dialog = reinterpret_cast<qwc::qwxDialog*>(this); // never followed

private Q_SLOTS:
    void theActiveRunnerDrivesTheDialog()
    {
        qwc::qwxDialog* driven = nullptr;
        {
            const ModalRunner runner([&](qwc::qwxDialog* dialog) { driven = dialog; });
            QCOMPARE(ModalRunner::getActiveRunner(), &runner);
            ModalRunner::getActiveRunner()->run(m_dialog);
        }
        QCOMPARE(driven, m_dialog);
        QVERIFY(!ModalRunner::getActiveRunner());
    }

    void anyRunnersEndLeavesNoneActive()
    {
        const ModalRunner older([](qwc::qwxDialog*) {});
        {
            const ModalRunner newer([](qwc::qwxDialog*) {});
            QCOMPARE(ModalRunner::getActiveRunner(), &newer);
        }
        QVERIFY(!ModalRunner::getActiveRunner());
    }

    void theFailureComesOutOfTheDestructor()
    {
        QStringList log;
        std::string caught;
        try {
            ModalRunner runner([](qwc::qwxDialog*) { throw std::runtime_error("in the dialog"); });
            for (const char* what : {"first", "last"}) {
                // As a host's modal run does.
                try {
                    ModalRunner::getActiveRunner()->run(m_dialog);
                } catch (const std::runtime_error&) {
                    runner.setException(std::make_unique<KeptException>(what, log));
                }
            }
            log += "modal loop ended";
        } catch (const std::runtime_error& error) {
            caught = error.what();
        }
        QCOMPARE(caught, std::string("last"));
        QCOMPARE(log, QStringList({"deleted first", "modal loop ended", "thrown", "deleted last"}));
        QVERIFY(!ModalRunner::getActiveRunner());
    }

    void aRunnerWithoutAFunctionSaysSo()
    {
        ModalRunner runner({});
        QVERIFY_THROWS_EXCEPTION(std::bad_function_call, runner.run(m_dialog));
    }

    void guiTestingIsOffUntilItIsSet()
    {
        QVERIFY(!isGuiTesting());
        dlgSetGuiTesting(true);
        QVERIFY(isGuiTesting() && ModalRunner::s_isGuiTesting);
        dlgSetGuiTesting(false);
        QVERIFY(!isGuiTesting());
    }
};

QTEST_APPLESS_MAIN(TestModalRunner)
#include "tst_modalrunner.moc"
