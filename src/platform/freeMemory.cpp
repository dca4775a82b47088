// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "platform/freeMemory.h"

#include <QtGlobal> // Brings __GLIBC__.

#ifdef __GLIBC__
#include <malloc.h>
#endif

void freeMemory::giveBack()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}
