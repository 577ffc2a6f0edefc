// SPDX-License-Identifier: MIT
#pragma once

#include "DeviceFilter.h"
#include "DeviceGroup.h"
#include "FadingView.h"
#include "today/ModelFilter.h"
#include "tool/ToolViewController.h"

#include <array>
#include <memory>
#include <optional>
#include <vector>

class QLabel;

namespace Ui
{
class DeviceViewController;
}

namespace lumora
{

class CheckboxButton;
class IconButton;
class RadioButton;
class TodayDevicePane;

/// The device matrix: every model as a picture with its label. Models without the chosen iOS version and features are
/// faded.
class DeviceViewController final : public ToolViewController
{
    Q_OBJECT

public:
    /// The opacity of a device that does not match.
    static constexpr float fadedAlpha = 0.25F;

    explicit DeviceViewController(const Services &services, QObject *parent = nullptr);
    ~DeviceViewController() override;

    const std::vector<DeviceRecord> &iPhones() const { return m_devices.iPhones; }
    const std::vector<DeviceRecord> &iPods() const { return m_devices.iPods; }
    const std::vector<DeviceRecord> &iPads() const { return m_devices.iPads; }
    /// Pictures and labels are in the order of their devices.
    const std::vector<DevicePicture *> &iPhonesImages() const { return m_iPhoneViews.images; }
    const std::vector<DevicePicture *> &iPodsImages() const { return m_iPodViews.images; }
    const std::vector<DevicePicture *> &iPadsImages() const { return m_iPadViews.images; }
    const std::vector<DeviceLabel *> &iPhonesLabels() const { return m_iPhoneViews.labels; }
    const std::vector<DeviceLabel *> &iPodsLabels() const { return m_iPodViews.labels; }
    const std::vector<DeviceLabel *> &iPadsLabels() const { return m_iPadViews.labels; }
    const FilterDictionary &filterDictionary() const { return m_filterDictionary; }

    /// In the order of `iosChoices` and `deviceFeatures`.
    std::array<RadioButton *, iosChoices.size()> radioButtons() const;
    std::array<CheckboxButton *, deviceFeatures.size()> checkboxes() const;
    IconButton *resetButton() const;
    /// "5 of 17 models fit".
    QLabel *countLabel() const;
    /// The side of today; null until it is first seen.
    TodayDevicePane *today() const { return m_today; }
    /// Shows the side of today with the filter's requirements.
    void showModels(const ModelFilter &filter);
    QLabel *miniLabel() const { return m_miniLabel; }

    void checkbox_ios4_checked(RadioButton *sender) { chooseVersion(4.0F, sender); }
    void checkbox_ios5_checked(RadioButton *sender) { chooseVersion(5.0F, sender); }
    void checkbox_ios6_checked(RadioButton *sender) { chooseVersion(6.0F, sender); }
    void checkbox_ios7_checked(RadioButton *sender) { chooseVersion(7.0F, sender); }
    void checkbox_retina_checked(CheckboxButton *sender) { toggleFeature("retina", sender); }
    void checkbox_multitask_checked(CheckboxButton *sender) { toggleFeature("multitask", sender); }
    void checkbox_siri_checked(CheckboxButton *sender) { toggleFeature("siri", sender); }
    void checkbox_videorec_checked(CheckboxButton *sender) { toggleFeature("video_rec", sender); }
    void checkbox_compass_checked(CheckboxButton *sender) { toggleFeature("compass", sender); }
    void checkbox_gyroscope_checked(CheckboxButton *sender) { toggleFeature("gyroscope", sender); }
    void checkbox_gps_checked(CheckboxButton *sender) { toggleFeature("gps", sender); }
    void checkbox_backcam_checked(CheckboxButton *sender) { toggleFeature("back_cam", sender); }
    void checkbox_frontcam_checked(CheckboxButton *sender) { toggleFeature("front_cam", sender); }
    void checkbox_flash_checked(CheckboxButton *sender) { toggleFeature("flash_cam", sender); }
    void checkbox_bluetoothle_checked(CheckboxButton *sender) { toggleFeature("bluetooth_le", sender); }
    void checkbox_opengl2_checked(CheckboxButton *sender) { toggleFeature("opengl_2", sender); }
    void checkbox_opengl3_checked(CheckboxButton *sender) { toggleFeature("opengl_3", sender); }

    void deselectRadioButtons();
    /// Requires the feature if its box is active, then filters. The key is one of `deviceFeatures`.
    void checkboxCheckForKey(std::string_view key, const CheckboxButton *button);
    /// Filters the devices again and fades those that do not match.
    void filter();
    /// Fades the view within a quarter of a second, from the opacity it has.
    void animateView(FadingView *view, float toAlphaValue);
    /// Clears the whole filter. Unticks the check boxes that are direct children of the tool's view.
    void reset();

private:
    void setUpSections();
    void setUpControls();
    void setupData();
    void setupFilterDict();
    void createiPhoneList();
    void createiPodList();
    void createiPadList();
    void chooseVersion(float version, RadioButton *sender);
    void toggleFeature(std::string_view key, CheckboxButton *sender);
    void showCount();
    void showMatches(const std::vector<DeviceRecord> &devices, const DeviceGroup &views);

    std::unique_ptr<Ui::DeviceViewController> m_ui;
    DeviceLists m_devices;
    DeviceGroup m_iPhoneViews;
    DeviceGroup m_iPodViews;
    DeviceGroup m_iPadViews;
    FilterDictionary m_filterDictionary;
    QLabel *m_miniLabel = nullptr;       ///< owned by its container
    TodayDevicePane *m_today = nullptr;  ///< owned by the view
    std::optional<ModelFilter> m_wanted; ///< until the side of today is made
};

} // namespace lumora
