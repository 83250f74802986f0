#include "velm/filter/filternames.h"

#include "support/fakehost.h"
#include "support/onewordcatalogue.h"
#include "support/scopes.h"
#include "support/table.h"
#include "ut/names.h"
#include "velm/bridge/conversions.h"

#include <QTest>

using namespace velm;

namespace {
const QString emptyText = "error | Error | Please enter a valid name. |  | &OK 4";
const QString forbiddenText =
    "error | Error | These characters are not allowed in filter names: \\/:*?\"<>|,;=`. |  | &OK 4";
const QString overwriteText = "info | Overwrite Filter | A filter with the name you specified already exists.\n"
                              "Are you sure you want to overwrite? |  | &Yes 2, &No 8";
const QString duplicateText = "info | Duplicate Filter | A filter with the name you specified already exists.\n"
                              "Please specify a different name. |  | &OK 4";
} // namespace

class TestFilterNames : public QObject
{
    Q_OBJECT
    velmtest::FakeDialogFactory m_dialogs;

    ExternalFunctions functions()
    {
        ExternalFunctions result;
        result.dlgFactory = [this] { return &m_dialogs; };
        return result;
    }

private Q_SLOTS:
    void init()
    {
        m_dialogs.log.clear();
        m_dialogs.answers.clear();
    }

    void theFirstThingThatIsWrongIsSaid_data()
    {
        const auto row =
            velmtest::columns<QString, bool, int, QString, bool>("name", "mayOverwrite", "answer", "message", "valid");
        row("a new name is taken silently", "c", false, 0, "", true);
        row("a new name is taken silently where overwriting is allowed", "c", true, 0, "", true);
        row("a part of a name is a new name", "wal", false, 0, "", true);
        row("no name is refused", "", false, 4, emptyText, false);
        row("no name is refused even if one is saved", "", true, 4, emptyText, false);
        row("a blank is a name", " ", false, 0, "", true);
        row("a forbidden character at the end is refused", "c`", false, 4, forbiddenText, false);
        row("a forbidden character is refused before the name is compared", "a|b", true, 4, forbiddenText, false);
        row("characters beyond the basic plane are allowed", QString::fromUtf8("\U0001F600\u4e2d%s"), false, 0, "",
            true);
        row("a saved name is overwritten after a yes", "wall", true, 2, overwriteText, true);
        row("a saved name isn't overwritten after a no", "wall", true, 8, overwriteText, false);
        row("a saved name isn't overwritten when the box is closed", "wall", true, 16, overwriteText, false);
        row("a saved name in other letters counts as saved", "WALL", true, 2, overwriteText, true);
        row("a saved name is refused where overwriting isn't allowed", "wall", false, 4, duplicateText, false);
        row("a saved name in other letters is refused", "wÄLL", false, 4, duplicateText, false);
    }
    void theFirstThingThatIsWrongIsSaid()
    {
        QFETCH(QString, name);
        QFETCH(bool, mayOverwrite);
        QFETCH(int, answer);
        QFETCH(QString, message);
        QFETCH(bool, valid);
        const velmtest::ScopedExternalFunctions scope(functions());
        if (answer)
            m_dialogs.answers = {{answer, false}};
        QCOMPARE(checkFilterNameIsValid(name, mayOverwrite, {"", "a|b", "wall", "wäll"}), valid);
        QCOMPARE(m_dialogs.log.join('\n'), message);
        QVERIFY(m_dialogs.answers.empty());
    }

    void withoutDialogsNoNameIsValid()
    {
        QVERIFY(!checkFilterNameIsValid("good", true, {}));
        ExternalFunctions none;
        none.dlgFactory = [] { return nullptr; };
        const velmtest::ScopedExternalFunctions scope(none);
        QVERIFY(!checkFilterNameIsValid("good", true, {}));
    }

    void theDefaultNameHoldsNoForbiddenCharacter()
    {
        QCOMPARE(toQt(getDefaultFilterName()), QString("Filter"));
        for (const auto& [word, name] :
             {std::pair("Fil|t*er/", "Filter"), std::pair("Sieb", "Sieb"), std::pair("\\/:*?\"<>|,;=`", "Filter")}) {
            const velmtest::OneWordCatalogue catalogue("Filter", word);
            QCOMPARE(toQt(getDefaultFilterName()), QString(name));
        }
    }

    void theMessagesAreTranslated()
    {
        const velmtest::ScopedExternalFunctions scope(functions());
        const velmtest::OneWordCatalogue catalogue("These characters are not allowed in filter names: %ls.",
                                                   "Verboten: %ls");
        m_dialogs.answers = {{4, false}};
        QVERIFY(!checkFilterNameIsValid("a:", false, {}));
        QCOMPARE(m_dialogs.log.value(0), "error | Error | Verboten: \\/:*?\"<>|,;=` |  | &OK 4");
    }
};

QTEST_APPLESS_MAIN(TestFilterNames)
#include "tst_filternames.moc"
