// SPDX-License-Identifier: MIT
#include "ProjectQuestion.h"

#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "widgets/buttons/IconButton.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QShortcut>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int margin = 20;
constexpr int gap = 10;
constexpr int leastWidth = 480;
constexpr int listHeight = 180;
constexpr int rowSpacing = 2;
constexpr int buttonHeight = 36;
constexpr int buttonPadding = 12;

/// In the order of `FileChange`.
constexpr std::array<const char *, 4> changeKeys = {"ICONS_CHANGE_NEW", "ICONS_CHANGE_REPLACED",
                                                    "ICONS_CHANGE_UNCHANGED", "ICONS_CHANGE_REMOVED"};

QString titleOf(const QList<RecognizedProject> &projects)
{
    QStringList kinds;
    for (const RecognizedProject &project : projects)
        kinds << QLatin1StringView(infoOf(project.kind).name);
    kinds.removeDuplicates();
    return qtTrId("ICONS_PROJECT_TITLE").replace("[KIND]"_L1, kinds.join(u", "_s));
}

QString questionOf(qsizetype files)
{
    return files == 1 ? qtTrId("ICONS_PROJECT_QUESTION_ONE")
                      : qtTrId("ICONS_PROJECT_QUESTION").replace("[COUNT]"_L1, QString::number(files));
}

/// "12 new, 40 replaced, 6 unchanged"
QString countsOf(const QList<ProjectFile> &files)
{
    QStringList counts;
    for (std::size_t change = 0; change < changeKeys.size(); ++change) {
        const qsizetype count = std::count_if(files.begin(), files.end(), [change](const ProjectFile &file) {
            return file.change == static_cast<FileChange>(change);
        });
        if (count > 0)
            counts << QString::number(count) + u' ' + qtTrId(changeKeys[change]);
    }
    return counts.join(u", "_s);
}

IconButton *makeButton(const QString &text, bool isDefault)
{
    auto *button = new IconButton;
    styleButton(button, text, QString(), isDefault ? palette::linkText : palette::chromeText,
                isDefault ? palette::chromeText : palette::chromeTextDark);
    button->setFixedSize(button->sizeHint().width() + 2 * buttonPadding, buttonHeight);
    return button;
}

} // namespace

ProjectQuestion::ProjectQuestion(const QList<RecognizedProject> &projects, const QList<ProjectFile> &files)
    : m_list(new QListWidget), m_intoProject(makeButton(qtTrId("ICONS_INTO_PROJECT"), true)),
      m_ownFolder(makeButton(qtTrId("ICONS_OWN_FOLDER"), false)), m_cancel(makeButton(qtTrId("CANCEL"), false))
{
    setAccessibleName(titleOf(projects));
    auto *title = new QLabel(accessibleName());
    styleLabel(title, latoBold(15), palette::chromeText);
    auto *question = new QLabel(questionOf(files.size()) + u"\n("_s + countsOf(files) + u')');
    styleLabel(question, latoRegular(13), palette::chromeText);
    question->setWordWrap(true);
    setAccessibleDescription(question->text());
    for (const ProjectFile &file : files)
        m_list->addItem(qtTrId(changeKeys[static_cast<std::size_t>(file.change)]) + u": "_s + file.path);
    m_list->setFont(latoRegular(12));
    m_list->setFixedHeight(listHeight);
    m_list->setSpacing(rowSpacing);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAccessibleName(qtTrId("ICONS_PROJECT_FILES"));

    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addStretch(1);
    for (IconButton *button : {m_intoProject, m_ownFolder, m_cancel})
        row->addWidget(button);
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(margin, margin, margin, margin);
    lines->setSpacing(gap);
    lines->addWidget(title);
    lines->addWidget(question);
    lines->addWidget(m_list);
    lines->addLayout(row);
    resize(std::max(leastWidth, lines->totalSizeHint().width()), lines->totalSizeHint().height());
    setFocusProxy(m_intoProject);

    connect(m_intoProject, &IconButton::clicked, this, &ProjectQuestion::intoProjectWanted);
    connect(m_ownFolder, &IconButton::clicked, this, &ProjectQuestion::ownFolderWanted);
    connect(m_cancel, &IconButton::clicked, this, &ProjectQuestion::declined);
}

} // namespace lumora
