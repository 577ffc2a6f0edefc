// SPDX-License-Identifier: MIT
#pragma once

#include "color/palettes/PickedPalette.h"

#include <QWidget>

class QComboBox;
class QLabel;

namespace lumora
{

class IconButton;
class SwatchList;

/// The colors picked so far, with the ways to keep one, to forget one, to save them and to read them back.
class PaletteView final : public QWidget
{
    Q_OBJECT

public:
    explicit PaletteView(QWidget *parent = nullptr);

    void setPalette(const Palette &palette);
    SwatchList *swatches() const { return m_swatches; }
    IconButton *addButton() const { return m_add; }
    IconButton *removeButton() const { return m_remove; }
    IconButton *openButton() const { return m_open; }
    IconButton *catalogueButton() const { return m_catalogue; }
    /// In place of the two buttons that open while a slow file is read.
    IconButton *stopButton() const { return m_stop; }
    void setReading(bool isReading);
    IconButton *saveButton() const { return m_save; }
    QComboBox *formats() const { return m_formats; }
    PaletteFormat format() const;

signals:
    void chosen(int index);
    void addWanted();
    void removalWanted(int index);
    void openWanted();
    void catalogueWanted();
    void stopWanted();
    void saveWanted();

protected:
    /// Delete forgets the marked color.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    IconButton *makeButton(const QString &text);
    void removeMarked();
    void enableButtons();

    SwatchList *m_swatches;
    QLabel *m_hint;
    IconButton *m_add;
    IconButton *m_remove;
    IconButton *m_open;
    IconButton *m_catalogue;
    IconButton *m_stop;
    IconButton *m_save;
    QComboBox *m_formats;
};

} // namespace lumora
