# SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
# SPDX-License-Identifier: MIT

# Language level, warnings and sanitizers. Only the presets for developers set CMAKE_COMPILE_WARNING_AS_ERROR.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# As libcups has it: on 32-bit systems, calls fail for files with large inode numbers otherwise.
add_compile_definitions(_FILE_OFFSET_BITS=64)

option(PROPERTIESDIALOG_SANITIZE "Build with AddressSanitizer (leaks included) and UndefinedBehaviorSanitizer" OFF)
if(PROPERTIESDIALOG_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

add_library(PropertiesDialogWarnings INTERFACE)
target_compile_options(PropertiesDialogWarnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wcast-qual -Wformat=2 -Wundef
    # The macros of newer versions of Qt Test convert durations to int.
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:USES_QTEST_MACROS>>>:-Wconversion>
    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wzero-as-null-pointer-constant>
)

# Forbids implicit text conversions and macros that collide with other libraries.
add_library(PropertiesDialogStrictQt INTERFACE)
target_compile_definitions(PropertiesDialogStrictQt INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING)
