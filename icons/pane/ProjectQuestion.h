// SPDX-License-Identifier: MIT
#pragma once

#include "icons/project/ProjectRecognition.h"
#include "icons/project/ProjectWriter.h"

#include <QWidget>

#include <memory>

class QListWidget;

namespace lumora
{

class IconButton;
class SFBPopover;

/// Asks whether the files go into the projects that were found, in a popup with the list of what becomes of each file.
/// Escape declines both.
class ProjectQuestion final : public QWidget
{
    Q_OBJECT

public:
    ProjectQuestion(const QList<RecognizedProject> &projects, const QList<ProjectFile> &files);

    QString title() const { return accessibleName(); }
    QListWidget *list() const { return m_list; }
    IconButton *intoProjectButton() const { return m_intoProject; }
    IconButton *ownFolderButton() const { return m_ownFolder; }
    IconButton *cancelButton() const { return m_cancel; }

signals:
    void intoProjectWanted();
    void ownFolderWanted();
    void declined();

private:
    QListWidget *m_list;
    IconButton *m_intoProject;
    IconButton *m_ownFolder;
    IconButton *m_cancel;
};

} // namespace lumora
