// SPDX-License-Identifier: MIT
#pragma once

#include "icons/IconsViewController.h"
#include "icons/pane/EntryField.h"
#include "icons/pane/IconView.h"
#include "icons/pane/PreviewTile.h"
#include "icons/pane/ProjectQuestion.h"
#include "icons/pane/SetGeneration.h"
#include "icons/pane/SnippetBox.h"
#include "icons/pane/SourceWell.h"
#include "icons/pane/TodayIconPane.h"
#include "icons/pane/TodayIcons.h"
#include "resources/Resources.h"
#include "tests/doubles/HeldFiles.h"
#include "tests/doubles/RecordingServices.h"
#include "tool/JobResultView.h"
#include "widgets/buttons/CheckboxButton.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/buttons/ImageButton.h"
#include "widgets/popover/SFBPopover.h"

#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace lumora
{

/// The icon tool with its side of today in view, with recording services.
struct TodayIconScene
{
    explicit TodayIconScene(std::shared_ptr<const FileReader> reader = nullptr)
        : services(servicesOver(std::move(reader))), tool(services.services())
    {
        window.resize(900, 660);
        tool.view()->setParent(&window);
        tool.view()->setGeometry(65, 60, 835, 600);
        tool.popupView()->setAnimates(false);
        tool.sides()->show(ToolSide::Today);
        window.show();
    }
    static RecordingServices servicesOver(std::shared_ptr<const FileReader> reader)
    {
        RecordingServices services;
        if (reader)
            services.fileReader = std::move(reader);
        return services;
    }
    TodayIconPane *pane() const { return tool.today()->pane(); }
    QString popupTitle() const
    {
        return tool.popupView()->isVisible() ? tool.popupContentView()->titleLabel()->text() : QString();
    }
    QString popupMessage() const { return tool.popupContentView()->messageLabel()->text(); }
    /// The question about a project, null while none is asked.
    static ProjectQuestion *question()
    {
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *question = window->findChild<ProjectQuestion *>(); question != nullptr && window->isVisible())
                return question;
        }
        return nullptr;
    }
    /// Does it and waits until everything is drawn as it then is.
    template <typename Change> bool drawnAfter(Change change)
    {
        QSignalSpy shown(tool.today(), &TodayIcons::previewsShown);
        change();
        return shown.wait();
    }
    /// Presses "Generate", confirms the folder, and waits for the end of the run.
    bool generateInto(const QString &folder)
    {
        QSignalSpy ended(tool.today()->generation(), &SetGeneration::ended);
        pane()->generateButton()->click();
        services.folderChooser.confirm(folder);
        return ended.wait(60000);
    }

    RecordingServices services;
    QWidget window;
    IconsViewController tool;
};

/// A filled circle on a ground; no ground is transparency.
inline QImage disk(int edge, const QColor &color, const QColor &ground = Qt::transparent)
{
    QImage picture(edge, edge, QImage::Format_ARGB32);
    picture.fill(ground);
    QPainter painter(&picture);
    painter.setBrush(color);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(picture.rect().adjusted(edge / 8, edge / 8, -edge / 8, -edge / 8));
    return picture;
}

inline QString saved(const QTemporaryDir &folder, const QString &name, const QImage &picture)
{
    const QString path = folder.filePath(name);
    return picture.save(path, "PNG") ? path : QString();
}

} // namespace lumora
