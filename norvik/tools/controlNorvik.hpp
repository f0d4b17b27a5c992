// SPDX-License-Identifier: MIT

#pragma once

// The place that the widget had, which forms and programs of hosts name.
#include "norvik/widget/controlNorvik.hpp"
