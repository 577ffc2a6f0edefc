// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

namespace lumora
{

/// Lines of code to read and to copy.
class SnippetBox final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SnippetBox(QWidget *parent = nullptr);
};

} // namespace lumora
