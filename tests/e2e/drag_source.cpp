// SPDX-License-Identifier: MIT
// A window for dragging files, or a color without any file: drag_source copy,move,link FILE...|#RRGGBB  Prints the
// operation when the drag has ended, and keeps running to provide its data, which the receiver fetches after that.
#include <QApplication>
#include <QColor>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPalette>
#include <QTextStream>
#include <QUrl>
#include <QWidget>

namespace
{

Qt::DropActions actionsNamed(const QString &names)
{
    Qt::DropActions actions;
    actions.setFlag(Qt::CopyAction, names.contains(QStringLiteral("copy")));
    actions.setFlag(Qt::MoveAction, names.contains(QStringLiteral("move")));
    actions.setFlag(Qt::LinkAction, names.contains(QStringLiteral("link")));
    return actions;
}

class Source final : public QWidget
{
public:
    Source(Qt::DropActions actions, QList<QUrl> files, QColor color)
        : m_actions(actions), m_files(std::move(files)), m_color(color)
    {
        resize(120, 120);
        // Found by its color if windows have no ids.
        setAutoFillBackground(true);
        setPalette(QPalette(Qt::magenta));
    }

protected:
    void mouseMoveEvent(QMouseEvent *) override
    {
        auto *drag = new QDrag(this);
        auto *content = new QMimeData;
        if (m_color.isValid())
            content->setColorData(m_color);
        else
            content->setUrls(m_files);
        drag->setMimeData(content);
        const Qt::DropAction chosen = drag->exec(m_actions, Qt::CopyAction);
        QTextStream(stdout) << "dropped as " << static_cast<int>(chosen) << Qt::endl;
    }

private:
    Qt::DropActions m_actions;
    QList<QUrl> m_files;
    QColor m_color;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        return 2;
    QList<QUrl> files;
    QColor color;
    for (const QString &file : arguments.sliced(2)) {
        if (file.startsWith(u'#'))
            color = QColor(file);
        else
            files << QUrl::fromLocalFile(file);
    }
    Source source(actionsNamed(arguments.at(1)), files, color);
    source.show();
    return QApplication::exec();
}
