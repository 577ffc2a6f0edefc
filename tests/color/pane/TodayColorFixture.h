// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorViewController.h"
#include "color/WellColor.h"
#include "color/pane/CodeField.h"
#include "color/pane/TodayColorPane.h"
#include "color/pane/TodayColors.h"
#include "color/picker/BFPopoverColorWell.h"
#include "tests/doubles/RecordingServices.h"
#include "widgets/popover/SFBPopover.h"

#include <QTest>

namespace lumora
{

/// A color tool in a window, with today's side in view.
class TodayColorFixture : public QObject
{
protected:
    std::unique_ptr<RecordingServices> m_services;
    std::unique_ptr<ColorViewController> m_controller;

    TodayColorPane *pane() { return m_controller->today()->pane(); }
    CodeField *field() { return pane()->field(); }
    QString code() { return hex8Of(m_controller->today()->color()); }
    QStringList palette()
    {
        QStringList codes;
        for (const PaletteColor &entry : m_controller->today()->palette())
            codes << hex8Of(entry.color);
        return codes;
    }
    void type(const QString &text)
    {
        field()->setFocus();
        field()->selectAll();
        QTest::keyClicks(field(), text);
    }
    void press(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }
    static void pick(ColorWell *well, const RgbaColor &color)
    {
        well->setColor(color);
        emit well->colorPicked(well);
    }

    void make()
    {
        m_controller = std::make_unique<ColorViewController>(m_services->services());
        m_controller->view()->resize(835, 600);
        m_controller->view()->show();
        m_controller->view()->activateWindow();
        m_controller->popupView()->setAnimates(false);
        QVERIFY(QTest::qWaitForWindowActive(m_controller->view()));
        QVERIFY(pane() == nullptr);
        m_controller->sides()->show(ToolSide::Today);
        QVERIFY(pane()->isVisible());
    }

    void start()
    {
        m_services = std::make_unique<RecordingServices>();
        make();
    }
    void end()
    {
        m_controller.reset();
        m_services.reset();
    }
};

} // namespace lumora
