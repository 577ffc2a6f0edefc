// SPDX-License-Identifier: MIT
// A window with a popover that a script drives from outside: by mouse and keys through the window system, and by
// one-word commands on standard input. "report" answers with one line of JSON on standard output; coordinates are on
// screen, in Qt's points.
#include "widgets/popover/SFBPopover.h"
#include "widgets/popover/ScreenCoordinates.h"
#include "widgets/textfield/ZKTextField.h"
#include "widgets/window/INAppStoreWindow.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTextStream>

#include <cstdio>
#include <string>
#include <unistd.h>

using namespace lumora;
using namespace Qt::StringLiterals;

namespace
{

QWidget *block(const QColor &color, QWidget *parent)
{
    auto *widget = new QWidget(parent);
    widget->setAutoFillBackground(true);
    widget->setPalette(color);
    return widget;
}

QJsonArray toJson(const QRect &rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

class AlwaysMiniaturizes final : public DoubleClickPreference
{
public:
    bool miniaturizesOnDoubleClick() const override { return true; }
};

/// Magenta content with a cyan anchor in its middle, a line to type into, and two text fields for dragging text between
/// them; the popover is plain green.
class Probe : public QObject
{
public:
    explicit Probe(const QStringList &options)
        : m_window(QRectF(100, 200, 600, 340)), m_popover(popoverContent(options.contains(u"field"_s)))
    {
        m_window.setTitle(u"Lumora windows probe"_s);
        m_window.setTitleBarHeight(60);
        m_window.setTrafficLightButtonsLeftMargin(60);
        m_window.setMinSize(QSizeF(300, 200));
        m_window.setDoubleClickPreference(std::make_shared<AlwaysMiniaturizes>());
        QWidget *band = block(QColor(52, 152, 219), m_window.titleBarView());
        band->setGeometry(0, 0, 4000, 60);
        auto *title = new QLabel(u"probe"_s, band);
        title->setGeometry(200, 10, 100, 40);

        QWidget *content = block(Qt::magenta, nullptr);
        m_window.setContentView(content);
        m_anchor = new QPushButton(content);
        m_anchor->setFocusPolicy(Qt::NoFocus);
        m_anchor->setGeometry(280, 60, 40, 40);
        m_anchor->setStyleSheet(u"background: cyan; border: none"_s);
        m_field = new QLineEdit(content);
        m_field->setGeometry(20, 20, 150, 30);
        connect(m_anchor, &QPushButton::clicked, this, &Probe::toggle);
        m_source = textField(u"dragged"_s, 70, content);
        m_target = textField({}, 120, content);

        m_popover.setBackgroundColor(Qt::green);
        m_popover.setBorderColor(Qt::green);
        m_popover.setClosesWhenPopoverResignsKey(!options.contains(u"stays"_s));
        m_popover.setAnimates(options.contains(u"animates"_s));
        m_popover.setMovable(options.contains(u"movable"_s));
        m_popover.setResizable(options.contains(u"resizable"_s));
        m_window.show();
        if (options.contains(u"typing"_s))
            m_field->setFocus();

        m_input = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
        connect(m_input, &QSocketNotifier::activated, this, &Probe::read);
    }

private:
    QWidget *popoverContent(bool withField)
    {
        QWidget *content = block(Qt::green, nullptr);
        content->resize(160, 80);
        if (withField) {
            m_popoverField = new QLineEdit(content);
            m_popoverField->setGeometry(10, 10, 140, 30);
        }
        return content;
    }

    static ZKTextField *textField(const QString &text, int y, QWidget *content)
    {
        auto *field = new ZKTextField(content);
        field->setGeometry(20, y, 150, 30);
        field->setString(text);
        return field;
    }

    void toggle()
    {
        if (m_popover.isVisible()) {
            m_popover.closePopover();
            return;
        }
        if (m_popover.position() == PopoverPosition::Below) {
            m_popover.displayPopover({m_anchor, Qt::BottomEdge, 0, {}});
            return;
        }
        // A position that was set stays with a bare point: the middle of the anchor's lower edge, y upwards.
        const QPoint inWindow = m_anchor->mapTo(&m_window, QPoint(20, 40));
        m_popover.displayPopoverInWindow(&m_window, QPointF(inWindow.x(), m_window.height() - inWindow.y()));
    }

    void read()
    {
        char buffer[256];
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0) {
            QApplication::quit();
            return;
        }
        m_pending.append(buffer, static_cast<size_t>(count));
        for (size_t end = m_pending.find('\n'); end != std::string::npos; end = m_pending.find('\n')) {
            obey(QString::fromStdString(m_pending.substr(0, end)));
            m_pending.erase(0, end + 1);
        }
    }

    void obey(const QString &command)
    {
        if (command == u"popover"_s)
            toggle();
        else if (command == u"above"_s)
            m_popover.setPosition(PopoverPosition::Above);
        else if (command == u"shift"_s)
            shift();
        else if (command == u"fullscreen"_s)
            m_window.toggleFullScreen();
        else if (command == u"report"_s)
            report();
    }

    /// Moves the anchor, as a layout would after a resize of the window.
    void shift()
    {
        m_window.resize(m_window.size() + QSize(100, 50));
        m_anchor->move(m_anchor->pos() + QPoint(70, 30));
    }

    void report()
    {
        const QPointF tip = flippedOnScreen(m_popover.popoverWindow()->attachmentPoint());
        const QWidget *focus = QApplication::focusWidget();
        const QJsonObject state{
            {u"window"_s, toJson(m_window.geometry())},
            {u"anchor"_s, toJson(QRect(m_anchor->mapToGlobal(QPoint()), m_anchor->size()))},
            {u"minimized"_s, m_window.isMinimized()},
            {u"maximized"_s, m_window.isMaximized()},
            {u"fullscreen"_s, m_window.isFullScreen()},
            {u"main"_s, m_window.isMainWindow()},
            {u"menu"_s, QApplication::activePopupWidget() != nullptr},
            {u"popover"_s, m_popover.isVisible()},
            {u"popoverFrame"_s, toJson(flippedOnScreen(m_popover.popoverWindow()->frame()).toRect())},
            {u"tip"_s, QJsonArray{tip.x(), tip.y()}},
            {u"field"_s, m_field->text()},
            {u"source"_s, m_source->string()},
            {u"target"_s, m_target->string()},
            {u"popoverField"_s, m_popoverField ? m_popoverField->text() : QString()},
            {u"focus"_s, focus == m_field                   ? u"field"_s
                         : focus && focus == m_popoverField ? u"popoverField"_s
                                                            : u""_s},
        };
        std::puts(QJsonDocument(state).toJson(QJsonDocument::Compact).constData());
        std::fflush(stdout);
    }

    INAppStoreWindow m_window;
    QLineEdit *m_popoverField = nullptr;
    SFBPopover m_popover;
    QPushButton *m_anchor = nullptr;
    QLineEdit *m_field = nullptr;
    ZKTextField *m_source = nullptr;
    ZKTextField *m_target = nullptr;
    QSocketNotifier *m_input = nullptr;
    std::string m_pending;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const Probe probe(QApplication::arguments());
    return QApplication::exec();
}
