// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include "shell/modInit.h"

int main(int argc, char *argv[])
{
    return modInit::Main(argc, argv);
}
