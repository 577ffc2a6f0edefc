// SPDX-License-Identifier: MIT
#include "tests/doubles/Pointer.h"

#include "widgets/textfield/ZKFieldEditor.h"
#include "widgets/textfield/ZKTextField.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace lumora;
using namespace lumora::testing;
using namespace Qt::StringLiterals;

namespace
{

/// A window of three fields; the middle one is tested.
struct Form
{
    QWidget window;
    ZKTextField *before = new ZKTextField;
    ZKTextField *field = new ZKTextField;
    ZKTextField *after = new ZKTextField;

    Form()
    {
        auto *column = new QVBoxLayout(&window);
        for (ZKTextField *each : {before, field, after})
            column->addWidget(each);
        showAside(&window);
        window.activateWindow();
    }
    bool isReady() { return QTest::qWaitForWindowActive(&window); }
    QWidget *focus() const { return QApplication::focusWidget(); }
};

} // namespace

class TextFieldEditingTest : public QObject
{
    Q_OBJECT
private slots:
    void returnSendsTheActionOnceAndEndsEditing_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifier>("modifier");
        QTest::newRow("return") << Qt::Key_Return << Qt::NoModifier;
        QTest::newRow("enter") << Qt::Key_Enter << Qt::KeypadModifier;
        QTest::newRow("return ignoring the field editor") << Qt::Key_Return << Qt::AltModifier;
    }
    void returnSendsTheActionOnceAndEndsEditing()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifier, modifier);
        Form form;
        QVERIFY(form.isReady());
        form.field->beginEditing();
        QTest::keyClicks(form.focus(), u"640"_s);
        QSignalSpy action(form.field, &ZKTextField::action);
        QString sent;
        connect(form.field, &ZKTextField::action, form.field, [&](ZKTextField *sender) { sent = sender->string(); });
        QTest::keyClick(form.focus(), key, modifier);
        QCOMPARE(action.count(), 1);
        QCOMPARE(sent, u"640"_s);
        QVERIFY(!form.field->isEditing());
        QCOMPARE(form.focus(), form.field);
        form.after->setFocus();
        QCOMPARE(action.count(), 1);
    }

    void typingAfterReturnEditsAgain()
    {
        Form form;
        QVERIFY(form.isReady());
        form.field->beginEditing();
        QTest::keyClicks(form.focus(), u"1"_s);
        QTest::keyClick(form.focus(), Qt::Key_Return);
        QTest::keyClicks(form.focus(), u"2"_s);
        QVERIFY(form.field->isEditing());
        QCOMPARE(form.field->string(), u"12"_s);
    }

    void mayBeDeletedByItsAction()
    {
        auto *field = new ZKTextField;
        field->beginEditing();
        const QPointer<ZKTextField> alive(field);
        connect(field, &ZKTextField::action, this, [field] { field->deleteLater(); });
        QTest::keyClick(field->currentFieldEditor(), Qt::Key_Return);
        QTRY_VERIFY(alive.isNull());
    }

    void tabMovesOnWithoutTheAction_data()
    {
        QTest::addColumn<bool>("forward");
        QTest::newRow("tab") << true;
        QTest::newRow("backtab") << false;
    }
    void tabMovesOnWithoutTheAction()
    {
        QFETCH(bool, forward);
        Form form;
        QVERIFY(form.isReady());
        QSignalSpy action(form.field, &ZKTextField::action);
        form.field->beginEditing();
        QTest::keyClicks(form.focus(), u"9"_s);
        QTest::keyClick(form.focus(), forward ? Qt::Key_Tab : Qt::Key_Backtab);
        QCOMPARE(action.count(), 0);
        QVERIFY(!form.field->isEditing());
        QCOMPARE(form.field->string(), u"9"_s);
        ZKTextField *next = forward ? form.after : form.before;
        QVERIFY(next->isEditing());
        QCOMPARE(form.focus(), static_cast<QWidget *>(next->currentFieldEditor()));
    }

    void onlyOneFieldIsEdited()
    {
        Form form;
        QVERIFY(form.isReady());
        form.before->beginEditing();
        form.field->beginEditing();
        QVERIFY(!form.before->isEditing());
        QVERIFY(form.field->isEditing());
    }

    void continuous_data()
    {
        QTest::addColumn<bool>("continuous");
        QTest::addColumn<QStringList>("sent");
        QTest::newRow("continuous sends every change") << true << QStringList{u"1"_s, u"12"_s, u"1"_s};
        QTest::newRow("else none") << false << QStringList();
    }
    void continuous()
    {
        QFETCH(bool, continuous);
        ZKTextField field;
        field.setContinuous(continuous);
        QStringList sent;
        connect(&field, &ZKTextField::action, &field, [&](ZKTextField *sender) { sent << sender->string(); });
        field.setString(u""_s);
        QTest::keyClicks(&field, u"1"_s);
        QTest::keyClicks(field.currentFieldEditor(), u"2"_s);
        QTest::keyClick(field.currentFieldEditor(), Qt::Key_Backspace);
        QTEST(sent, "sent");
        field.setString(u"set by code"_s);
        QTEST(sent, "sent");
        QCOMPARE(field.currentFieldEditor()->text(), u"set by code"_s);
    }

    void editsLikeALineOfText()
    {
        Form form;
        QVERIFY(form.isReady());
        form.field->beginEditing();
        QLineEdit *editor = form.field->currentFieldEditor();
        QTest::keyClicks(editor, u"hello"_s);
        QTest::keySequence(editor, QKeySequence::SelectAll);
        QTest::keySequence(editor, QKeySequence::Copy);
        QCOMPARE(QApplication::clipboard()->text(), u"hello"_s);
        QTest::keySequence(editor, QKeySequence::Cut);
        QCOMPARE(form.field->string(), QString());
        QTest::keySequence(editor, QKeySequence::Paste);
        QTest::keySequence(editor, QKeySequence::Paste);
        QCOMPARE(form.field->string(), u"hellohello"_s);
        QTest::keySequence(editor, QKeySequence::Undo);
        QCOMPARE(form.field->string(), u"hello"_s);
        QTest::keySequence(editor, QKeySequence::Redo);
        QCOMPARE(form.field->string(), u"hellohello"_s);
        QTest::keySequence(editor, QKeySequence::Undo);
        QCOMPARE(form.field->string(), u"hello"_s);
        QInputMethodEvent compose(u"ka"_s, {});
        QCoreApplication::sendEvent(editor, &compose);
        QCOMPARE(form.field->string(), u"hello"_s);
        QInputMethodEvent commit;
        commit.setCommitString(u"か"_s);
        QCoreApplication::sendEvent(editor, &commit);
        QCOMPARE(form.field->string(), u"helloか"_s);
    }

    void mouseDownPlacesTheCursorAndSelects()
    {
        Form form;
        QVERIFY(form.isReady());
        form.field->setString(u"0000000000"_s);
        const int advance = QFontMetrics(form.field->stringAttributes().font).horizontalAdvance(u'0');
        const int middle = form.field->height() / 2;
        QTest::mousePress(form.field, Qt::LeftButton, {}, QPoint(4 + 3 * advance, middle));
        QVERIFY(form.field->isEditing());
        QCOMPARE(form.field->currentFieldEditor()->cursorPosition(), 3);
        const QPointF end(4 + 7 * advance, middle);
        QMouseEvent move(QEvent::MouseMove, end, form.field->mapToGlobal(end), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(form.field, &move);
        QTest::mouseRelease(form.field, Qt::LeftButton, {}, end.toPoint());
        QCOMPARE(form.field->currentFieldEditor()->selectedText().size(), 4);
    }

    void secureNeverShowsNorCopies()
    {
        Form form;
        QVERIFY(form.isReady());
        QApplication::clipboard()->setText(u"nothing"_s);
        form.field->setSecure(true);
        form.field->setString(u"secret"_s);
        const QImage secret = pictureOf(form.field);
        form.field->setString(u"hidden"_s);
        QCOMPARE(pictureOf(form.field), secret);
        form.field->setString(u"secret"_s);
        form.field->beginEditing();
        QLineEdit *editor = form.field->currentFieldEditor();
        QCOMPARE(editor->displayText(), QString(6, QChar(0x2022)));
        QTest::keyClick(editor, Qt::Key_End);
        QTest::keyClicks(editor, u"x"_s);
        QCOMPARE(editor->displayText(), QString(7, QChar(0x2022)));
        QTest::keySequence(editor, QKeySequence::SelectAll);
        QTest::keySequence(editor, QKeySequence::Copy);
        QTest::keySequence(editor, QKeySequence::Cut);
        QCOMPARE(QApplication::clipboard()->text(), u"nothing"_s);
        QCOMPARE(form.field->string(), u"secretx"_s);
        QVERIFY(editor->inputMethodHints() & Qt::ImhHiddenText);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(form.field);
        QCOMPARE(accessible->text(QAccessible::Value), QString(7, QChar(0x2022)));
        QCOMPARE(accessible->textInterface()->text(0, 7), QString(7, QChar(0x2022)));
        QVERIFY(accessible->state().passwordEdit);
        QVERIFY(!form.field->encodeWithCoder().contains(u"string"_s));
    }

    void responders_data()
    {
        QTest::addColumn<bool>("editable");
        QTest::addColumn<bool>("selectable");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("accepts");
        QTest::addColumn<QString>("typed");
        QTest::newRow("editable") << true << true << true << true << u"a"_s;
        QTest::newRow("selectable only") << false << true << true << true << u""_s;
        QTest::newRow("editable only") << true << false << true << true << u"a"_s;
        QTest::newRow("neither") << false << false << true << false << u""_s;
        QTest::newRow("disabled") << true << true << false << false << u""_s;
    }
    void responders()
    {
        QFETCH(bool, editable);
        QFETCH(bool, selectable);
        QFETCH(bool, enabled);
        QFETCH(bool, accepts);
        ZKTextField field;
        field.setEditable(editable);
        field.setSelectable(selectable);
        field.setEnabled(enabled);
        QCOMPARE(field.acceptsFirstResponder(), accepts);
        field.beginEditing();
        QCOMPARE(field.isEditing(), accepts);
        if (accepts)
            QTest::keyClicks(field.currentFieldEditor(), u"a"_s);
        QTEST(field.string(), "typed");
    }

    void disablingEndsEditing()
    {
        ZKTextField field;
        field.beginEditing();
        field.setEnabled(false);
        QVERIFY(!field.isEditing());
    }

    void becomingSecureEndsEditing()
    {
        ZKTextField field;
        field.beginEditing();
        QTest::keyClicks(field.currentFieldEditor(), u"pw"_s);
        field.setSecure(true);
        QVERIFY(!field.isEditing());
        QCOMPARE(field.string(), u"pw"_s);
    }

    void doubleClickSelectsTheWord_data()
    {
        QTest::addColumn<bool>("edited");
        QTest::newRow("the first press begins to edit") << false;
        QTest::newRow("while editing") << true;
    }
    void doubleClickSelectsTheWord()
    {
        QFETCH(bool, edited);
        Form form;
        QVERIFY(form.isReady());
        form.field->setString(u"one two"_s);
        if (edited)
            form.field->beginEditing();
        const QPoint onTheFirstWord = form.field->mapTo(&form.window, QPoint(10, form.field->height() / 2));
        QTest::mouseDClick(form.window.windowHandle(), Qt::LeftButton, {}, onTheFirstWord);
        QVERIFY(form.field->isEditing());
        QCOMPARE(form.field->currentFieldEditor()->selectedText(), u"one"_s);
    }

    void aDroppedFileIsForWhatLiesBelow()
    {
        ZKTextField field;
        field.resize(200, 24);
        QMimeData data;
        data.setUrls({QUrl(u"file:///tmp/icon.png"_s)});
        data.setText(u"/tmp/icon.png"_s);
        QDragEnterEvent drag(QPoint(50, 12), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&field, &drag);
        QVERIFY(!drag.isAccepted());
        QDropEvent drop(QPointF(50, 12), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&field, &drop);
        QCOMPARE(field.string(), QString());
    }

    void droppedTextIsInserted()
    {
        ZKTextField field;
        field.resize(200, 24);
        field.setString(u"ab"_s);
        QMimeData data;
        data.setText(u"12"_s);
        QDragEnterEvent enter(QPoint(150, 12), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&field, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(150, 12), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&field, &drop);
        QCOMPARE(field.string(), u"ab12"_s);
    }
};

QTEST_MAIN(TextFieldEditingTest)
#include "TextFieldEditingTest.moc"
