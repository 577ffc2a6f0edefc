// SPDX-License-Identifier: MIT
// The icon tool's source: reading it and showing it.
#include "IconSource.h"
#include "IconsViewController.h"
#include "icons/pane/IconView.h"
#include "icons/pane/TodayIcons.h"
#include "pictures/PictureOperations.h"
#include "pictures/PictureReader.h"
#include "tool/FailureText.h"
#include "tool/style/ButtonStyle.h"
#include "tool/style/LabelStyle.h"
#include "ui_IconsViewController.h"
#include "widgets/style/Fonts.h"
#include "widgets/style/Palette.h"

#include <QFileInfo>

namespace lumora
{

namespace
{

QString sizeText(QSize size)
{
    return qtTrId("ICONS_PIXELS")
        .replace(QStringLiteral("[WIDTH]"), QString::number(size.width()))
        .replace(QStringLiteral("[HEIGHT]"), QString::number(size.height()));
}

/// Describes a file that is no usable picture.
QString whatInstead(const Failure &failure)
{
    return failure.code == FailureCode::NotAPicture ? qtTrId("ICONS_NO_PICTURE") : failureReason(failure);
}

} // namespace

void IconsViewController::loadBuiltInIcon()
{
    // Reading and scaling it takes longer than all the rest of the window, so the window does not wait for it.
    m_jobs.start([this, sides = pictureSides(), mode = cornerMode()](const BackgroundJob &job) {
        const Result<QImage> builtIn = builtInIcon();
        const ShownIcon shown = shownIcon(builtIn ? builtIn.value() : QImage(), sides, mode);
        job.post([this, shown] {
            if (std::exchange(m_builtInIconPending, false))
                showIcon(shown);
            emit builtInIconRead();
        });
    });
}

QList<int> IconsViewController::pictureSides() const
{
    QList<int> sides{m_ui->sourceIconView->pixelSide()};
    for (const IconView *preview : m_previews)
        sides << preview->pixelSide();
    return sides;
}

void IconsViewController::showIcon(const ShownIcon &shown)
{
    m_icon = shown.icon;
    m_picturesAreStale = false;
    m_ui->sourceIconView->setPicture(shown.pictures.first());
    // A view whose size changed meanwhile is drawn again.
    if (m_ui->sourceIconView->pixelSide() != shown.pictures.first().width())
        showSource();
    for (std::size_t number = 0; number < m_previews.size(); ++number) {
        IconView *preview = m_previews[number];
        preview->setPicture(shown.pictures.at(static_cast<qsizetype>(number) + 1));
        if (cornerMode() != shown.cornerMode || preview->picture().width() != preview->pixelSide())
            drawPreview(preview);
    }
}

void IconsViewController::setUpReading()
{
    m_reading = new FileReading(services().fileReader, this);
    connect(m_reading, &FileReading::slow, this, &IconsViewController::readingIsSlow);
    connect(m_reading, &FileReading::ended, this, &IconsViewController::readingEnded);
    connect(m_ui->stopButton, &HoverButton::clicked, m_reading, &FileReading::stop);
    styleButton(m_ui->stopButton, qtTrId("STOP"), palette::icons, palette::iconsBorder);
    showStatus(qtTrId("ICONS_EXAMPLE"));
}

void IconsViewController::createIconFromURL(const QString &path)
{
    const auto work = [this, path, sides = pictureSides(), mode = cornerMode()](const Result<QByteArray> &bytes) {
        const Result<QImage> picture = bytes ? readIconSource(bytes.value(), path) : Result<QImage>(bytes.failure());
        const QString name = QFileInfo(path).fileName();
        if (picture) {
            const ShownIcon shown = shownIcon(picture.value(), sides, mode);
            return FileReading::Conclusion([this, name, shown] { acceptIcon(shown, name); });
        }
        const Failure &failure = picture.failure();
        const QSize size =
            failure.code == FailureCode::WrongSize ? storedPixelSize(bytes.value(), path).value() : QSize();
        return FileReading::Conclusion(
            [this, name, failure, size] { refuseIcon(name, size.isValid() ? sizeText(size) : whatInstead(failure)); });
    };
    m_reading->read(path, largestPictureFile, work);
}

const QImage &IconsViewController::icon()
{
    if (std::exchange(m_builtInIconPending, false)) {
        const Result<QImage> builtIn = builtInIcon();
        m_icon = builtIn ? builtIn.value() : QImage();
    }
    return m_icon;
}

void IconsViewController::setIcon(const QImage &icon)
{
    m_reading->stop();
    m_builtInIconPending = false;
    m_icon = icon;
    showSource();
    editPreviewIcon();
    showStatus({});
    m_today->setIcon(icon, qtTrId("ICONS_SOURCE_TITLE"));
}

void IconsViewController::takeIconOfToday(const QImage &icon, const QString &name)
{
    m_reading->stop();
    m_builtInIconPending = false;
    m_icon = icon;
    m_ui->sourceIconTitle->setText(name);
    m_ui->sourceIconSubtitle->setText(qtTrId("ICONS_SOURCE_SUBTITLE_ACTIVE"));
    showStatus({});
    m_picturesAreStale = true;
    refreshPictures();
}

void IconsViewController::refreshPictures()
{
    if (isToday() || !std::exchange(m_picturesAreStale, false))
        return;
    m_jobs.start([this, icon = m_icon, sides = pictureSides(), mode = cornerMode()](const BackgroundJob &job) {
        const ShownIcon shown = shownIcon(icon, sides, mode);
        job.post([this, shown] {
            if (m_icon.cacheKey() == shown.icon.cacheKey())
                showIcon(shown);
        });
    });
}

void IconsViewController::acceptIcon(const ShownIcon &shown, const QString &title)
{
    m_reading->stop();
    m_builtInIconPending = false;
    showIcon(shown);
    m_ui->sourceIconTitle->setText(title);
    m_ui->sourceIconSubtitle->setText(qtTrId("ICONS_SOURCE_SUBTITLE_ACTIVE"));
    showStatus({});
    m_today->setIcon(shown.icon, title);
}

void IconsViewController::refuseIcon(const QString &name, const QString &what)
{
    showStatus(qtTrId("ICONS_REFUSED").replace(QStringLiteral("[WHAT]"), what).replace(QStringLiteral("[FILE]"), name),
               StatusKind::Refusal);
    showPopupWithTitle(qtTrId("ICONS_ALERT_TITLE"), qtTrId("ICONS_ALERT_MESSAGE"), m_ui->browseButton, true);
}

void IconsViewController::setIconFromDelegate(const QString &path)
{
    dropViewReceivedFiles({path});
}

void IconsViewController::dropViewReceivedFiles(const QStringList &files)
{
    if (files.isEmpty())
        return;
    if (isToday()) {
        m_today->readIcon(files.first());
        return;
    }
    createIconFromURL(files.first());
    m_browsePath = QFileInfo(files.first()).path();
}

void IconsViewController::browseButtonPressed()
{
    if (isToday())
        m_today->browseIcon();
    else
        openDialog();
}

void IconsViewController::openDialog()
{
    const FileRequest request{
        qtTrId("ICONS_BROWSE"), m_browsePath, {qtTrId("FILTER_PNG") + QStringLiteral(" (*.png)")}, false};
    services().fileChooser.chooseFiles(window(), request,
                                       [this](const QStringList &paths) { dropViewReceivedFiles(paths); });
}

void IconsViewController::paste()
{
    const QStringList files = services().clipboard.files();
    if (!files.isEmpty()) {
        dropViewReceivedFiles(files);
        return;
    }
    const QImage image = services().clipboard.image();
    if (image.isNull())
        return;
    m_reading->stop();
    const QString name = qtTrId("ICONS_SOURCE_TITLE");
    if (isToday())
        m_today->takePasted(image);
    else if (image.size() == QSize(sourceIconSize, sourceIconSize))
        acceptIcon(
            shownIcon(image.convertToFormat(QImage::Format_RGBA8888_Premultiplied), pictureSides(), cornerMode()),
            name);
    else
        refuseIcon(qtTrId("ICONS_PASTED"), sizeText(image.size()));
}

void IconsViewController::showStatus(const QString &text, StatusKind kind)
{
    const bool isReading = kind == StatusKind::Reading;
    styleLabel(m_ui->sourceStatus, latoBold(13), kind == StatusKind::Refusal ? palette::errorDark : palette::linkText);
    m_ui->sourceStatus->setText(text);
    m_ui->stopButton->setVisible(isReading);
}

void IconsViewController::readingIsSlow()
{
    m_statusBefore = m_ui->sourceStatus->text();
    showStatus(qtTrId("READING_FILE").replace(QStringLiteral("[FILE]"), QFileInfo(m_reading->path()).fileName()),
               StatusKind::Reading);
}

void IconsViewController::readingEnded()
{
    if (!m_ui->stopButton->isHidden())
        showStatus(m_statusBefore);
}

void IconsViewController::fitSource()
{
    if (std::exchange(m_isFitting, true))
        return;
    m_jobs.start([this, icon = icon(), side = m_ui->sourceIconView->pixelSide()](const BackgroundJob &job) {
        const QImage picture = resizeImage(icon, side);
        job.post([this, icon, side, picture] {
            m_isFitting = false;
            if (icon.cacheKey() != m_icon.cacheKey() || side != m_ui->sourceIconView->pixelSide())
                fitSource();
            else
                m_ui->sourceIconView->setPicture(picture);
        });
    });
}

void IconsViewController::showSource()
{
    m_ui->sourceIconView->setPicture(resizeImage(icon(), m_ui->sourceIconView->pixelSide()));
}

void IconsViewController::editPreviewIcon()
{
    for (IconView *preview : m_previews)
        drawPreview(preview);
}

void IconsViewController::drawPreview(IconView *preview)
{
    preview->setPicture(resizeImage(icon(), preview->pixelSide(), static_cast<int>(cornerMode())));
}

} // namespace lumora
