#pragma once

// As ecrans.h, for the tests.

#include "ecrans.h"

#include <gtest/gtest.h>
