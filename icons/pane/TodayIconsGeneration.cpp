// SPDX-License-Identifier: MIT
// The icon tool's side of today: the way from the button to the written sets.
#include "EntryField.h"
#include "ProjectQuestion.h"
#include "SetGeneration.h"
#include "TodayIconPane.h"
#include "TodayIcons.h"
#include "tool/FailureText.h"
#include "tool/JobResultView.h"
#include "tool/QuestionPopover.h"
#include "widgets/buttons/HoverButton.h"
#include "widgets/popover/SFBPopover.h"
#include "widgets/style/Palette.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumora
{

void TodayIcons::connectRun()
{
    connect(m_pane->generateButton(), &HoverButton::clicked, this, &TodayIcons::generate);
    connect(m_pane->cancelButton(), &HoverButton::clicked, m_generation, &SetGeneration::cancel);
    connect(m_generation, &SetGeneration::progressed, m_pane, &TodayIconPane::showProgress);
    connect(m_generation, &SetGeneration::ended, m_pane, [this](const JobResult &result) {
        runEnded();
        m_pane->result()->setResult(result);
    });
    connect(m_generation, &SetGeneration::refused, m_pane, [this](const Failure &failure) {
        runEnded();
        if (failure.code == FailureCode::HasTransparency)
            refuseTransparency();
        else
            emit messageWanted(qtTrId("RESULT_FAILURES"), failureLines({failure}, {}).join(u'\n'),
                               m_pane->generateButton(), true);
    });
}

void TodayIcons::generate()
{
    const QList<TodaySet> sets = m_pane->chosenSets();
    if (m_generation->isRunning())
        return;
    if (sets.isEmpty()) {
        emit messageWanted(qtTrId("ICONS_NO_PLATFORM_ALERT_TITLE"), qtTrId("ICONS_NO_PLATFORM_ALERT_MESSAGE"),
                           m_pane->generateButton(), true);
        return;
    }
    if (m_pane->nameField()->isRefused()) {
        emit messageWanted(qtTrId("ICONS_APP_NAME"), m_pane->nameField()->accessibleDescription(), m_pane->nameField(),
                           true);
        return;
    }
    // Known before the user chooses a folder; where it is not yet, the run finds out.
    const bool forbidsTransparency = std::any_of(sets.begin(), sets.end(), [](TodaySet set) {
        return set == TodaySet::Ios || set == TodaySet::WatchOs || set == TodaySet::Adaptive;
    });
    if (forbidsTransparency && m_isOpaque == false && !m_sources.flatten) {
        refuseTransparency();
        return;
    }
    m_services.folderChooser.chooseFolder(
        m_pane->window(), {qtTrId("ICONS_DESTINATION_TODAY"), m_savePath.isEmpty() ? m_browsePath : m_savePath},
        [this](const QString &folder) { begin(folder); });
}

void TodayIcons::refuseTransparency()
{
    emit messageWanted(qtTrId("ICONS_TRANSPARENT_TITLE"), qtTrId("ICONS_TRANSPARENT_MESSAGE"), m_pane->flattenField(),
                       true);
}

void TodayIcons::begin(const QString &folder)
{
    if (m_generation->isRunning())
        return;
    m_savePath = folder;
    m_pane->result()->clear();
    m_pane->setRunning(true);
    m_generation->start({m_sources, derived(), m_pane->chosenSets(), options(), folder});
}

void TodayIcons::ask(const ProjectOffer &offer)
{
    m_question = new ProjectQuestion(offer.projects, offer.files);
    m_popover = makeQuestionPopover(m_question);
    connect(m_question, &ProjectQuestion::intoProjectWanted, m_generation, &SetGeneration::writeIntoProject);
    connect(m_question, &ProjectQuestion::ownFolderWanted, m_generation, &SetGeneration::writeIntoOwnFolder);
    connect(m_question, &ProjectQuestion::declined, m_generation, &SetGeneration::cancel);
    for (const auto answer :
         {&ProjectQuestion::intoProjectWanted, &ProjectQuestion::ownFolderWanted, &ProjectQuestion::declined})
        connect(m_question, answer, this, &TodayIcons::closeQuestion);
    // Escape closes it without an answer.
    connect(m_popover.get(), &SFBPopover::closing, this, [this] {
        if (m_question)
            m_generation->cancel();
    });
    if (m_pane->isVisible())
        showQuestion();
    emit attentionWanted();
}

void TodayIcons::showQuestion()
{
    if (m_question && m_popover != nullptr && !m_popover->isVisible())
        m_popover->displayPopover({m_pane->cancelButton(), Qt::BottomEdge, 0, {}});
}

void TodayIcons::closeQuestion()
{
    m_question = nullptr;
    retirePopover(std::move(m_popover));
}

void TodayIcons::runEnded()
{
    closeQuestion();
    m_pane->setRunning(false);
    emit attentionWanted();
}

} // namespace lumora
