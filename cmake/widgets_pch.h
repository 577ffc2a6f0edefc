// SPDX-License-Identifier: MIT
#pragma once

#include "engine_pch.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>
