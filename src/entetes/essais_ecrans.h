#pragma once

// As ecrans.h, for the tests of screens.

#include "ecrans.h"

#include <gtest/gtest.h>
