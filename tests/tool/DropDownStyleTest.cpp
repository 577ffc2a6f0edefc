// SPDX-License-Identifier: MIT
#include "tool/style/DropDownStyle.h"
#include "tool/style/SliderStyle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// The first column in which something differs from the background.
int startOfText(const QImage &picture, const QRect &area)
{
    const QColor background = picture.pixelColor(area.topLeft());
    for (int x = area.left(); x <= area.right(); ++x) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            if (std::abs(picture.pixelColor(x, y).lightness() - background.lightness()) > 60)
                return x;
        }
    }
    return -1;
}

} // namespace

class DropDownStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void rowsBeginBelowTheTextOfTheBox_data()
    {
        QTest::addColumn<bool>("isFramed");
        QTest::addColumn<QString>("ownStyle");
        const QString flat = u"QComboBox { background: white; border: 1px solid gray; padding: 0 6px; }"_s;
        QTest::newRow("framed") << true << QString();
        QTest::newRow("a style of its own") << false << flat;
    }
    void rowsBeginBelowTheTextOfTheBox()
    {
        QFETCH(bool, isFramed);
        QFETCH(QString, ownStyle);
        QComboBox box;
        box.addItems({u"HHH"_s, u"HHH"_s});
        box.setFixedSize(160, 32);
        box.setStyleSheet(ownStyle);
        if (isFramed)
            frameDropDown(&box);
        styleDropDown(&box);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.showPopup();
        QAbstractItemView *list = box.view();
        QTRY_VERIFY(list->isVisible());
        const QRect row = list->visualRect(box.model()->index(1, 0));
        const QRect closed(4, 8, 116, 16);
        const int inBox = box.mapToGlobal(QPoint(startOfText(box.grab().toImage(), closed), 0)).x();
        const QImage rows = list->viewport()->grab().toImage();
        const int inList = list->viewport()->mapToGlobal(QPoint(startOfText(rows, row.adjusted(1, 4, -1, -4)), 0)).x();
        QVERIFY2(std::abs(inBox - inList) <= 1, qPrintable(u"%1 in the box, %2 in the list"_s.arg(inBox).arg(inList)));
    }

    void wheelScrollsWhatItLiesIn_data()
    {
        QTest::addColumn<bool>("isSlider");
        QTest::newRow("drop-down") << false;
        QTest::newRow("slider") << true;
    }
    void wheelScrollsWhatItLiesIn()
    {
        QFETCH(bool, isSlider);
        QScrollArea area;
        auto *content = new QWidget;
        content->setFixedSize(200, 900);
        auto *box = new QComboBox(content);
        box->addItems({u"one"_s, u"two"_s, u"three"_s});
        styleDropDown(box);
        auto *slider = new QSlider(Qt::Horizontal, content);
        slider->setValue(10);
        styleSlider(slider, Qt::red);
        slider->move(0, 60);
        area.setWidget(content);
        area.resize(240, 200);
        auto *other = new QLineEdit(content);
        other->move(0, 120);
        area.show();
        area.activateWindow();
        other->setFocus();
        QVERIFY(QTest::qWaitForWindowExposed(&area));
        QWidget *control = isSlider ? static_cast<QWidget *>(slider) : box;
        const QPointF place = control->rect().center();
        QWheelEvent turn(place, control->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        // Only an event of the desktop goes on to the parents.
        QSpontaneKeyEvent::setSpontaneous(&turn);
        qApp->notify(control, &turn);
        QCOMPARE(box->currentIndex(), 0);
        QCOMPARE(slider->value(), 10);
        QVERIFY(!control->hasFocus());
        QVERIFY(area.verticalScrollBar()->value() > 0);
    }
};

QTEST_MAIN(DropDownStyleTest)
#include "DropDownStyleTest.moc"
