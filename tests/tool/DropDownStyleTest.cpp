// SPDX-License-Identifier: MIT
#include "tool/style/DropDownStyle.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTest>

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
};

QTEST_MAIN(DropDownStyleTest)
#include "DropDownStyleTest.moc"
