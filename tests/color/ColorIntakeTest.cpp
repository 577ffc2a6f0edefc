// SPDX-License-Identifier: MIT
#include "color/ColorField.h"
#include "color/ColorViewController.h"
#include "color/PastedColor.h"
#include "color/picker/BFColorPickerPopover.h"
#include "color/picker/BFPopoverColorWell.h"
#include "color/picker/ColorPanel.h"
#include "color/pipette/Loupe.h"
#include "color/pipette/Pipette.h"
#include "color/spaces/Contrast.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/popover/SFBPopover.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

/// Picks when the test calls it.
class ScriptedPipette final : public Pipette
{
public:
    void pick(QWidget *) override { ++picks; }

    int picks = 0;
};

} // namespace

/// The ways of colors into the color pane: pasted, typed, picked from the screen.
class ColorIntakeTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<ColorViewController> m_controller;
    ScriptedPipette *m_pipette = nullptr; // owned by the controller

    ColorField *field() { return m_controller->colorTextField(); }
    void pasteByKey(const QString &text)
    {
        m_services->clipboard.text = text;
        QTest::keySequence(field(), QKeySequence::Paste);
    }

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*QCoreApplication::instance(), QLocale(u"en"_s));
    }
    void init()
    {
        m_services = std::make_unique<RecordingServices>();
        m_controller = std::make_unique<ColorViewController>(m_services->services());
        auto pipette = std::make_unique<ScriptedPipette>();
        m_pipette = pipette.get();
        m_controller->setPipette(std::move(pipette));
        m_controller->view()->resize(835, 595);
        m_controller->view()->show();
        m_controller->view()->activateWindow();
        m_controller->popupView()->setAnimates(false);
        QVERIFY(QTest::qWaitForWindowActive(m_controller->view()));
        field()->setFocus();
    }
    void cleanup()
    {
        if (BFColorPickerPopover::sharedPopover()->isShown())
            BFColorPickerPopover::sharedPopover()->closeWithoutAnimation();
        m_controller.reset();
        m_services.reset();
    }

    void understandsWhatIsPasted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");

        const auto row = [](const char *name, const QString &text, const QString &shown) {
            QTest::newRow(name) << text << shown;
        };
        row("digits", u"#80FF00"_s, u"#80FF00"_s);
        row("digits without a hash sign", u"80FF00"_s, u"80FF00"_s);
        row("three digits", u"#abc"_s, u"#abc"_s);
        row("blanks around", u"  #80ff00 \n"_s, u"#80ff00"_s);
        row("a tabulator and a line break", u"\t80ff00\r\n"_s, u"80ff00"_s);
        row("rgb", u"rgb(1, 2, 3)"_s, u"#010203"_s);
        row("rgba", u"rgba(1, 2, 3, 0.5)"_s, u"#010203"_s);
        row("a declaration", u"color: #34485e;"_s, u"#34485e"_s);
        row("a declaration with three digits", u"color: #abc;"_s, u"#aabbcc"_s);
        row("own code for iOS", u"[UIColor colorWithRed:0.204f green:0.282f blue:0.369f alpha:1.000f]"_s, u"#34485e"_s);
        row("own code for the Mac", u"[NSColor colorWithCalibratedRed:0.204f green:0.282f blue:0.369f alpha:1.000f]"_s,
            u"#34485e"_s);
        row("own rgb code", u"rgb(52, 72, 94)"_s, u"#34485e"_s);
        row("a CSS name", u"rebeccapurple"_s, u"#663399"_s);
        row("eight digits", u"#11223344"_s, u"#112233"_s);
    }
    void understandsWhatIsPasted()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        // In the middle of the present text, where a plain field would insert it.
        field()->setText(u"#ffffff"_s);
        field()->setCursorPosition(3);
        pasteByKey(text);
        QCOMPARE(field()->text(), shown);
        QCOMPARE(stringFromColor(m_controller->theColor()),
                 pastedColor(shown) ? stringFromColor(pastedColor(shown)->color) : QString());
        QCOMPARE(m_controller->colorWell()->color(), m_controller->theColor());
    }

    void everyByteSurvivesTheOwnCodes()
    {
        for (int byte = 0; byte < 256; ++byte) {
            const QString digits = u"#%1%1%1"_s.arg(byte, 2, 16, QLatin1Char('0'));
            const Result<ColorCodes> codes = codesForCopying(digits);
            for (const QString &code : codes.value().list) {
                const auto pasted = pastedColor(code);
                QVERIFY2(pasted && stringFromColor(pasted->color) == digits, qPrintable(code));
            }
        }
    }

    void typesWhatIsNoColor_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");

        QTest::newRow("a part of a code") << u"#12"_s << u"34"_s << u"#1234"_s;
        QTest::newRow("one digit too many") << u"#123456"_s << u"7"_s << u"#123456"_s;
        QTest::newRow("a long text loses one character") << u""_s << u"#123456789"_s << u"#12345678"_s;
        QTest::newRow("nothing") << u"#123"_s << u""_s << u"#123"_s;
        QTest::newRow("a half-written code") << u""_s << u"rgb(1,"_s << u"rgb(1,"_s;
        QTest::newRow("a function without numbers") << u""_s << u"rgb(x)"_s << u"rgb(x)"_s;
    }
    void typesWhatIsNoColor()
    {
        QFETCH(QString, before);
        QFETCH(QString, text);
        field()->setText(before);
        pasteByKey(text);
        QTEST(field()->text(), "shown");
    }

    void pastesFromTheMenuToo()
    {
        m_services->clipboard.text = u"rgb(1, 2, 3)"_s;
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), field()->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(field(), &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        for (QAction *action : menu->actions()) {
            if (action->text().contains(u"Paste"_s))
                action->trigger();
        }
        menu->close();
        QCOMPARE(field()->text(), u"#010203"_s);
    }

    void takesADroppedCode()
    {
        QMimeData content;
        content.setText(u" rgb(1, 2, 3)\n"_s);
        QWidget *target = m_controller->view()->findChild<QWidget *>(u"dropView"_s);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &drop);
        QCOMPARE(field()->text(), u"#010203"_s);
    }

    void aSeventhDigitKeepsWhatCanBeUndone()
    {
        field()->selectAll();
        QTest::keyClicks(field(), u"#123456"_s);
        QVERIFY(field()->isUndoAvailable());
        QTest::keyClicks(field(), u"7"_s);
        QCOMPARE(field()->text(), u"#123456"_s);
        QVERIFY(field()->isUndoAvailable());
        field()->undo();
        QVERIFY2(field()->text() != u"#123456"_s, "something is undone");
        QVERIFY(field()->text().size() <= 7);
    }

    void aSeventhDigitInTheMiddleCanBeUndone()
    {
        field()->setText(u"#123456"_s);
        field()->setCursorPosition(4);
        QTest::keyClicks(field(), u"9"_s);
        QCOMPARE(field()->text(), u"#123945"_s);
        QCOMPARE(field()->cursorPosition(), 5);
        field()->undo();
        QCOMPARE(field()->text(), u"#123456"_s);
        QCOMPARE(stringFromColor(m_controller->theColor()), u"#123456"_s);
    }

    void aPasteCanBeUndone()
    {
        pasteByKey(u"rgb(1, 2, 3)"_s);
        field()->undo();
        QCOMPARE(field()->text(), u"#34485e"_s);
        QCOMPARE(stringFromColor(m_controller->theColor()), u"#34485e"_s);
    }

    void writesEveryColorReadably_data()
    {
        QTest::addColumn<QString>("code");
        for (const char *code : {"#ffff00", "#00ffff", "#00ff00", "#ffffff", "#000000", "#34485e", "#808080", "#ff0000",
                                 "#ff00ff", "#0000ff", "#777777", "#8a8a8a"})
            QTest::newRow(code) << QString::fromLatin1(code);
    }
    void writesEveryColorReadably()
    {
        QFETCH(QString, code);
        pasteByKey(code);
        const auto wide = [](const QColor &color) {
            return wideColorFromBytes(color.red(), color.green(), color.blue());
        };
        const Contrast contrast = contrastOf(wide(field()->textColor()), wide(field()->groundColor()));
        QVERIFY2(contrast.aaLarge(), qPrintable(QString::number(contrast.ratio)));
    }

    void saysThatCodesCarryNoOpacity()
    {
        QVERIFY(m_controller->opacityNote()->isHidden());
        pasteByKey(u"rgba(255, 0, 0, 0.5)"_s);
        QVERIFY(m_controller->opacityNote()->isVisible());
        QVERIFY(m_controller->opacityNote()->text().contains(u"50%"_s));
        QCOMPARE(field()->textColor().alpha(), 255);
        pasteByKey(u"#ff0000"_s);
        QVERIFY(m_controller->opacityNote()->isHidden());
    }

    void panelAndTypedColorStayTogether()
    {
        QTest::mouseClick(m_controller->colorWell(), Qt::LeftButton);
        PickerModel *model = ColorPanel::sharedColorPanel()->model();
        field()->setFocus();
        field()->selectAll();
        QTest::keyClicks(field(), u"#112233"_s);
        RgbaColor faint = model->color();
        QCOMPARE(stringFromColor(faint), u"#112233"_s);
        faint.alpha = 0.5F;
        model->setColor(faint);
        QCOMPARE(field()->text(), u"#112233"_s);
        QCOMPARE(stringFromColor(m_controller->theColor()), u"#112233"_s);
    }

    void picksFromTheScreen()
    {
        QTest::keySequence(m_controller->view(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
        QCOMPARE(m_pipette->picks, 1);
        QVERIFY(!m_controller->pipetteButton()->isEnabled());
        QTest::keySequence(m_controller->view(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
        QCOMPARE(m_pipette->picks, 1);
        emit m_pipette->picked({1.0F, 0.0F, 0.0F, 1.0F});
        QCOMPARE(field()->text(), u"#ff0000"_s);
        QVERIFY(m_controller->pipetteButton()->isEnabled());
        QTest::mouseClick(m_controller->pipetteButton(), Qt::LeftButton);
        QCOMPARE(m_pipette->picks, 2);
        emit m_pipette->canceled();
        QCOMPARE(field()->text(), u"#ff0000"_s);
        QVERIFY(m_controller->pipetteButton()->isEnabled());
        QTest::mouseClick(m_controller->pipetteButton(), Qt::LeftButton);
        emit m_pipette->failed();
        QVERIFY(m_controller->popupView()->isVisible());
        QVERIFY(m_controller->pipetteButton()->toolTip().contains(u"Ctrl+Shift+P"_s));
        QVERIFY(!m_controller->pipetteButton()->accessibleName().isEmpty());
    }

    void copiesByAClickOnTheCode()
    {
        auto *code = m_controller->view()->findChild<QLabel *>(u"javaCode"_s);
        QTest::mouseClick(code, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(m_services->clipboard.text, u"rgb(52, 72, 94)"_s);
        QCOMPARE(m_controller->javaButton()->text(), u"Copied"_s);
        QTest::mouseClick(code, Qt::RightButton, {}, QPoint(5, 5));
        QCOMPARE(m_services->clipboard.changes, 1);
    }

    void keepsCodesAndButtonsTogether()
    {
        m_controller->view()->resize(1600, 900);
        auto *code = m_controller->view()->findChild<QLabel *>(u"macCode"_s);
        QTRY_VERIFY(m_controller->macButton()->x() - (code->x() + code->width()) < 50);
        QVERIFY(m_controller->macButton()->x() < 700);
        m_controller->view()->resize(835, 595);
        QTRY_VERIFY(code->sizeHint().width() <= code->width());
    }

    void placesTheLoupeOnTheScreen_data()
    {
        QTest::addColumn<QPoint>("pointer");
        QTest::addColumn<QPoint>("place");
        constexpr int d = Loupe::distance;
        QTest::newRow("in the middle") << QPoint(100, 100) << QPoint(100 + d, 100 + d);
        QTest::newRow("at the right") << QPoint(390, 100) << QPoint(390 - d - 60, 100 + d);
        QTest::newRow("at the bottom") << QPoint(100, 290) << QPoint(100 + d, 290 - d - 80);
        QTest::newRow("in the last corner") << QPoint(399, 299) << QPoint(399 - d - 60, 299 - d - 80);
        QTest::newRow("in the first corner") << QPoint(0, 0) << QPoint(d, d);
    }
    void placesTheLoupeOnTheScreen()
    {
        QFETCH(QPoint, pointer);
        QTEST(Loupe::placeBeside(pointer, QSize(60, 80), QRect(0, 0, 400, 300)), "place");
    }

    void theLoupeShowsTheCode()
    {
        QImage pixels(Loupe::pixelsAcross, Loupe::pixelsAcross, QImage::Format_RGB32);
        pixels.fill(Qt::white);
        pixels.setPixelColor(5, 5, QColor(0x12, 0x34, 0x56));
        Loupe loupe;
        loupe.showPixels(pixels, QPoint(10, 10), QRect(0, 0, 800, 600));
        QCOMPARE(loupe.code(), u"#123456"_s);
        const QImage picture = loupe.grab().toImage();
        QCOMPARE(QColor(picture.pixel(1 + 55, 1 + 55)).name(), u"#123456"_s);
        QCOMPARE(QColor(picture.pixel(1 + 25, 1 + 55)).name(), u"#ffffff"_s);
    }
};

QTEST_MAIN(ColorIntakeTest)
#include "ColorIntakeTest.moc"
