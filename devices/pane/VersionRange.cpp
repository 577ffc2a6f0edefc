// SPDX-License-Identifier: MIT
#include "VersionRange.h"

#include "devices/today/ModelChoices.h"
#include "tool/style/LabelStyle.h"
#include "tool/style/SliderStyle.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QCoreApplication>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int titleSize = 15;
constexpr int shareSize = 13;

} // namespace

VersionRange::VersionRange(std::span<const DeviceModel> models, QWidget *parent)
    : QWidget(parent), m_groups(groupedModels(models)), m_versions(majorVersions(models)), m_title(new QLabel(this)),
      m_share(new QLabel(this)), m_from(makeSlider(qtTrId("DEVICES_IOS_FROM"), 0)),
      m_to(makeSlider(qtTrId("DEVICES_IOS_TO"), static_cast<int>(m_versions.size()) - 1))
{
    styleLabel(m_title, latoBold(titleSize), palette::chromeText);
    styleLabel(m_share, latoRegular(shareSize), palette::chromeText);
    m_share->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(4);
    for (QWidget *part : std::initializer_list<QWidget *>{m_title, m_from, m_to, m_share})
        column->addWidget(part);
    // One end takes the other along.
    connect(m_from, &QSlider::valueChanged, this, [this](int value) {
        m_to->setValue(std::max(m_to->value(), value));
        showRange();
        emit changed();
    });
    connect(m_to, &QSlider::valueChanged, this, [this](int value) {
        m_from->setValue(std::min(m_from->value(), value));
        showRange();
        emit changed();
    });
    showRange();
}

QSlider *VersionRange::makeSlider(const QString &name, int value)
{
    auto *slider = new QSlider(Qt::Horizontal, this);
    slider->setAccessibleName(name);
    slider->setToolTip(name);
    slider->setRange(0, static_cast<int>(m_versions.size()) - 1);
    slider->setPageStep(3);
    slider->setValue(value);
    styleSlider(slider, palette::devices);
    return slider;
}

void VersionRange::apply(ModelFilter &filter) const
{
    filter.iosFrom.reset();
    filter.iosTo.reset();
    if (m_from->value() > m_from->minimum())
        filter.iosFrom = m_versions[static_cast<std::size_t>(m_from->value())];
    if (m_to->value() < m_to->maximum())
        filter.iosTo = m_versions[static_cast<std::size_t>(m_to->value())];
}

void VersionRange::reset()
{
    m_from->setValue(m_from->minimum());
    m_to->setValue(m_to->maximum());
}

void VersionRange::require(const ModelFilter &filter)
{
    reset();
    if (!filter.iosFrom)
        return;
    for (std::size_t index = 0; index < m_versions.size(); ++index) {
        if (m_versions[index].major() <= filter.iosFrom->major())
            m_from->setValue(static_cast<int>(index));
    }
}

void VersionRange::showRange()
{
    const auto version = [this](const QSlider *slider) {
        return versionText(m_versions[static_cast<std::size_t>(slider->value())]);
    };
    m_title->setText(
        qtTrId("DEVICES_IOS_RANGE").replace("[FROM]"_L1, version(m_from)).replace("[TO]"_L1, version(m_to)));
    // The sliders' own values are places in the list; a screen reader needs the versions.
    m_from->setAccessibleDescription(u"iOS "_s + version(m_from));
    m_to->setAccessibleDescription(u"iOS "_s + version(m_to));
    ModelFilter filter;
    apply(filter);
    const int count = groupsInRange(m_groups, filter);
    const int all = static_cast<int>(m_groups.size());
    m_share->setText(qtTrId("DEVICES_SHARE")
                         .replace("[PERCENT]"_L1, QString::number(all == 0 ? 0 : qRound(100.0 * count / all)))
                         .replace("[COUNT]"_L1, QString::number(count))
                         .replace("[ALL]"_L1, QString::number(all)));
}

} // namespace lumora
