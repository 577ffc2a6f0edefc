// SPDX-License-Identifier: MIT
#include "TodayColorFixture.h"
#include "color/pane/PaletteView.h"
#include "color/picker/SwatchList.h"
#include "foundation/WholeFile.h"
#include "resources/Resources.h"
#include "tests/doubles/HeldFiles.h"
#include "widgets/buttons/IconButton.h"

#include <QTemporaryDir>
#include <QTest>

using namespace lumora;
using namespace Qt::StringLiterals;

/// The palette of today's side: what was picked, saved and read back.
class PalettePaneTest : public TodayColorFixture
{
    Q_OBJECT

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(u"en"_s)); }
    void init() { start(); }
    void cleanup() { end(); }

    void pickedColorsOfBothSidesAreKept()
    {
        pick(pane()->well(), {1, 0, 0, 1});
        pick(pane()->well(), {0, 1, 0, 1});
        QCOMPARE(code(), u"#00ff00ff"_s);
        QCOMPARE(palette(), QStringList());
        // What is typed meanwhile does not take its place.
        type(u"teal"_s);
        // Only the color at which the pointer rests counts.
        QTRY_COMPARE(palette(), QStringList{u"#00ff00ff"_s});
        m_controller->sides()->show(ToolSide::Classic);
        m_controller->dropViewReceivedColor(Qt::blue);
        QTRY_COMPARE(palette(), (QStringList{u"#00ff00ff"_s, u"#0000ffff"_s}));
        m_controller->sides()->show(ToolSide::Today);
        m_services->clipboard.text = u"oklch(50% 0.1 120 / 0.25)"_s;
        m_controller->paste();
        QCOMPARE(palette().size(), 3);
        QVERIFY(palette().last().endsWith(u"40"_s));
        m_services->clipboard.text = u"no color"_s;
        m_controller->paste();
        QCOMPARE(palette().size(), 3);
    }

    void swatchesAreChosenAndForgotten()
    {
        for (const char *name : {"tomato", "navy"})
            m_controller->today()->takeText(QString::fromLatin1(name));
        SwatchList *swatches = pane()->palette()->swatches();
        QVERIFY(!pane()->palette()->removeButton()->isEnabled());
        swatches->setFocus();
        swatches->setCurrentIndex(swatches->model()->index(0, 0));
        QCOMPARE(code(), u"#ff6347ff"_s);
        QTest::keyClick(swatches, Qt::Key_Delete);
        QCOMPARE(palette(), QStringList{u"#000080ff"_s});
        type(u"teal"_s);
        press(pane()->palette()->addButton());
        QCOMPARE(palette().size(), 2);
    }

    void palettesAreSavedAndReadBack()
    {
        const QTemporaryDir folder;
        PaletteView *view = pane()->palette();
        QVERIFY(!view->saveButton()->isEnabled());
        m_controller->today()->takeText(u"tomato"_s);
        press(view->saveButton());
        QVERIFY(m_services->folderChooser.isOpen());
        m_services->folderChooser.confirm(folder.path());
        QVERIFY(m_controller->popupView()->isVisible());
        const QString saved = folder.filePath(u"palette.xcassets/tomato.colorset/Contents.json"_s);
        QVERIFY(QFile::exists(saved));
        m_controller->popupCloseButtonPressed();

        QVERIFY(writeWholeFile(folder.filePath(u"a.gpl"_s), "GIMP Palette\n1 2 3 One\n4 5 6 Two\n").ok());
        for (const QString &path : {saved, folder.filePath(u"a.gpl"_s)}) {
            press(view->openButton());
            m_services->fileChooser.confirm({path});
        }
        QCOMPARE(palette(), (QStringList{u"#ff6347ff"_s, u"#010203ff"_s, u"#040506ff"_s}));
    }

    void aWholeCatalogueIsRead()
    {
        const QTemporaryDir folder;
        PaletteView *view = pane()->palette();
        for (const char *name : {"tomato", "navy"})
            m_controller->today()->takeText(QString::fromLatin1(name));
        press(view->saveButton());
        m_services->folderChooser.confirm(folder.path());
        m_controller->popupCloseButtonPressed();
        press(view->removeButton());
        const QStringList before = palette();
        for (int left = 0; left < before.size(); ++left) {
            view->swatches()->setCurrentIndex(view->swatches()->model()->index(0, 0));
            press(view->removeButton());
        }
        QCOMPARE(palette(), QStringList());
        press(view->catalogueButton());
        m_services->folderChooser.confirm(folder.filePath(u"palette.xcassets"_s));
        QTRY_COMPARE(palette(), (QStringList{u"#000080ff"_s, u"#ff6347ff"_s}));
        // A damaged set is named; the others count.
        QVERIFY(QDir(folder.path()).mkpath(u"palette.xcassets/bad.colorset"_s));
        press(view->catalogueButton());
        m_services->folderChooser.confirm(folder.filePath(u"palette.xcassets"_s));
        QTRY_VERIFY(m_controller->popupView()->isVisible());
        QCOMPARE(palette().size(), 2);
        m_controller->popupCloseButtonPressed();
        press(view->catalogueButton());
        m_services->folderChooser.confirm(folder.filePath(u"none"_s));
        QTRY_VERIFY(m_controller->popupView()->isVisible());
    }

    void aSlowPaletteIsStopped()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.gpl"_s);
        QVERIFY(writeWholeFile(path, "GIMP Palette\n1 2 3 One\n").ok());
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        PaletteView *view = pane()->palette();
        press(view->openButton());
        m_services->fileChooser.confirm({path});
        QTRY_VERIFY(view->stopButton()->isVisible());
        QVERIFY(!view->openButton()->isVisible());
        press(view->stopButton());
        QVERIFY(view->openButton()->isVisible() && !view->stopButton()->isVisible());
        share->releaseAll();
        press(view->openButton());
        m_services->fileChooser.confirm({path});
        QTRY_COMPARE(palette(), QStringList{u"#010203ff"_s});
    }

    void aSlowCatalogueIsStopped()
    {
        const QTemporaryDir folder;
        PaletteView *view = pane()->palette();
        m_controller->today()->takeText(u"tomato"_s);
        press(view->saveButton());
        m_services->folderChooser.confirm(folder.path());
        const QString catalogue = folder.filePath(u"palette.xcassets"_s);
        const auto share = std::make_shared<HeldFiles>();
        m_services->fileReader = share;
        make();
        view = pane()->palette();
        press(view->catalogueButton());
        m_services->folderChooser.confirm(catalogue);
        QTRY_VERIFY(view->stopButton()->isVisible());
        QVERIFY(!view->openButton()->isVisible() && !view->catalogueButton()->isVisible());
        share->waitForBegun(1);
        press(view->stopButton());
        QVERIFY(view->catalogueButton()->isVisible() && !view->stopButton()->isVisible());
        // The share answers after all: what was stopped adds nothing.
        share->releaseAll();
        const QString other = folder.filePath(u"a.gpl"_s);
        QVERIFY(writeWholeFile(other, "GIMP Palette\n1 2 3 One\n").ok());
        press(view->openButton());
        m_services->fileChooser.confirm({other});
        QTRY_COMPARE(palette(), QStringList{u"#010203ff"_s});
        press(view->catalogueButton());
        m_services->folderChooser.confirm(catalogue);
        QTRY_COMPARE(palette(), (QStringList{u"#010203ff"_s, u"#ff6347ff"_s}));
    }

    void whatIsNoPaletteIsRefused()
    {
        const QTemporaryDir folder;
        QVERIFY(writeWholeFile(folder.filePath(u"a.gpl"_s), "GIMP Palette\n1 2\n").ok());
        press(pane()->palette()->openButton());
        m_services->fileChooser.confirm({folder.filePath(u"a.gpl"_s)});
        QVERIFY(m_controller->popupView()->isVisible());
        QCOMPARE(palette(), QStringList());
    }
};

QTEST_MAIN(PalettePaneTest)
#include "PalettePaneTest.moc"
