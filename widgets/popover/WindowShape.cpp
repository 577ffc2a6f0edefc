// SPDX-License-Identifier: MIT
#include "WindowShape.h"

#include "widgets/style/X11Connection.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QWindow>

#include <xcb/shape.h>

#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

/// One rectangle for each run of pixels that the outline covers wholly or in part.
std::vector<xcb_rectangle_t> rectanglesTouched(const QPainterPath &outline, const QWindow *window)
{
    const qreal ratio = window->devicePixelRatio();
    QImage coverage((QSizeF(window->size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    coverage.fill(Qt::transparent);
    QPainter painter(&coverage);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(ratio, ratio);
    painter.fillPath(outline, Qt::black);
    painter.end();
    std::vector<xcb_rectangle_t> rectangles;
    for (int y = 0; y < coverage.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(coverage.constScanLine(y));
        for (int x = 0; x < coverage.width(); ++x) {
            const int start = x;
            while (x < coverage.width() && qAlpha(line[x]) > 0)
                ++x;
            if (x > start)
                rectangles.push_back(
                    {static_cast<int16_t>(start), static_cast<int16_t>(y), static_cast<uint16_t>(x - start), 1});
        }
    }
    return rectangles;
}

} // namespace

bool windowsAreTranslucent()
{
    xcb_connection_t *connection = x11Connection();
    if (!connection)
        return true;
    // A compositing manager owns the selection named after the screen it serves.
    constexpr std::string_view selection = "_NET_WM_CM_S0";
    const xcb_atom_t atom = x11Atom(connection, selection);
    if (atom == XCB_ATOM_NONE)
        return false;
    const auto ownerCookie = xcb_get_selection_owner(connection, atom);
    const X11Reply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, ownerCookie, nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

void setWindowShape(QWindow *window, const QPainterPath &outline)
{
    xcb_connection_t *connection = x11Connection();
    if (!connection)
        return;
    const auto id = static_cast<xcb_window_t>(window->winId());
    if (outline.isEmpty()) {
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, id, 0, 0, XCB_NONE);
    } else {
        const std::vector<xcb_rectangle_t> touched = rectanglesTouched(outline, window);
        xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_YX_SORTED, id, 0, 0,
                             static_cast<uint32_t>(touched.size()), touched.data());
    }
    xcb_flush(connection);
}

void setInputRegion(QWindow *window, const QRegion &region)
{
    if (xcb_connection_t *connection = x11Connection()) {
        const qreal ratio = window->devicePixelRatio();
        std::vector<xcb_rectangle_t> rectangles;
        for (const QRect &rect : region) {
            const QRect pixels = QRectF(rect.topLeft() * ratio, rect.size() * ratio).toAlignedRect();
            rectangles.push_back({static_cast<int16_t>(pixels.x()), static_cast<int16_t>(pixels.y()),
                                  static_cast<uint16_t>(pixels.width()), static_cast<uint16_t>(pixels.height())});
        }
        xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
                             static_cast<xcb_window_t>(window->winId()), 0, 0, static_cast<uint32_t>(rectangles.size()),
                             rectangles.data());
        xcb_flush(connection);
    } else if (QGuiApplication::platformName().startsWith(u"wayland"_s)) {
        // On this platform a window's mask is only its input region.
        window->setMask(region);
    }
}

} // namespace lumora
