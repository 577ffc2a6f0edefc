// SPDX-License-Identifier: MIT
#include "tool/style/TableStyle.h"
#include "tool/style/WrappedRows.h"
#include "widgets/style/AppStyle.h"

#include <QHeaderView>
#include <QTest>
#include <QTreeWidget>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// The first column of the widget's picture in which something in the rows is not its background.
int startOfText(QWidget *widget, const QRect &area)
{
    const QImage picture = widget->grab(area).toImage();
    const QColor background = picture.pixelColor(picture.width() - 1, 0);
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (std::abs(picture.pixelColor(x, y).lightness() - background.lightness()) > 60)
                return widget->mapToGlobal(area.topLeft() + QPoint(x, 0)).x();
        }
    }
    return -1;
}

} // namespace

class TableStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        applyAppStyle();
        applyAppColors();
    }

    void titlesBeginAboveTheirColumns_data()
    {
        QTest::addColumn<int>("column");
        QTest::newRow("first") << 0;
        QTest::newRow("second") << 1;
    }
    void titlesBeginAboveTheirColumns()
    {
        QFETCH(const int, column);
        QTreeWidget table;
        table.setRootIsDecorated(false);
        table.setHeaderLabels({u"HHH"_s, u"HHH"_s});
        styleTable(&table, Qt::red);
        auto *row = new QTreeWidgetItem(&table, {u"HHH"_s, u"HHH"_s});
        table.resize(400, 200);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        const QRect cell = table.visualItemRect(row);
        const int x = table.columnViewportPosition(column);
        const int inRow =
            startOfText(table.viewport(), QRect(x, cell.y() + 2, table.columnWidth(column), cell.height() - 4));
        QWidget *header = table.header()->viewport();
        const int inHeader = startOfText(header, QRect(x, 2, table.columnWidth(column), header->height() - 4));
        QVERIFY2(std::abs(inRow - inHeader) <= 1, qPrintable(u"%1 and %2"_s.arg(inRow).arg(inHeader)));
    }

    void longRowsAreWrapped()
    {
        QTreeWidget tree;
        tree.setHeaderHidden(true);
        styleTable(&tree, Qt::red);
        wrapRows(&tree);
        auto *row = new QTreeWidgetItem(&tree, {u"short"_s});
        auto *longRow = new QTreeWidgetItem(row, {u"as long as the reason why a picture is refused "_s.repeated(3)});
        tree.expandAll();
        tree.resize(300, 300);
        tree.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tree));
        const auto heights = [&] {
            return std::pair(tree.visualItemRect(row).height(), tree.visualItemRect(longRow).height());
        };
        const auto lines = [&] {
            return (heights().second - heights().first) / QFontMetrics(tree.font()).height() + 1;
        };
        QTRY_VERIFY(lines() >= 3);
        tree.resize(2000, 300);
        QTRY_COMPARE(lines(), 1);
    }
};

QTEST_MAIN(TableStyleTest)
#include "TableStyleTest.moc"
