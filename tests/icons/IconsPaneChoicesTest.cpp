// SPDX-License-Identifier: MIT
#include "IconsPane.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/textfield/ZKFieldEditor.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// The y of the baseline of the label's first line, in its window.
int baseline(const QLabel *label)
{
    const QFontMetrics metrics(label->font());
    const bool atTop = label->alignment().testFlag(Qt::AlignTop);
    const int above = atTop ? 0 : (label->height() - metrics.height()) / 2;
    return label->mapTo(label->window(), QPoint(0, above)).y() + metrics.ascent();
}

bool takesDrag(QWidget *widget, const QMimeData &content)
{
    constexpr Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QDragEnterEvent enter(widget->rect().center(), offered, &content, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(widget, &enter);
    return enter.isAccepted();
}

} // namespace

class IconsPaneChoicesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void noSnippetPlatformIsChosenAtFirst()
    {
        const IconsPane pane;
        QCOMPARE(pane.ui.codeSnippetDropdown->currentIndex(), -1);
        QVERIFY(!pane.ui.codeSnippetCopyButton->isEnabled());
        pane.ui.iPadCheckbox->click();
        QCOMPARE(pane.ui.codeSnippetDropdown->currentIndex(), 0);
        QVERIFY(pane.ui.codeSnippetCopyButton->isEnabled());
        QCOMPARE(pane.ui.codeSnippedView->toPlainText(), qtTrId("SNIPPET_IOS_IPAD"));
    }

    void allChoosesEveryPlatformOrNone_data()
    {
        QTest::addColumn<QList<int>>("before");
        QTest::addColumn<bool>("after");
        QTest::newRow("none before") << QList<int>{} << true;
        QTest::newRow("some before") << QList<int>{1, 4} << true;
        QTest::newRow("all before") << QList<int>{0, 1, 2, 3, 4, 5} << false;
    }
    void allChoosesEveryPlatformOrNone()
    {
        QFETCH(QList<int>, before);
        QFETCH(bool, after);
        const IconsPane pane;
        const QList<CheckboxButton *> boxes{pane.ui.iPhoneCheckbox,  pane.ui.iPadCheckbox,     pane.ui.macCheckbox,
                                            pane.ui.androidCheckbox, pane.ui.webTouchCheckbox, pane.ui.favIconCheckbox};
        for (const int number : before)
            boxes.at(number)->click();
        pane.ui.allButton->click();
        for (const CheckboxButton *box : boxes)
            QCOMPARE(box->isActive(), after);
        // The snippet follows the devices, as it does for clicks on them.
        QCOMPARE(pane.ui.codeSnippedView->toPlainText(), qtTrId("SNIPPET_IOS_UNIVERSAL"));
    }

    void theDestinationOpensBesideTheSourceAtFirst()
    {
        const QTemporaryDir source;
        const QTemporaryDir destination;
        IconsPane pane;
        pane.ui.favIconCheckbox->click();
        pane.ui.generateIconsButton->click();
        QCOMPARE(pane.services.folderChooser.requests.last().startFolder, QString());
        pane.services.folderChooser.cancel();
        pane.tool.dropViewReceivedFiles({savePicture(source, u"mine.png"_s, {1024, 1024})});
        pane.ui.generateIconsButton->click();
        QCOMPARE(pane.services.folderChooser.requests.last().startFolder, source.path());
        pane.services.folderChooser.confirm(destination.path());
        pane.ui.generateIconsButton->click();
        QCOMPARE(pane.services.folderChooser.requests.last().startFolder, destination.path());
    }

    void tipsNameTheKeys()
    {
        const IconsPane pane;
        QVERIFY(pane.ui.browseButton->toolTip().contains(QKeySequence(QKeySequence::Open).toString()));
        QVERIFY(pane.ui.dropView->toolTip().contains(QKeySequence(QKeySequence::Paste).toString()));
    }

    void theSizeFieldLeavesFilesToThePane_data()
    {
        QTest::addColumn<bool>("editing");
        QTest::newRow("at rest") << false;
        QTest::newRow("while it is edited") << true;
    }
    void theSizeFieldLeavesFilesToThePane()
    {
        QFETCH(bool, editing);
        const IconsPane pane;
        ZKTextField *field = pane.ui.customIconSizeTextField;
        if (editing)
            field->beginEditing();
        QWidget *target = editing ? static_cast<QWidget *>(field->findChild<ZKFieldEditor *>()) : field;
        QVERIFY(target != nullptr);
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(u"/a.png"_s)});
        file.setText(u"/a.png"_s);
        QVERIFY(!takesDrag(target, file));
        QMimeData text;
        text.setText(u"64"_s);
        QVERIFY(takesDrag(target, text));
    }

    void theSubtitleFollowsTheTitle()
    {
        const IconsPane pane;
        QCOMPARE(baseline(pane.ui.sourceIconSubtitle) - baseline(pane.ui.sourceIconTitle), 20);
    }

    void aColorAloneIsRefused()
    {
        const IconsPane pane;
        QMimeData color;
        color.setColorData(QColor(Qt::red));
        QVERIFY(!takesDrag(pane.ui.dropView, color));
    }
};

QTEST_MAIN(IconsPaneChoicesTest)
#include "IconsPaneChoicesTest.moc"
