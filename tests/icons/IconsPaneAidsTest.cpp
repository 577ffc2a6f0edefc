// SPDX-License-Identifier: MIT
#include "IconsPane.h"
#include "icons/pane/IconView.h"

#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace lumora;

class IconsPaneAidsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void previewIsDrawnPixelByPixel()
    {
        IconsPane pane;
        QVERIFY(QTest::qWaitForWindowExposed(&pane.window));
        pane.tool.editPreviewIcon();
        const QImage shown = pane.ui.iconPreviewTwo->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QImage picture = pane.ui.iconPreviewTwo->picture();
        const QPoint middle = picture.rect().center();
        QCOMPARE(shown.size(), picture.size());
        for (const QPoint offset : {QPoint(0, 0), QPoint(5, 3), QPoint(-7, 9), QPoint(11, -13)})
            QCOMPARE(shown.pixelColor(middle + offset).rgb(), picture.pixelColor(middle + offset).rgb());
    }

    void snippets_data()
    {
        QTest::addColumn<QString>("actions");
        QTest::addColumn<QString>("key");
        QTest::newRow("iOS, neither device") << u"0"_s << u"SNIPPET_IOS_UNIVERSAL"_s;
        QTest::newRow("iOS, both devices") << u"hd0"_s << u"SNIPPET_IOS_UNIVERSAL"_s;
        QTest::newRow("iOS, iPhone") << u"h0"_s << u"SNIPPET_IOS"_s;
        QTest::newRow("iOS, iPad") << u"d0"_s << u"SNIPPET_IOS_IPAD"_s;
        QTest::newRow("Mac") << u"1"_s << u"SNIPPET_MACOSX"_s;
        QTest::newRow("Android") << u"2"_s << u"SNIPPET_ANDROID"_s;
        QTest::newRow("Web touch") << u"3"_s << u"SNIPPET_WEB_TOUCH"_s;
        QTest::newRow("Favicon") << u"4"_s << u"SNIPPET_FAVICON"_s;
        QTest::newRow("switching iPad off while iPhone stays on") << u"hd0d"_s << u"SNIPPET_IOS"_s;
        QTest::newRow("the Mac box changes nothing") << u"hd0m"_s << u"SNIPPET_IOS_UNIVERSAL"_s;
        QTest::newRow("with Mac shown, iPhone changes nothing") << u"1h"_s << u"SNIPPET_MACOSX"_s;
        QTest::newRow("toggling iPhone first of all, iOS being selected") << u"h"_s << u"SNIPPET_IOS"_s;
    }
    void snippets()
    {
        QFETCH(QString, actions);
        QFETCH(QString, key);
        IconsPane pane;
        for (const QChar action : std::as_const(actions)) {
            if (action == u'h')
                pane.ui.iPhoneCheckbox->click();
            else if (action == u'd')
                pane.ui.iPadCheckbox->click();
            else if (action == u'm')
                pane.ui.macCheckbox->click();
            else {
                pane.ui.codeSnippetDropdown->setCurrentIndex(action.digitValue());
                pane.tool.snippetPlatformClicked();
            }
        }
        const QString expected = qtTrId(key.toUtf8().constData());
        QVERIFY(expected != key);
        QCOMPARE(pane.ui.codeSnippedView->toPlainText(), expected);
        QVERIFY(pane.ui.codeSnippedView->isReadOnly());
    }

    void copying()
    {
        const IconsPane pane;
        pane.ui.codeSnippetCopyButton->click();
        QCOMPARE(pane.services.clipboard.changes, 0);
        QCOMPARE(pane.popupTitle(), QString());
        pane.ui.iPhoneCheckbox->click();
        pane.ui.codeSnippetCopyButton->click();
        QCOMPARE(pane.services.clipboard.text, qtTrId("SNIPPET_IOS"));
        QCOMPARE(pane.popupTitle(), qtTrId("SNIPPETS_TITLE"));
        QCOMPARE(pane.popupMessage(), qtTrId("SNIPPETS_MESSAGE"));
        QVERIFY(!pane.popupIsError());
    }

    void nothingIsClipped_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : availableLanguages())
            QTest::newRow(qPrintable(language)) << language;
    }
    void nothingIsClipped()
    {
        QFETCH(QString, language);
        QTranslator table;
        QVERIFY(table.load(u":/strings/lumora_"_s + language + u".qm"_s));
        QCoreApplication::installTranslator(&table);
        IconsPane pane;
        QVERIFY(QTest::qWaitForWindowExposed(&pane.window));
        QVERIFY(pane.tool.view()->minimumSizeHint().width() <= 835);
        QVERIFY2(pane.tool.view()->minimumSizeHint().height() <= 600,
                 qPrintable(QString::number(pane.tool.view()->minimumSizeHint().height())));
        pane.ui.generateIconsButton->setText(qtTrId("ICONS_EXPORTING"));
        for (const QWidget *control : pane.tool.view()->findChildren<QAbstractButton *>())
            QVERIFY2(control->width() >= control->sizeHint().width(), qPrintable(control->objectName()));
        for (const QLabel *label : pane.tool.view()->findChildren<QLabel *>()) {
            if (!label->wordWrap())
                QVERIFY2(label->width() >= label->fontMetrics().horizontalAdvance(label->text()),
                         qPrintable(label->objectName()));
        }
        QCoreApplication::removeTranslator(&table);
    }
};

QTEST_MAIN(IconsPaneAidsTest)
#include "IconsPaneAidsTest.moc"
