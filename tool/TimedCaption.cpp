// SPDX-License-Identifier: MIT
#include "TimedCaption.h"

namespace lumora
{

TimedCaption::TimedCaption(SetCaption setCaption, QString restCaption, QObject *parent)
    : QObject(parent), m_setCaption(std::move(setCaption)), m_restCaption(std::move(restCaption))
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(duration);
    connect(&m_timer, &QTimer::timeout, this, [this] { m_setCaption(m_restCaption); });
    m_setCaption(m_restCaption);
}

void TimedCaption::show(const QString &caption)
{
    m_timer.stop();
    m_setCaption(caption);
}

void TimedCaption::showForAWhile(const QString &caption)
{
    m_setCaption(caption);
    m_timer.start();
}

} // namespace lumora
