// Belongs to the library that the precompiled headers are made for.
#pragma once

#include "../../cmake/precompiled_toolkit.h"
#include "support/precompiled.h"
