// SPDX-License-Identifier: MIT
#include "StandardTitleBar.h"

#include "widgets/style/NamedImage.h"

#include <QApplication>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace lumora
{

const StandardTitleBar &standardTitleBar()
{
    static const StandardTitleBar measured = [] {
        const QStyle *style = QApplication::style();
        const qreal button = NamedImage(u"window_close_active"_s).size().height();
        StandardTitleBar standard{};
        // A style may have no title bars, but a button must fit.
        standard.height = qMax<qreal>(style->pixelMetric(QStyle::PM_TitleBarHeight), button);
        // As far from the side as from the top.
        standard.trafficLightButtonsLeftMargin = qMax((standard.height - button) / 2, button / 2);
        standard.trafficLightSeparation = button / 2;
        standard.fullScreenButtonRightMargin = standard.trafficLightButtonsLeftMargin;
        return standard;
    }();
    return measured;
}

} // namespace lumora
