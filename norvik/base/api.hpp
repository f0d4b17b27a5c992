// SPDX-License-Identifier: MIT

#pragma once

// What the shared libraries show: all else is compiled hidden. A host's archive or plugin that holds the
// static libraries shows nothing of them, since whoever links them through CMake leaves their symbols out of
// its own.
#define NORVIK_API [[gnu::visibility("default")]]
