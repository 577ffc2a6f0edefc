// SPDX-License-Identifier: MIT
#include "color/ColorField.h"
#include "color/ColorViewController.h"
#include "color/picker/BFColorPickerPopover.h"
#include "color/picker/BFPopoverColorWell.h"
#include "color/picker/ColorPanel.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "tool/DropView.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

#include <QAccessible>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class ColorPaneTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<ColorViewController> m_controller;

    RecordingClipboard &clipboard() { return m_services->clipboard; }
    bool m_wasTargeted = false; ///< the area for drops, during the last drag

    ColorField *field() { return m_controller->colorTextField(); }

    void type(const QString &text)
    {
        field()->setFocus();
        field()->selectAll();
        QTest::keyClicks(field(), text);
    }
    /// Sets a text in the field that the typing rule would change.
    void show(const QString &text)
    {
        const QSignalBlocker blocker(field());
        field()->setText(text);
    }
    static void press(HoverButton *button) { QTest::mouseClick(button, Qt::LeftButton); }
    HoverButton *button(const QString &name) { return m_controller->view()->findChild<HoverButton *>(name); }

    /// Drops the content on the pane; returns whether the drag was accepted.
    bool drop(const QMimeData &content)
    {
        auto *target = m_controller->view()->findChild<DropView *>(u"dropView"_s);
        const Qt::DropActions actions = Qt::CopyAction | Qt::LinkAction;
        QDragEnterEvent enter(QPoint(5, 5), actions, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &enter);
        m_wasTargeted = target->isTargeted();
        QDropEvent dropped(QPointF(5, 5), actions, &content, Qt::LeftButton, {});
        dropped.ignore();
        QCoreApplication::sendEvent(target, &dropped);
        return enter.isAccepted();
    }

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
    void init()
    {
        m_services = std::make_unique<RecordingServices>();
        m_controller = std::make_unique<ColorViewController>(m_services->services());
        m_controller->view()->resize(835, 595);
        m_controller->view()->show();
        m_controller->popupView()->setAnimates(false);
        QVERIFY(QTest::qWaitForWindowExposed(m_controller->view()));
    }
    void cleanup()
    {
        if (BFColorPickerPopover::sharedPopover()->isShown())
            BFColorPickerPopover::sharedPopover()->closeWithoutAnimation();
        m_controller.reset();
        m_services.reset();
    }

    void beginsWithTheChromeTextsColor()
    {
        QCOMPARE(field()->text(), u"#34485e"_s);
        QCOMPARE(m_controller->theColor(), (RgbaColor{0.204F, 0.286F, 0.369F, 1.0F}));
        QCOMPARE(field()->textColor(), palette::chromeText);
        QCOMPARE(m_controller->colorWell()->color(), m_controller->theColor());
        QCOMPARE(field()->font().pixelSize(), 35);
        QVERIFY(field()->font().bold());
    }

    void buttonsAndLabelsAtRest_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("label");
        QTest::addColumn<uint>("tag");
        QTest::addColumn<QString>("buttonKey");
        QTest::addColumn<QString>("labelKey");

        QTest::newRow("iOS") << u"iosButton"_s << u"iosLabel"_s << 0U << u"COLOR_IOS_BUTTON"_s << u"COLOR_IOS"_s;
        QTest::newRow("Mac") << u"macButton"_s << u"macLabel"_s << 1U << u"COLOR_MAC_BUTTON"_s << u"COLOR_MAC"_s;
        QTest::newRow("rgb") << u"javaButton"_s << u"javaLabel"_s << 2U << u"COLOR_JAVA_BUTTON"_s << u"COLOR_JAVA"_s;
        QTest::newRow("CSS") << u"cssButton"_s << u"cssLabel"_s << 3U << u"COLOR_CSS_BUTTON"_s << u"COLOR_CSS"_s;
    }
    void buttonsAndLabelsAtRest()
    {
        QFETCH(QString, button);
        QFETCH(QString, label);
        QFETCH(QString, buttonKey);
        QFETCH(QString, labelKey);
        const HoverButton *shown = this->button(button);
        QTEST(shown->property("tag").toUInt(), "tag");
        QCOMPARE(shown->text(), qtTrId(buttonKey.toLatin1().constData()));
        QVERIFY(shown->text() != buttonKey);
        QCOMPARE(shown->normalColor(), palette::rgb(0.608F, 0.349F, 0.714F));
        QCOMPARE(shown->hovercolor(), palette::rgb(0.557F, 0.267F, 0.678F));
        const auto *text = m_controller->view()->findChild<QLabel *>(label);
        QCOMPARE(text->text(), qtTrId(labelKey.toLatin1().constData()));
        QCOMPARE(text->font().pixelSize(), 13);
        QVERIFY(!text->font().bold());
        QCOMPARE(text->palette().color(QPalette::WindowText), palette::rgb(0.204F, 0.286F, 0.369F));
    }

    void copies_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("copied");

        QTest::newRow("iOS") << u"#abc"_s << u"iosButton"_s
                             << u"[UIColor colorWithRed:0.667f green:0.733f blue:0.800f alpha:1.000f]"_s;
        QTest::newRow("Mac") << u"#34485e"_s << u"macButton"_s
                             << u"[NSColor colorWithCalibratedRed:0.204f green:0.282f blue:0.369f alpha:1.000f]"_s;
        QTest::newRow("rgb") << u"abc"_s << u"javaButton"_s << u"rgb(170, 187, 204)"_s;
        QTest::newRow("CSS, as typed") << u"#80FF00"_s << u"cssButton"_s << u"color: #80FF00;"_s;
    }
    void copies()
    {
        QFETCH(QString, text);
        QFETCH(QString, button);
        show(text);
        HoverButton *pressed = this->button(button);
        const QString title = pressed->text();
        press(pressed);
        QTEST(clipboard().text, "copied");
        QCOMPARE(clipboard().changes, 1);
        QCOMPARE(pressed->text(), u"Copied"_s);
        QCOMPARE(m_controller->savedButtonTitle(), title);
        const QColor chosen = platformColor(m_controller->theColor());
        QCOMPARE(pressed->normalColor(), chosen);
        QCOMPARE(pressed->hovercolor(), chosen);
        // Converting for the copy makes the text's color the current one, although it was not typed.
        QCOMPARE(m_controller->colorWell()->color(), codesForCopying(text).value().color);
        QCOMPARE(field()->textColor(), chosen);
    }

    void theCaptionCanBeReadOnEveryColor_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("white") << u"#ffffff"_s;
        QTest::newRow("yellow") << u"#ffff00"_s;
        QTest::newRow("black") << u"#000000"_s;
    }
    void theCaptionCanBeReadOnEveryColor()
    {
        QFETCH(QString, text);
        show(text);
        m_controller->iosButtonPressed(m_controller->iosButton());
        const QImage picture = m_controller->iosButton()->grab().toImage();
        int darkest = 255;
        int lightest = 0;
        // Away from the corners, where the panel shows.
        for (int y = 8; y < picture.height() - 8; ++y) {
            for (int x = 8; x < picture.width() - 8; ++x) {
                darkest = std::min(darkest, qGray(picture.pixel(x, y)));
                lightest = std::max(lightest, qGray(picture.pixel(x, y)));
            }
        }
        QVERIFY2(lightest - darkest > 120, qPrintable(u"%1 to %2"_s.arg(darkest).arg(lightest)));
    }

    void refusesToCopy_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("empty") << u""_s;
        QTest::newRow("two characters") << u"ab"_s;
        QTest::newRow("eight digits") << u"#aabbccdd"_s;
        QTest::newRow("two digits behind a hash sign") << u"#ab"_s;
        QTest::newRow("five digits") << u"12345"_s;
        QTest::newRow("a hash sign inside") << u"#ab#cd"_s;
        QTest::newRow("a pair without a digit") << u"#zz0000"_s;
    }
    void refusesToCopy()
    {
        QFETCH(QString, text);
        press(m_controller->macButton());
        clipboard().text = u"before"_s;
        show(text);
        press(m_controller->iosButton());
        QCOMPARE(clipboard().text, u"before"_s);
        QVERIFY(m_controller->popupView()->isVisible());
        QCOMPARE(m_controller->popupView()->borderColor(), palette::errorLight);
        QCOMPARE(m_controller->popupContentView()->titleLabel()->text(), qtTrId("COLOR_ALERT_TITLE"));
        QCOMPARE(m_controller->popupContentView()->messageLabel()->text(), qtTrId("COLOR_ALERT_MESSAGE"));
        // All buttons are at rest again, also the one that had copied; the color is the last valid one.
        QCOMPARE(m_controller->iosButton()->text(), qtTrId("COLOR_IOS_BUTTON"));
        QCOMPARE(m_controller->macButton()->text(), qtTrId("COLOR_MAC_BUTTON"));
        QCOMPARE(stringFromColor(m_controller->theColor()), u"#34485e"_s);
    }

    void anotherCopyRestoresTheFirstButtonAndStartsAnew()
    {
        press(m_controller->iosButton());
        // Part of the first two seconds must pass, or a restart would look like a continuation.
        QTest::qWait(500);
        press(m_controller->macButton());
        QElapsedTimer sinceSecond;
        sinceSecond.start();
        QCOMPARE(m_controller->iosButton()->text(), qtTrId("COLOR_IOS_BUTTON"));
        QCOMPARE(m_controller->macButton()->text(), u"Copied"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_controller->macButton()->text(), qtTrId("COLOR_MAC_BUTTON"), 4000);
        // A coarse timer may be five percent early.
        QVERIFY2(sinceSecond.elapsed() >= 1900, qPrintable(QString::number(sinceSecond.elapsed())));
        QCOMPARE(m_controller->macButton()->normalColor(), palette::color);
    }

    void typing_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("color");

        QTest::newRow("a seventh digit undoes itself") << u"#1234567"_s << u"#123456"_s << u"#123456"_s;
        QTest::newRow("three digits are taken") << u"#abc"_s << u"#abc"_s << u"#aabbcc"_s;
        QTest::newRow("four digits leave the color of three") << u"#abcd"_s << u"#abcd"_s << u"#aabbcc"_s;
        QTest::newRow("without a hash sign") << u"80FF00"_s << u"80FF00"_s << u"#80ff00"_s;
        QTest::newRow("no digits") << u"zzz"_s << u"zzz"_s << u"#34485e"_s;
        QTest::newRow("two digits") << u"#12"_s << u"#12"_s << u"#34485e"_s;
    }
    void typing()
    {
        QFETCH(QString, typed);
        type(typed);
        QTEST(field()->text(), "shown");
        QTEST(stringFromColor(m_controller->theColor()), "color");
        QCOMPARE(m_controller->colorWell()->color(), m_controller->theColor());
        QCOMPARE(field()->textColor(), platformColor(m_controller->theColor()));
        QVERIFY(!m_controller->popupView()->isVisible());
    }

    void aChangeOfAnotherFieldIsIgnored()
    {
        const QLineEdit another;
        show(u"#1234567"_s);
        m_controller->controlTextDidChange(&another);
        QCOMPARE(field()->text(), u"#1234567"_s);
        QCOMPARE(stringFromColor(m_controller->theColor()), u"#34485e"_s);
    }

    void whatAssistiveTechnologyWritesIsTyped()
    {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(field());
        interface->setText(QAccessible::Value, u"#80FF001"_s);
        QCOMPARE(field()->text(), u"#80FF00"_s);
        QCOMPARE(stringFromColor(m_controller->theColor()), u"#80ff00"_s);
        interface->editableTextInterface()->replaceText(0, 7, u"#abc"_s);
        QCOMPARE(field()->text(), u"#abc"_s);
        QCOMPARE(stringFromColor(m_controller->colorWell()->color()), u"#aabbcc"_s);
    }

    void aSeventhDigitInTheMiddleKeepsTheCursorThere()
    {
        field()->setText(u"#123456"_s);
        field()->setFocus();
        field()->setCursorPosition(4);
        QTest::keyClicks(field(), u"9"_s);
        QCOMPARE(field()->text(), u"#123945"_s);
        QCOMPARE(field()->cursorPosition(), 5);
    }

    void aPickedColorIsTaken()
    {
        QTest::mouseClick(m_controller->colorWell(), Qt::LeftButton);
        QVERIFY(BFColorPickerPopover::sharedPopover()->isShown());
        ColorPanel::sharedColorPanel()->model()->setColor({0.999F, 0.0F, 0.0F, 1.0F});
        // 254.7 is truncated, not rounded.
        QCOMPARE(field()->text(), u"#fe0000"_s);
        QCOMPARE(m_controller->theColor(), (RgbaColor{0.999F, 0.0F, 0.0F, 1.0F}));
        QCOMPARE(field()->textColor(), platformColor(m_controller->theColor()));
    }

    void aColorThatIsNearlyWhiteIsWrittenOnDark()
    {
        type(u"#ffffff"_s);
        QCOMPARE(field()->groundColor(), palette::chromeText);
        type(u"#34485e"_s);
        QVERIFY(field()->groundColor() != palette::chromeText);
    }

    void drops_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<bool>("taken");

        QTest::newRow("a color") << u"color"_s << true;
        QTest::newRow("a text that is a color") << u"text"_s << true;
        QTest::newRow("another text") << u"prose"_s << false;
        QTest::newRow("a picture") << u"image"_s << false;
        QTest::newRow("a picture that comes with a text") << u"image and text"_s << false;
        QTest::newRow("a picture's file") << u"file"_s << false;
    }
    void drops()
    {
        QFETCH(QString, content);
        QMimeData data;
        if (content == u"color")
            data.setColorData(QColor(0x12, 0x34, 0x56));
        else if (content == u"file")
            data.setUrls({QUrl(u"file:///tmp/abc"_s)});
        if (content == u"text" || content == u"image and text")
            data.setText(u"#123456"_s);
        if (content == u"prose")
            data.setText(u"a picture"_s);
        if (content.startsWith(u"image"))
            data.setImageData(QImage(8, 8, QImage::Format_RGB32));
        QFETCH(bool, taken);
        QCOMPARE(drop(data), taken);
        QCOMPARE(m_wasTargeted, taken);
        QVERIFY(!m_controller->view()->findChild<DropView *>(u"dropView"_s)->isTargeted());
        QCOMPARE(field()->text(), taken ? u"#123456"_s : u"#34485e"_s);
        QCOMPARE(stringFromColor(m_controller->colorWell()->color()), field()->text());
    }

    void pastes_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("withPicture");
        QTest::addColumn<QString>("shown");

        QTest::newRow("a color") << QColor(1, 2, 3) << u""_s << false << u"#010203"_s;
        QTest::newRow("a color's code") << QColor() << u" #80FF00\n"_s << false << u"#80ff00"_s;
        QTest::newRow("another text") << QColor() << u"hello"_s << false << u"#34485e"_s;
        QTest::newRow("a picture") << QColor() << u""_s << true << u"#34485e"_s;
    }
    void pastes()
    {
        QFETCH(QColor, color);
        QFETCH(QString, text);
        QFETCH(bool, withPicture);
        clipboard().copiedColor = color;
        clipboard().text = text;
        if (withPicture)
            clipboard().copiedImage = QImage(4, 4, QImage::Format_RGB32);
        m_controller->paste();
        QTEST(field()->text(), "shown");
    }

    void pastesACopiedColorIntoTheFieldToo()
    {
        QVERIFY(m_controller->takesClipboard());
        field()->setFocus();
        clipboard().copiedColor = QColor(1, 2, 3);
        QTest::keySequence(field(), QKeySequence::Paste);
        QCOMPARE(field()->text(), u"#010203"_s);
    }

    void everyControlHasAName()
    {
        QVERIFY(!field()->accessibleName().isEmpty());
        QVERIFY(!m_controller->colorWell()->accessibleName().isEmpty());
        QCOMPARE(m_controller->javaButton()->accessibleDescription(), u"rgb(52, 72, 94)"_s);
    }
};

QTEST_MAIN(ColorPaneTest)
#include "ColorPaneTest.moc"
