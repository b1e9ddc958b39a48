# SPDX-FileCopyrightText: 2026 The PropertiesDialog authors
# SPDX-License-Identifier: MIT
"""A host without an application object that opens the dialog twice."""

import ctypes

library = ctypes.CDLL("libPropertiesDialog.so.1")
for _ in range(2):
    print(library.propertiesDialog(), flush=True)
