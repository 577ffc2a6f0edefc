// SPDX-License-Identifier: MIT
#include "resources/Resources.h"
#include "tool/JobResultView.h"
#include "widgets/buttons/HoverButton.h"

#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

class JobResultTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { installTexts(*qApp, QLocale(u"en_GB"_s)); }

    void summaries_data()
    {
        QTest::addColumn<int>("written");
        QTest::addColumn<int>("wanted");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("summary");
        QTest::newRow("several") << 51 << 51 << u"/home/me/out/icons_1"_s << u"51 icons in out/icons_1"_s;
        QTest::newRow("one") << 1 << 1 << u"/out/icons"_s << u"1 icon in out/icons"_s;
        QTest::newRow("some failed") << 48 << 51 << u"/out/icons"_s << u"48 of 51 icons in out/icons"_s;
        QTest::newRow("one of two") << 1 << 2 << u"/out/icons"_s << u"1 of 2 icons in out/icons"_s;
        QTest::newRow("none") << 0 << 51 << u"/out/icons"_s << u"Nothing was written to out/icons"_s;
        QTest::newRow("at the root") << 2 << 2 << u"/icons"_s << u"2 icons in /icons"_s;
        QTest::newRow("a folder named like a place in the text")
            << 2 << 2 << u"/[COUNT]/[DONE]"_s << u"2 icons in [COUNT]/[DONE]"_s;
    }
    void summaries()
    {
        QFETCH(int, written);
        QFETCH(int, wanted);
        QFETCH(QString, folder);
        const JobResult result = jobResult(countedIcons, written, wanted, folder, {});
        QTEST(result.summary, "summary");
        QCOMPARE(result.folder, written == 0 ? QString() : folder);
    }

    void failuresAreNamedOnce_data()
    {
        QTest::addColumn<std::vector<Failure>>("failures");
        QTest::addColumn<QStringList>("lines");
        const Failure full{FailureCode::CannotWrite, u"/out/icons/a.png"_s, u"No space left on device"_s};
        Failure fullToo = full;
        fullToo.subject = u"/out/icons/b.png"_s;
        const QString line = u"icons/a.png: could not be written (No space left on device)"_s;
        QTest::newRow("none") << std::vector<Failure>{} << QStringList{};
        QTest::newRow("one") << std::vector{full} << QStringList{line};
        QTest::newRow("the same twice") << std::vector{full, full} << QStringList{line};
        QTest::newRow("two files, one reason")
            << std::vector{full, fullToo}
            << QStringList{u"icons/a.png and 1 more: could not be written (No space left on device)"_s};
        QTest::newRow("two reasons, elsewhere")
            << std::vector{full, Failure{FailureCode::NotAPicture, u"/art/c.png"_s, {}}}
            << QStringList{line, u"/art/c.png: is not a picture that can be read"_s};
    }
    void failuresAreNamedOnce()
    {
        QFETCH(std::vector<Failure>, failures);
        QTEST(jobResult(countedIcons, 0, 2, u"/out/icons"_s, failures).failures, "lines");
    }

    void everyReasonHasAText()
    {
        for (int code = 0; code <= static_cast<int>(FailureCode::NameTaken); ++code) {
            const QStringList lines =
                jobResult(countedIcons, 0, 1, u"/o/i"_s, {{static_cast<FailureCode>(code), u"/x"_s, {}}}).failures;
            QCOMPARE(lines.size(), 1);
            QVERIFY2(!lines.first().contains(u"CLI_"_s), qPrintable(lines.first()));
        }
    }

    void theViewShowsWhatThereIs()
    {
        QWidget window;
        JobResultView view(&window);
        QVERIFY(view.isHidden());
        const JobResult good = jobResult(countedPictures, 3, 3, u"/art/out"_s, {});
        view.setResult(good);
        QVERIFY(!view.isHidden() && !view.showButton()->isHidden() && !view.copyButton()->isHidden());
        QCOMPARE(view.text(), u"3 pictures in art/out"_s);
        QSignalSpy shown(&view, &JobResultView::folderWanted);
        QSignalSpy copied(&view, &JobResultView::pathWanted);
        view.showButton()->click();
        view.copyButton()->click();
        QCOMPARE(shown.value(0).value(0).toString(), u"/art/out"_s);
        QCOMPARE(copied.value(0).value(0).toString(), u"/art/out"_s);
        QCOMPARE(view.copyButton()->text(), u"Copied"_s);

        const JobResult bad = jobResult(countedPictures, 0, 3, u"/art/out"_s,
                                        {{FailureCode::CannotWrite, u"/art/out/a.png"_s, u"Read-only"_s}});
        view.setResult(bad);
        QVERIFY(!view.isHidden() && view.showButton()->isHidden() && view.copyButton()->isHidden());
        QVERIFY(view.text().contains(u"out/a.png: could not be written (Read-only)"_s));
        QVERIFY(view.accessibleDescription().contains(u"Read-only"_s));
        view.clear();
        QVERIFY(view.isHidden());
    }

    void manyFailuresAreReachedByKeyboard()
    {
        QWidget window;
        JobResultView view(&window);
        const auto *area = view.findChild<QScrollArea *>();
        JobResult result{u"0"_s, {}, {u"a"_s, u"b"_s, u"c"_s}};
        view.setResult(result);
        QCOMPARE(area->focusPolicy(), Qt::NoFocus);
        result.failures << u"d"_s;
        view.setResult(result);
        QCOMPARE(area->focusPolicy(), Qt::StrongFocus);
    }
};

QTEST_MAIN(JobResultTest)
#include "JobResultTest.moc"
