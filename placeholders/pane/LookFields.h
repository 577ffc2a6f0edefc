// SPDX-License-Identifier: MIT
#pragma once

#include "placeholders/today/LabeledExport.h"

#include <QWidget>

#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;
class QVBoxLayout;

namespace lumora
{

class ColorEntry;
class IconButton;

/// What the placeholders look like: their text, colors and format, and a list of sizes of the user's own.
class LookFields final : public QWidget
{
    Q_OBJECT

public:
    explicit LookFields(QWidget *parent = nullptr);

    PictureLook look() const;
    LabeledOptions options() const;
    /// The sizes in the list; empty if there are none, or if one cannot be read.
    std::vector<ListedSize> sizes() const;
    /// Why nothing can be made of the fields; empty if it can.
    QString refusal() const;
    void clearSizes();

    QLineEdit *textField() const { return m_text; }
    ColorEntry *foreground() const { return m_foreground; }
    ColorEntry *background() const { return m_background; }
    QComboBox *formats() const { return m_formats; }
    QSlider *quality() const { return m_quality; }
    QLineEdit *sizesField() const { return m_sizes; }
    IconButton *keepButton() const { return m_keep; }

signals:
    void changed();
    /// The user wants to keep the sizes as a set.
    void keepWanted();

private:
    void addField(QVBoxLayout *column, const QString &name, QWidget *field);
    void setUpFormats();
    void react();
    void showQuality();

    QLineEdit *m_text;
    ColorEntry *m_foreground;
    ColorEntry *m_background;
    QComboBox *m_formats;
    QSlider *m_quality;
    QLabel *m_qualityLabel;
    QLineEdit *m_sizes;
    IconButton *m_keep;
    QLabel *m_refusal;
};

} // namespace lumora
