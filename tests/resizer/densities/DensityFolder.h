// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/WholeFile.h"
#include "resizer/densities/DensityPlan.h"
#include "tests/pictures/TestPictures.h"
#include "tests/resizer/RetinaFixtures.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace lumora
{

/// A folder of sources, and what a plan says of it.
struct DensityFolder
{
    static DensityRequest requestFor(const QString &layout)
    {
        DensityRequest request;
        request.layout = densityLayoutNamed(layout);
        return request;
    }

    /// Replaces the folder by an empty one.
    void renew()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    QString path(const QString &name) const { return m_folder->path() + u'/' + name; }
    QString relative(const QString &file) const { return QDir(m_folder->path()).relativeFilePath(file); }
    QByteArray content(const QString &name) const { return readWholeFile(path(name), 1 << 20).value(); }

    void put(const QString &name, QSize size)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QVERIFY(putFlatPng(path(name), size, QColor(10, 20, 200)));
    }
    /// Its left half is red, the other empty.
    void putDrawing(const QString &name)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QVERIFY(writeWholeFile(path(name), "<svg xmlns='http://www.w3.org/2000/svg' width='24' height='12'>"
                                           "<path d='M0 0h12v12h-12z' fill='#f00'/></svg>")
                    .ok());
    }
    void putWebP(const QString &name, QSize size)
    {
        QVERIFY(writeWholeFile(path(name), pictureFile(quarters(size.width(), size.height()), "webp")).ok());
    }
    int filesBelow() const
    {
        int count = 0;
        for (QDirIterator files(m_folder->path(), QDir::Files, QDirIterator::Subdirectories); files.hasNext(); ++count)
            files.next();
        return count;
    }

    /// A line for each target, then one for each failure.
    QStringList described(const DensityPlan &plan) const
    {
        QStringList lines;
        for (const PlannedSource &source : plan.sources) {
            for (const PlannedTarget &picture : source.pictures) {
                QString line = relative(picture.target);
                if (picture.written)
                    line += QStringLiteral(" %1x%2").arg(picture.size.width()).arg(picture.size.height());
                else
                    line += QStringLiteral(" kept");
                if (picture.rounded)
                    line += QStringLiteral(" rounded");
                lines << line;
            }
        }
        for (const Failure &failure : plan.failures)
            lines << failure.detail.words();
        return lines;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace lumora
