// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtCore>

#include <QColor>
#include <QFont>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>
