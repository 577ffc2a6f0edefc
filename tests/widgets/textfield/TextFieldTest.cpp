// SPDX-License-Identifier: MIT
#include "tests/doubles/Pointer.h"

#include "widgets/style/Palette.h"
#include "widgets/textfield/TextFieldGeometry.h"
#include "widgets/textfield/ZKFieldEditor.h"
#include "widgets/textfield/ZKSecureGlyphGenerator.h"
#include "widgets/textfield/ZKTextField.h"

#include <QAccessible>
#include <QTest>

using namespace lumora;
using namespace lumora::testing;
using namespace lumora::textfieldgeometry;
using namespace Qt::StringLiterals;

namespace
{

bool hasInk(const QImage &picture, const QRect &area, const QColor &paper)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (picture.pixelColor(x, y).rgb() != paper.rgb())
                return true;
        }
    }
    return false;
}

} // namespace

class TextFieldTest : public QObject
{
    Q_OBJECT
private slots:
    void geometry_data()
    {
        QTest::addColumn<QSizeF>("bounds");
        QTest::addColumn<qreal>("lineHeight");
        QTest::addColumn<QRectF>("text");
        QTest::newRow("even rest") << QSizeF(100, 24) << 16.0 << QRectF(4, 4, 92, 16);
        QTest::newRow("half a point is rounded up") << QSizeF(100, 25) << 16.0 << QRectF(4, 5, 92, 16);
        QTest::newRow("less than half is rounded down") << QSizeF(100, 24) << 15.6 << QRectF(4, 4, 92, 15.6);
        QTest::newRow("line higher than the field") << QSizeF(60, 10) << 16.0 << QRectF(4, -3, 52, 16);
    }
    void geometry()
    {
        QFETCH(QSizeF, bounds);
        QFETCH(qreal, lineHeight);
        QTEST(textRect(bounds, lineHeight), "text");
    }

    void clamping_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("minimum");
        QTest::addColumn<QSize>("maximum");
        QTest::addColumn<QSize>("clamped");
        QTest::newRow("width of 40") << QSize(40, 24) << QSize(60, 24) << QSize(0, 0) << QSize(60, 24);
        QTest::newRow("height of 10") << QSize(100, 10) << QSize(60, 24) << QSize(0, 0) << QSize(100, 24);
        QTest::newRow("no upper bound") << QSize(9000, 8000) << QSize(60, 24) << QSize(0, 0) << QSize(9000, 8000);
        QTest::newRow("upper bounds") << QSize(200, 50) << QSize(60, 24) << QSize(100, 30) << QSize(100, 30);
        QTest::newRow("negative bounds do not bind") << QSize(5, 5) << QSize(-1, -1) << QSize(-1, -1) << QSize(5, 5);
        QTest::newRow("exactly the bounds") << QSize(60, 24) << QSize(60, 24) << QSize(60, 24) << QSize(60, 24);
    }
    void clamping()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, minimum);
        QFETCH(QSize, maximum);
        QTEST(clampedSize(size, minimum, maximum), "clamped");
    }

    void frame()
    {
        ZKTextField field;
        field.setFrame({10, 20, 40, 10});
        QCOMPARE(field.geometry(), QRect(10, 20, 60, 24));
        field.setFrame({0, 0, 3000, 30});
        QCOMPARE(field.size(), QSize(3000, 30));
        field.setGeometry(0, 0, 40, 10);
        QCOMPARE(field.size(), QSize(60, 24));
    }

    void editorMovesWithTheFrame()
    {
        ZKTextField field;
        field.setFrame({0, 0, 100, 24});
        field.beginEditing();
        const QRect before = field.currentFieldEditor()->geometry();
        field.setFrame({0, 0, 200, 44});
        const QRect after = field.currentFieldEditor()->geometry();
        QCOMPARE(after.width(), before.width() + 100);
        QCOMPARE(after.top(), before.top() + 10);
        QCOMPARE(after.left(), before.left());
    }

    void defaults()
    {
        const ZKTextField field;
        QVERIFY(field.string().isEmpty());
        QVERIFY(field.placeholderString().isEmpty());
        QCOMPARE(field.backgroundColor(), QColor(Qt::white));
        QVERIFY(field.drawsBackground());
        QVERIFY(field.drawsBorder());
        QVERIFY(field.hasHoverCursor());
        QVERIFY(!field.isSecure());
        QVERIFY(field.shouldClipContent());
        QVERIFY(field.shouldShowFocus());
        QVERIFY(field.isEditable());
        QVERIFY(field.isSelectable());
        QVERIFY(!field.isContinuous());
        QVERIFY(!field.isEditing());
        QCOMPARE(field.stringAttributes().font.pixelSize(), 13);
        QVERIFY(field.stringAttributes().font.bold());
        QCOMPARE(field.stringAttributes().color, palette::chromeText);
        QCOMPARE(field.stringAttributes().lineBreakMode, Qt::ElideRight);
        QCOMPARE(field.stringAttributes().alignment, Qt::Alignment(Qt::AlignLeft));
        QCOMPARE(field.stringAttributes().font.family(), u"Lato"_s);
        QCOMPARE(field.placeholderStringAttributes().font.family(), u"Lato"_s);
        QCOMPARE(field.placeholderStringAttributes().lineBreakMode, Qt::ElideRight);
        QCOMPARE(field.placeholderStringAttributes().alignment, Qt::Alignment(Qt::AlignLeft));
        QVERIFY(field.placeholderStringAttributes().color != field.stringAttributes().color);
        QVERIFY(!field.placeholderStringAttributes().font.bold());
        QCOMPARE(field.placeholderStringAttributes().font.pixelSize(), 13);
        QCOMPARE(field.cursor().shape(), Qt::IBeamCursor);
    }

    void hoverCursor()
    {
        ZKTextField field;
        field.setHasHoverCursor(false);
        QCOMPARE(field.cursor().shape(), Qt::ArrowCursor);
        field.beginEditing();
        QCOMPARE(field.currentFieldEditor()->cursor().shape(), Qt::ArrowCursor);
        field.endEditing();
        field.setHasHoverCursor(true);
        QCOMPARE(field.cursor().shape(), Qt::IBeamCursor);
    }

    void editorLooksLikeTheField()
    {
        ZKTextField field;
        TextAttributes attributes = field.stringAttributes();
        attributes.color = Qt::red;
        field.setStringAttributes(attributes);
        field.setSelectedStringAttributes({Qt::yellow, Qt::blue});
        field.beginEditing();
        const QLineEdit *editor = field.currentFieldEditor();
        QCOMPARE(editor->font(), attributes.font);
        QCOMPARE(editor->palette().color(QPalette::Text), QColor(Qt::red));
        QCOMPARE(editor->palette().color(QPalette::HighlightedText), QColor(Qt::yellow));
        QCOMPARE(editor->palette().color(QPalette::Highlight), QColor(Qt::blue));
        QCOMPARE(editor->palette().color(QPalette::Base).alpha(), 0);
    }

    void attributedStrings()
    {
        ZKTextField field;
        TextAttributes attributes = field.stringAttributes();
        attributes.color = Qt::red;
        field.setAttributedString({u"text"_s, attributes});
        QCOMPARE(field.string(), u"text"_s);
        QVERIFY(field.attributedString() == (AttributedString{u"text"_s, attributes}));
        field.setAttributedPlaceholderString({u"hint"_s, attributes});
        QVERIFY(field.attributedPlaceholderString() == (AttributedString{u"hint"_s, attributes}));
        QCOMPARE(field.placeholderString(), u"hint"_s);
    }

    void emptyFieldShowsThePlaceholderUntilTyped()
    {
        ZKTextField field;
        field.resize(120, 24);
        TextAttributes red = field.placeholderStringAttributes();
        red.color = QColor(255, 0, 0);
        field.setAttributedPlaceholderString({u"MMMM"_s, red});
        const auto reddish = [&] {
            const QImage picture = pictureOf(&field);
            for (int y = 4; y < 20; ++y) {
                for (int x = 4; x < 116; ++x) {
                    const QColor pixel = picture.pixelColor(x, y);
                    if (pixel.red() > 200 && pixel.green() < 100)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(reddish());
        field.setString(u"1"_s);
        QVERIFY(!reddish());
        field.setString({});
        QVERIFY(reddish());
        QTest::keyClicks(&field, u"7"_s);
        QCOMPARE(field.string(), u"7"_s);
        QVERIFY(!reddish());
        field.endEditing();
        QVERIFY(!reddish());
    }

    void textDoesNotMoveWhenEditingBegins_data()
    {
        QTest::addColumn<bool>("secure");
        QTest::addColumn<int>("height");
        QTest::newRow("plain, 24 high") << false << 24;
        QTest::newRow("plain, 31 high") << false << 31;
        QTest::newRow("secret") << true << 28;
    }
    void textDoesNotMoveWhenEditingBegins()
    {
        QFETCH(bool, secure);
        QFETCH(int, height);
        ZKTextField field;
        field.resize(120, height);
        field.setSecure(secure);
        field.setString(u"HxH"_s);
        const QImage before = pictureOf(&field);
        field.beginEditing();
        // Without the focus no cursor is drawn; the ring replaces the border.
        const QRect inside(3, 3, 114, height - 6);
        QVERIFY(hasInk(before, inside, Qt::white));
        QCOMPARE(pictureOf(&field).copy(inside), before.copy(inside));
    }

    void secureGlyphs()
    {
        QCOMPARE(ZKSecureGlyphGenerator().glyphsForString({}), QString());
        QCOMPARE(ZKSecureGlyphGenerator().glyphsForString(u"aä "_s), u"•••"_s);
    }

    void pixels_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::newRow("@1") << 1.0;
        QTest::newRow("@2") << 2.0;
    }
    void pixels()
    {
        QFETCH(qreal, scale);
        ZKTextField field;
        field.resize(100, 24);
        const auto at = [&](double x, double y) {
            return pictureOf(&field, scale).pixelColor(qFloor(x * scale), qFloor(y * scale));
        };
        QVERIFY(at(0.2, 0.2).alpha() < 60); // the rounded corner
        QCOMPARE(at(50.5, 0.5).rgb(), palette::chromeText.rgb());
        QCOMPARE(at(0.5, 12.5).rgb(), palette::chromeText.rgb());
        QCOMPARE(at(50.5, 1.5), QColor(Qt::white));
        field.setDrawsBorder(false);
        QCOMPARE(at(50.5, 0.5), QColor(Qt::white));
        field.setDrawsBackground(false);
        QCOMPARE(at(50.5, 12.5).alpha(), 0);
        field.setDrawsBackground(true);
        field.setShouldClipContent(false);
        QCOMPARE(at(0.2, 0.2), QColor(Qt::white));
        field.beginEditing();
        QCOMPARE(at(50.5, 1.5).rgb(), palette::focusRing.rgb());
        field.setShouldShowFocus(false);
        QCOMPARE(at(50.5, 1.5), QColor(Qt::white));
    }

    void longTextIsCut()
    {
        ZKTextField field;
        field.resize(100, 24);
        field.setString(QString(60, u'M'));
        const QImage picture = pictureOf(&field);
        QVERIFY(hasInk(picture, QRect(80, 4, 14, 16), Qt::white));
        QVERIFY(!hasInk(picture, QRect(96, 4, 3, 16), Qt::white));
    }

    void mirrored()
    {
        ZKTextField field;
        field.resize(200, 24);
        field.setString(u"HH"_s);
        QVERIFY(!hasInk(pictureOf(&field), QRect(100, 4, 96, 16), Qt::white));
        field.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(!hasInk(pictureOf(&field), QRect(4, 4, 96, 16), Qt::white));
        QVERIFY(hasInk(pictureOf(&field), QRect(170, 4, 26, 16), Qt::white));
    }

    void archive()
    {
        ZKTextField field;
        field.setString(u"text"_s);
        field.setPlaceholderString(u"hint"_s);
        field.setContinuous(true);
        field.setDrawsBorder(false);
        field.setBackgroundColor(Qt::yellow);
        ZKTextField copy;
        copy.initWithCoder(field.encodeWithCoder());
        QCOMPARE(copy.string(), u"text"_s);
        QCOMPARE(copy.placeholderString(), u"hint"_s);
        QVERIFY(copy.isContinuous());
        QVERIFY(!copy.drawsBorder());
        QCOMPARE(copy.backgroundColor(), QColor(Qt::yellow));
        QVERIFY(copy.encodeWithCoder() == field.encodeWithCoder());
    }

    void accessibility()
    {
        ZKTextField field;
        field.setPlaceholderString(u"Width"_s);
        field.setString(u"640"_s);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&field);
        QCOMPARE(accessible->role(), QAccessible::EditableText);
        QCOMPARE(accessible->text(QAccessible::Name), u"Width"_s);
        QCOMPARE(accessible->text(QAccessible::Value), u"640"_s);
        QVERIFY(accessible->state().editable);
        accessible->editableTextInterface()->replaceText(0, 99, u"480"_s);
        QCOMPARE(field.string(), u"480"_s);
        accessible->editableTextInterface()->insertText(1, u"00"_s);
        QCOMPARE(field.string(), u"40080"_s);
        accessible->editableTextInterface()->deleteText(3, 5);
        QCOMPARE(field.string(), u"400"_s);
        field.setEditable(false);
        accessible->setText(QAccessible::Value, u"1"_s);
        QCOMPARE(field.string(), u"400"_s);
        field.setAccessibleName(u"Custom width"_s);
        QCOMPARE(accessible->text(QAccessible::Name), u"Custom width"_s);
        field.beginEditing();
        QCOMPARE(QAccessible::queryAccessibleInterface(field.currentFieldEditor())->text(QAccessible::Name),
                 u"Custom width"_s);
    }
};

QTEST_MAIN(TextFieldTest)
#include "TextFieldTest.moc"
