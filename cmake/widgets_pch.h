// SPDX-License-Identifier: MIT
#pragma once

#include "engine_pch.h"

#include <QtWidgets/QtWidgets>
