// SPDX-License-Identifier: MIT
#pragma once

#include "color/palettes/PickedPalette.h"
#include "tool/BackgroundJobs.h"
#include "tool/services/Services.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <stop_token>

namespace lumora
{

class FileReading;
class TodayColorPane;

/// The color of the tool's side of today, the palette of the colors picked on both sides, and the work between the
/// views and the desktop.
class TodayColors final : public QObject
{
    Q_OBJECT

public:
    /// How long a picked color must rest before it is in the palette: a drag over the wheel passes many.
    static constexpr std::chrono::milliseconds restDuration{500};

    TodayColors(const Services &services, QObject *parent);

    /// Makes the pane, which its parent owns.
    QWidget *makePane(QWidget *parent);
    /// Null until it is made.
    TodayColorPane *pane() const { return m_pane; }
    const WideColor &color() const { return m_color; }
    /// Shows the color without sending it.
    void setColor(const WideColor &color);
    /// The user picked a color, on this side or the other.
    void picked();
    /// Takes a color in any form; false if the text is none.
    bool takeText(const QString &text);
    const Palette &palette() const { return m_picked.colors(); }

signals:
    /// The user chose another color on this side.
    void colorChanged(const lumora::WideColor &color);
    void pipetteWanted();
    /// A message at the control.
    void messageWanted(const QString &title, const QString &text, QWidget *control, bool isError);

private:
    void connectInput();
    void connectPalette();
    void take(const WideColor &color);
    void keep(const WideColor &color);
    void showPalette();
    void openPalette(const QString &path);
    void openCatalogue(const QString &folder);
    void endSearch();
    void stopReading();
    void savePaletteInto(const QString &folder);

    Services m_services;
    FileReading *m_reading; ///< owned by this
    QPointer<TodayColorPane> m_pane;
    WideColor m_color;
    WideColor m_resting; ///< picked last; not yet in the palette while the timer runs
    PickedPalette m_picked;
    QTimer m_rest;
    QString m_lastFolder;
    std::stop_source m_searching; ///< of a catalog
    QTimer m_patience;            ///< runs while a catalog is searched and that is not slow yet
    BackgroundJobs m_jobs;        ///< last, so that it waits for running jobs before other members are destroyed
};

} // namespace lumora
