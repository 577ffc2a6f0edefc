// SPDX-License-Identifier: MIT
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/style/KeyboardFocus.h"
#include "widgets/style/Palette.h"

#include <QEnterEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The buttons' reactions to pointer and keys besides their colors and images.
class ButtonStatesTest : public QObject
{
    Q_OBJECT

private:
    static QImage pictureOf(QWidget &widget)
    {
        QImage picture(widget.size(), QImage::Format_RGB32);
        picture.fill(Qt::white);
        widget.render(&picture, {}, {}, QWidget::DrawChildren);
        return picture;
    }
    static void enter(QWidget &widget)
    {
        QEnterEvent event(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QCoreApplication::sendEvent(&widget, &event);
    }

private slots:
    void aFilledButtonIsDarkerWhileItIsDown_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("by mouse") << false;
        QTest::newRow("by key") << true;
    }
    void aFilledButtonIsDarkerWhileItIsDown()
    {
        QFETCH(bool, byKey);
        HoverButton button;
        button.resize(200, 36);
        button.setNormalColor(palette::icons);
        button.setHovercolor(palette::iconsBorder);
        const QPoint place(20, 18);
        if (byKey)
            QTest::keyPress(&button, Qt::Key_Space);
        else
            QTest::mousePress(&button, Qt::LeftButton);
        const int down = qGray(pictureOf(button).pixel(place));
        if (byKey)
            QTest::keyRelease(&button, Qt::Key_Space);
        else
            QTest::mouseRelease(&button, Qt::LeftButton);
        QVERIFY2(down < qGray(palette::iconsBorder.rgb()) - 10, qPrintable(QString::number(down)));
        QVERIFY(qGray(pictureOf(button).pixel(place)) > down + 10);
    }

    void aDialogOpenedByTheClickLeavesNoHover()
    {
        HoverButton button;
        button.setNormalColor(palette::icons);
        button.setHovercolor(palette::iconsBorder);
        connect(&button, &HoverButton::clicked, &button, [&button] {
            QEvent blocked(QEvent::WindowBlocked);
            QCoreApplication::sendEvent(&button, &blocked);
        });
        enter(button);
        QCOMPARE(button.color(), palette::iconsBorder);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(button.color(), palette::icons);
    }

    void aCaptionOnALightColorIsDark_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<bool>("dark");
        QTest::newRow("white") << QColor(Qt::white) << true;
        QTest::newRow("yellow") << QColor(Qt::yellow) << true;
        QTest::newRow("pale blue") << QColor(200, 220, 255) << true;
        QTest::newRow("chrome") << palette::chromeText << false;
        QTest::newRow("black") << QColor(Qt::black) << false;
    }
    void aCaptionOnALightColorIsDark()
    {
        QFETCH(QColor, color);
        QFETCH(bool, dark);
        HoverButton button;
        button.resize(200, 44);
        button.setText(u"MMMM"_s);
        button.setNormalColor(color);
        const QImage picture = pictureOf(button);
        int furthest = 0;
        for (int y = 8; y < 36; ++y) {
            for (int x = 20; x < 180; ++x) {
                const int difference = qGray(picture.pixel(x, y)) - qGray(color.rgb());
                if (qAbs(difference) > qAbs(furthest))
                    furthest = difference;
            }
        }
        QCOMPARE(furthest < 0, dark);
    }

    void aVerdictsTextIsUnderlinedUnderThePointer()
    {
        CheckboxButton box;
        box.setText(u"iiii"_s);
        box.resize(box.sizeHint());
        const auto inked = [&box] {
            const QImage picture = pictureOf(box);
            int count = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 30; x < picture.width(); ++x)
                    count += qGray(picture.pixel(x, y)) < 160 ? 1 : 0;
            }
            return count;
        };
        box.setInvalid(true);
        const int resting = inked();
        enter(box);
        QVERIFY2(inked() > resting + 8, "a line is below the text");
        box.setEnabled(false);
        box.setEnabled(true);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&box, &leave);
        QCOMPARE(inked(), resting);
    }

    void aWindowOpenedByKeyShowsItsFocus()
    {
        KeyboardFocus opener;
        KeyboardFocus opened;
        const QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, {});
        const QMouseEvent click(QEvent::MouseButtonPress, QPointF(), QPointF(), Qt::LeftButton, Qt::LeftButton, {});
        const QFocusEvent focus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        opener.follow(&click);
        opened.follow(&focus);
        QVERIFY(!opened.isShown());
        QCOMPARE(KeyboardFocus::reasonOfProgram(), Qt::OtherFocusReason);
        opener.follow(&key);
        opened.follow(&focus);
        QVERIFY(opened.isShown());
        QCOMPARE(KeyboardFocus::reasonOfProgram(), Qt::TabFocusReason);
        opened.follow(&click);
        opened.follow(&focus);
        QVERIFY2(!opened.isShown(), "the pointer was used since");
    }
};

QTEST_MAIN(ButtonStatesTest)
#include "ButtonStatesTest.moc"
