#pragma once

// As coeur.h, for the tests of rules and operations.

#include "coeur.h"

#include <gtest/gtest.h>
