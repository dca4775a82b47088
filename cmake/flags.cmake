# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
# One INTERFACE target carries what every target of the project is compiled with.
add_library(quillets_flags INTERFACE)
target_compile_options(quillets_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion
    $<$<BOOL:${QUILLETS_WERROR}>:-Werror>)
target_compile_definitions(quillets_flags INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)
if(QUILLETS_SANITIZE)
    target_compile_options(quillets_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(quillets_flags INTERFACE -fsanitize=address,undefined)
endif()
