// SPDX-License-Identifier: MIT
// Linked into a program, this ends it as soon as its first window has drawn its first frame; bench/compare-start
// measures that time from outside.
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <unistd.h>

namespace
{

class FirstFrame final : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = event->type() == QEvent::Paint ? qobject_cast<QWidget *>(watched) : nullptr;
        if (widget != nullptr && widget->isWindow() && !m_seen) {
            m_seen = true;
            // Queued, to run after the flush of the current frame.
            QTimer::singleShot(0, this, [] { ::_exit(0); });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_seen = false;
};

void watchFirstFrame()
{
    QCoreApplication *application = QCoreApplication::instance();
    application->installEventFilter(new FirstFrame(application));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchFirstFrame)
