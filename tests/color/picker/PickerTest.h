// SPDX-License-Identifier: MIT
#pragma once

#include "ShownPicker.h"
#include "resources/Resources.h"

#include <QTest>

namespace lumora
{

/// The base of the tests of the picker's content: each begins with a new, shown picker with English texts.
class PickerTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<ShownPicker> m_picker;

    static constexpr RgbaColor blue{0.0F, 0.0F, 1.0F, 1.0F};

private slots:
    void initTestCase() { installTexts(*QCoreApplication::instance(), QLocale(QStringLiteral("en"))); }
    void init()
    {
        m_picker = std::make_unique<ShownPicker>();
        QVERIFY(QTest::qWaitForWindowExposed(&m_picker->content));
    }
    void cleanup() { m_picker.reset(); }
};

} // namespace lumora
