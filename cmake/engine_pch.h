// SPDX-License-Identifier: MIT
// The headers that most files include. Every template in here is instantiated again in each file, so a header that few
// files use takes more time than it saves.
#pragma once

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>

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
