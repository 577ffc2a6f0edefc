// SPDX-License-Identifier: MIT
#include "ShellFixture.h"
#include "app/AppMenu.h"
#include "app/sidebar/ITSidebar.h"
#include "foundation/ToolFacts.h"
#include "resources/Resources.h"
#include "tool/PaneSides.h"
#include "tool/ToolViewController.h"

#include <QAction>
#include <QRegularExpression>
#include <QShortcut>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lumora;

namespace
{

/// The shortcuts in brackets at the end of the tool tips in view, sorted.
QStringList namedKeys(const QWidget *window)
{
    static const QRegularExpression atEnd(u"\\(([^()]+)\\)$"_s);
    QStringList keys;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const QString inBrackets = atEnd.match(widget->toolTip()).captured(1);
        // Something else in brackets is no key sequence.
        const QKeySequence sequence = QKeySequence::fromString(inBrackets, QKeySequence::NativeText);
        const bool isSequence = !inBrackets.isEmpty() && sequence.toString(QKeySequence::NativeText) == inBrackets;
        if (widget->isVisible() && isSequence && !keys.contains(inBrackets))
            keys << inBrackets;
    }
    keys.sort();
    return keys;
}

/// The shortcuts that the window obeys now.
QStringList obeyedKeys(const QWidget *window)
{
    QStringList keys;
    for (const QAction *action : window->actions()) {
        if (action->isEnabled())
            keys << action->shortcut().toString(QKeySequence::NativeText);
    }
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        for (const QAction *action : widget->actions()) {
            if (widget->isVisible() && action->isEnabled())
                keys << action->shortcut().toString(QKeySequence::NativeText);
        }
    }
    for (const QShortcut *shortcut : window->findChildren<QShortcut *>()) {
        const auto *owner = qobject_cast<const QWidget *>(shortcut->parent());
        if (shortcut->isEnabled() && owner != nullptr && owner->isVisible())
            keys << shortcut->key().toString(QKeySequence::NativeText);
    }
    return keys;
}

} // namespace

/// The tool tips that name a shortcut.
class KeyTipsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        loadResources();
        installTexts(*qApp, QLocale(u"en_GB"_s));
    }

    void namedKeysWork_data()
    {
        QTest::addColumn<ToolIndex>("tool");
        QTest::addColumn<ToolSide>("side");
        QTest::addColumn<QStringList>("named"); ///< at least, besides those of the header and the sidebar
        using enum ToolIndex;
        using enum ToolSide;
        const QString open = QKeySequence(QKeySequence::Open).toString(QKeySequence::NativeText);
        const QString paste = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
        QTest::newRow("icons") << Icons << Classic << QStringList{open, paste};
        QTest::newRow("icons of today") << Icons << Today << QStringList{open, paste};
        QTest::newRow("placeholders") << Placeholders << Classic << QStringList{};
        QTest::newRow("placeholders of today") << Placeholders << Today << QStringList{open};
        QTest::newRow("down-scaler") << Resizer << Classic << QStringList{open, paste};
        QTest::newRow("down-scaler of today") << Resizer << Today << QStringList{open, paste};
        QTest::newRow("colors") << Color << Classic << QStringList{u"Ctrl+Shift+P"_s};
        QTest::newRow("colors of today") << Color << Today << QStringList{u"Ctrl+Shift+P"_s};
        QTest::newRow("devices") << Devices << Classic << QStringList{};
        QTest::newRow("devices of today") << Devices << Today << QStringList{};
        QTest::newRow("package check") << Validator << Classic << QStringList{open, paste};
    }
    void namedKeysWork()
    {
        QFETCH(ToolIndex, tool);
        QFETCH(ToolSide, side);
        QFETCH(QStringList, named);
        Application application;
        AppDelegate &delegate = application.delegate;
        const AppMenu menu(delegate);
        delegate.sideBar()->setSelectedIndex(static_cast<qint32>(tool));
        if (side == ToolSide::Today)
            delegate.currentController()->sides()->show(side);
        const QStringList inWindow = namedKeys(delegate.window());
        const QStringList obeyed = obeyedKeys(delegate.window());
        for (const QString &keys : inWindow)
            QVERIFY2(obeyed.contains(keys), qPrintable(keys));
        // The sides' switch, the tools and the help.
        if (delegate.currentController()->sides() != nullptr)
            named << u"Ctrl+T"_s;
        named << u"Ctrl+1"_s << u"Ctrl+6"_s << u"F1"_s;
        for (const QString &keys : named)
            QVERIFY2(inWindow.contains(keys), qPrintable(keys));
    }
};

QTEST_MAIN(KeyTipsTest)
#include "KeyTipsTest.moc"
