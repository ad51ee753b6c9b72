// Belongs to the library that the precompiled headers are made for.
#pragma once

#include "support/precompiled.h"

#include "../../cmake/precompiled_toolkit.h"
