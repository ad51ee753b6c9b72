#pragma once

#include "platform/file_descriptor.h"  // where it lives: it is of POSIX, not of Linux
