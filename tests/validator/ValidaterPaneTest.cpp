// SPDX-License-Identifier: MIT
#include "PaneInWindow.h"
#include "resources/Resources.h"
#include "tests/doubles/ScriptedFiles.h"
#include "validator/words/LongWords.h"
#include "widgets/popover/ScreenCoordinates.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class ValidaterPaneTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
        qputenv("TMPDIR", QFile::encodeName(m_work.path()));
        QVERIFY(runScript(u"make_packages.py"_s, {m_packages.path()}));
    }

    void beginsWithTheDropInterface()
    {
        const PaneInWindow pane;
        QCOMPARE(opacity(pane.ui().dropView), 1.0);
        QCOMPARE(opacity(pane.ui().validateInterface), 0.0);
        QVERIFY(pane.ui().browseButton->isEnabled());
        QVERIFY(!pane.ui().validAppIconsBox->isEnabled());
        QCOMPARE(pane.ui().informationText->text(), qtTrId("VALIDATER_BROWSE_INFO"));
        QVERIFY(!pane.tool.iPhoneRequiredIcons());
    }

    void keepsItsFolders()
    {
        PaneInWindow pane;
        pane.tool.setSavePath(u"/to"_s);
        pane.tool.setBrowsePath(u"/from"_s);
        QCOMPARE(pane.tool.savePath(), u"/to"_s);
        QCOMPARE(pane.tool.browsePath(), u"/from"_s);
    }

    void refusesWithAnAlert_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");
        QTest::newRow("two packages") << QStringList{u"/a.ipa"_s, u"/b.ipa"_s} << u"VALIDATER_ONE_FILE_TITLE"_s
                                      << u"VALIDATER_ONE_FILE_MESSAGE"_s;
        QTest::newRow("upper-case extension")
            << QStringList{u"/App.IPA"_s} << u"VALIDATER_IPA_TITLE"_s << u"VALIDATER_IPA_MESSAGE"_s;
        QTest::newRow("a zip") << QStringList{u"/App.zip"_s} << u"VALIDATER_IPA_TITLE"_s << u"VALIDATER_IPA_MESSAGE"_s;
        QTest::newRow("nothing") << QStringList{} << u"VALIDATER_IPA_TITLE"_s << u"VALIDATER_IPA_MESSAGE"_s;
    }
    void refusesWithAnAlert()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, title);
        QFETCH(QString, message);
        PaneInWindow pane;
        pane.tool.dropViewReceivedFiles(files);
        PopoverAlert *alert = PopoverAlert::currentAlert();
        QVERIFY(alert != nullptr);
        QCOMPARE(alert->messageText, qtTrId(title.toLatin1().constData()));
        QCOMPARE(alert->informativeText, qtTrId(message.toLatin1().constData()));
        QCOMPARE(alert->buttonTitles, QStringList{qtTrId("DISMISS")});
        QCOMPARE(alert->icon.name(), u"help_icon_validater"_s);
        QCOMPARE(alert->targetView(), pane.ui().informationText);
        QCOMPARE(opacity(pane.ui().dropView), 1.0);
    }

    void browsesForOnePackage()
    {
        PaneInWindow pane;
        pane.tool.setBrowsePath(u"/some/folder"_s);
        QTest::mouseClick(pane.ui().browseButton, Qt::LeftButton);
        QCOMPARE(pane.services.fileChooser.requests.size(), 1);
        QCOMPARE(pane.services.fileChooser.requests.first().message, qtTrId("RESIZER_BROWSE_PANEL"));
        QCOMPARE(pane.services.fileChooser.requests.first().startFolder, u"/some/folder"_s);
        QVERIFY(!pane.services.fileChooser.requests.first().severalFiles);
        QCOMPARE(pane.services.fileChooser.requests.first().nameFilters,
                 QStringList{qtTrId("FILTER_IPA") + u" (*.ipa)"_s});
        pane.services.fileChooser.confirm({package(u"valid"_s)});
        QCOMPARE(opacity(pane.ui().dropView), 1.0); // the sheet has a second to go
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
    }

    void showsFactsAndVerdicts_data()
    {
        QTest::addColumn<QStringList>("facts");
        QTest::addColumn<QString>("boxes");
        const QStringList demo{u"Demo"_s, u"1.2.3"_s, u"iPhone"_s, u"7.0"_s, u"com.example.app"_s, u"Debug"_s};
        QTest::newRow("valid") << demo << u"icons launch identifier localizations schemes facebook"_s;
        QTest::newRow("one icon") << demo << u"launch identifier localizations schemes facebook"_s;
        QTest::newRow("no links") << demo << u"icons launch identifier localizations"_s;
        QTest::newRow("no localizations") << demo << u"icons launch identifier schemes facebook"_s;
        QTest::newRow("no list") << QStringList{{}, {}, {}, {}, {}, u"Debug"_s} << u"icons launch localizations"_s;
        QTest::newRow("no archive") << QStringList{{}, {}, {}, {}, {}, u"Release"_s} << u"icons launch"_s;
    }
    void showsFactsAndVerdicts()
    {
        QFETCH(QStringList, facts);
        PaneInWindow pane;
        read(pane, QString::fromUtf8(QTest::currentDataTag()));
        const QList<QPair<QLabel *, const char *>> fields{{pane.ui().appNameField, "VALIDATER_APP_NAME"},
                                                          {pane.ui().appVersionField, "VALIDATER_APP_VERSION"},
                                                          {pane.ui().appPlatformField, "VALIDATER_APP_PLATFORM"},
                                                          {pane.ui().appMinOSField, "VALIDATER_APP_MINIMUM_OS"},
                                                          {pane.ui().appBundleIDField, "VALIDATER_APP_BUNDLE_ID"},
                                                          {pane.ui().appBuildField, "VALIDATER_BUILD"}};
        for (qsizetype i = 0; i < fields.size(); ++i)
            QCOMPARE(fields[i].first->accessibleName(), QString(qtTrId(fields[i].second) + facts[i]));

        const QList<QPair<CheckboxButton *, QString>> judged{{pane.ui().validAppIconsBox, u"icons"_s},
                                                             {pane.ui().validDefaultImagesBox, u"launch"_s},
                                                             {pane.ui().validBundleIdentifier, u"identifier"_s},
                                                             {pane.ui().validLocalizationsBox, u"localizations"_s}};
        QStringList good;
        for (const auto &[box, name] : judged) {
            QCOMPARE(opacity(box), 1.0);
            QCOMPARE(box->currentImage(), box->isInvalid() ? box->invalidImage() : box->activeImage());
            QCOMPARE(box->accessibleName(),
                     QString(box->text() + (box->isInvalid() ? u": problems found" : u": passed")));
            if (!box->isInvalid())
                good += name;
        }
        const QList<QPair<CheckboxButton *, QString>> informing{{pane.ui().validURLSchemesBox, u"schemes"_s},
                                                                {pane.ui().validFacebookAppIDBox, u"facebook"_s}};
        for (const auto &[box, name] : informing) {
            QVERIFY(box->isStaticBox());
            QVERIFY(!box->isActive());
            QVERIFY(!box->isInvalid());
            QCOMPARE(opacity(box), box->isEnabled() ? 1.0 : 0.5); // being disabled halves it again
            QCOMPARE(box->currentImage(), box->isEnabled() ? box->activeImage() : box->idleImage());
            QCOMPARE(box->accessibleName(), QString(box->text() + (box->isEnabled() ? u": passed" : u": not present")));
            if (box->isEnabled())
                good += name;
        }
        QTEST(good.join(u' '), "boxes");
        QCOMPARE(opacity(pane.ui().validReleaseBuild), 0.0);
    }

    void explainsEachBox_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("error");
        const auto missing = [](const char *key, const QString &placeholder, const QStringList &sizes) {
            QString text;
            for (const QString &size : sizes)
                text += qtTrId(key).replace(placeholder, size) + u'\n';
            return text;
        };
        const QString valid = qtTrId("VALID_TEXT");
        const auto row = [](const char *tag, const char *package, const char *box, const QString &title,
                            const QString &message, bool error) {
            QTest::newRow(tag) << QString::fromUtf8(package) << QString::fromUtf8(box) << title << message << error;
        };
        row("missing icons", "one icon", "validAppIconsBox", qtTrId("VALIDATE_ICONS_TITLE"),
            missing("VALIDATE_ICONS_TEXT", u"[ICON]"_s,
                    {u"114x114"_s, u"60x60"_s, u"120x120"_s, u"29x29"_s, u"58x58"_s, u"40x40"_s, u"80x80"_s,
                     u"512x512"_s, u"1024x1024"_s}),
            true);
        row("icons", "valid", "validAppIconsBox", valid, qtTrId("VALID_ICONS_TEXT"), false);
        row("missing launch images", "no launch image", "validDefaultImagesBox", qtTrId("VALIDATE_DEFAULTS_TITLE"),
            missing("VALIDATE_DEFAULTS_TEXT", u"[DEFAULT]"_s,
                    {u"640x960"_s, u"960x640"_s, u"640x1136"_s, u"1136x640"_s, u"320x480"_s, u"480x320"_s}),
            true);
        row("launch images", "valid", "validDefaultImagesBox", valid, qtTrId("VALID_LAUNCH_TEXT"), false);
        row("other identifier", "other identifier", "validBundleIdentifier", qtTrId("VALIDATE_BUNDLE_ID_TITLE"),
            qtTrId("VALIDATE_BUNDLE_ID_TEXT"), true);
        row("identifier", "valid", "validBundleIdentifier", valid, qtTrId("VALID_BUNDLE_ID_TEXT"), false);
        row("release box", "valid", "validReleaseBuild", valid, qtTrId("VALID_RELEASE_TEXT"), false);
        row("localizations", "valid", "validLocalizationsBox", qtTrId("VALIDATER_APP_LOCALIZATIONS"),
            qtTrId("VALIDATE_LOCALIZATIONS_TEXT") + u"• English\n• French", false);
        row("no localizations", "no localizations", "validLocalizationsBox", QString(), QString(), false);
        row("URL schemes", "valid", "validURLSchemesBox", qtTrId("VALIDATER_APP_URL_SCHEMES"),
            qtTrId("VALIDATE_URLSCHEME_TEXT") + u"• fb123://", false);
        row("no URL schemes", "no links", "validURLSchemesBox", QString(), QString(), false);
        row("Facebook id", "valid", "validFacebookAppIDBox", qtTrId("VALIDATER_APP_FACEBOOK_ID"),
            qtTrId("VALIDATE_FACEBOOK_APP_ID_TEXT") + u"123", false);
        row("no Facebook id", "no links", "validFacebookAppIDBox", QString(), QString(), false);
    }
    void explainsEachBox()
    {
        QFETCH(QString, name);
        QFETCH(QString, box);
        QFETCH(QString, title);
        QFETCH(QString, message);
        QFETCH(bool, error);
        PaneInWindow pane;
        read(pane, name);
        auto *button = pane.tool.view()->findChild<CheckboxButton *>(box);
        QVERIFY(button != nullptr);
        setOpacity(pane.ui().validReleaseBuild, 1);
        QTest::mouseClick(button, Qt::LeftButton);
        const bool own = pane.tool.validatePopup()->isVisible();
        const bool shared = pane.tool.popupView()->isVisible();
        QCOMPARE(own || shared, !title.isEmpty());
        QVERIFY(!(own && shared));
        if (title.isEmpty())
            return;
        QCOMPARE(own ? pane.tool.validatePopupContentView()->titleLabel()->text()
                     : pane.tool.popupContentView()->titleLabel()->text(),
                 title);
        QCOMPARE(own ? pane.explanation() : pane.tool.popupContentView()->messageLabel()->text(), message);
        const SFBPopover *popover = own ? pane.tool.validatePopup() : pane.tool.popupView();
        QCOMPARE(popover->borderColor(), error ? palette::errorLight : palette::successLight);
        QVERIFY2(own || !error, "only the pane's own popup tells of faults");
        if (!own)
            return;
        const IconButton *close = pane.tool.validatePopupContentView()->closeButton();
        QCOMPARE(close->normalColor(), error ? palette::errorLight : palette::successLight);
        QCOMPARE(close->hoverColor(), error ? palette::errorDark : palette::successDark);
        QCOMPARE(close->activeColor(), error ? palette::errorDark : palette::successDark);
    }

    void togglesItsPopupAndClosesTheShared()
    {
        PaneInWindow pane;
        read(pane, u"one icon"_s);
        QTest::mouseClick(pane.ui().validDefaultImagesBox, Qt::LeftButton);
        QVERIFY(pane.tool.popupView()->isVisible());
        QTest::mouseClick(pane.ui().validAppIconsBox, Qt::LeftButton);
        QVERIFY(!pane.tool.popupView()->isVisible());
        QVERIFY(pane.tool.validatePopup()->isVisible());
        pane.tool.checkboxAppIconsPressed();
        QVERIFY(!pane.tool.validatePopup()->isVisible());
    }

    void pointsItsPopupsBelowTheBox_data()
    {
        QTest::addColumn<QString>("package");
        QTest::addColumn<bool>("own");
        QTest::newRow("its own") << u"one icon"_s << true;
        QTest::newRow("the shared one") << u"valid"_s << false;
    }
    void pointsItsPopupsBelowTheBox()
    {
        QFETCH(QString, package);
        QFETCH(bool, own);
        PaneInWindow pane;
        read(pane, package);
        const CheckboxButton *box = pane.ui().validAppIconsBox;
        QTest::mouseClick(pane.ui().validAppIconsBox, Qt::LeftButton);
        const SFBPopover *popover = own ? pane.tool.validatePopup() : pane.tool.popupView();
        QVERIFY(popover->isVisible());
        SFBPopoverWindow &balloon = *popover->popoverWindow();
        const QPointF tip =
            balloon.frame().topLeft() +
            attachmentPointForRect(QRectF(QPointF(), balloon.frame().size()), balloon.popoverWindowFrame()->metrics());
        // From the window's lower left corner upwards: the box's upper left corner in the tool's view, half its width
        // and the 65 of the sidebar to the right, its height and 5 down.
        const QPoint corner = box->mapTo(pane.tool.view(), QPoint());
        const QPointF below(corner.x() + box->width() / 2.0 + 65,
                            pane.tool.view()->height() - corner.y() - (box->height() + 5));
        QCOMPARE(tip, basePointToScreen(&pane.window, below));
    }

    void breaksLongWords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("pieces");
        const auto same = [](const char *name, const QString &text) { QTest::newRow(name) << text << text; };
        same("nothing", QString());
        same("short words", u"An app  with a\nname "_s);
        same("just short enough", QString(24, u'x'));
        QTest::newRow("no punctuation") << QString(25, u'x') << QString(QString(16, u'x') + u'|' + QString(9, u'x'));
        QTest::newRow("an identifier") << u"the com.example.application.of-mine"_s
                                       << u"the com.|example.|application.|of-|mine"_s;
        QTest::newRow("a line break between")
            << u"• com.example.application1://\n• b"_s << u"• com.|example.|application1://\n• b"_s;
        QTest::newRow("punctuation alone")
            << QString(40, u'.') << QString(QString(16, u'.') + u'|' + QString(16, u'.') + u'|' + QString(8, u'.'));
        QTest::newRow("an address") << u"http://www.example.org/of/mine"_s << u"http://|www.|example.|org/|of/|mine"_s;
        QTest::newRow("not inside a character")
            << QString(u"12345678901234567" + QString(u"\U0001F600"_s).repeated(5))
            << QString(u"1234567890123456|7" + QString(u"\U0001F600"_s).repeated(5));
    }
    void breaksLongWords()
    {
        QFETCH(QString, text);
        QString broken = breakingLongWords(text);
        QTEST(broken.replace(QChar(0x200B), u'|'), "pieces");
    }

    void cutsNoLongFactOff()
    {
        // Every glyph of a long identifier is inside the pane: the label needs no more width than it gets.
        PaneInWindow pane;
        read(pane, u"long names"_s);
        for (const QLabel *field : {pane.ui().appNameField, pane.ui().appBundleIDField})
            QVERIFY2(field->minimumSizeHint().width() <= field->width(), qPrintable(field->objectName()));
        QVERIFY(!pane.ui().appBundleIDField->accessibleName().contains(QChar(0x200B)));
        QTest::mouseClick(pane.ui().validURLSchemesBox, Qt::LeftButton);
        const QLabel *message = pane.tool.validatePopupContentView()->messageLabel();
        const QRect needed = message->fontMetrics().boundingRect(QRect(0, 0, message->width(), 100000),
                                                                 Qt::TextWordWrap, message->text());
        QVERIFY(needed.width() <= message->width());
    }

    void drawsTheAccentsOfCapitals()
    {
        // A German fact begins with an umlaut.
        installTexts(*qApp, QLocale(u"de_DE"_s));
        const auto guard = qScopeGuard([] { installTexts(*qApp, QLocale(u"en_GB"_s)); });
        PaneInWindow pane;
        read(pane, u"valid"_s);
        pane.tool.showValidatePopupWithTitle(u"\u00C4"_s, u"\u00C4"_s, nullptr, false);
        for (QLabel *label : {pane.ui().appMinOSField, pane.tool.validatePopupContentView()->titleLabel(),
                              pane.tool.validatePopupContentView()->messageLabel()}) {
            label->resize(label->width(), label->sizeHint().height());
            constexpr int scale = 3; // at one pixel a point the dots and the letter run together
            QImage picture(label->size() * scale, QImage::Format_RGB32);
            picture.setDevicePixelRatio(scale);
            picture.fill(Qt::white);
            label->render(&picture, {}, {}, QWidget::DrawChildren);
            const int letter = label->fontMetrics().horizontalAdvance(u"\u00C4"_s) * scale;
            const auto isBlank = [&picture, letter](int y) {
                for (int x = 0; x < letter; ++x) {
                    if (qGray(picture.pixel(x, y)) < 250)
                        return false;
                }
                return true;
            };
            QVERIFY2(isBlank(0), qPrintable(label->objectName() + u": the dots touch the edge"));
            int firstDots = 1;
            while (firstDots < picture.height() && isBlank(firstDots))
                ++firstDots;
            int behindDots = firstDots;
            while (behindDots < picture.height() && !isBlank(behindDots))
                ++behindDots;
            QVERIFY2(behindDots < picture.height() / 2, qPrintable(label->objectName() + u": no dots"));
            // Dots are as high as wide, about an eighth of the size; clipped, they are a line.
            QVERIFY2(behindDots - firstDots >= label->font().pixelSize() * scale / 9,
                     qPrintable(u"%1: %2"_s.arg(label->objectName()).arg(behindDots - firstDots)));
        }
    }

    void fillsItsLabelsBold()
    {
        const StyledText text =
            ValidaterViewController::createAttributedTextFromString(u"Name: Name: x"_s, latoBold(15), u"Name: "_s);
        QCOMPARE(text.runs().size(), 1);
        QCOMPARE(text.runs().first().start, 0);
        QCOMPARE(text.runs().first().length, 6);
        QVERIFY(ValidaterViewController::createAttributedTextFromString(u"a"_s, latoBold(15), u"b"_s).runs().isEmpty());
    }

    void showsTheAppsIcon()
    {
        PaneInWindow pane;
        read(pane, u"valid"_s);
        const QImage icon = pane.ui().appIconField->pixmap(Qt::ReturnByValue).toImage();
        QCOMPARE(icon.size(), QSize(128, 128));
        QCOMPARE(QColor(icon.pixel(64, 64)).name(), u"#2080c0"_s);
    }

    void showsNothingThatCouldBeMarkup()
    {
        PaneInWindow pane;
        read(pane, u"steering names"_s);
        QVERIFY(pane.ui().appNameField->accessibleName().contains(u"<U+001B>"));
        QVERIFY(pane.ui().appNameField->text().contains(u"&lt;U+001B&gt;"));
    }

private:
    QString package(const QString &name) const { return m_packages.filePath(name + u".ipa"_s); }
    void read(PaneInWindow &pane, const QString &name)
    {
        pane.tool.dropIpaFileFromDelegate(package(name));
        QTRY_VERIFY_WITH_TIMEOUT(pane.hasFacts(), readingTime);
    }

    QTemporaryDir m_packages;
    QTemporaryDir m_work;
};

QTEST_MAIN(ValidaterPaneTest)
#include "ValidaterPaneTest.moc"
