// SPDX-License-Identifier: MIT
#include "TodayColorFixture.h"
#include "color/ColorField.h"
#include "color/pane/ContrastView.h"
#include "color/pane/FormListView.h"
#include "color/pane/FormRowView.h"
#include "color/pane/VerdictMark.h"
#include "color/pipette/Pipette.h"
#include "resources/Resources.h"
#include "tool/DropView.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/buttons/Segment.h"
#include "widgets/buttons/SegmentedControl.h"
#include "widgets/style/AppStyle.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QScopeGuard>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class TodayColorPaneTest : public TodayColorFixture
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        installTexts(*QCoreApplication::instance(), QLocale(u"en"_s));
        applyAppStyle();
    }
    void init() { start(); }
    void cleanup() { end(); }

    void bothSidesHaveTheSameColor()
    {
        QCOMPARE(code(), u"#34485eff"_s);
        type(u"rgb(255 99 71)"_s);
        QCOMPARE(m_controller->colorTextField()->text(), u"#ff6347"_s);
        QCOMPARE(stringFromColor(m_controller->colorWell()->color()), u"#ff6347"_s);
        m_controller->sides()->show(ToolSide::Classic);
        m_controller->colorTextField()->setText(u"#102030"_s);
        QCOMPARE(code(), u"#102030ff"_s);
        QCOMPARE(field()->text(), u"#102030"_s);
        // A color that the classic side only shows stays the wider one.
        m_controller->sides()->show(ToolSide::Today);
        type(u"color(display-p3 0 1 0)"_s);
        m_controller->sides()->show(ToolSide::Classic);
        m_controller->sides()->show(ToolSide::Today);
        QCOMPARE(m_controller->today()->color().space, RgbSpace::DisplayP3);
    }

    void buttonsStayBesideTheirCodes_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("smallest window") << 835;
        QTest::newRow("wide window") << 1800;
    }
    void buttonsStayBesideTheirCodes()
    {
        QFETCH(int, width);
        m_controller->view()->resize(width, 900);
        const FormRowView *row = pane()->forms()->rows().front();
        QTRY_COMPARE(pane()->width(), width);
        QCoreApplication::processEvents();
        QVERIFY2(row->width() <= 720, qPrintable(QString::number(row->width())));
        QVERIFY(
            std::abs(
                row->mapTo(pane(), QPoint(row->width(), 0)).x() -
                pane()->forms()->platforms()->mapTo(pane(), QPoint(pane()->forms()->platforms()->width(), 0)).x()) <=
            1);
    }

    void fieldUnderstandsEveryForm_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("code"); ///< empty for a text that is refused
        for (const FormRow &row : formRows(wideColorFromBytes(1, 2, 3, 128), ColorPlatform::Apple, FormGamut::Srgb))
            QTest::newRow(row.form->name.data()) << row.text << u"#01020380"_s;
        QTest::newRow("a name") << u"rebeccapurple"_s << u"#663399ff"_s;
        QTest::newRow("blanks around") << u"  #fff "_s << u"#ffffffff"_s;
        QTest::newRow("no code") << u"#12zz"_s << QString();
        QTest::newRow("too many digits") << u"#1234567"_s << QString();
        QTest::newRow("half a code") << u"rgb(1 2"_s << QString();
    }
    void fieldUnderstandsEveryForm()
    {
        QFETCH(QString, text);
        QFETCH(QString, code);
        field()->setText(text);
        QCOMPARE(field()->text(), text);
        QCOMPARE(this->code(), code.isEmpty() ? u"#34485eff"_s : code);
        QCOMPARE(field()->isRefused(), code.isEmpty());
        QCOMPARE(field()->accessibleDescription().isEmpty(), !code.isEmpty());
        QTest::keyClick(field(), Qt::Key_Return);
        QCOMPARE(field()->text(), text);
        QCOMPARE(palette(), code.isEmpty() ? QStringList() : QStringList{code});
    }

    void linesAreUnderstoodWhenPastedIntoTheField_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("code");
        QTest::newRow("color set")
            << u"{\n  \"colors\" : [\n    {\n      \"color\" : {\n        \"color-space\" : \"srgb\",\n"
               "        \"components\" : { \"alpha\" : \"0.500\", \"blue\" : \"0x99\",\n"
               "          \"green\" : \"0x66\", \"red\" : \"0x33\" }\n      },\n"
               "      \"idiom\" : \"universal\"\n    }\n  ],\n  \"info\" : { \"version\" : 1 }\n}\n"_s
            << u"#33669980"_s;
        QTest::newRow("arguments below each other")
            << u"UIColor(\n    red: 51/255,\n    green: 102/255,\n    blue: 153/255,\n    alpha: 1\n)\n"_s
            << u"#336699ff"_s;
        QTest::newRow("two colors") << u"#336699\n#ffffff"_s << QString();
    }
    void linesAreUnderstoodWhenPastedIntoTheField()
    {
        QFETCH(QString, text);
        QFETCH(QString, code);
        QGuiApplication::clipboard()->setText(text);
        field()->setFocus();
        field()->selectAll();
        QTest::keySequence(field(), QKeySequence::Paste);
        QCOMPARE(field()->isRefused(), code.isEmpty());
        QCOMPARE(this->code(), code.isEmpty() ? u"#34485eff"_s : code);
    }

    void refusedTextIsCorrectedInPlace()
    {
        type(u"#123456"_s);
        QTest::keyClicks(field(), u"7"_s);
        QVERIFY(field()->isRefused());
        QVERIFY(field()->isUndoAvailable());
        QTest::keyClick(field(), Qt::Key_Backspace);
        QVERIFY(!field()->isRefused());
        QCOMPARE(code(), u"#123456ff"_s);
    }

    void everyFormIsCopied_data()
    {
        QTest::addColumn<QString>("by");
        QTest::newRow("button") << u"button"_s;
        QTest::newRow("shortcut") << u"shortcut"_s;
    }
    void everyFormIsCopied()
    {
        QFETCH(QString, by);
        type(u"#01020380"_s);
        const auto &rows = pane()->forms()->rows();
        for (std::size_t index = 0; index < rows.size(); ++index) {
            const int digit = Qt::Key_0 + (static_cast<int>(index % 10) + 1) % 10;
            if (by == u"button")
                rows[index]->copyButton()->click();
            else
                QTest::keyClick(m_controller->view(), static_cast<Qt::Key>(digit),
                                index < 10 ? Qt::AltModifier : Qt::AltModifier | Qt::ShiftModifier);
            QCOMPARE(m_services->clipboard.changes, static_cast<int>(index) + 1);
            QCOMPARE(m_services->clipboard.text, rows[index]->row().text);
            QCOMPARE(rows[index]->copyButton()->text(), u"Copied"_s);
        }
    }

    void platformAndGamutChangeTheRows()
    {
        const auto &rows = pane()->forms()->rows();
        press(pane()->forms()->platforms()->segments().at(3));
        QCOMPARE(rows.front()->row().form->name, "css-hex"_L1);
        press(pane()->forms()->platforms()->segments().at(0));
        press(pane()->forms()->displayP3());
        QVERIFY(rows.front()->row().text.startsWith(u"Color(.displayP3"_s));
        QVERIFY(!rows.front()->row().srgbText.isEmpty());
        press(pane()->forms()->displayP3());
        QVERIFY(rows.front()->row().srgbText.isEmpty());
    }

    void theRatioHasTheDecimalSignOfTheLanguage_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("ratio");
        QTest::newRow("English") << QLocale(u"en_GB"_s) << u"4.48 : 1"_s;
        QTest::newRow("German") << QLocale(u"de_DE"_s) << u"4,48 : 1"_s;
    }
    void theRatioHasTheDecimalSignOfTheLanguage()
    {
        QFETCH(const QLocale, locale);
        QFETCH(const QString, ratio);
        const auto restore = qScopeGuard([old = QLocale()] { QLocale::setDefault(old); });
        QLocale::setDefault(locale);
        type(u"#777777"_s);
        QCOMPARE(pane()->contrast()->ratioLabel()->text(), ratio);
    }

    void contrastIsLiveAndOneClickFromPassing()
    {
        ContrastView *contrast = pane()->contrast();
        type(u"#777777"_s);
        QCOMPARE(contrast->ratioLabel()->text(), u"4.48 : 1"_s);
        const auto &text = contrast->row(ContrastUse::Text);
        QVERIFY(!text.aa->passes());
        QVERIFY(contrast->row(ContrastUse::LargeText).aa->passes());
        QVERIFY(!contrast->row(ContrastUse::InterfacePart).nearest->isEnabled());
        press(text.nearest);
        QCOMPARE(code(), u"#767676ff"_s);
        QVERIFY(text.aa->passes());
        // The next level is one more click away.
        press(text.nearest);
        QVERIFY(text.aaa->passes());
        QVERIFY(!text.nearest->isEnabled());
        contrast->field()->setText(u"black"_s);
        QVERIFY(!text.aaa->passes());
        pick(contrast->well(), {1, 1, 1, 1});
        QVERIFY(text.aaa->passes());
        QCOMPARE(contrast->field()->text(), u"#ffffff"_s);
    }

    void droppedTextsKeepTheirGamut()
    {
        QMimeData content;
        content.setText(u"color(display-p3 1 0 0)"_s);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(pane()->dropView(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(pane()->dropView(), &drop);
        QCOMPARE(m_controller->today()->color().space, RgbSpace::DisplayP3);
    }

    void pipetteServesTheSideInView()
    {
        class HeldPipette final : public Pipette
        {
        public:
            void pick(QWidget *) override {}
        };
        auto held = std::make_unique<HeldPipette>();
        HeldPipette *pipette = held.get();
        m_controller->setPipette(std::move(held));
        press(pane()->pipetteButton());
        QVERIFY(!pane()->pipetteButton()->isEnabled());
        // The side may change meanwhile.
        m_controller->sides()->show(ToolSide::Classic);
        emit pipette->picked({1, 0, 0, 1});
        QVERIFY(pane()->pipetteButton()->isEnabled());
        QVERIFY(m_controller->pipetteButton()->isEnabled());
        QCOMPARE(code(), u"#ff0000ff"_s);
    }
};

QTEST_MAIN(TodayColorPaneTest)
#include "TodayColorPaneTest.moc"
