// SPDX-License-Identifier: MIT
#include "resources/Resources.h"
#include "validator/ValidatePopupContentView.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The package check's own popup with texts of any length.
class ValidatePopupTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void isAsHighAsItsText()
    {
        ValidatePopupContentView content;
        content.setTitle(u"Title"_s, u"One line"_s);
        content.fitToText();
        const int small = content.height();
        content.setTitle(u"Title"_s, u"A line\n"_s.repeated(8));
        content.fitToText();
        QVERIFY(content.height() > small);
        QVERIFY(content.height() < ValidatePopupContentView::largestHeight);
    }

    void scrollsALongText()
    {
        ValidatePopupContentView content;
        showLongText(content);
        QCOMPARE(content.height(), ValidatePopupContentView::largestHeight);
        QScrollBar *bar = content.scrollArea()->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        QTest::keyClick(content.scrollArea(), Qt::Key_PageDown);
        QVERIFY2(bar->value() > 0, "by keys alone");
        content.fitToText();
        QCOMPARE(bar->value(), 0);
    }

    void drawsAThumbAndNoArrows()
    {
        ValidatePopupContentView content;
        showLongText(content);
        QScrollBar *bar = content.scrollArea()->verticalScrollBar();
        QTRY_VERIFY(bar->isVisible() && bar->maximum() > 0);
        // At the upper end the thumb begins where arrows would be, and nothing is below it.
        const auto drawnAt = [bar](int y) {
            QImage picture(bar->size(), QImage::Format_ARGB32);
            picture.fill(Qt::transparent);
            bar->render(&picture, {}, {}, QWidget::DrawChildren);
            return qAlpha(picture.pixel(bar->width() - 3, y)) > 0;
        };
        QVERIFY(drawnAt(6));
        QVERIFY(!drawnAt(bar->height() - 6));
        bar->setValue(bar->maximum());
        QVERIFY(!drawnAt(6));
        QVERIFY(drawnAt(bar->height() - 6));
        // Text and bar are side by side.
        QVERIFY(content.messageLabel()->width() <= content.scrollArea()->width() - bar->width());
    }

private:
    static void showLongText(ValidatePopupContentView &content)
    {
        content.setTitle(u"Title"_s, u"A line\n"_s.repeated(100));
        content.fitToText();
        content.show();
    }
};

QTEST_MAIN(ValidatePopupTest)
#include "ValidatePopupTest.moc"
