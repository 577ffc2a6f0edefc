// SPDX-License-Identifier: MIT
#include "devices/pane/TodayDevicePane.h"
#include "devices/DeviceViewController.h"
#include "devices/pane/FactButton.h"
#include "devices/pane/ModelFilterView.h"
#include "devices/pane/ModelTable.h"
#include "devices/pane/ModelTexts.h"
#include "devices/pane/ModelTile.h"
#include "devices/pane/ModelTiles.h"
#include "devices/pane/VersionRange.h"
#include "devices/today/ModelChoices.h"
#include "devices/today/ModelList.h"
#include "resources/Resources.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/SegmentedControl.h"
#include "widgets/style/AppStyle.h"
#include "widgets/style/Fonts.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSlider>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

class TodayDevicePaneTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<DeviceViewController> m_controller;

    TodayDevicePane *pane() { return m_controller->today(); }
    ModelFilterView *filters() { return pane()->filters(); }
    std::size_t indexOf(const QString &name)
    {
        const auto &groups = pane()->tiles()->groups();
        for (std::size_t index = 0; index < groups.size(); ++index) {
            if (modelName(groups[index]) == name)
                return index;
        }
        qFatal("no such model");
    }
    ModelTile *tile(const QString &name) { return pane()->tiles()->tiles().at(indexOf(name)); }
    QStringList compared()
    {
        QStringList names;
        for (const std::size_t index : pane()->tiles()->compared())
            names << modelName(pane()->tiles()->groups().at(index));
        return names;
    }
    static void press(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }

private slots:
    void initTestCase()
    {
        installTexts(*QCoreApplication::instance(), QLocale(u"en"_s));
        applyAppStyle();
    }
    void init()
    {
        m_services = std::make_unique<RecordingServices>();
        m_controller = std::make_unique<DeviceViewController>(m_services->services());
        m_controller->view()->resize(835, 600);
        m_controller->view()->show();
        m_controller->view()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_controller->view()));
        m_controller->sides()->show(ToolSide::Today);
        QVERIFY(pane()->isVisible());
    }
    void cleanup()
    {
        m_controller.reset();
        m_services.reset();
    }

    void numbersHaveTheDecimalSignOfTheLanguage_data()
    {
        QTest::addColumn<CardFact>("fact");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("words");
        QTest::newRow("diagonal") << CardFact::Diagonal << u"6.9"_s << u"6,9"_s;
        QTest::newRow("class") << CardFact::ScreenClassKey << u"12.9"_s << u"12,9"_s;
        QTest::newRow("a version stays") << CardFact::NewestOs << u"12.5.8"_s << u"12.5.8"_s;
    }
    void numbersHaveTheDecimalSignOfTheLanguage()
    {
        QFETCH(const CardFact, fact);
        QFETCH(const QString, value);
        QFETCH(const QString, words);
        const auto restore = qScopeGuard([old = QLocale()] { QLocale::setDefault(old); });
        QLocale::setDefault(QLocale(u"de_DE"_s));
        QCOMPARE(valueWords(fact, value), words);
    }

    void tabGoesFromTheSearchOverTheFiltersToReset()
    {
        pane()->filters()->search()->setFocus();
        QTest::keyClick(pane()->filters()->search(), Qt::Key_Tab);
        QVERIFY(pane()->filters()->range()->isAncestorOf(QApplication::focusWidget()));
        pane()->filters()->resetButton()->setFocus();
        QTest::keyClick(pane()->filters()->resetButton(), Qt::Key_Tab);
        QVERIFY(!pane()->filters()->isAncestorOf(QApplication::focusWidget()));
    }

    void everyRequirementFilters_data()
    {
        QTest::addColumn<QString>("requirement");
        QTest::addColumn<QString>("fits");
        QTest::addColumn<QString>("falls");
        QTest::addColumn<QString>("why");
        const auto row = [](const char *requirement, const char *fits, const char *falls, const char *why) {
            QTest::newRow(requirement) << QString::fromLatin1(requirement) << QString::fromLatin1(fits)
                                       << QString::fromLatin1(falls) << QString::fromLatin1(why);
        };
        row("from", "iPhone 15 Pro", "iPhone 6", "ends at iOS 12.5.8");
        row("to", "iPhone 6", "iPhone 15 Pro", "begins with iOS 17");
        row("family", "iPad mini 4", "iPhone 6", "is an iPhone");
        row("chip", "iPhone 15", "iPhone 6", "has the chip A8");
        row("screen", "iPhone 16 Pro Max", "iPhone 6", "has a screen of class 4.7");
        row("biometry", "iPhone 15", "iPhone 6", "biometry: Touch ID");
        row("feature", "iPhone 15", "iPhone 6", "lacks Dynamic Island");
        row("capability", "iPhone 15", "iPhone 6", "lacks arkit");
        row("name", "iPhone 15 Pro Max", "iPhone 6", "does not match the search");
        row("identifier", "iPhone 15 Pro", "iPhone 6", "does not match the search");
    }
    void everyRequirementFilters()
    {
        QFETCH(QString, requirement);
        QFETCH(QString, fits);
        QFETCH(QString, falls);
        QFETCH(QString, why);
        const auto choose = [](QComboBox *box, const QString &text) { box->setCurrentIndex(box->findText(text)); };
        if (requirement == u"from")
            filters()->range()->from()->setValue(12);
        else if (requirement == u"to")
            filters()->range()->to()->setValue(11);
        else if (requirement == u"family")
            press(filters()->box(DeviceFamily::IPad));
        else if (requirement == u"chip")
            choose(filters()->chips(), u"A16 Bionic"_s);
        else if (requirement == u"screen")
            choose(filters()->screens(), u"iPhone, 6.9 inches"_s);
        else if (requirement == u"biometry")
            choose(filters()->biometries(), u"Face ID"_s);
        else if (requirement == u"feature")
            filters()->box(ModelFeature::DynamicIsland)->click();
        else if (requirement == u"capability")
            filters()->box(modelCapability(u"arkit"))->click();
        else
            filters()->search()->setText(requirement == u"name" ? u"pro max"_s : u"iPhone16,1"_s);
        QVERIFY(tile(fits)->verdict().fits);
        QVERIFY(!tile(falls)->verdict().fits);
        QCOMPARE(tile(falls)->toolTip(), why);
        QCOMPARE(tile(falls)->accessibleDescription(), why);
        // The fades are the same for every requirement.
        if (requirement == u"from") {
            QTRY_COMPARE(tile(falls)->alpha(), ModelTiles::fadedAlpha);
            QCOMPARE(tile(fits)->alpha(), 1.0F);
        }
        QVERIFY(!pane()->countLabel()->text().startsWith(u"106 of"_s));
        filters()->resetButton()->click();
        QCOMPARE(pane()->countLabel()->text(), u"106 of 106 models fit"_s);
        QVERIFY(tile(falls)->verdict().fits);
    }

    void fittingModelsComeIntoView()
    {
        const QScrollBar *bar = pane()->tiles()->verticalScrollBar();
        QCOMPARE(bar->value(), 0);
        filters()->search()->setText(u"iPod"_s);
        QVERIFY(bar->value() > 0);
        QVERIFY(!tile(u"iPod touch (7th generation)"_s)->visibleRegion().isEmpty());
        // What is in view stays where it is.
        const int before = bar->value();
        filters()->search()->clear();
        QCOMPARE(bar->value(), before);
        // A search begins with its first model, even if others are in view.
        filters()->search()->setText(u"pro"_s);
        QVERIFY(!tile(u"iPhone 18 Pro"_s)->visibleRegion().isEmpty());
    }

    void everyNameIsWhole_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("smallest window") << 835;
        QTest::newRow("wide window") << 1440;
    }
    void everyNameIsWhole()
    {
        QFETCH(const int, width);
        m_controller->view()->resize(width, 600);
        int twoLines = 0;
        for (const ModelTile *each : pane()->tiles()->tiles()) {
            const QStringList lines = each->nameLines(each->width());
            QCOMPARE(lines.join(u' '), each->text());
            for (const QString &line : lines)
                QVERIFY2(QFontMetrics(latoBold(13)).horizontalAdvance(line) <= each->width() - 16, qPrintable(line));
            QVERIFY(each->height() >= each->heightFor(each->width()));
            twoLines += lines.size() == 2 ? 1 : 0;
        }
        QVERIFY(twoLines > 0);
    }

    void everythingEndsInOneLine()
    {
        const auto endOf = [](const QWidget *widget, const QWidget *in) {
            return widget->mapTo(in, QPoint(widget->width(), 0)).x();
        };
        const QWidget *view = m_controller->view();
        const int end = endOf(m_controller->sides()->control(), view);
        int last = 0;
        for (const ModelTile *each : pane()->tiles()->tiles())
            last = std::max(last, endOf(each, view));
        QVERIFY2(std::abs(end - last) <= 2, qPrintable(u"switch %1, tiles %2"_s.arg(end).arg(last)));
        QCOMPARE(endOf(filters()->range(), view), endOf(filters()->search(), view));
    }

    void rangeTellsTheShareThatRemains()
    {
        VersionRange *range = filters()->range();
        QCOMPARE(range->shareLabel()->text(), u"100% of all models (106 of 106)"_s);
        range->from()->setValue(range->from()->maximum());
        ModelFilter filter;
        takeIosRange(u"27..", filter);
        const int left = groupsInRange(groupedModels(builtInModels()), filter);
        QVERIFY(left > 0 && left < 106);
        QVERIFY(range->shareLabel()->text().contains(u"(%1 of 106)"_s.arg(left)));
        // The number above the tiles counts the same things.
        QCOMPARE(pane()->countLabel()->text(), u"%1 of 106 models fit"_s.arg(left));
        QCOMPARE(range->from()->accessibleDescription(), u"iOS 27"_s);
        // One end takes the other along.
        range->to()->setValue(3);
        QCOMPARE(range->from()->value(), 3);
    }

    void tilesAreOpenedByMouseKeyAndReader_data()
    {
        QTest::addColumn<QString>("by");
        for (const char *by : {"mouse", "return", "space", "reader"})
            QTest::newRow(by) << QString::fromLatin1(by);
    }
    void tilesAreOpenedByMouseKeyAndReader()
    {
        QFETCH(QString, by);
        ModelTile *opened = tile(u"iPhone 17"_s);
        if (by == u"mouse")
            press(opened);
        else if (by == u"reader")
            QAccessible::queryAccessibleInterface(opened)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
        else
            QTest::keyClick(opened, by == u"space" ? Qt::Key_Space : Qt::Key_Return);
        QVERIFY(pane()->showsTable());
        const auto &facts = pane()->table()->facts();
        QCOMPARE(facts.size(), static_cast<std::size_t>(cardFactCount));
        for (FactButton *fact : facts) {
            if (!fact->isEnabled())
                continue;
            fact->click();
            QCOMPARE(m_services->clipboard.text, fact->value());
        }
        QCOMPARE(facts.front()->value(), u"iPhone18,3"_s);
        QVERIFY(facts.front()->accessibleName().startsWith(u"Identifiers: "_s));
        QTest::keyClick(facts.front(), Qt::Key_Escape);
        QVERIFY(!pane()->showsTable());
        QCOMPARE(QApplication::focusWidget(), opened);
    }

    void unknownFactsAreADashThatCannotBeCopied()
    {
        press(tile(u"iPhone 18 Pro"_s));
        FactButton *screen = pane()->table()->facts().at(static_cast<std::size_t>(CardFact::Screen));
        QCOMPARE(screen->value(), u"–"_s);
        QVERIFY(!screen->isEnabled());
    }

    void keysGoFromTileToTile()
    {
        ModelTiles *tiles = pane()->tiles();
        const auto &all = tiles->tiles();
        tiles->focusTile(0);
        const auto focused = [&all] { return std::ranges::find(all, QApplication::focusWidget()) - all.begin(); };
        const auto type = [](int key) { QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key)); };
        type(Qt::Key_Left);
        QCOMPARE(focused(), 0);
        type(Qt::Key_Right);
        QCOMPARE(focused(), 1);
        type(Qt::Key_Down);
        QCOMPARE(all[static_cast<std::size_t>(focused())]->x(), all[1]->x());
        QVERIFY(all[static_cast<std::size_t>(focused())]->y() > all[1]->y());
        type(Qt::Key_Up);
        QCOMPARE(focused(), 1);
        type(Qt::Key_End);
        QCOMPARE(focused(), static_cast<std::ptrdiff_t>(all.size()) - 1);
        QVERIFY2(tiles->verticalScrollBar()->value() > 0, "the tile with the focus is scrolled into view");
        QCOMPARE(all.back()->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(all.front()->focusPolicy(), Qt::ClickFocus);
        type(Qt::Key_Home);
        QCOMPARE(focused(), 0);
    }

    void twoOrThreeModelsAreCompared()
    {
        IconButton *compare = pane()->compareButton();
        pane()->tiles()->focusTile(0);
        QTest::keyClick(tile(u"iPhone 17"_s), Qt::Key_Insert);
        QVERIFY(!compare->isEnabled());
        QTest::mouseClick(tile(u"iPhone 16"_s), Qt::LeftButton, Qt::ControlModifier);
        ModelTile *third = tile(u"iPhone 16 Pro"_s);
        QTest::mouseClick(third, Qt::LeftButton, {}, QPoint(third->width() - 16, third->height() - 16));
        QCOMPARE(compared(), (QStringList{u"iPhone 17"_s, u"iPhone 16"_s, u"iPhone 16 Pro"_s}));
        QVERIFY(third->accessibleDescription().contains(u"in the comparison"_s));
        // A fourth takes the first one's place; the same again takes it out.
        QTest::keyClick(tile(u"iPhone 16e"_s), Qt::Key_Insert);
        QCOMPARE(compared(), (QStringList{u"iPhone 16"_s, u"iPhone 16 Pro"_s, u"iPhone 16e"_s}));
        QTest::keyClick(tile(u"iPhone 16e"_s), Qt::Key_Insert);
        QCOMPARE(compare->text(), u"Compare (2)"_s);
        press(compare);
        QVERIFY(pane()->showsTable());
        QCOMPARE(pane()->table()->facts().size(), 2U * cardFactCount);
        QVERIFY(!pane()->markButton()->isVisible());
        press(pane()->backButton());
        // The card has the same mark, for those who cannot reach the tile's.
        press(tile(u"iPhone 16e"_s));
        press(pane()->markButton());
        QCOMPARE(compared().size(), 3);
        press(pane()->markButton());
        QCOMPARE(compared().size(), 2);
    }

    void tilesFollowWidthAndDirection_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<int>("width");
        QTest::newRow("smallest") << Qt::LeftToRight << 835;
        QTest::newRow("wide") << Qt::LeftToRight << 1400;
        QTest::newRow("from the right") << Qt::RightToLeft << 835;
    }
    void tilesFollowWidthAndDirection()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(int, width);
        m_controller->view()->setLayoutDirection(direction);
        m_controller->view()->resize(width, 600);
        QCoreApplication::processEvents();
        const auto &tiles = pane()->tiles()->tiles();
        const int viewWidth = pane()->tiles()->viewport()->width();
        int columns = 0;
        for (std::size_t index = 0; index < tiles.size(); ++index) {
            const QRect place = tiles[index]->geometry();
            const int start = direction == Qt::LeftToRight ? place.left() : viewWidth - 1 - place.right();
            QVERIFY(start >= 16 && start + place.width() <= viewWidth - ModelTiles::endMargin);
            columns += place.y() == tiles[0]->y() ? 1 : 0;
            for (std::size_t other = 0; other < index; ++other)
                QVERIFY(!place.intersects(tiles[other]->geometry()));
        }
        // The rows are filled to the margins.
        const QRect first = tiles[0]->geometry();
        QCOMPARE(direction == Qt::LeftToRight ? first.left() : viewWidth - 1 - first.right(), 16);
        QVERIFY(viewWidth - 16 - ModelTiles::endMargin - columns * first.width() - (columns - 1) * 8 < columns);
        QCOMPARE(columns, width == 835 ? 3 : 7);
    }
};

QTEST_MAIN(TodayDevicePaneTest)
#include "TodayDevicePaneTest.moc"
