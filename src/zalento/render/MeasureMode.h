#pragma once

#include "zalento/measure/MeasureMode.h" // IWYU pragma: export
