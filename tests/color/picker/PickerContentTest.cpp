// SPDX-License-Identifier: MIT
#include "PickerTest.h"

#include "color/picker/HexField.h"

#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QSpinBox>
#include <QToolButton>

using namespace lumora;
using namespace Qt::StringLiterals;

class PickerContentTest : public PickerTest
{
    Q_OBJECT

private slots:
    void opacityIsASliderOfEveryMode()
    {
        m_picker->model.setColor(blue);
        m_picker->content.opacityRow()->number()->setValue(40);
        QCOMPARE(m_picker->model.color(), (RgbaColor{0.0F, 0.0F, 1.0F, 0.4F}));
        m_picker->content.setShowsAlpha(false);
        QVERIFY(!m_picker->content.opacityRow()->isVisible());
        QVERIFY(!m_picker->content.showsAlpha());
        m_picker->content.setShowsAlpha(true);
        QVERIFY(m_picker->content.opacityRow()->isVisible());
    }

    void tabGoesFromTheModeToWhatEveryModeHas_data()
    {
        QTest::addColumn<PickerMode>("mode");
        QTest::addColumn<QStringList>("names");

        const QStringList always{u"Opacity"_s, u"Opacity"_s, u"Hexadecimal code"_s, u"Pick a color from the screen"_s};
        QTest::newRow("wheel") << PickerMode::Wheel
                               << QStringList{u"Color wheel"_s, u"Brightness"_s, u"Brightness"_s} + always;
        QTest::newRow("sliders") << PickerMode::Sliders
                                 << QStringList{u"Kind of sliders"_s, u"Red"_s,  u"Red"_s, u"Green"_s,
                                                u"Green"_s,           u"Blue"_s, u"Blue"_s} +
                                        always;
        QTest::newRow("palettes") << PickerMode::Palettes
                                  << QStringList{u"Colors of the tools"_s, u"Named colors of the web"_s} + always;
    }
    void tabGoesFromTheModeToWhatEveryModeHas()
    {
        QFETCH(PickerMode, mode);
        QFETCH(QStringList, names);
        // Pages that are made in another order than that of the tabs.
        m_picker->content.page(PickerMode::Palettes);
        m_picker->content.setMode(mode);
        QStringList passed;
        for (const QWidget *next = m_picker->content.nextInFocusChain(); next != &m_picker->content;
             next = next->nextInFocusChain()) {
            if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->focusProxy() == nullptr && next->isVisible() &&
                !next->accessibleName().isEmpty())
                passed += next->accessibleName();
        }
        QCOMPARE(passed, names);
    }

    void takesATypedCode()
    {
        m_picker->model.setColor({0.0F, 0.0F, 0.0F, 0.4F});
        m_picker->content.codeField()->setFocus();
        m_picker->content.codeField()->selectAll();
        QTest::keyClicks(m_picker->content.codeField(), u"#8f0"_s);
        QCOMPARE(m_picker->code(), u"#88ff00"_s);
        // The opacity is not part of the code; the typed text stays until typing ends.
        QCOMPARE(m_picker->model.color().alpha, 0.4F);
        QCOMPARE(m_picker->content.codeField()->text(), u"#8f0"_s);
        QTest::keyClick(m_picker->content.codeField(), Qt::Key_Return);
        QCOMPARE(m_picker->content.codeField()->text(), u"#88ff00"_s);
    }

    void understandsWhatIsPasted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<RgbaColor>("color");
        QTest::addColumn<QString>("shown");

        const RgbaColor lime{128.0F / 255.0F, 1.0F, 0.0F, 0.4F};
        const RgbaColor slate{52.0F / 255.0F, 72.0F / 255.0F, 94.0F / 255.0F, 0.4F};
        QTest::newRow("blanks around") << u"  #80ff00 \n"_s << lime << u"#80ff00"_s;
        QTest::newRow("rgb") << u"rgb(52, 72, 94)"_s << slate << u"#34485e"_s;
        QTest::newRow("a declaration") << u"color: #80ff00;"_s << lime << u"#80ff00"_s;
        QTest::newRow("own code for iOS")
            << u"[UIColor colorWithRed:0.204f green:0.282f blue:0.369f alpha:1.000f]"_s << slate << u"#34485e"_s;
        QTest::newRow("an opacity") << u"rgba(0, 0, 255, 0.2)"_s << RgbaColor{0.0F, 0.0F, 1.0F, 0.2F} << u"#0000ff"_s;
        QTest::newRow("no color") << u"zz"_s << RgbaColor{0.0F, 0.0F, 0.0F, 0.4F} << u"#00zz00"_s;
    }
    void understandsWhatIsPasted()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        m_picker->model.setColor({0.0F, 0.0F, 0.0F, 0.4F});
        HexField *field = m_picker->content.codeField();
        field->setText(u"#0000"_s);
        field->setFocus();
        // In the middle of the present text, where a plain field would insert it.
        field->setCursorPosition(3);
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(field, QKeySequence::Paste);
        QCOMPARE(field->text(), shown);
        QTEST(m_picker->model.color(), "color");
    }

    void pastesACopiedColor()
    {
        auto *content = new QMimeData;
        content->setColorData(QColor(Qt::blue));
        QGuiApplication::clipboard()->setMimeData(content);
        HexField *field = m_picker->content.codeField();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, u"#12"_s);
        QTest::keySequence(field, QKeySequence::Paste);
        QCOMPARE(field->text(), u"#0000ff"_s);
        QCOMPARE(m_picker->model.color(), blue);
    }

    void theSeventhDigitKeepsWhatCanBeUndone()
    {
        HexField *field = m_picker->content.codeField();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, u"#0000ff7"_s);
        QCOMPARE(field->text(), u"#0000ff"_s);
        QCOMPARE(m_picker->model.color(), blue);
        field->undo();
        QVERIFY2(field->text() != u"#0000ff"_s, "nothing is undone");
    }

    void whatAssistiveTechnologyWritesIsTyped()
    {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(m_picker->content.codeField());
        interface->setText(QAccessible::Value, u"#0000FF1"_s);
        QCOMPARE(m_picker->model.color(), blue);
        QCOMPARE(m_picker->content.codeField()->text(), u"#0000ff"_s);
    }

    void aColorBetweenTwoBytesIsNotCutByItsCode()
    {
        const RgbaColor between{0.20312F, 0.49321F, 0.71234F, 1.0F};
        m_picker->model.setColor(between);
        QCOMPARE(m_picker->model.color(), between);
    }

    void pipette_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<bool>("complains");
        QTest::addColumn<QString>("color");

        QTest::newRow("picked") << u"picked"_s << false << u"#0000ff"_s;
        QTest::newRow("cancelled") << u"cancelled"_s << false << u"#ffffff"_s;
        QTest::newRow("failed") << u"failed"_s << true << u"#ffffff"_s;
    }
    void pipette()
    {
        QFETCH(QString, end);
        QFETCH(bool, complains);
        m_picker->content.pipetteButton()->setFocus();
        QTest::keyClick(m_picker->content.pipetteButton(), Qt::Key_Space);
        QCOMPARE(m_picker->pipette->picks, 1);
        QVERIFY(!m_picker->content.pipetteButton()->isEnabled());
        if (end == u"picked")
            emit m_picker->pipette->picked(blue);
        else if (end == u"cancelled")
            emit m_picker->pipette->canceled();
        else
            emit m_picker->pipette->failed();
        QVERIFY(m_picker->content.pipetteButton()->isEnabled());
        QVERIFY(m_picker->content.pipetteButton()->hasFocus());
        QCOMPARE(m_picker->content.complaint()->isVisible(), complains);
        QCOMPARE(m_picker->content.complaint()->text().isEmpty(), !complains);
        QTEST(m_picker->code(), "color");
        m_picker->content.pipetteButton()->click();
        QVERIFY(!m_picker->content.complaint()->isVisible());
    }
};

QTEST_MAIN(PickerContentTest)
#include "PickerContentTest.moc"
