# SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
# SPDX-License-Identifier: MIT

# The target "docs" builds the API documentation and the pages for hosts in BUILD/docs/html. Warnings of doxygen fail it.

find_program(DOXYGEN_EXECUTABLE doxygen DOC "Makes the documentation")
if(NOT DOXYGEN_EXECUTABLE)
    return()
endif()

set(pages EMBEDDING FILES FAULTS SECURITY)
list(TRANSFORM pages PREPEND ${PROJECT_SOURCE_DIR}/docs/)
list(TRANSFORM pages APPEND .md)
get_target_property(public_headers PropertiesDialog PUBLIC_HEADER)
list(FILTER public_headers EXCLUDE REGEX propertiesdialog_export)
set(documented ${public_headers} ${pages})
set(include_dirs ${public_headers})
list(TRANSFORM include_dirs REPLACE "/[^/]*$" "")
list(REMOVE_DUPLICATES include_dirs)
list(JOIN documented "\" \\\n    \"" DOXYGEN_INPUT)
set(DOXYGEN_INPUT "\"${DOXYGEN_INPUT}\"")
list(JOIN include_dirs "\" \\\n    \"" DOXYGEN_INCLUDE_DIRS)
set(DOXYGEN_INCLUDE_DIRS "\"${DOXYGEN_INCLUDE_DIRS}\"")
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)

add_custom_target(docs
    COMMAND ${DOXYGEN_EXECUTABLE} ${PROJECT_BINARY_DIR}/docs/Doxyfile
    SOURCES ${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${documented}
    VERBATIM
)
