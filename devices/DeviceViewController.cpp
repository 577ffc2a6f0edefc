// SPDX-License-Identifier: MIT
#include "DeviceViewController.h"

#include "DeviceViews.h"
#include "devices/pane/ModelFilterView.h"
#include "devices/pane/TodayDevicePane.h"
#include "devices/today/ModelList.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "ui_DeviceViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QLabel>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr int sectionFontSize = 18;
constexpr int groupFontSize = 15;
constexpr int countFontSize = 13;

QString text(std::string_view view)
{
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

DevicePlacement inRow(const DeviceRecord &, int index)
{
    return placeInRow(index);
}

} // namespace

DeviceViewController::DeviceViewController(const Services &services, QObject *parent)
    : ToolViewController(services, parent), m_ui(std::make_unique<Ui::DeviceViewController>())
{
    m_ui->setupUi(view());
    setUpSections();
    setUpControls();
    setupData();
    setupFilterDict();
    createiPhoneList();
    createiPodList();
    createiPadList();
    showCount();
    addToday([this](QWidget *pane) {
        m_today = new TodayDevicePane(builtInModels(), pane);
        connect(m_today, &TodayDevicePane::copied, this,
                [this](const QString &text) { this->services().clipboard.setText(text); });
        if (const auto wanted = std::exchange(m_wanted, {}))
            m_today->filters()->require(*wanted);
        return m_today;
    });
    createPopup();
}

DeviceViewController::~DeviceViewController() = default;

void DeviceViewController::showModels(const ModelFilter &filter)
{
    m_wanted = filter;
    sides()->show(ToolSide::Today);
    if (m_today == nullptr)
        return;
    m_wanted.reset();
    m_today->filters()->require(filter);
}

void DeviceViewController::setUpSections()
{
    const auto section = [](QLabel *label, int fontSize, const QString &title) {
        styleLabel(label, latoBold(fontSize), palette::devices);
        label->setText(title);
    };
    section(m_ui->iOSLabel, sectionFontSize, qtTrId("DEVICES_IOS"));
    section(m_ui->featuresLabel, sectionFontSize, qtTrId("DEVICES_FEATURES"));
    section(m_ui->iPhoneLabel, groupFontSize, qtTrId("DEVICES_IPHONES"));
    section(m_ui->iPodLabel, groupFontSize, qtTrId("DEVICES_IPODS"));
    section(m_ui->iPadLabel, groupFontSize, qtTrId("DEVICES_IPADS"));
    // Beside the mini, which is alone in its row.
    m_miniLabel = new QLabel(m_ui->iPadContainer);
    section(m_miniLabel, groupFontSize, qtTrId("DEVICES_IPAD_MINI"));
    const QRect mini = placeOfiPad(setupiPads().at(0), 0).picture;
    const int left = placeOfiPad(setupiPads().at(1), 2).picture.left();
    const int height = m_miniLabel->sizeHint().height();
    const int middle = m_ui->iPadContainer->height() - mini.y() - mini.height() / 2;
    m_miniLabel->setGeometry(left, middle - height / 2, m_ui->iPadContainer->width() - left, height);
    // The pictures keep their places in a mirrored window, too.
    m_miniLabel->setAlignment(Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
    styleLabel(m_ui->countLabel, latoBold(countFontSize), palette::chromeText);
}

void DeviceViewController::setUpControls()
{
    styleButton(m_ui->resetButton, qtTrId("RESET"), u"button_icon_reset"_s, palette::devices, palette::devicesBorder);
    connect(m_ui->resetButton, &IconButton::clicked, this, &DeviceViewController::reset);

    using VersionAction = void (DeviceViewController::*)(RadioButton *);
    constexpr std::array<VersionAction, iosChoices.size()> versionActions{
        &DeviceViewController::checkbox_ios4_checked, &DeviceViewController::checkbox_ios5_checked,
        &DeviceViewController::checkbox_ios6_checked, &DeviceViewController::checkbox_ios7_checked};
    const auto radios = radioButtons();
    for (std::size_t index = 0; index < radios.size(); ++index) {
        RadioButton *radio = radios[index];
        radio->setText(text(iosChoices[index].label));
        connect(radio, &RadioButton::clicked, this,
                [this, radio, action = versionActions[index]] { (this->*action)(radio); });
    }

    using FeatureAction = void (DeviceViewController::*)(CheckboxButton *);
    constexpr std::array<FeatureAction, deviceFeatures.size()> featureActions{
        &DeviceViewController::checkbox_retina_checked,      &DeviceViewController::checkbox_multitask_checked,
        &DeviceViewController::checkbox_siri_checked,        &DeviceViewController::checkbox_videorec_checked,
        &DeviceViewController::checkbox_compass_checked,     &DeviceViewController::checkbox_gyroscope_checked,
        &DeviceViewController::checkbox_gps_checked,         &DeviceViewController::checkbox_backcam_checked,
        &DeviceViewController::checkbox_frontcam_checked,    &DeviceViewController::checkbox_flash_checked,
        &DeviceViewController::checkbox_bluetoothle_checked, &DeviceViewController::checkbox_opengl2_checked,
        &DeviceViewController::checkbox_opengl3_checked};
    const auto boxes = checkboxes();
    for (std::size_t index = 0; index < boxes.size(); ++index) {
        CheckboxButton *box = boxes[index];
        box->setText(text(deviceFeatures[index].label));
        connect(box, &CheckboxButton::clicked, this,
                [this, box, action = featureActions[index]] { (this->*action)(box); });
    }
}

std::array<RadioButton *, iosChoices.size()> DeviceViewController::radioButtons() const
{
    return {m_ui->checkbox_ios4, m_ui->checkbox_ios5, m_ui->checkbox_ios6, m_ui->checkbox_ios7};
}

std::array<CheckboxButton *, deviceFeatures.size()> DeviceViewController::checkboxes() const
{
    return {m_ui->checkbox_retina,   m_ui->checkbox_multitask, m_ui->checkbox_siri,        m_ui->checkbox_videorec,
            m_ui->checkbox_compass,  m_ui->checkbox_gyroscope, m_ui->checkbox_gps,         m_ui->checkbox_backcam,
            m_ui->checkbox_frontcam, m_ui->checkbox_flash,     m_ui->checkbox_bluetoothle, m_ui->checkbox_opengl2,
            m_ui->checkbox_opengl3};
}

IconButton *DeviceViewController::resetButton() const
{
    return m_ui->resetButton;
}

QLabel *DeviceViewController::countLabel() const
{
    return m_ui->countLabel;
}

void DeviceViewController::setupData()
{
    m_devices.iPhones = setupiPhones();
    m_devices.iPods = setupiPods();
    m_devices.iPads = setupiPads();
}

void DeviceViewController::setupFilterDict()
{
    m_filterDictionary = {};
}

void DeviceViewController::createiPhoneList()
{
    m_iPhoneViews = DeviceGroup::create(m_devices.iPhones, qtTrId("DEVICES_IPHONES"), inRow, m_ui->iPhoneContainer);
}

void DeviceViewController::createiPodList()
{
    m_iPodViews = DeviceGroup::create(m_devices.iPods, qtTrId("DEVICES_IPODS"), inRow, m_ui->iPodContainer);
}

void DeviceViewController::createiPadList()
{
    m_iPadViews = DeviceGroup::create(m_devices.iPads, qtTrId("DEVICES_IPADS"), placeOfiPad, m_ui->iPadContainer);
}

void DeviceViewController::chooseVersion(float version, RadioButton *sender)
{
    deselectRadioButtons();
    sender->setActive(true);
    m_filterDictionary.setMaxIos(version);
    filter();
}

void DeviceViewController::toggleFeature(std::string_view key, CheckboxButton *sender)
{
    sender->setActive(!sender->isActive());
    checkboxCheckForKey(key, sender);
}

void DeviceViewController::deselectRadioButtons()
{
    for (RadioButton *radio : radioButtons())
        radio->setActive(false);
}

void DeviceViewController::checkboxCheckForKey(std::string_view key, const CheckboxButton *button)
{
    m_filterDictionary.setFeature(key, button->isActive());
    filter();
}

void DeviceViewController::filter()
{
    filterDevices(m_devices, m_filterDictionary);
    showMatches(m_devices.iPhones, m_iPhoneViews);
    showMatches(m_devices.iPods, m_iPodViews);
    showMatches(m_devices.iPads, m_iPadViews);
    showCount();
}

void DeviceViewController::showCount()
{
    std::size_t all = 0;
    std::ptrdiff_t fitting = 0;
    for (const std::vector<DeviceRecord> *devices : {&m_devices.iPhones, &m_devices.iPods, &m_devices.iPads}) {
        all += devices->size();
        fitting += std::count_if(devices->begin(), devices->end(), [](const DeviceRecord &d) { return d.active; });
    }
    m_ui->countLabel->setText(qtTrId("DEVICES_FIT")
                                  .replace("[COUNT]"_L1, QString::number(fitting))
                                  .replace("[ALL]"_L1, QString::number(all)));
}

void DeviceViewController::showMatches(const std::vector<DeviceRecord> &devices, const DeviceGroup &views)
{
    for (std::size_t index = 0; index < devices.size(); ++index) {
        const bool matches = devices[index].active;
        DeviceGroup::describe(views.images[index], matches);
        DeviceGroup::explain(views.images[index], views.labels[index], devices[index],
                             shortfall(devices[index], m_filterDictionary));
        animateView(views.images[index], matches ? 1.0F : fadedAlpha);
        animateView(views.labels[index], matches ? 1.0F : fadedAlpha);
    }
}

void DeviceViewController::animateView(FadingView *view, float toAlphaValue)
{
    view->fadeTo(toAlphaValue);
}

void DeviceViewController::reset()
{
    deselectRadioButtons();
    m_filterDictionary.clear();
    for (QObject *child : view()->children()) {
        if (auto *box = qobject_cast<CheckboxButton *>(child)) {
            box->setActive(false);
            box->setIdle();
        }
    }
    filter();
}

} // namespace lumora
