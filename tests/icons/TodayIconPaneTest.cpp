// SPDX-License-Identifier: MIT
#include "TodayIconPane.h"

#include "foundation/WholeFile.h"
#include "tool/style/ElidedLabel.h"
#include "ui_IconsViewController.h"

#include <QBuffer>
#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The sources and what the pane shows of them.
class TodayIconPaneTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TodayIconScene> m_scene;
    QTemporaryDir m_folder;

    TodayIconPane *pane() { return m_scene->pane(); }
    QColor middleOf(PreviewPlace place)
    {
        const QImage &picture = pane()->tile(place)->preview().picture;
        return picture.pixelColor(picture.width() / 2, picture.height() / 2);
    }
    QColor cornerOf(PreviewPlace place) { return pane()->tile(place)->preview().picture.pixelColor(0, 0); }
    const SourcePreview &preview(FurtherSource source) { return pane()->well(source)->preview(); }
    static void drop(QWidget *target, const QString &path)
    {
        QMimeData content;
        content.setUrls({QUrl::fromLocalFile(path)});
        const QPoint middle = target->rect().center();
        QDragEnterEvent enter(middle, Qt::LinkAction, &content, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        QDropEvent release(middle, Qt::LinkAction, &content, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &release);
    }

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
    void init()
    {
        m_scene = std::make_unique<TodayIconScene>();
        QSignalSpy shown(m_scene->tool.today(), &TodayIcons::previewsShown);
        QVERIFY(shown.wait());
    }
    void cleanup() { m_scene.reset(); }

    void tabGoesFromTheIconToTheFurtherSources()
    {
        pane()->browseButton()->setFocus();
        QTest::keyClick(pane()->browseButton(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), pane()->well(furtherSources.front()));
    }

    void everyPlaceShowsTheIcon_data()
    {
        QTest::addColumn<PreviewPlace>("place");
        QTest::addColumn<QColor>("middle");
        QTest::addColumn<bool>("isCut"); ///< whether the corner is outside of the shape
        QTest::newRow("light") << PreviewPlace::IosLight << QColor(200, 30, 60) << true;
        QTest::newRow("dark") << PreviewPlace::IosDark << QColor(200, 30, 60) << true;
        QTest::newRow("circle") << PreviewPlace::AndroidCircle << QColor(200, 30, 60) << true;
        QTest::newRow("squircle") << PreviewPlace::AndroidSquircle << QColor(200, 30, 60) << true;
        QTest::newRow("rounded square") << PreviewPlace::AndroidRoundedSquare << QColor(200, 30, 60) << true;
        QTest::newRow("teardrop") << PreviewPlace::AndroidTeardrop << QColor(200, 30, 60) << true;
        QTest::newRow("mac") << PreviewPlace::Mac << QColor(200, 30, 60) << true;
        QTest::newRow("web") << PreviewPlace::WebMaskable << QColor(200, 30, 60) << true;
    }
    void everyPlaceShowsTheIcon()
    {
        QFETCH(PreviewPlace, place);
        QFETCH(QColor, middle);
        const QString icon = saved(m_folder, u"disk.png"_s, disk(1024, {200, 30, 60}, {250, 250, 250}));
        QVERIFY(m_scene->drawnAfter([&] { drop(pane()->dropView(), icon); }));
        QCOMPARE(middleOf(place), middle);
        QCOMPARE(cornerOf(place).alpha(), 0);
        QCOMPARE(pane()->title()->text(), u"disk.png"_s);
    }

    void aRefusalIsSaidWhereItHappened_data()
    {
        QTest::addColumn<bool>("isFurther");
        QTest::newRow("icon") << false;
        QTest::newRow("further source") << true;
    }
    void aRefusalIsSaidWhereItHappened()
    {
        QFETCH(bool, isFurther);
        const QString flat = saved(m_folder, u"flat.png"_s, QImage(600, 500, QImage::Format_RGB32));
        drop(isFurther ? static_cast<QWidget *>(pane()->well(FurtherSource::Dark)) : pane()->dropView(), flat);
        QTRY_COMPARE(m_scene->popupTitle(), qtTrId("ICONS_ALERT_TITLE"));
        QVERIFY(m_scene->popupMessage().contains(u"flat.png"_s));
        QCOMPARE(pane()->statusLabel()->text().contains(u"flat.png"_s), !isFurther);
    }

    void titleStaysBelowTheIcon_data()
    {
        QTest::addColumn<int>("height");
        QTest::newRow("smallest window") << 660;
        QTest::newRow("high window") << 1200;
    }
    void titleStaysBelowTheIcon()
    {
        QFETCH(int, height);
        m_scene->window.resize(900, height);
        m_scene->tool.view()->resize(835, height - 60);
        QTRY_COMPARE(pane()->height(), height - 60);
        const QRect icon = pane()->iconView()->geometry();
        QVERIFY(icon.height() <= icon.width());
        QVERIFY(pane()->title()->geometry().top() - icon.bottom() <= 8);
    }

    void aSlowReadIsStopped_data()
    {
        QTest::addColumn<bool>("isFurther");
        QTest::newRow("of the icon") << false;
        QTest::newRow("of a further source") << true;
    }
    void aSlowReadIsStopped()
    {
        QFETCH(bool, isFurther);
        const QString path = saved(m_folder, u"slow.png"_s, disk(1024, {200, 30, 60}));
        const auto share = std::make_shared<HeldFiles>();
        m_scene = std::make_unique<TodayIconScene>(share);
        QVERIFY(pane()->stopButton()->isHidden());
        if (isFurther)
            m_scene->tool.today()->readSource(FurtherSource::Dark, path);
        else
            m_scene->tool.today()->readIcon(path);
        QTRY_VERIFY(pane()->stopButton()->isVisible());
        QVERIFY(pane()->browseButton()->isHidden());
        QCOMPARE(pane()->statusLabel()->text(), u"Reading slow.png…"_s);
        m_scene->window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_scene->window));
        QTest::mouseClick(pane()->stopButton(), Qt::LeftButton);
        QVERIFY(pane()->stopButton()->isHidden());
        QVERIFY(pane()->browseButton()->isVisible());
        QVERIFY(pane()->browseButton()->hasFocus());
        QCOMPARE(pane()->statusLabel()->text(), u"Example picture"_s);
        share->releaseAll();
        QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.today()->readIcon(path); }));
        QCOMPARE(pane()->title()->text(), u"slow.png"_s);
        QVERIFY(!preview(FurtherSource::Dark).isGiven);
    }

    void tintedIsOneHue()
    {
        const QString icon = saved(m_folder, u"disk.png"_s, disk(1024, {255, 255, 255}, {0, 0, 0}));
        QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.today()->readIcon(icon); }));
        const QColor middle = middleOf(PreviewPlace::IosTinted);
        QVERIFY2(middle.red() < middle.blue(), qPrintable(middle.name()));
        const QImage &gray = preview(FurtherSource::Tinted).picture;
        QCOMPARE(gray.pixelColor(24, 24), QColor(255, 255, 255));
    }

    void teardropHasItsCorner()
    {
        const QString icon = saved(m_folder, u"plain.png"_s, disk(1024, {10, 10, 10}, {10, 10, 10}));
        QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.today()->readIcon(icon); }));
        const auto lowerRight = [this](PreviewPlace place) {
            const QImage &picture = pane()->tile(place)->preview().picture;
            return picture.pixelColor(picture.width() - 5, picture.height() - 5).alpha();
        };
        QCOMPARE(lowerRight(PreviewPlace::AndroidTeardrop), 255);
        QCOMPARE(lowerRight(PreviewPlace::AndroidCircle), 0);
    }

    void sourcesAreDerivedUntilGiven()
    {
        const QString icon = saved(m_folder, u"shape.png"_s, disk(1024, {200, 30, 60}));
        QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.today()->readIcon(icon); }));
        for (const FurtherSource source : furtherSources) {
            QVERIFY(!preview(source).isGiven);
            QVERIFY(!preview(source).picture.isNull());
            QCOMPARE(pane()->well(source)->accessibleDescription(), u"derived"_s);
            QVERIFY(pane()->well(source)->removeButton()->isHidden());
        }
        const QString other = saved(m_folder, u"other.png"_s, disk(1024, {30, 200, 60}));
        for (const FurtherSource source : furtherSources) {
            SourceWell *well = pane()->well(source);
            QVERIFY(m_scene->drawnAfter([&] { drop(well, other); }));
            QVERIFY(preview(source).isGiven);
            QCOMPARE(well->accessibleDescription(), u"other.png"_s);
            QVERIFY(!well->removeButton()->isHidden());
            // The keyboard takes it back.
            QVERIFY(m_scene->drawnAfter([&] { QTest::keyClick(well, Qt::Key_Delete); }));
            QVERIFY(!preview(source).isGiven);
            QCOMPARE(well->accessibleDescription(), u"derived"_s);
        }
    }

    void darkIsLeftOutOfOpaqueIcons()
    {
        const QString icon = saved(m_folder, u"opaque.png"_s, disk(1024, {200, 30, 60}, {250, 250, 250}));
        QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.today()->readIcon(icon); }));
        QVERIFY(preview(FurtherSource::Dark).picture.isNull());
        QVERIFY(preview(FurtherSource::Monochrome).picture.isNull());
        QCOMPARE(pane()->well(FurtherSource::Dark)->accessibleDescription(), u"none"_s);
        QVERIFY(pane()->tile(PreviewPlace::IosDark)->preview().isMadeBySystem);
        QVERIFY(!pane()->flattenField()->isEnabled());
    }

    void wellsOpenTheFileDialog()
    {
        QTest::mouseClick(pane()->well(FurtherSource::Dark), Qt::LeftButton, {}, {30, 20});
        QVERIFY(m_scene->services.fileChooser.isOpen());
        const QString dark = saved(m_folder, u"dark.png"_s, disk(512, {30, 30, 200}));
        QVERIFY(m_scene->drawnAfter([&] { m_scene->services.fileChooser.confirm({dark}); }));
        QVERIFY(preview(FurtherSource::Dark).isGiven);
    }

    void backgroundTakesAColor()
    {
        QVERIFY(m_scene->drawnAfter([&] { pane()->backgroundField()->setText(u"#102030"_s); }));
        QVERIFY(preview(FurtherSource::Background).isGiven);
        QCOMPARE(preview(FurtherSource::Background).picture.pixelColor(5, 5), QColor(u"#102030"_s));
        QVERIFY(m_scene->drawnAfter(
            [&] { emit pane()->well(FurtherSource::Background)->colorDropped(QColor(u"#405060"_s)); }));
        QCOMPARE(pane()->backgroundField()->text(), u"#405060"_s);
        QVERIFY(m_scene->drawnAfter([&] { QTest::keyClick(pane()->well(FurtherSource::Background), Qt::Key_Delete); }));
        QVERIFY(pane()->backgroundField()->text().isEmpty());
        QVERIFY(!preview(FurtherSource::Background).isGiven);
    }

    void colorsAreChecked_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("digits") << u"#0a0B0c"_s << true;
        QTest::newRow("name") << u"navy"_s << true;
        QTest::newRow("no color") << u"#12zz"_s << false;
        QTest::newRow("translucent") << u"#80ffffff"_s << false;
        QTest::newRow("transparent") << u"transparent"_s << false;
    }
    void colorsAreChecked()
    {
        QFETCH(QString, text);
        QFETCH(bool, isTaken);
        ColorEntryField *field = pane()->flattenField();
        field->setText(text);
        QCOMPARE(field->color().has_value(), isTaken);
        QCOMPARE(field->isRefused(), !isTaken);
        QCOMPARE(field->accessibleDescription().isEmpty(), isTaken);
        field->clear();
        QVERIFY(!field->isRefused());
    }

    void iconsAreTaken_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isTaken");
        const auto png = [](const QImage &picture) {
            QByteArray bytes;
            QBuffer buffer(&bytes);
            picture.save(&buffer, "PNG");
            return bytes;
        };
        QTest::newRow("1024") << png(disk(1024, Qt::red)) << true;
        QTest::newRow("512") << png(disk(512, Qt::red)) << true;
        QTest::newRow("1500") << png(disk(1500, Qt::red)) << true;
        QTest::newRow("511") << png(disk(511, Qt::red)) << false;
        QTest::newRow("not square") << png(disk(1024, Qt::red).copy(0, 0, 1024, 1000)) << false;
        QTest::newRow("drawing")
            << QByteArray(
                   "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 8 8'><circle cx='4' cy='4' r='3'/></svg>")
            << true;
        QTest::newRow("nothing") << QByteArray("nothing") << false;
    }
    void iconsAreTaken()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isTaken);
        const QString path = m_folder.filePath(u"source"_s);
        QVERIFY(writeWholeFile(path, bytes));
        const QString before = pane()->title()->text();
        if (isTaken) {
            QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.today()->readIcon(path); }));
            QCOMPARE(pane()->title()->text(), u"source"_s);
            QCOMPARE(m_scene->popupTitle(), QString());
        } else {
            m_scene->tool.today()->readIcon(path);
            QCOMPARE(m_scene->popupTitle(), u"This picture does not fit"_s);
            QVERIFY(m_scene->popupMessage().contains(u"512"_s));
            QCOMPARE(pane()->title()->text(), before);
        }
    }

    void bothSidesHaveTheSameIcon()
    {
        const QString icon = saved(m_folder, u"small.png"_s, disk(512, {200, 30, 60}));
        QSignalSpy read(m_scene->tool.today(), &TodayIcons::iconRead);
        m_scene->tool.dropViewReceivedFiles({icon});
        QVERIFY(read.wait());
        QCOMPARE(m_scene->tool.icon().width(), 1024);
        QCOMPARE(m_scene->tool.icon().pixelColor(512, 512), QColor(200, 30, 60));
        QCOMPARE(m_scene->tool.outlets().sourceIconTitle->text(), u"small.png"_s);
        // The classic side takes only one size, and what it takes is the icon here, too.
        m_scene->tool.sides()->show(ToolSide::Classic);
        const IconView *preview = m_scene->tool.outlets().iconPreviewOne;
        QTRY_COMPARE(preview->picture().pixelColor(60, 60), QColor(200, 30, 60));
        m_scene->tool.dropViewReceivedFiles({icon});
        QCOMPARE(m_scene->popupTitle(), u"This picture does not fit"_s);
        m_scene->tool.popupCloseButtonPressed();
        const QString other = saved(m_folder, u"other.png"_s, disk(1024, {30, 200, 60}));
        QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.dropViewReceivedFiles({other}); }));
        QCOMPARE(pane()->title()->text(), u"other.png"_s);
        QCOMPARE(middleOf(PreviewPlace::IosLight), QColor(30, 200, 60));
    }

    void pastedPicturesAreTaken()
    {
        m_scene->services.clipboard.copiedImage = disk(600, {200, 30, 60});
        QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.paste(); }));
        QCOMPARE(pane()->title()->text(), u"Pasted picture"_s);
        m_scene->services.clipboard.copiedImage = disk(100, {200, 30, 60});
        m_scene->tool.paste();
        QTRY_COMPARE(m_scene->popupTitle(), u"This picture does not fit"_s);
    }

    void safeZoneIsDrawnForTheKeyboard()
    {
        PreviewTile *tile = pane()->tile(PreviewPlace::AndroidCircle);
        m_scene->window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_scene->window));
        const QImage before = tile->grab().toImage();
        tile->setFocus(Qt::TabFocusReason);
        QVERIFY(tile->showsSafeZone());
        QVERIFY(tile->grab().toImage() != before);
        QVERIFY(!pane()->tile(PreviewPlace::Mac)->showsSafeZone());
        QCOMPARE(pane()->tile(PreviewPlace::Mac)->focusPolicy(), Qt::NoFocus);
    }

    void readsFromTheRight()
    {
        m_scene.reset();
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        m_scene = std::make_unique<TodayIconScene>();
        QSignalSpy shown(m_scene->tool.today(), &TodayIcons::previewsShown);
        QVERIFY(shown.wait());
        const QString dark = saved(m_folder, u"dark.png"_s, disk(1024, {30, 30, 200}));
        QVERIFY(m_scene->drawnAfter([&] { m_scene->tool.today()->readSource(FurtherSource::Dark, dark); }));
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QVERIFY(pane()->dropView()->x() > pane()->width() / 2);
        const SourceWell *well = pane()->well(FurtherSource::Dark);
        QVERIFY(well->removeButton()->x() < well->width() / 2);
        QVERIFY(well->x() > pane()->well(FurtherSource::Monochrome)->x());
        QVERIFY(pane()->tile(PreviewPlace::IosLight)->x() > pane()->tile(PreviewPlace::Mac)->x());
        // Code is written from the left in every language.
        QCOMPARE(pane()->snippet()->layoutDirection(), Qt::LeftToRight);
    }

    void everythingHasANameAndTheKeyboardReachesIt()
    {
        QSet<QString> reached;
        for (QWidget *next = pane()->nextInFocusChain(); next != pane(); next = next->nextInFocusChain()) {
            if (pane()->isAncestorOf(next) && next->isVisible() && (next->focusPolicy() & Qt::TabFocus) != 0) {
                QAccessibleInterface *face = QAccessible::queryAccessibleInterface(next);
                QVERIFY2(!face->text(QAccessible::Name).isEmpty(), next->metaObject()->className());
                reached << face->text(QAccessible::Name);
            }
        }
        for (const QString &name :
             {u"Browse…"_s, u"Dark"_s, u"Background"_s, u"Background color"_s, u"Flatten onto this color"_s, u"iOS"_s,
              u"Linux"_s, u"App name"_s, u"All"_s, u"Generate"_s, u"Code snippet"_s, u"Copy"_s, u"Android, Teardrop"_s})
            QVERIFY2(reached.contains(name), qPrintable(name));
    }
};

QTEST_MAIN(TodayIconPaneTest)
#include "TodayIconPaneTest.moc"
